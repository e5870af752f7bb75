#include "trending/TrendFile.h"

#include "base/RunTimeError.h"
#include "support/ExpectError.h"
#include "support/PrintText.h"
#include "trending/TrendSamples.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

namespace {
class TrendFileTest : public testing::Test {
protected:
    QString Path() const { return folder_.filePath(QStringLiteral("a.tdt")); }
    QString Write(const QByteArray& bytes) const {
        QFile file(Path());
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
        return Path();
    }
    QByteArray Bytes() const {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<no file>");
    }
    TrendFile Read(const QByteArray& bytes) const {
        TrendFile trend;
        EXPECT_EQ(ReadTrendFile(Write(bytes), trend), TrendFileState::Read);
        return trend;
    }

private:
    QTemporaryDir folder_;
};

const QByteArray head = "W100\r\n 1 \r\n(sec), Data:\r\n";
} // namespace

TEST_F(TrendFileTest, IsWrittenByteForByte) {
    WriteTrendFile(Path(), {"W100", 14, {{"0.5", "1234"}, {"0", "7"}, {"", ""}}});
    EXPECT_EQ(Bytes(), QByteArray("W100\r\n 14 \r\n(sec), Data:\r\n0.5, 1234\r\n0, 7\r\n, \r\n"));
}

TEST_F(TrendFileTest, AnEmptyFileOpensWithNothingChanged) {
    TrendFile trend{"B100", 3, {{"1", "2"}}};
    EXPECT_EQ(ReadTrendFile(Write(""), trend), TrendFileState::Empty);
    EXPECT_EQ(trend.address, "B100");
    EXPECT_EQ(trend.boardListEntry, 3);
    EXPECT_EQ(trend.rows.size(), 1u);
}

TEST_F(TrendFileTest, SavingAndOpeningGivesTheSameGrid) {
    TrendSamples grid;
    for (int i = 0; i < 3; ++i)
        grid.Add({QString::number(i * 0.25), QString::number(i)});
    WriteTrendFile(Path(), {"X31", 2, {grid.DataRows().begin(), grid.DataRows().end()}});
    TrendFile trend;
    ASSERT_EQ(ReadTrendFile(Path(), trend), TrendFileState::Read);
    EXPECT_EQ(trend.address, "X31");
    EXPECT_EQ(trend.boardListEntry, 2);
    TrendSamples opened;
    opened.Load(trend.rows);
    EXPECT_EQ(opened.Rows(), 15);
    EXPECT_EQ(opened.DataRows(), grid.DataRows());
}

TEST_F(TrendFileTest, OpeningAFileOfMoreThan257SamplesKeepsThemAll) {
    QByteArray bytes = head;
    for (int i = 0; i < 300; ++i)
        bytes += QByteArray::number(300 - i) + ", 5\r\n";
    TrendSamples grid;
    grid.Load(Read(bytes).rows);
    EXPECT_EQ(grid.Rows(), 301);
    EXPECT_EQ(grid.Text(300, 1), "1");
}

TEST_F(TrendFileTest, AFileCutAfterLine1Or2IsRefusedAndChangesNothing) {
    for (const QByteArray& bytes : {QByteArray("W100\r\n"), QByteArray("W100\r\n 1 \r\n")}) {
        TrendFile trend{"B100", 3, {}};
        ExpectError(ErrorNumber::InputPastEndOfFile, [&] { ReadTrendFile(Write(bytes), trend); });
        EXPECT_EQ(trend.address, "B100");
    }
}

TEST_F(TrendFileTest, AFileCutAfterLine3HoldsNoSamples) {
    const TrendFile trend = Read(head);
    EXPECT_EQ(trend.address, "W100");
    EXPECT_EQ(trend.boardListEntry, 1);
    EXPECT_TRUE(trend.rows.empty());
}

TEST_F(TrendFileTest, ALineWithOneValueHasEmptyDataAndShiftsNothing) {
    const TrendFile trend = Read(head + "3.5\r\n2.5, 8\r\n\r\n1.5, 7, 9\r\n0, 6");
    ASSERT_EQ(trend.rows.size(), 4u);
    EXPECT_EQ(trend.rows[0], (TrendRow{"3.5", ""}));
    EXPECT_EQ(trend.rows[1], (TrendRow{"2.5", "8"}));
    EXPECT_EQ(trend.rows[2], (TrendRow{"1.5", "7"}));
    EXPECT_EQ(trend.rows[3], (TrendRow{"0", "6"}));
}

TEST_F(TrendFileTest, TextWhereNumbersStandIsKeptAsTextAndGraphedAsZero) {
    const TrendFile trend = Read("what\r\never\r\n(sec), Data:\r\nsoon, \"much\"\r\n1, 1e300\r\n");
    EXPECT_EQ(trend.boardListEntry, 0);
    ASSERT_EQ(trend.rows.size(), 2u);
    EXPECT_EQ(trend.rows[0], (TrendRow{"soon", "much"}));
    TrendSamples grid;
    grid.Load(trend.rows);
    EXPECT_EQ(ValuesToGraph(grid, 255)[0], 0);
    EXPECT_EQ(ValuesToGraph(grid, 255)[1], 2147483647);
}

TEST_F(TrendFileTest, ABoardOutsideTheListReadsAsNone) {
    for (const char* entry : {" 15 ", "-1 ", " 99999999999999999999 "})
        EXPECT_EQ(Read(QByteArray("B1\r\n") + entry + "\r\n(sec), Data:\r\n").boardListEntry, 0);
    EXPECT_EQ(Read("B1\r\n 14 \r\n(sec), Data:\r\n").boardListEntry, 14);
}

TEST_F(TrendFileTest, ACommaInTheVariableDoesNotShiftTheRest) {
    const TrendFile trend = Read("B1,5\r\n 3 \r\n(sec), Data:\r\n1, 2\r\n");
    EXPECT_EQ(trend.address, "B1");
    EXPECT_EQ(trend.boardListEntry, 3);
    ASSERT_EQ(trend.rows.size(), 1u);
    EXPECT_EQ(trend.rows[0], (TrendRow{"1", "2"}));
}

TEST_F(TrendFileTest, AFileOf100000LinesIsReadWhole) {
    QByteArray bytes = head;
    for (int i = 0; i < 100000; ++i)
        bytes += QByteArray::number(i) + ", " + QByteArray::number(i % 256) + "\r\n";
    const TrendFile trend = Read(bytes);
    ASSERT_EQ(trend.rows.size(), 100000u);
    EXPECT_EQ(trend.rows.back(), (TrendRow{"99999", "159"}));
}
