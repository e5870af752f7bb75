#include "link/programs/DumpFixture.h"

#include "link/DumpPrompt.h"

void DumpTest::Prepare(char board, const QByteArray& hex, const QByteArray& lcf) {
    link.DownloadFile(WriteSet(QStringLiteral("A"), board, rev, hex, lcf));
    ASSERT_TRUE(link.ValidProgram());
}

void DumpTest::StartDump() {
    ReadIdentBlock("", 0, 0);
    RequestDump();
    Pair(0xFF, 0x55);
    Pair(0x03, 0x55);
}

void DumpTest::ExpectQuestion(const QString& boardName, const BoardFacts& inBoard, int answer) {
    const ProgramIdent onDisk{QStringLiteral("PUMP1"), QStringLiteral("1"), QStringLiteral("163")};
    const ProgramIdent board{inBoard.ident, inBoard.revision, inBoard.checksum};
    dialogs.ExpectBox(DumpQuestion(onDisk, boardName, board), 35,
                      QStringLiteral("Program Download - [PUMP1]"), answer,
                      [this] { EXPECT_TRUE(link.InProgramMode()); });
}

void DumpTest::ExpectBox(const QString& text, int style, const QString& title) {
    dialogs.ExpectBox(text, style, title, MsgAnswer::Ok, [this] {
        EXPECT_TRUE(link.InProgramMode());
        EXPECT_TRUE(link.OperationRuns());
    });
}

void DumpTest::ExpectComplete() {
    ExpectBox(QStringLiteral("Program Download Complete!"), 64);
}

void DumpTest::ExpectNotComplete() {
    ExpectBox(QStringLiteral("Program Download Not Complete!"), 16);
}

void DumpTest::ExpectNoReplyAlert() {
    dialogs.ExpectBox(QStringLiteral("Cannot Communicate with Target Board.\r"
                                     "Verify RS-232 Cable is Connected Between\r"
                                     "COMM Port and PROG Port."),
                      21, QStringLiteral("WARNING - Communication Error!"), MsgAnswer::Cancel);
}

void DumpTest::CheckUntouched(bool valid) {
    CheckWire();
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_FALSE(link.InProgramMode());
    EXPECT_FALSE(link.OperationRuns());
    EXPECT_EQ(link.ValidProgram(), valid);
}

void DumpTest::CheckHalted() {
    CheckWire();
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_FALSE(link.InProgramMode());
    EXPECT_FALSE(link.OperationRuns());
    EXPECT_FALSE(link.ValidProgram());
    EXPECT_FALSE(link.WritingIdent());
}
