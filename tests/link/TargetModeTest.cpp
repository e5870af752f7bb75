#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;
constexpr int retry = 4;
constexpr int cancel = 2;
constexpr double quietTime = 0.05; // that the line is silent before the byte after a wrong answer

// A read while no mode is entered goes through the handshake first.
class TargetMode : public testing::Test, protected LinkUnderTest {
protected:
    TargetMode() {
        GoOnline();
        start = clock.MonotonicSeconds();
    }
    QString ReadB100() { return link.RSRead(QStringLiteral("B100")); }
    double Elapsed() const { return clock.MonotonicSeconds() - start; }
    // Answers every byte of a handshake with what is no acknowledge, for so many seconds.
    void AnswerWrongly(int times, double each) {
        for (int i = 0; i < times; ++i)
            port.Reply(0x00, each);
    }

    double start = 0.0;
};
} // namespace

TEST_F(TargetMode, AttentionDiscardsWhatLiesInTheInputBuffer) {
    port.Receive({0x12, 0x34, 0x56});
    AcceptHandshake();
    AnswerRead(0, 8);
    EXPECT_EQ(ReadB100(), QStringLiteral("8"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0, 100}));
}

TEST_F(TargetMode, AnotherAnswerToTheAttentionIsTriedAgain) {
    port.Replies({0x54, 0x00});
    AcceptHandshake();
    AnswerRead(0, 8);
    EXPECT_EQ(ReadB100(), QStringLiteral("8"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF, 0x01, 0, 100}));
}

TEST_F(TargetMode, AnotherAnswerToTheModeByteStartsOver) {
    port.Replies({0x55, 0x01});
    AcceptHandshake();
    AnswerRead(0, 8);
    EXPECT_EQ(ReadB100(), QStringLiteral("8"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0xFF, 0x01, 0, 100}));
}

// The acknowledge is noise ahead of the board's echo: the board waits for data and would store the
// mode byte.
TEST_F(TargetMode, AnAcknowledgeInDoubtCountsOnlyOnAQuietLine) {
    port.Reply(0x54);
    port.ReplyTwice(0x55, 0xFF);
    AcceptHandshake();
    AnswerRead(0, 8);
    EXPECT_EQ(ReadB100(), QStringLiteral("8"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF, 0x01, 0, 100}));
}

TEST_F(TargetMode, AfterTwoSecondsOfWrongAnswersTheUserIsAsked) {
    AnswerWrongly(4, 0.5);
    ExpectAlert(NoModeAlert(), cancel, [&] { EXPECT_NEAR(Elapsed(), 2.0 + 3 * quietTime, 1e-6); });
    EXPECT_EQ(ReadB100(), QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST_F(TargetMode, CancelClosesThePortAndTakesTheLinkOffline) {
    AnswerWrongly(4, 0.5);
    ExpectAlert(NoModeAlert(), cancel);
    ReadB100();
    EXPECT_TRUE(link.CommError());
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(port.Sent().size(), 4u) << "the port is closed without an attention";
    EXPECT_FALSE(link.OperationRuns());
}

TEST_F(TargetMode, RetryGivesTwoSecondsMore) {
    AnswerWrongly(4, 0.5);
    ExpectAlert(NoModeAlert(), retry, [&] { clock.Wait(30.0); });
    AnswerWrongly(4, 0.5);
    ExpectAlert(NoModeAlert(), cancel, [&] { EXPECT_NEAR(Elapsed(), 34.0 + 7 * quietTime, 1e-6); });
    ReadB100();
    EXPECT_EQ(port.Sent().size(), 8u);
}

TEST_F(TargetMode, RetryMaySucceed) {
    AnswerWrongly(4, 0.5);
    ExpectAlert(NoModeAlert(), retry);
    AcceptHandshake();
    AnswerRead(0, 8);
    EXPECT_EQ(ReadB100(), QStringLiteral("8"));
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_FALSE(link.CommError());
}

TEST_F(TargetMode, ADeadLineShowsOnlyTheAlertOfTheExchange) {
    ExpectAlert(NoReplyAlert(), cancel);
    EXPECT_EQ(ReadB100(), QStringLiteral("0"));
    EXPECT_TRUE(link.CommError());
    EXPECT_TRUE(port.PortOpen());
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF}));
}

TEST_F(TargetMode, ADeadLineAfterTheAcknowledgedAttentionEndsIt) {
    port.Reply(0x55);
    ExpectAlert(NoReplyAlert(), cancel);
    EXPECT_EQ(ReadB100(), QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0xFF, 0xFF}));
}

TEST_F(TargetMode, ALateAnswerToTheModeByteCountsAsTheAnswerToTheAttentionAfterIt) {
    port.Reply(0x55);
    port.Silence();
    port.Reply(0x54); // the attention after the time-out
    AcceptHandshake();
    AnswerRead(0, 8);
    EXPECT_EQ(ReadB100(), QStringLiteral("8"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0xFF, 0xFF, 0x01, 0, 100}));
}

// The board waits for a command then; the address byte of B800 is the one that stops the machine.
TEST_F(TargetMode, AnAttentionThatAnswersTheModeByteIsNoAcknowledge) {
    port.Reply(0x55);
    port.Silence();
    port.Reply(0x55); // the attention after the time-out
    AcceptHandshake();
    AnswerRead(3, 8);
    EXPECT_EQ(link.RSRead(QStringLiteral("B800")), QStringLiteral("8"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0xFF, 0xFF, 0x01, 3, 32}));
}

TEST_F(TargetMode, WithCommErrorNothingIsSentAndNothingShown) {
    link.SetCommError(true);
    EXPECT_EQ(ReadB100(), QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), Bytes{});
    EXPECT_TRUE(port.PortOpen());
}
