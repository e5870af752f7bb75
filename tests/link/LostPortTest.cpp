#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;

class LostPort : public testing::Test, protected LinkUnderTest {
protected:
    LostPort() {
        GoOnline();
        EnterReadMode();
        start = clock.MonotonicSeconds();
    }
    double Elapsed() const { return clock.MonotonicSeconds() - start; }

    double start = 0.0;
};
} // namespace

TEST_F(LostPort, BetweenTwoExchangesSetsCommErrorAndShowsNothing) {
    port.Lose();
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("0"));
    EXPECT_TRUE(link.CommError());
    EXPECT_FALSE(link.CommErrorAlert());
    EXPECT_EQ(port.Sent(), Bytes{});
    EXPECT_EQ(Elapsed(), 0.0);
}

TEST_F(LostPort, InTheMiddleOfAWaitTheTimeOutsTakeTheirRealTime) {
    port.Silence();
    port.LoseAfter(1);
    ExpectAlert(NoReplyAlert(), 2, [&] { EXPECT_NEAR(Elapsed(), 5.0, 1e-6); });
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("0"));
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(port.Sent(), (Bytes{0})) << "nothing can be sent any more";
}

TEST_F(LostPort, ARetryOnALostPortTakesItsTimeToo) {
    port.Silence();
    port.LoseAfter(1);
    ExpectAlert(NoReplyAlert(), 4);
    ExpectAlert(NoReplyAlert(), 2, [&] { EXPECT_NEAR(Elapsed(), 11.0, 1e-6); });
    link.RSRead(QStringLiteral("B100"));
}

TEST_F(LostPort, WhatThePortRaisesStaysInsideTheLink) {
    port.RefuseOutput(57);
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("0"));
    EXPECT_TRUE(link.CommError());
    EXPECT_FALSE(link.OperationRuns());
    link.SetCommError(false);
    link.RSWrite(QStringLiteral("B100"), QStringLiteral("1"));
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(LostPort, WhatThePortRaisesInAnyWaitStaysInsideTheLink) {
    constexpr int waitsOfARead = 6; // the attention is answered wrongly first: a doubtful handshake
    for (int wait = 1; wait <= waitsOfARead; ++wait) {
        GoOnline();
        port.Reply(0x54);
        AcceptHandshake();
        AnswerRead(0, 8);
        port.RaiseInWait(wait, 57);
        EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("0")) << wait;
        EXPECT_TRUE(link.CommError()) << wait;
        EXPECT_FALSE(link.OperationRuns()) << wait;
        port.ForgetScript();
    }
}

TEST_F(LostPort, AReplyThatIsGoneWhenItIsTakenIsAFailureAndNoZero) {
    AnswerRead(0, 8);
    port.WithholdInput(true);
    link.RSRead(QStringLiteral("B100"));
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(port.Sent(), (Bytes{0})) << "the high byte 0 must not count as echoed";
}

TEST_F(LostPort, AfterWhatThePortRaisedTheLinkIsInNoMode) {
    port.RefuseOutput(57);
    link.RSRead(QStringLiteral("B40"));
    port.RefuseOutput(0);
    link.SetCommError(false);
    AcceptHandshake();
    AnswerRead(0, 5);
    EXPECT_EQ(link.RSRead(QStringLiteral("B40")), QStringLiteral("5"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0, 40}));
}

TEST_F(LostPort, ALinkThatWasNeverOpenedHasNoPort) {
    RSComm fresh(dialogs, clock, busy, folder);
    EXPECT_EQ(fresh.RSRead(QStringLiteral("B100")), QStringLiteral("0"));
    EXPECT_TRUE(fresh.CommError());
    EXPECT_FALSE(fresh.OnlineMode());
}
