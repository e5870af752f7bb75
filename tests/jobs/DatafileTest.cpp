#include "base/Dialogs.h"
#include "jobs/DatafileStart.h"
#include "jobs/JobsFixture.h"

namespace {
const QString onlyBytesOrWords =
    QStringLiteral("Only Byte (Bxxx) or Word (Wyyy) variable types allowed.");
const QString overflow = QStringLiteral("Error Number = 6\r\n\r\nOverflow");

QString RefusalOf(const char* start) {
    return ReadDatafileStart(QString::fromLatin1(start)).refusal;
}

class Datafile : public JobsFixture {
protected:
    Datafile() {
        fileName = QStringLiteral("values.txt");
        gXferFile = PathOf(fileName);
    }

    void Run(const QByteArray& text, const char* start, qint16 count) {
        WriteFile(fileName, text);
        SetTransfer(XferMode::Datafile, 0, 0, count);
        transfer.SetupFileDownload(QString::fromLatin1(start));
        Transfer();
    }
    void ExpectRefused() {
        dialogs.ExpectBox(QStringLiteral("Error:\rOnly Numerical Data Allowed."),
                          MsgStyle::Critical, QStringLiteral("ENTRY ALERT"), MsgAnswer::Ok);
    }
};
} // namespace

TEST(DatafileStartText, B31IsOutOfRangeAndB32Passes) {
    EXPECT_EQ(RefusalOf("B31"), "Address B31 is out of range.");
    const auto start = ReadDatafileStart(QStringLiteral("B32")).start;
    ASSERT_TRUE(start);
    EXPECT_EQ(start->width, u'B');
    EXPECT_EQ(start->address, 32);
    EXPECT_EQ(start->step, 1);
}

TEST(DatafileStartText, W33IsInvalidAndW34Passes) {
    EXPECT_EQ(RefusalOf("W33"), "Address W33 is invalid or out of range.");
    const auto start = ReadDatafileStart(QStringLiteral("W34")).start;
    ASSERT_TRUE(start);
    EXPECT_EQ(start->width, u'W');
    EXPECT_EQ(start->address, 34);
    EXPECT_EQ(start->step, 2);
}

TEST(DatafileStartText, DoubleWordsGoInStepsOfFourFromAnEvenAddress) {
    EXPECT_EQ(RefusalOf("D31"), "Address D31 is invalid or out of range.");
    EXPECT_EQ(RefusalOf("D30"), "Address D30 is invalid or out of range.");
    const auto start = ReadDatafileStart(QStringLiteral("D100")).start;
    ASSERT_TRUE(start);
    EXPECT_EQ(start->step, 4);
}

TEST(DatafileStartText, BitAndPointAreRefusedAlike) {
    EXPECT_EQ(RefusalOf("B100.1"), onlyBytesOrWords);
    EXPECT_EQ(RefusalOf("X10"), onlyBytesOrWords);
    EXPECT_EQ(RefusalOf(""), onlyBytesOrWords);
}

TEST(DatafileStartText, LettersAreSearchedInTheWholeTextInTheOrderBWD) {
    EXPECT_EQ(ReadDatafileStart(QStringLiteral("100B")).start->address, 1000);
    EXPECT_EQ(ReadDatafileStart(QStringLiteral("B1B0")).start->address, 100);
    EXPECT_EQ(RefusalOf("W1B"), "Address B0 is out of range.");
    EXPECT_EQ(RefusalOf("DW4"), "Address W0 is invalid or out of range.");
    EXPECT_EQ(RefusalOf("B-40"), "Address B0 is out of range.");
}

TEST_F(Datafile, WordsFromW100GoTo100And102And104) {
    BoardTakes({{100, 100}, {101, 0}, {102, 0xC4}, {103, 9}, {104, 7}, {105, 0}});
    Run("100\r\n2500\r\n7\r\n", "W100", 3);
    EXPECT_EQ(TakeWritten(), JobsFixture::Run(100, {100, 0, 0xC4, 9, 7, 0}));
    const QStringList labels = {QStringLiteral("Downloading  100 to W100"),
                                QStringLiteral("Downloading  2500 to W102"),
                                QStringLiteral("Downloading  7 to W104")};
    EXPECT_EQ(progress.messages, labels);
    EXPECT_EQ(progress.values, (std::vector<qint32>{0, 1, 2, 3}));
    EXPECT_EQ(progress.max, 4);
}

