#include "base/RunTimeError.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include "support/OrdinaryUser.h"
#include <QAction>
#include <QDir>
#include <QFile>
#include <QTimer>
#include <QTreeWidget>

namespace {
class StartUp : public WholeWindow {};

bool SamePath(const QString& left, const QString& right) {
    return QFileInfo(left).canonicalFilePath() == QFileInfo(right).canonicalFilePath();
}
} // namespace

TEST_F(StartUp, WithoutARecentFileNothingIsSelected) {
    Start();
    EXPECT_TRUE(gHdnFile.isEmpty());
    EXPECT_FALSE(Entry("mnuFileSep4")->isVisible());
    for (int i = 0; i < 4; ++i)
        EXPECT_FALSE(Entry(ElementName("mnuFileList", i))->isVisible()) << i;
    EXPECT_TRUE(TreeTexts().isEmpty());
    EXPECT_TRUE(SamePath(Window().Browser().Folder(), folder_->Root()));
}

TEST_F(StartUp, TheNewestRecentSetIsSelected) {
    WriteRecentList({SetPath("PUMP.hdn").toUtf8(), "/old/OLD.hdn"});
    Start();
    EXPECT_TRUE(SamePath(gHdnFile, SetPath("PUMP.hdn")));
    EXPECT_EQ(Link().TargetboardType(), 68);
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [PUMP]");
    EXPECT_EQ(Entry("mnuFileList(0)")->text(), "&1 " + SetPath("PUMP.hdn"));
    EXPECT_EQ(Entry("mnuFileList(1)")->text().toStdString(), "&2 /old/OLD.hdn");
    EXPECT_TRUE(Entry("mnuFileList(1)")->isVisible());
    EXPECT_TRUE(Entry("mnuFileSep4")->isVisible());
    EXPECT_FALSE(Entry("mnuFileList(2)")->isVisible());
}

TEST_F(StartUp, ADeletedFirstRecentFileIsShownButNotSelected) {
    WriteRecentList({"/gone/GONE.hdn", SetPath("PUMP.hdn").toUtf8()});
    Start();
    EXPECT_TRUE(gHdnFile.isEmpty());
    EXPECT_TRUE(Entry("mnuFileList(0)")->isVisible());
    EXPECT_EQ(Entry("mnuFileList(0)")->text().toStdString(), "&1 /gone/GONE.hdn");
    EXPECT_TRUE(SamePath(Window().Browser().Folder(), folder_->Root()));
}

TEST_F(StartUp, AnAmpersandInARecentPathIsShown) {
    WriteRecentList({"/a&b/C.hdn"});
    Start();
    EXPECT_EQ(Entry("mnuFileList(0)")->text().toStdString(), "&1 /a&&b/C.hdn");
}

TEST_F(StartUp, GlobalsStandOnceTheWindowIsUp) {
    Start();
    EXPECT_EQ(gRSComm, &Link());
    EXPECT_EQ(gCommControl, &port_);
    EXPECT_NE(gFSO, nullptr);
    EXPECT_EQ(gCurrentDrive.toStdString(), "/");
    EXPECT_TRUE(SamePath(QDir::currentPath(), folder_->Root()));
}

TEST_F(StartUp, TheTimerIsOffUntilTheBrowserIsUp) {
    application_ = std::make_unique<Application>(Platform{
        clock_, dialogs_, busy_, port_, *folder_, drives_, ports_, tools_, printer_, [] {}});
    auto* timer = Find<QTimer>("tmrBackgroungUpdate");
    EXPECT_FALSE(timer->isActive());
    EXPECT_EQ(timer->interval(), 500);
    RunStartUp();
    EXPECT_TRUE(timer->isActive());
}

TEST_F(StartUp, TheSplashComesLastOverARunningTimer) {
    application_ = std::make_unique<Application>(Platform{
        clock_, dialogs_, busy_, port_, *folder_, drives_, ports_, tools_, printer_, [] {}});
    bool timerRan = false;
    bool browserUp = false;
    Window().Views().frmSplash = [&] {
        timerRan = Window().Timer().Enabled();
        browserUp = Window().Browser().isVisible();
    };
    application_->Start();
    EXPECT_TRUE(timerRan);
    EXPECT_TRUE(browserUp);
}

TEST_F(StartUp, NothingGoesToTheLine) {
    Start();
    EXPECT_TRUE(port_.Sent().empty());
    EXPECT_FALSE(port_.PortOpen());
    EXPECT_EQ(Panel(1).toStdString(), "System Message:");
    EXPECT_EQ(Panel(2).toStdString(), "OFFLINE");
    EXPECT_TRUE(Entry("mnuViewOffline")->isChecked());
    Tick();
    EXPECT_EQ(Panel(1).toStdString(), "System Message:  Quentor is Currently OFF-LINE");
}

TEST_F(StartUp, AnUnreadableRecentFileStopsWithABoxAndTheWindowStays) {
    WriteRecentList({"/x.hdn"});
    ForbidReading(AppPath("support/HD2000.dat"));
    const OrdinaryUser user;
    if (!user.Possible())
        GTEST_SKIP() << "no other user's rights can be had here";
    dialogs_.ExpectBox("Error Number = 70\r\n\r\nPermission denied", MsgStyle::Critical,
                       "App Activate", MsgAnswer::Ok);
    Start();
    EXPECT_TRUE(Window().isVisible());
    EXPECT_FALSE(Window().Timer().Enabled());
}

TEST_F(StartUp, TheStatusTableIsActiveOverTheLoadedBrowser) {
    Start();
    EXPECT_EQ(Window().ActiveChildName().toStdString(), "frmStatusTable");
    EXPECT_TRUE(Window().Browser().gFormLoaded);
    EXPECT_EQ(gPrintContext, PrintContext::StatusTable);
}
