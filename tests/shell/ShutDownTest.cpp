#include "session/Globals.h"
#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QDir>
#include <QTest>

namespace {
class ShutDown : public WholeWindow {
protected:
    void SetUp() override {
        WriteRecentList({"/a/A.hdn", "/b/B.hdn"});
        Start();
        QFile::remove(AppPath("support/HD2000.dat"));
    }
    void ExpectSaved() {
        EXPECT_EQ(RecentListOnDisk().join('|').toStdString(), "/a/A.hdn\r|/b/B.hdn\r|\r|\r|");
        EXPECT_EQ(ended_, 1);
    }
};
} // namespace

TEST_F(ShutDown, ClosingTheWindowSavesTheRecentListOnce) {
    EXPECT_TRUE(Window().close());
    ExpectSaved();
    QFile::remove(AppPath("support/HD2000.dat"));
    Window().close();
    EXPECT_TRUE(RecentListOnDisk().isEmpty());
    EXPECT_EQ(ended_, 1);
}

TEST_F(ShutDown, ExitSavesTheRecentListOnce) {
    Entry("mnuFileExit")->trigger();
    ExpectSaved();
    QFile::remove(AppPath("support/HD2000.dat"));
    Window().close();
    EXPECT_TRUE(RecentListOnDisk().isEmpty());
    EXPECT_EQ(ended_, 1);
}

TEST_F(ShutDown, UnloadWithoutAskingIsRefused) {
    qint16 cancel = 0;
    Window().Unload(cancel);
    EXPECT_EQ(cancel, 1);
    EXPECT_EQ(ended_, 0);
}

TEST_F(ShutDown, ClosesTheLinkAndReleasesTheSharedObjects) {
    QTest::keyClick(&Window(), Qt::Key_F3);
    ASSERT_TRUE(port_.PortOpen());
    Window().close();
    EXPECT_FALSE(port_.PortOpen());
    EXPECT_FALSE(Link().OnlineMode());
    EXPECT_EQ(gRSComm, nullptr);
    EXPECT_EQ(gCommControl, nullptr);
    EXPECT_EQ(gFSO, nullptr);
    EXPECT_FALSE(Window().Timer().Enabled());
}

TEST_F(ShutDown, AListThatCannotBeSavedDoesNotKeepTheProgram) {
    QDir(AppPath("support")).removeRecursively();
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(ended_, 1);
    EXPECT_FALSE(QDir(AppPath("support")).exists());
}

TEST_F(ShutDown, TheWindowStaysWhileTheLinkIsAtWork) {
    QTest::keyClick(&Window(), Qt::Key_F3);
    port_.AnswerLikeBoard(false);
    bool closed = true;
    dialogs_.ExpectBox("Cannot Communicate with Target Board.\r"
                       "Verify RS-232 Cable is Connected Between\r"
                       "COMM Port and PROG Port.",
                       MsgStyle::CriticalRetryCancel, "WARNING - Communication Error!",
                       MsgAnswer::Cancel, [&] { closed = Window().close(); });
    Link().FaultCode();
    EXPECT_FALSE(closed);
    EXPECT_EQ(ended_, 0);
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(ended_, 1);
}
