#include "base/ViewLoop.h"
#include "SessionUnderTest.h"
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QTimer>

namespace {
using Bytes = std::vector<int>;

class SystemMessage : public testing::Test, protected SessionUnderTest {
protected:
    SystemMessage() { WriteFile(QStringLiteral("support/FaultErrCodes.txt"), "05,Watchdog\r\n"); }
    void ExpectFaultBox() {
        dialogs.ExpectBox(QStringLiteral("Faults Active in Target Board"), 16,
                          QStringLiteral("Quentor"), 1);
    }
    void TickWithFault(int code, bool handshake = false) {
        AnswerFaultCode(code, handshake);
        update.Tick();
    }
};
} // namespace

TEST_F(SystemMessage, TheProgramStartsOffline) {
    update.Tick();
    ASSERT_EQ(views.panels.size(), 1u);
    EXPECT_EQ(views.panels[0], QStringLiteral("System Message:  Quentor is Currently OFF-LINE"));
    EXPECT_TRUE(display.shown.empty()) << "the mode panel keeps its first text";
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(SystemMessage, OnlineWithoutAFaultSaysOnLine) {
    GoOnlineInBrowser();
    TickWithFault(0, true);
    EXPECT_EQ(views.Panel(), QStringLiteral("Quentor is Currently ON-LINE"));
}

TEST_F(SystemMessage, AFaultIsAlertedAndDescribed) {
    GoOnlineInBrowser();
    ExpectFaultBox();
    TickWithFault(5, true);
    EXPECT_EQ(views.Panel(), QStringLiteral("Fault Code (05H): Watchdog"));
}

TEST_F(SystemMessage, FaultCode1IsAFaultAndHasNoTextOfItsOwnHere) {
    GoOnlineInBrowser();
    ExpectFaultBox();
    TickWithFault(1, true);
    EXPECT_EQ(views.Panel(), QStringLiteral("Fault Code (01H): "));
}

TEST_F(SystemMessage, FaultsThatClearAndComeAgainInOneSessionAreAlertedOnce) {
    GoOnlineInBrowser();
    ExpectFaultBox();
    TickWithFault(5, true);
    TickWithFault(0);
    EXPECT_EQ(views.Panel(), QStringLiteral("Quentor is Currently ON-LINE"));
    TickWithFault(5);
    EXPECT_EQ(views.Panel(), QStringLiteral("Fault Code (05H): Watchdog"));
}

TEST_F(SystemMessage, GoingOfflineAndOnlineAgainAlertsAnew) {
    GoOnlineInBrowser();
    ExpectFaultBox();
    TickWithFault(5, true);
    port.Reply(0x55);
    mode.GoOffline();
    update.Tick();
    EXPECT_EQ(views.Panel(), QStringLiteral("Quentor is Currently OFF-LINE"));
    GoOnlineInBrowser();
    ExpectFaultBox();
    TickWithFault(5, true);
}

TEST_F(SystemMessage, AChangeOfModeIsReconciledAtTheNextTick) {
    UserGoesOnline();
    display.shown.clear();
    views.visible = {StatusTable()};
    port.Reply(0x55);
    update.Tick();
    EXPECT_EQ(display.shown, std::vector<bool>{true});
    update.Tick();
    EXPECT_EQ(display.shown.size(), 1u) << "only a change counts";
}

TEST_F(SystemMessage, ATickInsideTheFaultBoxDoesNothing) {
    GoOnlineInBrowser();
    dialogs.ExpectBox(QStringLiteral("Faults Active in Target Board"), 16,
                      QStringLiteral("Quentor"), 1, [&] {
                          const auto panels = views.panels.size();
                          const auto sent = port.Sent().size();
                          update.Tick();
                          EXPECT_EQ(views.panels.size(), panels);
                          EXPECT_EQ(port.Sent().size(), sent);
                      });
    TickWithFault(5, true);
}

TEST_F(SystemMessage, ATickInsideABoxOfTheLinkDoesNothing) {
    GoOnlineInBrowser();
    const auto panels = views.panels.size();
    ExpectAlert(NoReplyAlert(), 2, [&] {
        const auto sent = port.Sent().size();
        update.Tick();
        EXPECT_EQ(port.Sent().size(), sent);
    });
    link.RSRead(QStringLiteral("B100"));
    EXPECT_EQ(views.panels.size(), panels);
}

// What is pending runs after the tick and not inside it: a modal view opened from within would keep
// the tick and all view loops still for as long as it is up.
TEST_F(SystemMessage, TheTickYieldsByReturning) {
    bool ran = false;
    bool held = true;
    QTimer::singleShot(0, [&] {
        ran = true;
        held = ViewLoopHold::AnyHeld();
        update.Tick();
    });
    update.Tick();
    EXPECT_FALSE(ran);
    QCoreApplication::processEvents();
    EXPECT_TRUE(ran);
    EXPECT_FALSE(held);
    EXPECT_EQ(views.panels.size(), 2u);
}

TEST_F(SystemMessage, TheTickComesTwiceASecond) {
    EXPECT_EQ(BackgroundUpdate::interval, 500);
}
