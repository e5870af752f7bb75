#include "pls/PLSBoards.h"
#include "pls/PLSConfigTable.h"
#include "pls/PLSLayout.h"
#include "PLSUnderTest.h"
#include "support/ExpectError.h"

namespace {
using ConfigTable = PLSUnderTest;
using ReadTable = std::array<qint16, plsReadTableSize>;

void FillConfiguration(PLSRecord& record) {
    record.Channels = 32;
    record.ScaleFactor = 500;
    record.OptionFlags = 3;
    record.StrobePreset = 12;
    record.StopLocation = 0x0123;
    record.StopError = 34;
    record.SignalWidth = 56;
    record.WindowOn = 0x0145;
    record.WindowOff = 0x0167;
    record.LowThreshold = 0x0489;
    record.HighThreshold = 0x15AB;
    record.PLSProgram = 5;
    record.SpeedComp = {101, 102, 103, 104, 105, 106, 107, 108};
}

ReadTable CountingTable() {
    ReadTable table;
    for (int position = 0; position < plsReadTableSize; ++position)
        table[position] = static_cast<qint16>(position + 1);
    return table;
}
} // namespace

TEST_F(ConfigTable, SentToTheStandardLayout) {
    FillConfiguration(gPLS);
    const PLSSentTable expected{3,    12,   0x23, 0x01, 34,   56,   0x45, 0x01,
                                0x67, 0x01, 0x45, 0x01, 0x67, 0x01, 0x89, 0x04,
                                0xAB, 0x15, 32,   0,    0,    0,    0,    0};
    for (const qint16 board : {55, 62, 67, 63, 64})
        EXPECT_EQ(BuildPLSConfigArray(board), expected) << board;
}

TEST_F(ConfigTable, SentToTheR6500Layout) {
    FillConfiguration(gPLS);
    const PLSSentTable expected{5, 101, 102, 103, 104, 0, 105, 106, 107, 108, 0, 0,
                                0, 0,   0,   0,   0,   0, 32,  0,   0,   0,   0, 0};
    EXPECT_EQ(BuildPLSConfigArray(69), expected);
}

TEST_F(ConfigTable, SentForIndex68IsThatOfTheStandardLayout) {
    FillConfiguration(gPLS);
    EXPECT_EQ(BuildPLSConfigArray(68), BuildPLSConfigArray(55));
}

TEST_F(ConfigTable, ReadFromTheStandardLayout) {
    gPLS.ScaleFactor = 360;
    gPLS.Offset = 17;
    gPLS.PLSProgram = 3;
    ApplyPLSConfig(CountingTable(), PLSBoardIndex::R6041);
    PLSRecord expected;
    expected.ScaleFactor = 360;
    expected.Offset = 17;
    expected.PLSProgram = 3;
    expected.LowThreshold = 1 + 256 * 2;
    expected.HighThreshold = 3 + 256 * 4;
    expected.OptionFlags = 5;
    expected.Channels = 6;
    expected.StopLocation = 7 + 256 * 8;
    expected.StopError = 9;
    expected.SignalWidth = 10;
    expected.WindowOn = 11 + 256 * 12;
    expected.WindowOff = 13 + 256 * 14;
    expected.StrobePreset = 19;
    EXPECT_EQ(gPLS, expected);
}

TEST_F(ConfigTable, ReadFromABoardOfOneChannelCountGives16WhateverTheTableHolds) {
    for (const qint16 board : {55, 62, 67, 63, 68}) {
        gPLS = PLSRecord();
        ApplyPLSConfig(CountingTable(), board);
        EXPECT_EQ(gPLS.Channels, 16) << board;
        EXPECT_EQ(gPLS.StrobePreset, 19) << board;
    }
}

TEST_F(ConfigTable, ReadFromTheR6500Layout) {
    ApplyPLSConfig(CountingTable(), PLSBoardIndex::R6500);
    PLSRecord expected;
    expected.Channels = 1;
    expected.PLSProgram = 2;
    expected.SpeedComp = {3, 4, 5, 6, 7, 8, 9, 10};
    EXPECT_EQ(gPLS, expected);
}

TEST_F(ConfigTable, TheTableSentReadBackIsNotTheSameRecord) {
    for (const qint16 board : {PLSBoardIndex::R6041, PLSBoardIndex::R6500}) {
        gPLS = PLSRecord();
        FillConfiguration(gPLS);
        const PLSRecord before = gPLS;
        const PLSSentTable sent = BuildPLSConfigArray(board);
        ApplyPLSConfig(std::span(sent).first(plsReadTableSize), board);
        EXPECT_NE(gPLS, before) << board;
    }
}

TEST_F(ConfigTable, AWordBeyond16BitsOrAShortTableIsAnErrorAndChangesNothing) {
    FillConfiguration(gPLS);
    const PLSRecord before = gPLS;
    ReadTable table = CountingTable();
    table[13] = 128; // high byte of WindowOff
    ExpectError(ErrorNumber::Overflow, [&] { ApplyPLSConfig(table, 55); });
    ExpectError(ErrorNumber::SubscriptOutOfRange,
                [&] { ApplyPLSConfig(std::span(table).first(18), 69); });
    EXPECT_EQ(gPLS, before);
}

TEST_F(ConfigTable, ConfigChangedComparesTheConfigurationAndNothingElse) {
    FillConfiguration(gPLS);
    gPLSSnapshot = gPLS;
    EXPECT_FALSE(ConfigChanged());
    for (const PLSLayout* layout : {&standardLayout, &r6500Layout})
        for (const PCFColumn& column : layout->columns) {
            qint16& value = column.field.Of(gPLS);
            ++value;
            EXPECT_TRUE(ConfigChanged()) << column.column;
            --value;
        }
    gPLS.Chan[0] = PlaceholderList();
    gPLS.Offset = 5;
    gPLS.PCFText = QStringLiteral("other");
    EXPECT_FALSE(ConfigChanged());
}
