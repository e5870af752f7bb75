#include "SessionUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;

class Mode : public testing::Test, protected SessionUnderTest {};
} // namespace

TEST_F(Mode, OnlineOpensThePortAndShowsIt) {
    UserGoesOnline();
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(port.Sent(), (Bytes{0xFF}));
    EXPECT_EQ(display.shown, std::vector<bool>{true});
}

TEST_F(Mode, OfflineClosesThePortAndShowsIt) {
    UserGoesOnline();
    port.Reply(0x55);
    mode.GoOffline();
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF}));
    EXPECT_EQ(display.shown, (std::vector<bool>{true, false}));
}

TEST_F(Mode, OnlineClearsACommunicationError) {
    link.SetCommError(true);
    UserGoesOnline();
    EXPECT_FALSE(link.CommError());
}

TEST_F(Mode, OnlineWhileOnlineOpensThePortAgain) {
    UserGoesOnline();
    UserGoesOnline();
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF}));
    EXPECT_TRUE(port.PortOpen());
}

TEST_F(Mode, ABoardThatDoesNotAnswerIsShownAsOffline) {
    ExpectAlert(NoReplyAlert(), 2);
    mode.GoOnline();
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_EQ(display.shown, std::vector<bool>{false});
}

TEST_F(Mode, ACancelAboutBadSettingsIsShownAsOffline) {
    port.RefusePortNumbers(1);
    dialogs.ExpectBoxTitled(QStringLiteral("RSComm InitializeRSComm"), 2);
    mode.GoOnline();
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(display.shown, std::vector<bool>{false});
    EXPECT_FALSE(link.CommError());
}

TEST_F(Mode, ACommunicationErrorTakesTheLinkOfflineAndLeavesThePort) {
    UserGoesOnline();
    link.SetCommError(true);
    mode.RefreshCommMode();
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(port.Sent(), (Bytes{0xFF}));
    EXPECT_FALSE(display.shown.back());
}

TEST_F(Mode, ToggleGoesOnlineAndClearsTheErrorAndOfflineAgain) {
    link.SetCommError(true);
    port.Reply(0x55);
    mode.Toggle();
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_FALSE(link.CommError());
    port.Reply(0x55);
    mode.Toggle();
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(Mode, ToggleToOfflineKeepsACommunicationError) {
    UserGoesOnline();
    link.SetCommError(true);
    mode.Toggle();
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_TRUE(link.CommError());
}

TEST_F(Mode, OfflineWithAClosedPortIsHarmless) {
    mode.GoOffline();
    EXPECT_EQ(port.Sent(), Bytes{});
    EXPECT_EQ(display.shown, std::vector<bool>{false});
}
