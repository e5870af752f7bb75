#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;

class Close : public testing::Test, protected LinkUnderTest {
protected:
    void ExpectClosed() {
        EXPECT_FALSE(port.PortOpen());
        EXPECT_FALSE(link.OnlineMode());
        EXPECT_FALSE(link.OperationRuns());
    }
};
} // namespace

TEST_F(Close, OnlineLeavesTheBoardWithAnAttention) {
    GoOnline();
    port.Reply(0x55);
    link.CloseRSComm();
    EXPECT_EQ(port.Sent(), (Bytes{0xFF}));
    EXPECT_FALSE(link.CommError());
    ExpectClosed();
}

TEST_F(Close, ALinkThatWasNeverOpenedIsHarmless) {
    link.SetOnlineMode(true);
    link.CloseRSComm();
    ExpectClosed();
}

TEST_F(Close, TwiceIsHarmless) {
    GoOnline();
    port.Reply(0x55);
    link.CloseRSComm();
    link.CloseRSComm();
    EXPECT_EQ(port.Sent(), (Bytes{0xFF}));
    ExpectClosed();
}

TEST_F(Close, WithCommErrorSendsNothing) {
    GoOnline();
    link.SetCommError(true);
    link.CloseRSComm();
    EXPECT_EQ(port.Sent(), Bytes{});
    EXPECT_TRUE(link.CommError());
    ExpectClosed();
}

TEST_F(Close, ADeadBoardIsAskedAboutAndThePortClosed) {
    GoOnline();
    ExpectAlert(NoReplyAlert(), 2);
    link.CloseRSComm();
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF}));
    ExpectClosed();
}

TEST_F(Close, ALostPortIsHarmless) {
    GoOnline();
    port.Lose();
    link.CloseRSComm();
    EXPECT_EQ(port.Sent(), Bytes{});
    EXPECT_FALSE(link.CommError());
    ExpectClosed();
}

TEST_F(Close, APortThatRaisesIsClosedAllTheSame) {
    GoOnline();
    port.RefuseOutput(57);
    link.CloseRSComm();
    ExpectClosed();
}

TEST_F(Close, LeavesTheLinkInNoMode) {
    GoOnline();
    EnterReadMode();
    port.Reply(0x55);
    link.CloseRSComm();
    GoOnline();
    AcceptHandshake();
    AnswerRead(0, 2);
    EXPECT_EQ(link.RSRead(QStringLiteral("B40")), QStringLiteral("2"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0, 40}));
}
