#include "cli/CommandLineTest.h"

#include <QFile>

namespace {
const QByteArray threeRecords = ":0240000001020B\r\n:02400200030407\r\n:02400400050607\r\n"
                                ":00000001FF\r\n";

class ProgramsTest : public CommandLineTest {
protected:
    ProgramsTest() : CommandLineTest(r6500PLC) {
        folder.Write(QStringLiteral("A.hdn"), "D\r\n");
        folder.Write(QStringLiteral("A.rev"), "PUMP1:301\r\n");
        folder.Write(QStringLiteral("A.hex"), threeRecords);
    }
    // Opening, ident block read, request, program mode, three records and its end, ident written.
    static constexpr int repliesOfDump = 1 + 22 + 9 + 2 + 3 + 1 + 32;

    void DumpAndForget() {
        ASSERT_EQ(Run(QStringLiteral("dump --yes @A.hdn")), ExitCode::Done);
        console = {};
    }
};
} // namespace

TEST_F(ProgramsTest, ADumpIsDoneWhenTheLinkSaysSo) {
    EXPECT_EQ(Run(QStringLiteral("dump --yes --json @A.hdn")), ExitCode::Done);
    EXPECT_EQ(Memory(0x4000, 6).toHex(), QByteArray("010203040506"));
    EXPECT_FALSE(board->InProgramMode());
    EXPECT_EQ(Result()[QStringLiteral("set")].toString(), folder.Path(QStringLiteral("A.hdn")));
    EXPECT_TRUE(Messages().contains(QStringLiteral("Program Download Complete!")));
    EXPECT_TRUE(console.progress.contains(QStringLiteral("Writing to Program Address: 4000H")));
}

TEST_F(ProgramsTest, WithoutATerminalAndWithoutYesNothingIsSent) {
    for (const QString& command :
         {QStringLiteral("dump @A.hdn"), QStringLiteral("upload @A.hdn"),
          QStringLiteral("data-download @A.hdn"), QStringLiteral("data-upload @A.hdn"),
          QStringLiteral("pls-download @A.hdn"), QStringLiteral("pls-upload @A.hdn"),
          QStringLiteral("reset-faults")}) {
        EXPECT_EQ(Run(command), ExitCode::Unanswered) << command.toStdString();
        EXPECT_TRUE(console.err.takeLast().contains(QStringLiteral("give --yes")));
    }
    EXPECT_EQ(BytesSent(), 0);
    EXPECT_TRUE(console.prompts.isEmpty());
}

TEST_F(ProgramsTest, AtATerminalNoIsCancelledAndTheProgramRunsOn) {
    console.mayAsk = true;
    const QByteArray before = Memory(0x4000, 6);
    for (const QString& answer : {QString(), QStringLiteral("n"), QStringLiteral("yesterday")}) {
        console.answers = {answer};
        EXPECT_EQ(Run(QStringLiteral("dump @A.hdn")), ExitCode::Cancelled);
        EXPECT_EQ(Memory(0x4000, 6), before);
        EXPECT_FALSE(board->InProgramMode());
    }
    console.answers = {QStringLiteral("Y")};
    EXPECT_EQ(Run(QStringLiteral("dump @A.hdn")), ExitCode::Done);
}

TEST_F(ProgramsTest, ALineCutAtAnyReplyOfADumpIsNeverDone) {
    for (int reply = 1; reply <= repliesOfDump; ++reply) {
        SCOPED_TRACE(reply);
        ConnectBoard(r6500PLC);
        CutLineAtReply(reply);
        const ExitCode code = Run(QStringLiteral("dump --yes @A.hdn"));
        EXPECT_TRUE(code == ExitCode::NoCommunication || code == ExitCode::Failed);
        EXPECT_TRUE(console.out.isEmpty());
    }
    ConnectBoard(r6500PLC);
    CutLineAtReply(repliesOfDump + 1);
    EXPECT_EQ(Run(QStringLiteral("dump --yes @A.hdn")), ExitCode::Done);
}

TEST_F(ProgramsTest, ADumpThatLosesOneReplyIsDoneOnlyIfTheBoardHoldsTheWhole) {
    for (int reply = 1; reply <= repliesOfDump; ++reply) {
        SCOPED_TRACE(reply);
        ConnectBoard(r6500PLC);
        LoseReply(reply);
        if (Run(QStringLiteral("dump --yes @A.hdn")) != ExitCode::Done)
            continue;
        EXPECT_EQ(Memory(0x4000, 6).toHex(), QByteArray("010203040506"));
        EXPECT_EQ(Memory(0xEFF0, 10), QByteArray("PUMP1\0\0\0\xA3\x01", 10));
    }
}

TEST_F(ProgramsTest, ASetThatCannotBeSentIsRefusedBeforeTheLineIsOpened) {
    folder.Write(QStringLiteral("A.rev"), "");
    EXPECT_EQ(Run(QStringLiteral("dump --yes @A.hdn")), ExitCode::Files);
    folder.Write(QStringLiteral("CAM.hdn"), "E\r\n");
    EXPECT_EQ(Run(QStringLiteral("dump --yes @CAM.hdn")), ExitCode::Files);
    EXPECT_EQ(Run(QStringLiteral("upload --yes @CAM.hdn")), ExitCode::Files);
    EXPECT_EQ(BytesSent(), 0);
}

TEST_F(ProgramsTest, VerifyAfterADumpFindsNothing) {
    DumpAndForget();
    EXPECT_EQ(Run(QStringLiteral("verify --json @A.hdn")), ExitCode::Done);
    EXPECT_EQ(Result()[QStringLiteral("compared")].toInt(), 6);
    EXPECT_EQ(Result()[QStringLiteral("differences")].toInt(), 0);
    EXPECT_FALSE(Result().contains(QStringLiteral("first")));
}

