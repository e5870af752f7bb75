#include "link/DumpPrompt.h"
#include "link/programs/DumpFixture.h"
#include <QDir>
#include <QFile>

namespace {
const QString invalidProgram =
    QStringLiteral("Currently Selected Program is Invalid.\r\n\r\nProgram Download Halted!");

class DumpRefusal : public DumpTest {
protected:
    // Dumps an image that must be refused before a byte of it goes out.
    void DumpUnsendable(const QByteArray& hex) {
        ReadIdentBlock("OLD", 2, 1);
        Prepare('D', hex);
        ExpectQuestion("R6500(PLC)", {"OLD", "1", "2"}, MsgAnswer::Yes);
        ExpectBox(invalidProgram, 48);
        link.DumpProgram();
        CheckUntouched(false);
    }
};
} // namespace

TEST_F(DumpRefusal, OfflineIsToldAndNothingGoesOut) {
    Prepare('D', ":00000001FF");
    link.SetOnlineMode(false);
    ExpectBox(QStringLiteral("Program is Currently OFFLINE.\r\n\r\n"
                             "Switch to ONLINE MODE to Continue."),
              64);
    link.DumpProgram();
    CheckWire();
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_FALSE(link.InProgramMode());
}

TEST_F(DumpRefusal, InvalidSetIsToldAndNothingGoesOut) {
    ExpectBox(invalidProgram, 48);
    link.DumpProgram();
    CheckUntouched(false);
}

TEST_F(DumpRefusal, NoAndCancelSendNothingBeyondTheIdentReads) {
    Prepare('D', ":0120000007D8\r\n");
    ReadIdentBlock("OLD", 2, 1);
    ExpectQuestion("R6500(PLC)", {"OLD", "1", "2"}, MsgAnswer::No);
    link.DumpProgram();
    CheckUntouched(true);
    for (int offset = 0; offset < 10; ++offset)
        ReadByte(identAddress + offset, 'X'); // still in read mode: no handshake
    ExpectQuestion("R6500(PLC)", {"XXXXXXXX", "88", "88"}, MsgAnswer::Cancel);
    link.DumpProgram();
    CheckUntouched(true);
}

TEST_F(DumpRefusal, MissingRevLeavesIdentRevisionAndChecksumUnknown) {
    const QString hdn = WriteSet(QStringLiteral("A"), 'A', rev, "", QByteArray(44, '0') + "\r\n");
    link.DownloadFile(hdn);
    QFile::remove(Path(QStringLiteral("A.rev")));
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download"), MsgAnswer::Ok);
    link.DownloadFile(hdn); // the configuration file decides alone: the set is valid
    ASSERT_TRUE(link.ValidProgram());
    ReadIdentBlock("OLD", 2, 1);
    const ProgramIdent inBoard{QStringLiteral("OLD"), QStringLiteral("1"), QStringLiteral("2")};
    dialogs.ExpectBox(DumpQuestion(ProgramIdent(), QStringLiteral("T7110"), inBoard), 35,
                      QStringLiteral("Program Download - [Unknown]"), MsgAnswer::No);
    link.DumpProgram();
    CheckUntouched(true);
}

TEST_F(DumpRefusal, MissingHexIsTold) {
    Prepare('D', "");
    QFile::remove(Path(QStringLiteral("A.hex")));
    ReadIdentBlock("OLD", 2, 1);
    ExpectQuestion("R6500(PLC)", {"OLD", "1", "2"}, MsgAnswer::Yes);
    ExpectBox(Path(QStringLiteral("A.hex")) + QStringLiteral(" File Does Not Exist.\r\n\r\n"
                                                             "Program Downloaded Halted"),
              64);
    link.DumpProgram();
    CheckUntouched(true);
}

TEST_F(DumpRefusal, EmptyHexIsTold) {
    Prepare('D', "");
    ReadIdentBlock("OLD", 2, 1);
    ExpectQuestion("R6500(PLC)", {"OLD", "1", "2"}, MsgAnswer::Yes);
    ExpectBox(Path(QStringLiteral("A.hex")) + QStringLiteral(" File is Not Valid\r\n\r\n"
                                                             "Program Downloaded Halted"),
              48);
    link.DumpProgram();
    CheckUntouched(true);
}

TEST_F(DumpRefusal, HexWithCharactersThatAreNoDigitsLeavesTheMachineRunning) {
    DumpUnsendable(":0120000007D8\r\n:01200100XXD8\r\n");
}

TEST_F(DumpRefusal, HexWithACountBeyondTheLineLeavesTheMachineRunning) {
    DumpUnsendable(":0120000007D8\r\n:102001000102\r\n");
}

TEST_F(DumpRefusal, HexWithACountOf255LeavesTheMachineRunning) {
    DumpUnsendable(":FF200000" + QByteArray(2 * 255, '0') + "00\r\n");
}

TEST_F(DumpRefusal, HexThatEndsInTheMiddleOfALineLeavesTheMachineRunning) {
    DumpUnsendable(":0120000007D8\r\n:");
}

TEST_F(DumpRefusal, HugeHexLeavesTheMachineRunning) {
    QByteArray bytes;
    while (bytes.size() <= 5 * 1024 * 1024)
        bytes.append(":0120000007\r\n");
    DumpUnsendable(bytes);
}

TEST_F(DumpRefusal, HexThatIsOneEndlessLineGivesTheErrorBox) {
    Prepare('D', QByteArray(17 * 1024 * 1024, ':'));
    ReadIdentBlock("OLD", 2, 1);
    ExpectQuestion("R6500(PLC)", {"OLD", "1", "2"}, MsgAnswer::Yes);
    dialogs.ExpectBox(QStringLiteral("Error Number = 7\r\n\r\nOut of memory"), 64,
                      QStringLiteral("RSComm DumpProgram"), MsgAnswer::Ok, [this] {
                          EXPECT_FALSE(link.OnlineMode());
                          EXPECT_FALSE(link.InProgramMode());
                          EXPECT_FALSE(link.ValidProgram());
                          EXPECT_TRUE(link.OperationRuns());
                      });
    link.DumpProgram();
    CheckHalted();
}

TEST_F(DumpRefusal, FolderInPlaceOfTheHexIsNoFile) {
    Prepare('D', "");
    QFile::remove(Path(QStringLiteral("A.hex")));
    QDir(folder.path()).mkdir(QStringLiteral("A.hex"));
    ReadIdentBlock("OLD", 2, 1);
    ExpectQuestion("R6500(PLC)", {"OLD", "1", "2"}, MsgAnswer::Yes);
    ExpectBox(Path(QStringLiteral("A.hex")) + QStringLiteral(" File Does Not Exist.\r\n\r\n"
                                                             "Program Downloaded Halted"),
              64);
    link.DumpProgram();
    CheckUntouched(true);
}
