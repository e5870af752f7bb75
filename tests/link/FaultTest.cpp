#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>
#include <QDir>

namespace {
using Bytes = std::vector<int>;

class Fault : public testing::Test, protected LinkUnderTest {
protected:
    void WriteTable(const QByteArray& lines) {
        WriteFile(QStringLiteral("support/FaultErrCodes.txt"), lines);
    }
    void ExpectFileError(const char* text) {
        dialogs.ExpectBox(QString::fromLatin1(text), 64, QStringLiteral("RSComm FaultDescription"),
                          1);
    }
};
} // namespace

TEST_F(Fault, CodeIsTheByteAt8176) {
    GoOnline();
    AcceptHandshake();
    AnswerRead(0x1F, 5);
    EXPECT_EQ(link.FaultCode(), 5);
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0x1F, 0xF0}));
}

TEST_F(Fault, CodeIs0WhileCommErrorStands) {
    GoOnline();
    link.SetCommError(true);
    EXPECT_EQ(link.FaultCode(), 0);
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(Fault, FirmwareRevisionIsTheByteAt8159) {
    GoOnline();
    AcceptHandshake();
    AnswerRead(0x1F, 33);
    EXPECT_EQ(link.FirmwareRev(), 33);
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0x1F, 0xDF}));
}

TEST_F(Fault, FirmwareRevisionWhileOfflineIsMinus1) {
    EXPECT_EQ(link.FirmwareRev(), -1);
    GoOnline();
    link.SetCommError(true);
    EXPECT_EQ(link.FirmwareRev(), -1);
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(Fault, DescriptionIsThePrefixAndTheTextOfTheTable) {
    WriteTable("04,Low battery\r\n05,Watchdog fault\r\n06,Memory fault\r\n");
    EXPECT_EQ(link.FaultDescription(5), QStringLiteral("Fault Code (05H): Watchdog fault"));
}

TEST_F(Fault, Description255LooksUpFFAndDescription0LooksUp00) {
    WriteTable("00,None\r\nFF,All\r\n");
    EXPECT_EQ(link.FaultDescription(255), QStringLiteral("Fault Code (FFH): All"));
    EXPECT_EQ(link.FaultDescription(0), QStringLiteral("Fault Code (00H): None"));
}

TEST_F(Fault, ACodeThatIsNotInTheTableGivesThePrefixWithItsBlank) {
    WriteTable("05,Watchdog fault\r\n");
    EXPECT_EQ(link.FaultDescription(6), QStringLiteral("Fault Code (06H): "));
}

TEST_F(Fault, AnEmptyTableGivesThePrefix) {
    WriteTable("");
    EXPECT_EQ(link.FaultDescription(6), QStringLiteral("Fault Code (06H): "));
}

TEST_F(Fault, WithoutATableTheUserIsToldSo) {
    EXPECT_EQ(link.FaultDescription(5),
              QStringLiteral("Fault Code (05H): --- Fault File Not Found ---"));
}

TEST_F(Fault, TheTableIsFoundWhateverItsLetterCase) {
    WriteFile(QStringLiteral("SUPPORT/faulterrcodes.TXT"), "05,Watchdog\r\n");
    EXPECT_EQ(link.FaultDescription(5), QStringLiteral("Fault Code (05H): Watchdog"));
}

TEST_F(Fault, CodesCompareWithoutCaseAndTheFirstOneCounts) {
    WriteTable("0a,First\r\n0A,Second\r\n");
    EXPECT_EQ(link.FaultDescription(10), QStringLiteral("Fault Code (0AH): First"));
}

TEST_F(Fault, AQuotedDescriptionMayHoldCommas) {
    WriteTable("05,\"Slot 1, 2 or 3\"\n06,Next\n");
    EXPECT_EQ(link.FaultDescription(5), QStringLiteral("Fault Code (05H): Slot 1, 2 or 3"));
    EXPECT_EQ(link.FaultDescription(6), QStringLiteral("Fault Code (06H): Next"));
}

TEST_F(Fault, ADescriptionMayBeLong) {
    const QByteArray text(100000, 'x');
    WriteTable("05," + text + "\r\n");
    EXPECT_EQ(link.FaultDescription(5).size(), 18 + text.size());
}

TEST_F(Fault, AnEmptyLineAtTheEndIsPassedOver) {
    WriteTable("05,Watchdog fault\r\n\r\n");
    EXPECT_EQ(link.FaultDescription(6), QStringLiteral("Fault Code (06H): "));
}

TEST_F(Fault, ACodeWithoutDescriptionIsAFileError) {
    WriteTable("05,Watchdog fault\r\n07");
    ExpectFileError("Error Number = 62\r\n\r\nInput past end of file");
    EXPECT_EQ(link.FaultDescription(6), QStringLiteral("Fault Code (06H): "));
}

TEST_F(Fault, AFolderInPlaceOfTheTableCountsAsNone) {
    QDir().mkpath(folder.Path(QStringLiteral("support/FaultErrCodes.txt")));
    EXPECT_EQ(link.FaultDescription(5),
              QStringLiteral("Fault Code (05H): --- Fault File Not Found ---"));
}
