#include "link/programs/DumpFixture.h"
#include <QCoreApplication>
#include <QTimer>

namespace {
const QString checksumError = QStringLiteral("Checksum Error, Program Download Halted!");
const QByteArray twoRecords = ":0120000007D8\r\n:0120010008D6\r\n:00000001FF\r\n";

class DumpFailure : public DumpTest {
protected:
    // Question answered Yes for a set of `hex`; the wire is scripted by the test.
    void Begin(const QByteArray& hex, char board = 'D', const QByteArray& lcf = {}) {
        Prepare(board, hex, lcf);
        dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [PUMP1]"), MsgAnswer::Yes);
    }
};
} // namespace

TEST_F(DumpFailure, WrongSumStopsAtThatRecordOfflineWithTheBoardInProgramMode) {
    StartDump();
    GoodRecord({0x01, 0x20, 0x00, 0x07});
    Record({0x01, 0x20, 0x01, 0x08}, 0x2B);
    Begin(":0120000007D8\r\n:0120010008D6\r\n:0120020009D4\r\n");
    ExpectBox(checksumError, 48);
    link.DumpProgram();
    CheckHalted();
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(link.CurrentProgramAdd(), QStringLiteral("2001H"));
}

TEST_F(DumpFailure, SilenceIsJudgedByTheByteOfThePreviousRecord) {
    StartDump();
    GoodRecord({0x01, 0x20, 0x00, 0x07});
    Record({0x01, 0x20, 0x01, 0x08}, -1);
    Begin(twoRecords);
    ExpectBox(checksumError, 48);
    const double start = clock.MonotonicSeconds();
    link.DumpProgram();
    CheckHalted();
    EXPECT_NEAR(clock.MonotonicSeconds() - start, 1.1, 0.1);
    EXPECT_FALSE(link.CommErrorAlert());
}

