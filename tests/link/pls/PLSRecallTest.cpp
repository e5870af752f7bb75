#include "PLSLinkTest.h"

namespace {
class RecallChannel : public PLSLinkTest {
protected:
    void AnswerEdge(int state, int low, int high) {
        AcceptHandshake();
        port.Replies({0x55, state, low, high});
    }
    void ExpectRead(qint16 state, qint16 position) {
        EXPECT_EQ(link.ChannelRecallState(), state);
        EXPECT_EQ(link.ChannelRecallPos(), position);
    }
};
const Bytes wholeRecall{0xFF, 0x09, 8, 0x55, 0x55, 0x55};
} // namespace

TEST_F(RecallChannel, SendsTheChannelAndClocksThreeBytes) {
    AnswerEdge(1, 0x2C, 0x01);
    EXPECT_TRUE(link.RecallChannel(8));
    ExpectRead(1, 300);
    EXPECT_EQ(port.Sent(), wholeRecall);
}

TEST_F(RecallChannel, TheHighestPositionIs4351) {
    AnswerEdge(0, 0xFF, 16);
    EXPECT_TRUE(link.RecallChannel(8));
    ExpectRead(0, 4351);
}

TEST_F(RecallChannel, AHighPositionByteAbove16IsNoPosition) {
    AnswerEdge(1, 0, 17);
    EXPECT_FALSE(link.RecallChannel(8));
    ExpectRead(2, 0);
}

TEST_F(RecallChannel, OfNothingGivesStateTwo) {
    AnswerEdge(2, 0, 0);
    EXPECT_TRUE(link.RecallChannel(8));
    ExpectRead(2, 0);
}

TEST_F(RecallChannel, AnotherAnswerToTheChannelEndsIt) {
    AcceptHandshake();
    port.Reply(0xAA);
    EXPECT_FALSE(link.RecallChannel(8));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x09, 8}));
    EXPECT_EQ(link.ChannelRecallState(), 2);
}

TEST_F(RecallChannel, WithCommErrorTheStateIsTwoAndNothingIsSent) {
    AnswerEdge(1, 5, 0);
    link.RecallChannel(8);
    port.ForgetSent();
    link.SetCommError(true);
    EXPECT_FALSE(link.RecallChannel(8));
    EXPECT_EQ(link.ChannelRecallState(), 2);
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(RecallChannel, ALineThatDiesWithinTheThreeBytesGivesStateAndPositionZero) {
    for (const int bytes : {0, 1, 2}) {
        link.SetCommError(false);
        AnswerEdge(1, 5, 0);
        link.RecallChannel(8);
        AcceptHandshake();
        Acknowledge(1 + bytes);
        ExpectAlert(NoReplyAlert(), Answer::cancel);
        EXPECT_FALSE(link.RecallChannel(8));
        ExpectRead(0, 0);
        EXPECT_TRUE(link.CommError());
    }
}

TEST_F(RecallChannel, ALineThatDiesBeforeThemGivesStateTwo) {
    for (const int bytes : {0, 1, 2}) {
        link.SetCommError(false);
        Acknowledge(bytes);
        ExpectAlert(NoReplyAlert(), Answer::cancel);
        EXPECT_FALSE(link.RecallChannel(8));
        EXPECT_EQ(link.ChannelRecallState(), 2);
    }
}

TEST_F(RecallChannel, StartsOverAfterATimeOutBeforeTheLastByte) {
    for (const int bytes : {0, 1}) {
        AcceptHandshake();
        Acknowledge(1 + bytes);
        port.Silence();
        port.Reply(0x55); // the attention after the time-out
        AnswerEdge(1, 0x2C, 0x01);
        EXPECT_TRUE(link.RecallChannel(8));
        ExpectRead(1, 300);
    }
}

// The board may count the edge as given: the next recall would bring the one after it.
TEST_F(RecallChannel, IsNotRepeatedAfterATimeOutInTheLastByte) {
    AcceptHandshake();
    port.Replies({0x55, 1, 0x2C});
    port.Silence();
    port.Reply(0x55);
    EXPECT_FALSE(link.RecallChannel(8));
    ExpectRead(2, 0);
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x09, 8, 0x55, 0x55, 0x55, 0xFF}));
}

// The board may have taken the attention for the channel, and then waits for clock bytes, or wait
// for the channel still.
TEST_F(RecallChannel, AChannelByteThatTimedOutIsFilledUpBeforeItStartsOver) {
    AcceptHandshake();
    port.Silence();
    port.Reply(0x55);
    Acknowledge(1);
    AnswerEdge(0, 7, 0);
    EXPECT_TRUE(link.RecallChannel(8));
    ExpectRead(0, 7);
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x09, 8, 0xFF, 0xFF, 0xFF, 0x09, 8, 0x55, 0x55, 0x55}));
}

TEST_F(RecallChannel, AnUnknownChannelIsNotSent) {
    EXPECT_FALSE(link.RecallChannel(64));
    EXPECT_FALSE(link.RecallChannel(-1));
    EXPECT_EQ(link.ChannelRecallState(), 2);
    EXPECT_EQ(port.Sent(), Bytes{});
}