TEST_F(ProgramsTest, VerifyFindsEachChangedByteAndNamesTheFirst) {
    DumpAndForget();
    for (int offset = 0; offset < 6; ++offset) {
        const QByteArray before = Memory(0x4000 + offset, 1);
        Poke(0x4000 + offset, QByteArray(1, static_cast<char>(0x80)));
        EXPECT_EQ(Run(QStringLiteral("verify --json @A.hdn")), ExitCode::Different);
        const QJsonObject first{{QStringLiteral("address"), 0x4000 + offset},
                                {QStringLiteral("expected"), before[0]},
                                {QStringLiteral("found"), 0x80}};
        EXPECT_EQ(Result()[QStringLiteral("first")].toObject(), first);
        EXPECT_EQ(Result()[QStringLiteral("compared")].toInt(), 6);
        Poke(0x4000 + offset, before);
    }
    Poke(0x4002, "\x09\x0A");
    EXPECT_EQ(Run(QStringLiteral("verify @A.hdn")), ExitCode::Different);
    EXPECT_EQ(console.out.last(), QStringLiteral("6 bytes compared, 2 different."));
    EXPECT_TRUE(console.err.last().endsWith(
        QStringLiteral("First difference at 4002H: 03H in the .HEX file, 09H in the board.")));
}

TEST_F(ProgramsTest, AByteThatTheLineFlipsOnceIsNoDifference) {
    DumpAndForget();
    // Opening, handshake, then echo and data of the first byte.
    line->Faults().Order({.kind = haldenboard::FaultKind::Wrong, .nth = 5, .bytes = {}});
    EXPECT_EQ(Run(QStringLiteral("verify @A.hdn")), ExitCode::Done);
}

TEST_F(ProgramsTest, ALineCutInTheMiddleOfAVerifyProvesNothing) {
    DumpAndForget();
    CutLineAtReply(9);
    EXPECT_EQ(Run(QStringLiteral("verify --json @A.hdn")), ExitCode::NoCommunication);
    EXPECT_EQ(Result()[QStringLiteral("compared")].toInt(), 2);
}

TEST_F(ProgramsTest, AnInterruptedVerifyIsCancelled) {
    interrupted = true;
    EXPECT_EQ(Run(QStringLiteral("verify @A.hdn")), ExitCode::Cancelled);
}

TEST_F(ProgramsTest, VerifyTakesTheIdentBlockForWhatADumpWritesLast) {
    folder.Write(QStringLiteral("A.hex"), ":0AEFF000FFFFFFFFFFFFFFFFFFFF00\r\n");
    Poke(0xEFF0, QByteArray("PUMP1\0\0\0\xA3\x01", 10));
    EXPECT_EQ(Run(QStringLiteral("verify @A.hdn")), ExitCode::Done);
    Poke(0xEFF9, "\x02");
    EXPECT_EQ(Run(QStringLiteral("verify @A.hdn")), ExitCode::Different);
}

TEST_F(ProgramsTest, BytesThatCannotBeReadBackAreNotProven) {
    folder.Write(QStringLiteral("A.hex"), ":02FEFF00000000\r\n");
    EXPECT_EQ(Run(QStringLiteral("verify --json @A.hdn")), ExitCode::Unproven);
    EXPECT_EQ(Result()[QStringLiteral("compared")].toInt(), 1);
    EXPECT_EQ(Result()[QStringLiteral("unreadable")].toInt(), 1);
}

TEST_F(ProgramsTest, VerifyNeedsAnImage) {
    for (const char* image : {"", ":00000001FF\r\n", ":0240000001\r\n", "no record\r\n"}) {
        folder.Write(QStringLiteral("A.hex"), image);
        EXPECT_EQ(Run(QStringLiteral("verify @A.hdn")), ExitCode::Files) << image;
    }
    QFile::remove(folder.Path(QStringLiteral("A.hex")));
    EXPECT_EQ(Run(QStringLiteral("verify @A.hdn")), ExitCode::Files);
    EXPECT_EQ(BytesSent(), 0);
}

TEST_F(ProgramsTest, AnUploadFillsTheSet) {
    Poke(0x4000, "\x11\x22");
    Poke(0xEFF0, QByteArray("PRESS\0\0\0\x07\x03", 10));
    line->SetBaud(0);
    line->KeepLog(false);
    EXPECT_EQ(Run(QStringLiteral("upload --yes @A.hdn")), ExitCode::Done);
    EXPECT_TRUE(folder.Content(QStringLiteral("A.hex")).startsWith(":104000001122"));
    EXPECT_EQ(folder.Content(QStringLiteral("A.rev")), QByteArray("PRESS\0\0\0"
                                                                  "0703\r\n",
                                                                  14));
}

TEST_F(ProgramsTest, AnUploadThatIsCutLeavesEveryFileOfTheSet) {
    Poke(0xEFF0, QByteArray("PRESS\0\0\0\x07\x03", 10));
    CutLineAtReply(200);
    EXPECT_EQ(Run(QStringLiteral("upload --yes @A.hdn")), ExitCode::NoCommunication);
    EXPECT_EQ(folder.Content(QStringLiteral("A.hex")), threeRecords);
    EXPECT_EQ(folder.Content(QStringLiteral("A.rev")), QByteArray("PUMP1:301\r\n"));
}

TEST_F(ProgramsTest, AnInterruptedUploadIsCancelledAndLeavesTheSet) {
    interrupted = true;
    EXPECT_EQ(Run(QStringLiteral("upload --yes @A.hdn")), ExitCode::Cancelled);
    EXPECT_EQ(folder.Content(QStringLiteral("A.hex")), threeRecords);
}
