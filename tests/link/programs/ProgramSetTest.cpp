#include "link/programs/ProgramFixture.h"
#include "link/TargetBoards.h"
#include <QDir>

namespace {
const QByteArray goodRev = "PUMP1:301\r\n";
const QByteArray goodLcf = "E" + QByteArray(34, '0') + "100" + "72" + "000%\r\n";

class DownloadFileTest : public ProgramTest {
protected:
    void ExpectError(int number, const char* description, const char* title) {
        dialogs.ExpectBox(QStringLiteral("Error Number = %1\r\n\r\n%2")
                              .arg(QString::number(number), QString::fromLatin1(description)),
                          64, QString::fromLatin1(title), MsgAnswer::Ok);
    }
    void ExpectBadRev(const QString& path) {
        dialogs.ExpectBox(path + QStringLiteral(" Revision File is Not Valid\r\n\r\n"
                                                "Program Downloaded Halted!"),
                          48, QStringLiteral("Program Download"), MsgAnswer::Ok);
    }
    void ExpectBadLcf(const QString& path) {
        dialogs.ExpectBox(path + QStringLiteral(" Configuration File is Not Valid\r\n\r\n"
                                                "Program Downloaded Halted!"),
                          48, QStringLiteral("Program Download"), MsgAnswer::Ok);
    }
    void ExpectOtherBoard(const QString& base) {
        dialogs.ExpectBox(base + QStringLiteral(" file is incompatible with target board.\r\n\r\n"
                                                "Program Downloaded Halted!"),
                          16, QStringLiteral("Program Download"), MsgAnswer::Ok);
    }
    void ExpectPLSBoard(const QString& base) {
        dialogs.ExpectBox(base +
                              QStringLiteral(" file is a PLS target board program.\r\n"
                                             "Open PLS program to download to target board.\r\n\r\n"
                                             "Program Downloaded Halted."),
                          64, QStringLiteral("PLS Program Download"), MsgAnswer::Ok);
    }
    void MakeValid() {
        link.DownloadFile(WriteSet(QStringLiteral("GOOD"), 'D', goodRev, ":00000001FF\r\n"));
        ASSERT_TRUE(link.ValidProgram());
    }
};
} // namespace

TEST_F(DownloadFileTest, EveryIndexIsRoutedAsItsBoardWants) {
    for (int index = 0; index < 256; ++index) {
        if (index == '\r' || index == '\n' || index == ' ' || index == '\t' || index == ',' ||
            index == '"')
            continue; // no text item begins with these
        const QString path =
            WriteSet(QStringLiteral("A"), static_cast<char>(index), goodRev, "", goodLcf);
        const TargetBoard* board = FindTargetBoard(static_cast<qint16>(index));
        if (board && board->dump == DumpRoute::PLS)
            ExpectPLSBoard(QStringLiteral("A"));
        else if (!board || board->dump == DumpRoute::Refused)
            ExpectOtherBoard(QStringLiteral("A"));
        link.DownloadFile(path);
        EXPECT_EQ(link.ValidProgram(), board && board->dump == DumpRoute::Program) << index;
    }
}

TEST_F(DownloadFileTest, IndexesThatPassAreExactlyThese) {
    for (int index = 49; index <= 70; ++index) {
        const bool passes =
            QList<int>({50, 51, 52, 53, 54, 56, 58, 59, 60, 61, 65, 66, 68}).contains(index);
        if (!passes)
            dialogs.ExpectBoxTitled(QList<int>({55, 62, 63, 64, 67, 69}).contains(index)
                                        ? QStringLiteral("PLS Program Download")
                                        : QStringLiteral("Program Download"),
                                    MsgAnswer::Ok);
        link.DownloadFile(
            WriteSet(QStringLiteral("A"), static_cast<char>(index), goodRev, "", goodLcf));
        EXPECT_EQ(link.ValidProgram(), passes) << index;
    }
}

TEST_F(DownloadFileTest, K2010IsRefusedAsIncompatible) {
    ExpectOtherBoard(QStringLiteral("A"));
    link.DownloadFile(WriteSet(QStringLiteral("A"), '1', goodRev, ""));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, R6021WithGoodRevButNoLcfIsValid) {
    link.DownloadFile(WriteSet(QStringLiteral("A"), 'B', goodRev, ""));
    EXPECT_TRUE(link.ValidProgram());
}

TEST_F(DownloadFileTest, SiblingsAreNamedInLowerCase) {
    ExpectBadRev(Path(QStringLiteral("A.rev")));
    link.DownloadFile(Write(QStringLiteral("A.HDN"), "D\r\n"));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, SiblingsAreFoundWhateverTheirLetterCaseOnDisk) {
    Write(QStringLiteral("a.Rev"), goodRev);
    Write(QStringLiteral("A.LCF"), goodLcf);
    link.DownloadFile(Write(QStringLiteral("A.HDN"), "A\r\n"));
    EXPECT_TRUE(link.ValidProgram());
}

