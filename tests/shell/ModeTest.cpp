#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QLabel>
#include <QTest>

namespace {
class Mode : public WholeWindow {
protected:
    void DoubleClickPanel(int index) {
        QTest::mouseDClick(Find<QLabel>(QStringLiteral("sbrMain(%1)").arg(index)), Qt::LeftButton);
    }
    void ExpectMode(bool online) {
        EXPECT_EQ(Link().OnlineMode(), online);
        EXPECT_EQ(Panel(2).toStdString(), online ? "ONLINE" : "OFFLINE");
        EXPECT_EQ(Entry("mnuViewOnline")->isChecked(), online);
        EXPECT_EQ(Entry("mnuViewOffline")->isChecked(), !online);
    }
};
} // namespace

TEST_F(Mode, F3GoesOnlineAndF4Offline) {
    Start();
    QTest::keyClick(&Window(), Qt::Key_F3);
    ExpectMode(true);
    EXPECT_TRUE(port_.PortOpen());
    QTest::keyClick(&Window(), Qt::Key_F4);
    ExpectMode(false);
    EXPECT_FALSE(port_.PortOpen());
}

TEST_F(Mode, ADoubleClickOnPanel2Toggles) {
    Start();
    DoubleClickPanel(2);
    ExpectMode(true);
    DoubleClickPanel(2);
    ExpectMode(false);
}

TEST_F(Mode, ADoubleClickOnPanel1DoesNothing) {
    Start();
    DoubleClickPanel(1);
    ExpectMode(false);
    EXPECT_TRUE(port_.Sent().empty());
}

TEST_F(Mode, ADoubleClickOnPanel3DoesNothing) {
    Start();
    DoubleClickPanel(3);
    ExpectMode(false);
    EXPECT_TRUE(port_.Sent().empty());
}

TEST_F(Mode, ADoubleClickOnPanel4DoesNothing) {
    Start();
    DoubleClickPanel(4);
    ExpectMode(false);
    EXPECT_TRUE(port_.Sent().empty());
}

TEST_F(Mode, APortThatCannotBeOpenedIsReportedAndStaysOffline) {
    Start();
    port_.RefuseToOpen(68, "There is no /dev/ttyS0.");
    dialogs_.ExpectBoxTitled("Comm Port Error", MsgAnswer::Cancel);
    QTest::keyClick(&Window(), Qt::Key_F3);
    ExpectMode(false);
}

TEST_F(Mode, TheTickSaysOnline) {
    Start();
    QTest::keyClick(&Window(), Qt::Key_F3);
    Tick();
    EXPECT_EQ(Panel(1).toStdString(), "System Message:  Quentor is Currently ON-LINE");
}

TEST_F(Mode, ALineThatIsCutShowsCommFaultUntilTheUserGoesOnlineAgain) {
    Start();
    QTest::keyClick(&Window(), Qt::Key_F3);
    port_.Lose();
    Tick(); // the poll finds the port gone
    Tick();
    Tick();
    EXPECT_EQ(Panel(1).toStdString(), "System Message:  Comm Fault with Target Board");
    ExpectMode(false);
    QTest::keyClick(&Window(), Qt::Key_F3);
    ExpectMode(true);
    Tick();
    EXPECT_EQ(Panel(1).toStdString(), "System Message:  Quentor is Currently ON-LINE");
}

TEST_F(Mode, WithAnotherViewVisibleButTheBrowserActiveTheTickDoesNotPoll) {
    Start();
    Window().Children().Register("frmStatusTable", [] {
        auto* view = new QWidget;
        view->setObjectName("frmStatusTable");
        return view;
    });
    QTest::keyClick(&Window(), Qt::Key_F3);
    Window().Children().Show("frmStatusTable");
    EXPECT_EQ(Window().ActiveChildName().toStdString(), "frmStatusTable");
    GoToSets();
    ClickSet("PUMP.hdn");
    EXPECT_EQ(Window().ActiveChildName().toStdString(), "frmMain");
    port_.ForgetSent();
    Tick();
    EXPECT_TRUE(port_.Sent().empty());
    Window().Children().Hide("frmStatusTable");
    Tick();
    EXPECT_FALSE(port_.Sent().empty());
}
