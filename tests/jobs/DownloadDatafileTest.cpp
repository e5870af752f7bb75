#include "jobs/DownloadDatafile.h"

#include "base/Dialogs.h"
#include "jobs/JobRunner.h"
#include "jobs/JobsFixture.h"
#include "session/CommMode.h"
#include <QFile>

namespace {
class NoDisplay final : public ModeDisplay {
public:
    void ShowMode(bool) override {}
};

// Runs the transfer in place of the busy view.
class PlainRunner final : public JobRunner {
public:
    PlainRunner(DataTransfer& transfer, JobProgress& progress)
        : transfer_(transfer), progress_(progress) {}
    void RunWaitJob(qint16 JobCode) override {
        codes.push_back(JobCode);
        transfer_.TransferData(progress_);
    }
    std::vector<qint16> codes;

private:
    DataTransfer& transfer_;
    JobProgress& progress_;
};

class DatafileCommand : public JobsFixture {
protected:
    DatafileCommand() { fileName = QStringLiteral("values.txt"); }

    void AnswerStart(const char* start) {
        dialogs.ExpectInput(QStringLiteral("Please Enter Starting Address."),
                            QStringLiteral("Datafile Download"), QString(),
                            QString::fromLatin1(start));
    }
    void ExpectReport(const char* text) {
        dialogs.ExpectBox(QString::fromLatin1(text), MsgStyle::Critical,
                          QStringLiteral("Download Data File"), MsgAnswer::Ok);
    }

    const QString datafile = PathOf(QStringLiteral("values.txt"));
    NoDisplay display;
    CommMode mode{link, port, display};
    PlainRunner runner{transfer, progress};
    DownloadDatafile command{link, mode, dialogs, files, transfer, runner};
};
} // namespace

TEST_F(DatafileCommand, AsksForFileAndStartAndRunsJob4) {
    WriteFile(fileName, "100\r\n2500\r\n7\r\n");
    gHdnFile = PathOf(QStringLiteral("Press.hdn"));
    dialogs.ExpectOpen(datafile);
    AnswerStart("w100");
    BoardTakes(Run(100, {100, 0, 0xC4, 9, 7, 0}));
    command.mnuFileDownloadFile_Click();
    EXPECT_EQ(runner.codes, std::vector<qint16>{4});
    EXPECT_EQ(TakeWritten(), Run(100, {100, 0, 0xC4, 9, 7, 0}));
    EXPECT_EQ(gXferMode, 3);
    EXPECT_EQ(gXferFile, datafile);
    EXPECT_EQ(gXferFrom, 0);
    EXPECT_EQ(gXferTo, 3);
    const FileDialogRequest& request = dialogs.FileRequests().front();
    EXPECT_EQ(request.flags, 0x81004);
    EXPECT_EQ(request.filter, "Text Files(*.txt)|*.txt|");
    EXPECT_EQ(request.filterIndex, 1);
    EXPECT_EQ(request.fileName, "");
    EXPECT_EQ(request.initDir, directory.path());
}

TEST_F(DatafileCommand, StartsAtTheLastDatafileOfTheSessionWhileItExists) {
    WriteFile(fileName, "1\r\n");
    gHdnFile = QStringLiteral("/somewhere/Press.hdn");
    for (int i = 0; i < 2; ++i) {
        dialogs.ExpectOpen(datafile);
        AnswerStart("");
        command.mnuFileDownloadFile_Click();
    }
    EXPECT_EQ(dialogs.FileRequests()[1].fileName, datafile);
    EXPECT_EQ(dialogs.FileRequests()[1].initDir, directory.path());
    QFile::remove(datafile);
    dialogs.ExpectOpen(QString());
    command.mnuFileDownloadFile_Click();
    EXPECT_EQ(dialogs.FileRequests()[2].fileName, "");
    EXPECT_EQ(dialogs.FileRequests()[2].initDir, "/somewhere");
}

TEST_F(DatafileCommand, StartOfBOrWAloneEndsSilently) {
    WriteFile(fileName, "1\r\n");
    for (const char* start : {"", "B", "W", "B9"}) {
        dialogs.ExpectOpen(datafile);
        AnswerStart(start);
        command.mnuFileDownloadFile_Click();
    }
    EXPECT_TRUE(runner.codes.empty());
}

TEST_F(DatafileCommand, CancelOfTheFileDialogIsSilent) {
    dialogs.ExpectOpen(QString());
    command.mnuFileDownloadFile_Click();
    EXPECT_TRUE(runner.codes.empty());
}

TEST_F(DatafileCommand, FileThatDoesNotExistStopsIt) {
    dialogs.ExpectOpen(datafile);
    command.mnuFileDownloadFile_Click();
    EXPECT_TRUE(runner.codes.empty());
}

TEST_F(DatafileCommand, GoesOnlineFirst) {
    port.Reply(0x55);
    mode.GoOffline();
    ASSERT_FALSE(link.OnlineMode());
    port.ForgetSent();
    WriteFile(fileName, "9\r\n");
    dialogs.ExpectOpen(datafile);
    AnswerStart("B40");
    port.Reply(0x55);
    BoardTakes({{40, 9}});
    command.mnuFileDownloadFile_Click();
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_EQ(port.Sent(), (std::vector<int>{0xFF, 0xFF, 2, 0, 40, 9}));
}

TEST_F(DatafileCommand, MoreItemsThan16BitsAreReported) {
    WriteFile(fileName, QByteArray("1\r\n").repeated(32768));
    dialogs.ExpectOpen(datafile);
    ExpectReport("Error Number = 6\r\n\r\nOverflow");
    command.mnuFileDownloadFile_Click();
    EXPECT_TRUE(runner.codes.empty());
}