TEST_F(Datafile, DoubleWordsFromD100GoTo100And104And108) {
    const auto expected = JobsFixture::Run(100, {100, 0, 0, 0, 0xC4, 9, 0, 0, 7, 0, 1, 0});
    BoardTakes(expected);
    Run("100\r\n2500\r\n10007\r\n", "D100", 3);
    EXPECT_EQ(TakeWritten(), expected);
    EXPECT_EQ(progress.messages.last(), "Downloading  10007 to D108");
}

TEST_F(Datafile, EmptyFileWritesNothingAndEndsAtOnce) {
    Run("", "B100", 0);
    EXPECT_TRUE(port.Sent().empty());
    EXPECT_TRUE(progress.messages.isEmpty());
}

TEST_F(Datafile, MissingFileStopsBeforeTheStartIsLookedAt) {
    SetTransfer(XferMode::Datafile, 0, 0, 3);
    transfer.SetupFileDownload(QStringLiteral("X10"));
    Transfer();
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(Datafile, WordsCommasAndBlankLinesAreItemsOfTheirOwn) {
    const auto expected = JobsFixture::Run(40, {0, 1, 2, 0, 12, 3});
    BoardTakes(expected);
    Run("speed\r\n1,2\r\n\r\n12 mm\r\n3", "B40", 6);
    EXPECT_EQ(TakeWritten(), expected);
}

TEST_F(Datafile, NegativeAndHugeNumbersAreRefusedAndTheNextGoesOn) {
    BoardTakes({{42, 5}});
    ExpectRefused(); // -3
    ExpectRefused(); // written with an exponent
    dialogs.ExpectBox(QStringLiteral("Error:\rEntry out of Range (0-255)."), MsgStyle::Critical,
                      QStringLiteral("ENTRY ALERT"), MsgAnswer::Ok);
    Run("-3\r\n1e300\r\n5\r\n999999\r\n", "B40", 4);
    EXPECT_EQ(TakeWritten(), JobsFixture::Run(42, {5}));
    EXPECT_EQ(progress.messages.first(), "Downloading -3 to B40");
}

TEST_F(Datafile, RunningPast32767EndsInTheFailureReport) {
    BoardTakes({{32766, 1}, {32767, 2}});
    dialogs.ExpectBox(overflow, MsgStyle::Information, QStringLiteral("TransferData"),
                      MsgAnswer::Ok);
    Run("1\r\n2\r\n3\r\n", "B32766", 3);
    EXPECT_EQ(TakeWritten(), JobsFixture::Run(32766, {1, 2}));
}

TEST_F(Datafile, StartBeyond16BitsEndsInTheFailureReport) {
    dialogs.ExpectBox(overflow, MsgStyle::Information, QStringLiteral("TransferData"),
                      MsgAnswer::Ok);
    Run("1\r\n", "B40000", 1);
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(Datafile, RefusedStartIsShownAndNothingIsSent) {
    dialogs.ExpectBox(QStringLiteral("Address W33 is invalid or out of range."),
                      MsgStyle::Information, QStringLiteral("Download Datafile"), MsgAnswer::Ok);
    Run("1\r\n", "W33", 1);
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(Datafile, StartCountsForOneJob) {
    BoardTakes({{40, 1}});
    Run("1\r\n", "B40", 1);
    dialogs.ExpectBox(onlyBytesOrWords, MsgStyle::Information, QStringLiteral("Download Datafile"),
                      MsgAnswer::Ok);
    Transfer();
    EXPECT_EQ(TakeWritten(), JobsFixture::Run(40, {1}));
}

TEST_F(Datafile, CancelIsTakenBetweenTwoValues) {
    BoardTakes({{100, 1}, {101, 0}});
    progress.onYield = [this](int yields) { progress.cancelled = yields == 2; };
    Run("1\r\n2\r\n", "W100", 2);
    EXPECT_EQ(TakeWritten(), JobsFixture::Run(100, {1, 0}));
}

TEST_F(Datafile, CutLineEndsItQuietlyInsideAValue) {
    BoardTakes({{100, 1}, {101, 0}, {102, 2}});
    LineIsCut();
    Run("1\r\n2\r\n3\r\n", "W100", 3);
    EXPECT_TRUE(link.CommError());
    const std::vector<int> expected = {0xFF, 2, 0, 100, 1, 0, 101, 0, 0, 102, 2, 0, 0xFF, 0xFF};
    EXPECT_EQ(port.Sent(), expected);
}
