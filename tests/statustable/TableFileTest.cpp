#include "statustable/TableFile.h"

#include "base/RunTimeError.h"
#include "support/PrintText.h"
#include "TestFiles.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QElapsedTimer>

namespace {
QByteArray AddressLines(int count) {
    QByteArray bytes(" 50 \r\n");
    for (int i = 0; i < count; ++i)
        bytes += "B" + QByteArray::number(32 + i % 8000) + "\r\n";
    return bytes;
}
} // namespace

TEST(TableFile, IsWrittenByteForByte) {
    const TestFiles files;
    WriteTableFile(files.Path("a.tbl"), 49, {"B100", "W200"});
    EXPECT_EQ(files.Read("a.tbl"), QByteArray(" 49 \r\nB100\r\nW200\r\n\r\n"));
}

TEST(TableFile, SavedAndOpenedAgainHasTheSameRowsTheEmptyOnesToo) {
    const TestFiles files;
    const QStringList rows{"B100", "", "W200", "", ""};
    WriteTableFile(files.Path("a.tbl"), 50, rows);
    TableFile table;
    ASSERT_EQ(ReadTableFile(files.Path("a.tbl"), table), TableFileState::Read);
    EXPECT_EQ(table.board, 50);
    EXPECT_EQ(table.addresses, rows);
    EXPECT_FALSE(table.limitReached);
}

TEST(TableFile, WithoutRowsStillHoldsTheAppendRow) {
    const TestFiles files;
    WriteTableFile(files.Path("a.tbl"), 0, {});
    EXPECT_EQ(files.Read("a.tbl"), QByteArray(" 0 \r\n\r\n"));
    TableFile table;
    ASSERT_EQ(ReadTableFile(files.Path("a.tbl"), table), TableFileState::Read);
    EXPECT_TRUE(table.addresses.isEmpty());
}

TEST(TableFile, MissingAndEmptyFilesAreTold) {
    const TestFiles files;
    TableFile table;
    EXPECT_EQ(ReadTableFile(files.Path("none.tbl"), table), TableFileState::Missing);
    EXPECT_EQ(ReadTableFile(files.Write("empty.tbl", ""), table), TableFileState::Empty);
}

TEST(TableFile, OpeningMoreThan32767LinesStopsAt32767) {
    const TestFiles files;
    TableFile table;
    ASSERT_EQ(ReadTableFile(files.Write("long.tbl", AddressLines(32768)), table),
              TableFileState::Read);
    EXPECT_TRUE(table.limitReached);
    ASSERT_EQ(table.addresses.size(), 32767);
    EXPECT_EQ(table.addresses.last(), QString("B%1").arg(32 + 32766 % 8000));
}

TEST(TableFile, Exactly32767LinesAreReadWithoutAMessage) {
    const TestFiles files;
    TableFile table;
    ReadTableFile(files.Write("long.tbl", AddressLines(32767)), table);
    EXPECT_FALSE(table.limitReached);
    EXPECT_EQ(table.addresses.size(), 32767);
}

TEST(TableFile, OfALimitSwitchBoardKeepsItsIndex) {
    const TestFiles files;
    TableFile table;
    ReadTableFile(files.Write("pls.tbl", " 62 \r\nB100\r\n\r\n"), table);
    EXPECT_EQ(table.board, 62);
}

TEST(TableFile, MadeByHandWithoutItsClosingLineKeepsItsLastAddress) {
    const TestFiles files;
    TableFile table;
    ReadTableFile(files.Write("hand.tbl", "49\nB100\nB101"), table);
    EXPECT_EQ(table.addresses, (QStringList{"B100", "B101"}));
}

TEST(TableFile, ACommaPartsTwoAddresses) {
    const TestFiles files;
    TableFile table;
    ReadTableFile(files.Write("a.tbl", "49\r\n B100 , \"W200\"\r\n\r\n"), table);
    EXPECT_EQ(table.addresses, (QStringList{"B100", "W200"}));
}

TEST(TableFile, ABoardIndexBeyond16BitsIsAnOverflow) {
    const TestFiles files;
    TableFile table;
    try {
        ReadTableFile(files.Write("a.tbl", "40000\r\n\r\n"), table);
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::Overflow);
    }
}

TEST(TableFile, AFailedSaveLeavesTheOldFile) {
    const TestFiles files;
    files.Write("a.tbl", "old");
    EXPECT_THROW(WriteTableFile(files.Path("a.tbl/b.tbl"), 49, {"B100"}), RunTimeError);
    EXPECT_THROW(WriteTableFile(files.Path("none/b.tbl"), 49, {"B100"}), RunTimeError);
    EXPECT_EQ(files.Read("a.tbl"), QByteArray("old"));
}

TEST(TableFile, OpeningCostsTimeInProportion) {
    const TestFiles files;
    files.Write("long.tbl", AddressLines(32000));
    TableFile table;
    QElapsedTimer timer;
    timer.start();
    ReadTableFile(files.Path("long.tbl"), table);
    EXPECT_EQ(table.addresses.size(), 32000);
    EXPECT_LT(timer.elapsed(), 5000); // generous for a build with sanitizers
}

TEST(SaveChanges, ComparesBinary) {
    EXPECT_TRUE(AddressesChanged({"b100"}, {"B100"}));
    EXPECT_FALSE(AddressesChanged({"B100", ""}, {"B100", ""}));
}

TEST(SaveChanges, SaysNothingWhenOnlyRowsBehindTheEndWereFilledIn) {
    EXPECT_FALSE(AddressesChanged({"B100", "", "B101"}, {"B100", ""}));
}

TEST(SaveChanges, StopsAtTheEndOfTheShorter) {
    EXPECT_FALSE(AddressesChanged({"B100"}, {"B100", "B101"}));
    EXPECT_FALSE(AddressesChanged({}, {"B100"}));
}

TEST(UnsavedWork, CountsRowsAddedAndRemovedAtTheEnd) {
    EXPECT_TRUE(UnsavedWork({"B100", "", "B101"}, {"B100", ""}));
    EXPECT_TRUE(UnsavedWork({"B100"}, {"B100", "B101"}));
    EXPECT_FALSE(UnsavedWork({"B100", "", ""}, {"B100"}));
    EXPECT_TRUE(UnsavedWork({"B101"}, {"B100"}));
}

TEST(SaveDialogName, IsTheTablePathOrAPatternInItsFolder) {
    EXPECT_EQ(SaveDialogName("", true), QString());
    EXPECT_EQ(SaveDialogName("tbl", false), QString());
    EXPECT_EQ(SaveDialogName("/t/a.tbl", false), QString("/t/a.tbl"));
    EXPECT_EQ(SaveDialogName("/t/a.tbl", true), QString("/t/*.tbl"));
}

TEST(TableTitle, IsTheFileNameWithoutItsExtension) {
    EXPECT_EQ(TableTitle("/t/press line.tbl"), QString("press line"));
    EXPECT_EQ(TableTitle("/t/PRESS.TBL"), QString("PRESS"));
}