TEST_F(DownloadFileTest, MissingFileLeavesItInvalidWithNoMessage) {
    MakeValid();
    link.DownloadFile(Path(QStringLiteral("none.hdn")));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, EmptyHdnLeavesItInvalidWithNoMessage) {
    MakeValid();
    link.DownloadFile(Write(QStringLiteral("A.hdn"), ""));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, EmptyFirstLineOfHdnGivesTheErrorBox) {
    MakeValid();
    ExpectError(5, "Invalid procedure call or argument", "RSComm-Download File");
    link.DownloadFile(Write(QStringLiteral("A.hdn"), "\r\nD\r\n"));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, FolderInPlaceOfTheFileIsNoFile) {
    QDir(folder.path()).mkdir(QStringLiteral("A.hdn"));
    link.DownloadFile(Path(QStringLiteral("A.hdn")));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, MissingRevLeavesItInvalid) {
    MakeValid();
    ExpectBadRev(Path(QStringLiteral("A.rev")));
    link.DownloadFile(Write(QStringLiteral("A.hdn"), "2\r\n"));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, EmptyRevLeavesItInvalid) {
    ExpectBadRev(Path(QStringLiteral("A.rev")));
    link.DownloadFile(WriteSet(QStringLiteral("A"), '2', "", ""));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, CutRevGivesTheErrorBoxAndIsNotValid) {
    ExpectError(5, "Invalid procedure call or argument", "RSComm-Set Program Ident");
    ExpectBadRev(Path(QStringLiteral("A.rev")));
    link.DownloadFile(WriteSet(QStringLiteral("A"), '2', "301", ""));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, HugeRevGivesTheErrorBoxAndIsNotValid) {
    ExpectError(7, "Out of memory", "RSComm-Set Program Ident");
    ExpectBadRev(Path(QStringLiteral("A.rev")));
    link.DownloadFile(WriteSet(QStringLiteral("A"), '2', QByteArray(17 * 1024 * 1024, 'x'), ""));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, BinaryFilesAreReadWithoutHarm) {
    QByteArray bytes;
    for (int i = 255; i >= 0; --i)
        bytes.append(static_cast<char>(i));
    link.DownloadFile(WriteSet(QStringLiteral("A"), '2', bytes, bytes, bytes));
    EXPECT_TRUE(link.ValidProgram());
    ExpectOtherBoard(QStringLiteral("B"));
    link.DownloadFile(Write(QStringLiteral("B.hdn"), bytes));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, MissingOrEmptyLcfOfABoardWithConfigurationBytesIsNotValid) {
    ExpectBadLcf(Path(QStringLiteral("A.lcf")));
    link.DownloadFile(WriteSet(QStringLiteral("A"), 'A', goodRev, ""));
    EXPECT_FALSE(link.ValidProgram());
    Write(QStringLiteral("A.lcf"), "");
    ExpectBadLcf(Path(QStringLiteral("A.lcf")));
    link.DownloadFile(Path(QStringLiteral("A.hdn")));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, HugeLcfGivesTheErrorBoxAndIsNotValid) {
    ExpectError(7, "Out of memory", "RSComm-Set Program Config");
    ExpectBadLcf(Path(QStringLiteral("A.lcf")));
    link.DownloadFile(
        WriteSet(QStringLiteral("A"), 'A', goodRev, "", QByteArray(17 * 1024 * 1024, '0')));
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(DownloadFileTest, GoodLcfAloneDecidesForABoardWithConfigurationBytes) {
    ExpectBadRev(Path(QStringLiteral("A.rev")));
    link.DownloadFile(WriteSet(QStringLiteral("A"), '8', "", "", goodLcf));
    EXPECT_TRUE(link.ValidProgram());
}

TEST_F(DownloadFileTest, NamesWithQuotesBlanksAndAccentsWork) {
    for (const QString& base :
         {QStringLiteral("it's \"A\""), QStringLiteral("two  words"), QStringLiteral("M\u00FChle"),
          QStringLiteral("a,b"), QStringLiteral("p.q")}) {
        link.DownloadFile(WriteSet(base, 'D', goodRev, ""));
        EXPECT_TRUE(link.ValidProgram()) << base.toStdString();
        ExpectOtherBoard(base);
        link.DownloadFile(Write(base + QStringLiteral(".hdn"), "z\r\n"));
    }
}

TEST_F(DownloadFileTest, NothingTouchesTheLine) {
    ScriptedPort port(clock);
    port.Reply(0x55);
    link.OpenRSComm(port);
    port.ForgetSent();
    MakeValid();
    link.UploadFile(Path(QStringLiteral("GOOD.hdn")));
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(DownloadFileTest, UploadFileReportsAnErrorByItsBox) {
    ExpectError(5, "Invalid procedure call or argument", "RSComm UploadFile");
    link.UploadFile(Write(QStringLiteral("A.hdn"), "\r\n"));
}

TEST_F(DownloadFileTest, UploadFileIsSilentAboutMissingAndEmptyFiles) {
    link.UploadFile(Path(QStringLiteral("none.hdn")));
    link.UploadFile(Write(QStringLiteral("A.hdn"), ""));
}
