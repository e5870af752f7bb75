#include "base/RunTimeError.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QToolButton>

namespace {
const char revRecord[] = "IDENT1:5?2\r\n";

class Commands : public WholeWindow {
protected:
    void SetUp() override {
        WriteSetFile("PUMP.rev", revRecord);
        Start();
        GoToSets();
        Window().Views().frmDownloadProg = [this](qint16 mode) {
            shownModes_.push_back(mode);
            timerDuringDump_ = Window().Timer().Enabled();
        };
    }
    void Press(const char* key) {
        QTest::mouseClick(Find<QToolButton>(QString::fromLatin1(key)), Qt::LeftButton);
    }
    void ExpectRefreshed() {
        EXPECT_EQ(gHdnFile, Window().SelectedProgramPath());
        EXPECT_TRUE(Window().Timer().Enabled());
    }
    QString CamsText() {
        return "CAMS file is a PLS target board program.\r\n"
               "Open PLS program to download to target board.\r\n\r\nProgram Downloaded Halted.";
    }

    std::vector<qint16> shownModes_;
    bool timerDuringDump_ = true;
};
} // namespace

TEST_F(Commands, DownloadAsksForTheSetAndOffersTheSelectedOne) {
    ClickSet("PUMP.hdn");
    dialogs_.ExpectOpen(SetPath("PUMP.hdn"));
    Entry("mnuFileDownloadProgram")->trigger();
    ASSERT_EQ(dialogs_.FileRequests().size(), 1U);
    const FileDialogRequest& request = dialogs_.FileRequests()[0];
    EXPECT_EQ(request.flags, 528388);
    EXPECT_EQ(request.filter.toStdString(), "Halden Files(*.hdn)|*.hdn|");
    EXPECT_EQ(request.filterIndex, 1);
    EXPECT_EQ(request.fileName, SetPath("PUMP.hdn"));
    EXPECT_EQ(request.initDir, root_.filePath("sets"));
    EXPECT_EQ(shownModes_, std::vector<qint16>{0});
    EXPECT_FALSE(timerDuringDump_);
    ExpectRefreshed();
}

TEST_F(Commands, DownloadWithoutASelectionOffersABlankNameInTheFolder) {
    Window().Browser().dirDirList_Change();
    dialogs_.ExpectOpen(QString());
    Entry("mnuFileDownloadProgram")->trigger();
    ASSERT_EQ(dialogs_.FileRequests().size(), 1U);
    EXPECT_EQ(dialogs_.FileRequests()[0].fileName.toStdString(), " ");
    EXPECT_EQ(dialogs_.FileRequests()[0].initDir, Window().Browser().Folder());
}

TEST_F(Commands, CancellingTheDialogRunsNothingFurther) {
    ClickSet("PUMP.hdn");
    dialogs_.ExpectOpen(QString());
    Entry("mnuFileDownloadProgram")->trigger();
    EXPECT_TRUE(shownModes_.empty());
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
    ExpectRefreshed();
}

TEST_F(Commands, ThePopupTakesTheSelectedSetWithoutADialog) {
    ClickSet("PUMP.hdn");
    Entry("mnuFileListPopupDownloadProg")->trigger();
    EXPECT_TRUE(dialogs_.FileRequests().empty());
    EXPECT_EQ(shownModes_, std::vector<qint16>{0});
    ExpectRefreshed();
}

TEST_F(Commands, TheToolbarButtonDownloadsTheSelectedSet) {
    ClickSet("PUMP.hdn");
    gHdnFile = "/somewhere/ELSE.hdn";
    Press("Program");
    EXPECT_EQ(shownModes_, std::vector<qint16>{0});
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
}

TEST_F(Commands, TheToolbarButtonTakesTheRouteOfAPLSSet) {
    ClickSet("CAMS.hdn");
    int routed = 0;
    Window().Commands().Handle("mnuFileListPopupDownloadToPLS", [&] { ++routed; });
    EXPECT_TRUE(Entry("Program")->isEnabled());
    Press("Program");
    EXPECT_EQ(routed, 1);
    EXPECT_TRUE(shownModes_.empty());
}

TEST_F(Commands, UploadOfAPLSSetSetsUploadModeFirst) {
    ClickSet("CAMS.hdn");
    bool uploadMode = false;
    Window().Commands().Handle("mnuFileListPopupUploadFromPLS",
                               [&] { uploadMode = Link().InUploadMode(); });
    Press("Upload");
    EXPECT_TRUE(uploadMode);
}

TEST_F(Commands, APLSSetIsRefusedWithItsMessage) {
    dialogs_.ExpectOpen(SetPath("CAMS.hdn"));
    dialogs_.ExpectBox(CamsText(), MsgStyle::Information, "PLS Program Download", MsgAnswer::Ok);
    Entry("mnuFileDownloadProgram")->trigger();
    EXPECT_TRUE(shownModes_.empty());
    EXPECT_EQ(gHdnFile, SetPath("CAMS.hdn"));
    ExpectRefreshed();
}

