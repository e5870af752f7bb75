#include "statustable/CellTexts.h"

#include "statustable/OfflineData.h"
#include "support/PrintText.h"
#include "TestFiles.h"
#include <gtest/gtest.h>

static void PrintTo(const CellTexts& cells, std::ostream* out) {
    for (const QString& text : {cells.decimal, cells.hexadecimal, cells.high, cells.low})
        *out << '"' << text.toStdString() << "\" ";
}

namespace {
OfflineData DataFrom32() {
    OfflineData data;
    data.Fill("810203FF04", 32); // bytes 32 to 36
    return data;
}

const CellTexts notAvailable{"N/A", "N/A", "N/A", "N/A"};
} // namespace

TEST(VariableToRead, OfAHexadecimalAddressIsItsByte) {
    EXPECT_EQ(VariableToRead("1F40H", 50), QString("B8000"));
    EXPECT_EQ(VariableToRead("FFH", 0), QString("B255"));
    EXPECT_EQ(VariableToRead("f000h", 0), QString("B61440"));
}

TEST(VariableToRead, OfAPointIsTheByteBehindIt) {
    EXPECT_EQ(VariableToRead("X30", 49), QString("B49"));
    EXPECT_EQ(VariableToRead("Y81.2", 49), QString("B58.2"));
    EXPECT_EQ(VariableToRead("I10", 50), QString("B194"));
    EXPECT_EQ(VariableToRead("X30", 51), QString("X30"));
}

TEST(VariableToRead, IsElseTheAddressItself) {
    for (const char* address : {"B100", "B100.3", "W200", "D200", "F17"})
        EXPECT_EQ(VariableToRead(address, 49), QString(address));
}

TEST(OnlineCells, OfAByteShowItsLowBits) {
    EXPECT_EQ(OnlineCellTexts("B100", "171"), (CellTexts{"171", "AB", "", "10101011"}));
    EXPECT_EQ(OnlineCellTexts("X30", "5"), (CellTexts{"5", "5", "", "00000101"}));
    EXPECT_EQ(OnlineCellTexts("FFH", "0"), (CellTexts{"0", "0", "", "00000000"}));
}

TEST(OnlineCells, OfABitAndAFlagShowTheBit) {
    EXPECT_EQ(OnlineCellTexts("B100.3", "1"), (CellTexts{"1", "1", "", "1"}));
    EXPECT_EQ(OnlineCellTexts("Y81.2", "0"), (CellTexts{"0", "0", "", "0"}));
    EXPECT_EQ(OnlineCellTexts("F17", "1"), (CellTexts{"1", "1", "", "1"}));
}

TEST(OnlineCells, OfAWordShowBothBytes) {
    EXPECT_EQ(OnlineCellTexts("W200", "43776"),
              (CellTexts{"43776", "AB00", "10101011", "00000000"}));
    EXPECT_EQ(OnlineCellTexts("w200", "1"), (CellTexts{"1", "1", "00000000", "00000001"}));
}

TEST(OnlineCells, OfADoubleWordShowTheNumberNotTheBytes) {
    // High word 1, low word 1.
    EXPECT_EQ(OnlineCellTexts("D100", "10001"),
              (CellTexts{"10001", "2711", "00100111", "00010001"}));
    EXPECT_EQ(OnlineCellTexts("D100", "655359999"),
              (CellTexts{"655359999", "270FFFFF", "11111111", "11111111"}));
}

TEST(OfflineCells, OfBytesAndBits) {
    const OfflineData data = DataFrom32();
    EXPECT_EQ(OfflineCellTexts("B32", data), (CellTexts{"129", "81", "", "10000001"}));
    EXPECT_EQ(OfflineCellTexts("B32.7", data), (CellTexts{"1", "1", "", "1"}));
    EXPECT_EQ(OfflineCellTexts("B32.6", data), (CellTexts{"0", "0", "", "0"}));
    EXPECT_EQ(OfflineCellTexts("23H", data), (CellTexts{"255", "FF", "", "11111111"}));
}

TEST(OfflineCells, OfFlags) {
    const OfflineData data = DataFrom32();
    EXPECT_EQ(OfflineCellTexts("F0", data), (CellTexts{"1", "1", "", "1"}));
    EXPECT_EQ(OfflineCellTexts("F1", data), (CellTexts{"0", "0", "", "0"}));
    EXPECT_EQ(OfflineCellTexts("F9", data), (CellTexts{"1", "1", "", "1"}));
}

TEST(OfflineCells, OfWordsAndDoubleWords) {
    const OfflineData data = DataFrom32();
    EXPECT_EQ(OfflineCellTexts("W32", data), (CellTexts{"641", "281", "00000010", "10000001"}));
    // (3 + 256 x 255) x 10000 + 129 + 256 x 2
    EXPECT_EQ(OfflineCellTexts("D32", data),
              (CellTexts{"652830641", "26E967B1", "00000010", "10000001"}));
}

TEST(OfflineCells, OfAPointAreNotAvailable) {
    const OfflineData data = DataFrom32();
    for (const char* address : {"X10", "Y0", "I10", "Q0", "X10.3"})
        EXPECT_EQ(OfflineCellTexts(address, data), notAvailable) << address;
}

TEST(OfflineCells, OfAByteBeyondTheEndAre0) {
    const OfflineData data = DataFrom32();
    EXPECT_EQ(OfflineCellTexts("B8193", data), (CellTexts{"0", "0", "", "00000000"}));
    EXPECT_EQ(OfflineCellTexts("B99999999999", data), (CellTexts{"0", "0", "", "00000000"}));
    EXPECT_EQ(OfflineCellTexts("B-5", data), (CellTexts{"0", "0", "", "00000000"}));
    EXPECT_EQ(OfflineCellTexts("F-5", data), (CellTexts{"0", "0", "", "0"}));
    EXPECT_EQ(OfflineCellTexts("B32.9", data), (CellTexts{"0", "0", "", "0"}));
}
