#include "SessionUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;
const QString onLine = QStringLiteral("Quentor is Currently ON-LINE");
const QString commFault = QStringLiteral("Comm Fault with Target Board");

// How a failed link reaches the user, tick by tick.
class CommFailure : public testing::Test, protected SessionUnderTest {
protected:
    CommFailure() {
        GoOnlineInBrowser();
        display.shown.clear();
    }
    void FailThePoll() {
        ExpectAlert(NoReplyAlert(), 2);
        update.Tick();
        port.ForgetSent();
    }
};
} // namespace

TEST_F(CommFailure, ReachesPanel1OverTwoTicks) {
    FailThePoll();
    EXPECT_EQ(views.Panel(), onLine);
    EXPECT_TRUE(link.OnlineMode());
    update.Tick();
    EXPECT_EQ(views.Panel(), onLine) << "the text of the error never reaches the panel";
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_EQ(display.shown, std::vector<bool>{false});
    update.Tick();
    EXPECT_EQ(views.Panel(), commFault);
    for (const QString& text : views.panels)
        EXPECT_FALSE(text.contains(QStringLiteral("Comm Error")));
}

TEST_F(CommFailure, LeavesThePortAsItIsAndSendsNothing) {
    FailThePoll();
    for (int tick = 0; tick < 5; ++tick)
        update.Tick();
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(CommFailure, IsShownOnEveryTickForAsLongAsItLasts) {
    FailThePoll();
    update.Tick();
    display.shown.clear();
    for (int tick = 0; tick < 3; ++tick) {
        update.Tick();
        EXPECT_EQ(views.Panel(), commFault);
    }
    EXPECT_EQ(display.shown.size(), 4u) << "one for the change, and one for each tick";
    EXPECT_FALSE(display.shown.back());
}

TEST_F(CommFailure, TheOnlineCommandEndsIt) {
    FailThePoll();
    update.Tick();
    update.Tick();
    UserGoesOnline();
    QuietTick();
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(views.Panel(), onLine);
}

TEST_F(CommFailure, TheOfflineCommandDoesNotEndIt) {
    FailThePoll();
    mode.GoOffline();
    update.Tick();
    EXPECT_EQ(views.Panel(), commFault);
    EXPECT_TRUE(link.CommError());
}

TEST_F(CommFailure, ACancelInTheHandshakeShowsAtTheNextTick) {
    for (int i = 0; i < 4; ++i)
        port.Reply(0, 0.5);
    ExpectAlert(NoModeAlert(), 2);
    update.Tick();
    EXPECT_EQ(views.Panel(), onLine);
    EXPECT_FALSE(port.PortOpen());
    update.Tick();
    EXPECT_EQ(views.Panel(), commFault);
}

TEST_F(CommFailure, APortLostBetweenTwoTicksIsOneToo) {
    port.Lose();
    update.Tick(); // the poll finds it, without a time-out and so without an alert
    EXPECT_TRUE(link.CommError());
    EXPECT_FALSE(link.CommErrorAlert());
    update.Tick();
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_EQ(display.shown, std::vector<bool>{false});
    update.Tick();
    EXPECT_EQ(views.Panel(), commFault);
}

TEST_F(CommFailure, APortThatCannotBeOpenedShowsAtTheNextTick) {
    port.Reply(0x55);
    mode.GoOffline();
    update.Tick();
    port.RefuseToOpen(68, QStringLiteral("gone"));
    dialogs.ExpectBoxTitled(QStringLiteral("Comm Port Error"), 1);
    mode.GoOnline();
    EXPECT_FALSE(display.shown.back());
    update.Tick();
    EXPECT_EQ(views.Panel(), commFault);
}