TEST_F(Commands, ASetWithoutARevisionFileIsRefused) {
    WriteSetFile("BARE.hdn", "D\r\n");
    dialogs_.ExpectOpen(SetPath("BARE.hdn"));
    dialogs_.ExpectBoxTitled("Program Download", MsgAnswer::Ok);
    Entry("mnuFileDownloadProgram")->trigger();
    EXPECT_TRUE(shownModes_.empty());
    ExpectRefreshed();
}

TEST_F(Commands, ASetFromAnotherFolderBecomesTheOneInUse) {
    QDir(root_.path()).mkpath("other");
    QFile::copy(SetPath("PUMP.hdn"), root_.filePath("other/BELT.hdn"));
    QFile::copy(SetPath("PUMP.rev"), root_.filePath("other/BELT.rev"));
    ClickSet("CAMS.hdn");
    dialogs_.ExpectOpen(root_.filePath("other/BELT.hdn"));
    Entry("mnuFileDownloadProgram")->trigger();
    EXPECT_EQ(shownModes_.size(), 1U);
    EXPECT_EQ(gHdnFile, root_.filePath("other/BELT.hdn"));
    EXPECT_EQ(Link().TargetboardType(), 68);
}

TEST_F(Commands, ASetWithAnEmptyFirstItemIsReportedAsOpenFile) {
    const QString path = WriteSetFile("BLANK.hdn", "\r\n");
    const QString text = "Error Number = 5\r\n\r\nInvalid procedure call or argument";
    dialogs_.ExpectOpen(path);
    dialogs_.ExpectBox(text, MsgStyle::Critical, "Open File", MsgAnswer::Ok);
    Entry("mnuFileDownloadProgram")->trigger();
    EXPECT_TRUE(shownModes_.empty());
    EXPECT_TRUE(Window().Timer().Enabled());
}

TEST_F(Commands, ACommunicationErrorStopsTheDumpButNotTheRefresh) {
    ClickSet("PUMP.hdn");
    Link().SetCommError(true);
    Entry("mnuFileListPopupDownloadProg")->trigger();
    EXPECT_TRUE(shownModes_.empty());
    ExpectRefreshed();
}

TEST_F(Commands, OpenProgramDialogCanLeaveTheBoardAlone) {
    ClickSet("PUMP.hdn");
    dialogs_.ExpectOpen(SetPath("CAMS.hdn"));
    bool ok = false;
    Window().Programs().OpenProgramDialog(false, true, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(gHdnFile, SetPath("CAMS.hdn"));
    EXPECT_EQ(Link().TargetboardType(), 68);
}

TEST_F(Commands, SpawnRequestChangesNothing) {
    bool canceled = false;
    Window().Programs().SpawnRequest(6, true, false, canceled);
    EXPECT_FALSE(canceled);
}

TEST_F(Commands, ARecentFileThatExistsIsSelectedAndStartsNothing) {
    gHdnFile = SetPath("PUMP.hdn");
    Window().Recent().UpdateRecentFile();
    Window().RefreshCommandState();
    ClickSet("CAMS.hdn");
    Entry("mnuFileList(0)")->trigger();
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [PUMP]");
    EXPECT_TRUE(tools_.commands.isEmpty());
}

TEST_F(Commands, AnEmptyRecentEntrySelectsNothingNew) {
    Stop();
    WriteRecentList({SetPath("PUMP.hdn").toUtf8(), "", ""});
    Start();
    EXPECT_TRUE(Entry("mnuFileList(1)")->isVisible());
    const int listed = Window().Browser().ListCount();
    WriteSetFile("LATER.hdn", "D\r\n");
    Entry("mnuFileList(1)")->trigger();
    EXPECT_EQ(Window().Browser().ListCount(), listed + 1) << "the browser is refreshed";
    EXPECT_EQ(QFileInfo(gHdnFile), QFileInfo(SetPath("PUMP.hdn")));
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [PUMP]");
}

TEST_F(Commands, AVanishedRecentEntryIsKept) {
    Stop();
    WriteRecentList({"/gone/GONE.hdn"});
    Start();
    Entry("mnuFileList(0)")->trigger();
    EXPECT_TRUE(Entry("mnuFileList(0)")->isVisible());
    EXPECT_EQ(Window().Recent().List().Path(0).toStdString(), "/gone/GONE.hdn");
}

TEST_F(Commands, TheSameSetTwiceChangesTheRecentListOnce) {
    gHdnFile = SetPath("PUMP.hdn");
    Window().Recent().UpdateRecentFile();
    Window().Recent().UpdateRecentFile();
    EXPECT_EQ(Window().Recent().List().Path(0), SetPath("PUMP.hdn"));
    EXPECT_TRUE(Window().Recent().List().Path(1).isEmpty());
}

TEST_F(Commands, AnErrorThatAHandlerLetsThroughIsShown) {
    Window().Commands().Handle("mnuHelpAbout",
                               [] { throw RunTimeError(ErrorNumber::FileNotFound); });
    dialogs_.ExpectBox("Error Number = 53\r\n\r\nFile not found", MsgStyle::Critical, "Quentor",
                       MsgAnswer::Ok);
    Entry("mnuHelpAbout")->trigger();
}