TEST_F(DumpFailure, SilencePassesWhereThePreviousByteFits) {
    StartDump();
    GoodRecord({0x01, 0x20, 0x00, 0x07});
    Record({0x01, 0x20, 0x01, 0x06}, -1);
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Begin(":0120000007D8\r\n:0120010006D8\r\n");
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

TEST_F(DumpFailure, SilenceAtTheFirstRecordIsNeverRight) {
    StartDump();
    Record({0x01, 0x20, 0x00, 0xDF}, -1); // its sum is 0
    Begin(":01200000DF00\r\n");
    ExpectBox(checksumError, 48);
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, ReplyJustWithinTheSecondCounts) {
    StartDump();
    for (const int byte : {0x01, 0x20, 0x00})
        Quiet(byte);
    Late(0x07, 0x28, 0.99);
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Begin(":0120000007D8\r\n");
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

TEST_F(DumpFailure, LineThatIsNoRecordHaltsWhenItsTurnComes) {
    StartDump();
    GoodRecord({0x01, 0x20, 0x00, 0x07});
    Begin(":0120000007D8\r\nend of file\r\n:0120010008D6\r\n");
    ExpectBox(QStringLiteral("Currently Selected Program is Invalid.\r\n\r\n"
                             "Program Download Halted!"),
              48, QStringLiteral("Program Dump"));
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, EmptyLineHaltsWhenItsTurnComes) {
    StartDump();
    Begin("\r\n:0120000007D8\r\n");
    ExpectBox(QStringLiteral("Currently Selected Program is Invalid.\r\n\r\n"
                             "Program Download Halted!"),
              48, QStringLiteral("Program Dump"));
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, DeadLineInTheIdentReadsStillAsksAndThenSendsNothing) {
    Dead(0xFF);
    Prepare('A', twoRecords, "E" + QByteArray(34, '0') + "100" + "72" + "000%\r\n");
    ExpectNoReplyAlert();
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [PUMP1]"), MsgAnswer::Yes);
    ExpectBox(QStringLiteral("Could Not Set Program Configuration in PLC!"), 16,
              QStringLiteral("Program Config Download"));
    ExpectNotComplete();
    link.DumpProgram();
    CheckHalted();
    EXPECT_TRUE(link.CommError());
}

TEST_F(DumpFailure, DeadLineAtTheDumpRequestIsReportedAndNothingElseGoesOut) {
    ReadIdentBlock("", 0, 0);
    Handshake(0x02);
    Dead(0x1F);
    Begin(twoRecords);
    ExpectNoReplyAlert();
    ExpectNotComplete();
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, DeadLineInTheConfigurationIsReportedAndNothingElseGoesOut) {
    ReadIdentBlock("", 0, 0);
    RequestDump();
    Handshake(0x02);
    WriteByte(8188, 10);
    Dead(0x1F);
    Begin(twoRecords, 'A', "E" + QByteArray(34, '0') + "100" + "72" + "000%\r\n");
    ExpectNoReplyAlert();
    ExpectBox(QStringLiteral("Could Not Set Program Configuration in PLC!"), 16,
              QStringLiteral("Program Config Download"));
    ExpectNotComplete();
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, AnswerToTheModeByteIsNotLookedAt) {
    ReadIdentBlock("", 0, 0);
    RequestDump();
    Pair(0xFF, 0x55);
    Pair(0x03, 0x12);
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Begin(":00000001FF");
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

// The attention after the time-out has taken the board out of program mode again. Records sent to
// it then would be commands to a running machine.
TEST_F(DumpFailure, ModeByteThatTimedOutIsSentAgainBeforeAnyRecord) {
    ReadIdentBlock("", 0, 0);
    RequestDump();
    Pair(0xFF, 0x55);
    Quiet(0x03);
    Pair(0xFF, 0x55);
    Pair(0xFF, 0x55);
    Pair(0x03, 0x55);
    GoodRecord({0x01, 0x20, 0x00, 0x07});
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Begin(":0120000007D8\r\n");
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

// A board that answers an attention otherwise does not wait for a command, and would take the mode
// byte and the records for the addresses and data of a write.
TEST_F(DumpFailure, AttentionThatIsNotAcknowledgedIsSentAgainBeforeTheModeByte) {
    ReadIdentBlock("", 0, 0);
    RequestDump();
    Pair(0xFF, 0xFF);
    Pair(0xFF, 0x55);
    Pair(0x03, 0x55);
    GoodRecord({0x01, 0x20, 0x00, 0x07});
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Begin(":0120000007D8\r\n");
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

TEST_F(DumpFailure, ModeByteThatNeverArrivesEndsTheDumpBeforeAnyRecord) {
    ReadIdentBlock("", 0, 0);
    RequestDump();
    for (int attempt = 0; attempt < 3; ++attempt) {
        Pair(0xFF, 0x55);
        Quiet(0x03);
        Pair(0xFF, 0x55);
    }
    Begin(":0120000007D8\r\n");
    ExpectNoReplyAlert();
    ExpectNotComplete();
    link.DumpProgram();
    CheckHalted();
    EXPECT_TRUE(link.CommError());
}

TEST_F(DumpFailure, BoardThatDoesNotLeaveProgramModeIsReported) {
    StartDump();
    Pair(0xFF, 0x54);
    Begin(":00000001FF");
    ExpectBox(QStringLiteral("PLC did not Exit Program Mode!"), 16);
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, DeadLineAtTheEndOfProgramModeIsReported) {
    StartDump();
    Dead(0xFF);
    Begin(":00000001FF");
    ExpectNoReplyAlert();
    ExpectBox(QStringLiteral("PLC did not Exit Program Mode!"), 16);
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, CableCutInTheIdentBlockIsReported) {
    StartDump();
    Pair(0xFF, 0x55);
    Handshake(0x02);
    WriteByte(identAddress, 'P');
    WriteByte(identAddress + 1, 'U');
    Dead(0xEF);
    Begin(":00000001FF");
    ExpectNoReplyAlert();
    dialogs.ExpectBox(QStringLiteral("Could Not Send Program Ident and Revision to PLC!"), 16,
                      QStringLiteral("Program Download"), MsgAnswer::Ok,
                      [this] { EXPECT_TRUE(link.WritingIdent()); });
    ExpectNotComplete();
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, NothingOfTheIdentBlockIsTriedAfterACutCable) {
    ReadIdentBlock("", 0, 0);
    RequestDump();
    Handshake(0x02);
    WriteByte(8188, 20);
    WriteByte(8189, 0);
    WriteByte(8190, 12);
    Pair(0xFF, 0x55);
    Pair(0x03, 0x55);
    Pair(0xFF, 0x55);
    Dead(0xFF);
    rev = ""; // revision and checksum are unknown: writing them would be refused with a box
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download"), MsgAnswer::Ok);
    Prepare('A', ":00000001FF", QByteArray(44, '0') + "\r\n");
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [Unknown]"), MsgAnswer::Yes);
    ExpectNoReplyAlert();
    ExpectBox(QStringLiteral("Could Not Send Program Ident and Revision to PLC!"), 16);
    ExpectNotComplete();
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, PortLostBetweenRecordsIsReported) {
    StartDump();
    GoodRecord({0x01, 0x20, 0x00, 0x07});
    Begin(twoRecords);
    ExpectBox(checksumError, 48);
    QTimer yield;
    QObject::connect(&yield, &QTimer::timeout, [this] {
        if (link.CurrentProgramAdd() == QStringLiteral("2000H"))
            port.Lose();
    });
    yield.start(0);
    link.DumpProgram();
    CheckHalted();
    EXPECT_TRUE(link.CommError());
}

TEST_F(DumpFailure, CommErrorFoundAtTheYieldEndsAsNotComplete) {
    StartDump();
    GoodRecord({0x01, 0x20, 0x00, 0x07});
    Begin(twoRecords);
    ExpectNotComplete();
    QTimer yield;
    QObject::connect(&yield, &QTimer::timeout, [this] {
        if (link.CurrentProgramAdd() == QStringLiteral("2000H"))
            link.SetCommError(true);
    });
    yield.start(0);
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpFailure, SecondDumpNeedsANewCheck) {
    StartDump();
    Record({0x01, 0x20, 0x00, 0x07}, 0);
    Begin(twoRecords);
    ExpectBox(checksumError, 48);
    link.DumpProgram();
    CheckHalted();
    link.SetOnlineMode(true);
    ExpectBox(QStringLiteral("Currently Selected Program is Invalid.\r\n\r\n"
                             "Program Download Halted!"),
              48);
    link.DumpProgram();
}

TEST_F(DumpFailure, ProgressNamesEachRecordAtTheYieldAfterIt) {
    StartDump();
    GoodRecord({0x01, 0x20, 0x00, 0x07});
    GoodRecord({0x01, 0xab, 0x01, 0x08});
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Begin(":0120000007D8\r\n:01ab010008D6\r\n:00000001FF\r\n");
    ExpectComplete();
    QStringList seen;
    QTimer yield;
    QObject::connect(&yield, &QTimer::timeout, [this, &seen] {
        seen += link.CurrentProgramAdd();
        EXPECT_TRUE(link.InProgramMode());
        EXPECT_FALSE(link.WritingIdent());
        EXPECT_FALSE(link.OnlineMode());
        EXPECT_TRUE(link.OperationRuns());
    });
    yield.start(0);
    link.DumpProgram();
    EXPECT_EQ(seen, QStringList({QString(), QStringLiteral("2000H"), QStringLiteral("ab01H")}));
}
