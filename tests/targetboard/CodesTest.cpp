#include "base/RunTimeError.h"
#include "support/ExpectError.h"
#include "support/PrintText.h"
#include "support/TestFolder.h"
#include "targetboard/CodeFile.h"
#include "targetboard/CorrectiveAdvice.h"
#include "targetboard/FaultCodes.h"
#include <array>
#include <gtest/gtest.h>

namespace {
const QString coCpu = "Replace CO-CPU board at \"CO-CPU Slot\" and try again.  If fault persists, "
                      "peplace K2012 processor board and try again.  If fault persists, verify "
                      "proper use of \"sfunc05/06/12\" in user program.";
const QString cable = "Verify connection of cable between computer \"COM\" port and target board "
                      "\"PROG PORT\".  Verify cable wiring and connectors.  If fault persists, "
                      "replace target board and/or try a different computer.";
const QString called = "User program executed an sfunc09() system fault function call.  See User "
                       "program for details on source of fault and corrective action.";
const QString program = "Program is invalid.  Re-dump program to target board.  If fault persists, "
                        "verify cable connections between computer and target board.  If fault "
                        "persists, replace target board.";
const QString reset = "Reset fault and try again.  If fault persists, replace target board and try "
                      "again.  See Halden Manual for more details.";
const QString none = "None";

struct AdviceRow {
    int first, last;
    const QString& text;
};
const std::array<AdviceRow, 10> adviceTable{{{0, 0, none},
                                             {1, 63, coCpu},
                                             {64, 65, reset},
                                             {66, 66, cable},
                                             {67, 68, reset},
                                             {69, 69, called},
                                             {70, 91, reset},
                                             {92, 93, program},
                                             {94, 122, reset},
                                             {123, 255, none}}};
} // namespace

TEST(CorrectiveAdvice, OfAll256Codes) {
    int codes = 0;
    for (const AdviceRow& row : adviceTable)
        for (int code = row.first; code <= row.last; ++code, ++codes)
            EXPECT_EQ(CorrectiveAdvice(code), row.text) << code;
    EXPECT_EQ(codes, 256);
}

TEST(CorrectiveAdvice, Fault42GivesTheCable45Sfunc09And5CAnd5DTheProgram7BNone) {
    EXPECT_EQ(CorrectiveAdvice(0x42), cable);
    EXPECT_EQ(CorrectiveAdvice(0x45), called);
    EXPECT_EQ(CorrectiveAdvice(0x5C), program);
    EXPECT_EQ(CorrectiveAdvice(0x5D), program);
    EXPECT_EQ(CorrectiveAdvice(0x7A), reset);
    EXPECT_EQ(CorrectiveAdvice(0x7B), none);
}

TEST(FaultCodes, TextIsUpperCaseHexadecimalOfTwoDigits) {
    EXPECT_EQ(FaultCodeText("0"), "00");
    EXPECT_EQ(FaultCodeText("10"), "0A");
    EXPECT_EQ(FaultCodeText("66"), "42");
    EXPECT_EQ(FaultCodeText("255"), "FF");
}

TEST(FaultCodes, ACodeThatBeginsWithALetterDoesNotEnableTheReset) {
    EXPECT_FALSE(CodeEnablesReset("00"));
    EXPECT_FALSE(CodeEnablesReset("A0"));
    EXPECT_FALSE(CodeEnablesReset("0A"));
    EXPECT_FALSE(CodeEnablesReset("FF"));
    EXPECT_TRUE(CodeEnablesReset("01"));
    EXPECT_TRUE(CodeEnablesReset("1A"));
    EXPECT_TRUE(CodeEnablesReset("5E"));
}

TEST(FaultCodes, LabelTexts) {
    EXPECT_EQ(FaultLabelText(FaultPosition::CurrentFault, "0A"), "Current Fault: Code = 0AH");
    EXPECT_EQ(FaultLabelText(FaultPosition::LastFault, "42"), "Last Fault: Code = 42H");
    EXPECT_EQ(FaultLabelText(FaultPosition::CoCpuSlot, "0A"), "CO-CPU Slot: 10");
    EXPECT_EQ(FaultLabelText(FaultPosition::CorrectiveAction, "0A"), "Corrective Action:");
    EXPECT_EQ(FaultLabelText(FaultPosition::CurrentCommError, "00"),
              "Current Comm Error: Code = 00H");
    EXPECT_EQ(FaultLabelText(FaultPosition::LastCommError, "FF"), "Last Comm Error: Code = FFH");
}

class CodeFileTest : public testing::Test {
protected:
    std::optional<QString> Find(const QByteArray& content, const QString& code) {
        return DescriptionInCodeFile(folder.Write("codes.txt", content), code);
    }
    TestFolder folder;
};

TEST_F(CodeFileTest, ALaterEqualPairWins) {
    EXPECT_EQ(Find("05,First\r\n06,Other\r\n05,\"Second, and last\"\r\n", "05"),
              "Second, and last");
}

TEST_F(CodeFileTest, LetterCaseOfTheCodeDoesNotCount) {
    EXPECT_EQ(Find("0a,Low\r\n", "0A"), "Low");
}

TEST_F(CodeFileTest, AMissingFileAnEmptyFileAndAnUnknownCodeHaveNoDescription) {
    EXPECT_EQ(DescriptionInCodeFile(folder.Path("none.txt"), "05"), std::nullopt);
    EXPECT_EQ(Find("", "05"), std::nullopt);
    EXPECT_EQ(Find("06,Other\r\n", "05"), std::nullopt);
    EXPECT_EQ(DescriptionInCodeFile(folder.MakeFolder("folder"), "05"), std::nullopt);
}

TEST_F(CodeFileTest, AnEmptyDescriptionIsOne) {
    EXPECT_EQ(Find("05,\r\n", "05"), QString());
    EXPECT_TRUE(Find("05,\r\n", "05").has_value());
}

TEST_F(CodeFileTest, AFileCutInAQuoteGivesTheTextUpToThere) {
    EXPECT_EQ(Find("04,Before\r\n05,\"Cut in the mi", "05"), "Cut in the mi");
    EXPECT_EQ(Find("04,Before\r\n05,\"Cut in the mi", "04"), "Before");
}

TEST_F(CodeFileTest, AFileThatEndsAfterACodeRaises62) {
    ExpectError(ErrorNumber::InputPastEndOfFile, [this] { Find("04,Before\r\n05\r\n", "04"); });
}

TEST_F(CodeFileTest, AnEmptyLineAtTheEndIsPassedOver) {
    EXPECT_EQ(Find("05,Text\r\n\r\n", "05"), "Text");
}
