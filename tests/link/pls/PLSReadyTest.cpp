#include "PLSLinkTest.h"

namespace {
// The record has been taken; what follows is the poll.
class PLSReady : public PLSLinkTest {
protected:
    PLSReady() {
        AcceptHandshake();
        Acknowledge(6);
    }
    bool Clear() {
        const bool cleared = link.ClearPLSChan(0);
        sent = Bytes(port.Sent().begin() + 8, port.Sent().end());
        return cleared;
    }
    // Busy answers that take so many seconds each.
    void AnswerBusy(int rounds, double seconds) {
        for (int round = 0; round < rounds; ++round) {
            port.Reply(0x55, seconds / 2);
            port.Reply(0x55, seconds / 2);
        }
    }
    Bytes sent;
};
constexpr double recordTime = 0.008; // eight bytes of the record
} // namespace

TEST_F(PLSReady, IsOnePollOfThreeBytes) {
    AnswerReady();
    EXPECT_TRUE(Clear());
    EXPECT_EQ(sent, (Bytes{0x38, 0x55, 0x55}));
}

TEST_F(PLSReady, TheLastByteMayBeAnything) {
    port.Replies({0x55, 0x00, 0x12});
    EXPECT_TRUE(Clear());
}

TEST_F(PLSReady, ABusyBoardIsPolledAgain) {
    AnswerBusy(2, 0.01);
    AnswerReady();
    EXPECT_TRUE(Clear());
    EXPECT_EQ(sent, (Bytes{0x38, 0x55, 0x38, 0x55, 0x38, 0x55, 0x55}));
}

TEST_F(PLSReady, AnyOtherAnswerIsPolledAgain) {
    port.Replies({0xAA, 0x55, 0x01});
    AnswerReady();
    EXPECT_TRUE(Clear());
    EXPECT_EQ(sent, (Bytes{0x38, 0x38, 0x55, 0x38, 0x55, 0x55}));
}

TEST_F(PLSReady, ABusyBoardHitsTheDialogAfterThreeSecondsAndAfterRetryAfterTwoMore) {
    AnswerBusy(10, 0.3001);
    ExpectNotReadyAlert(Answer::retry, [&] {
        EXPECT_NEAR(Elapsed(), recordTime + 3.0, 0.01);
        clock.Wait(60.0); // a box may stand for long
    });
    AnswerBusy(10, 0.2001);
    ExpectNotReadyAlert(Answer::cancel,
                        [&] { EXPECT_NEAR(Elapsed(), recordTime + 3.0 + 60.0 + 2.0, 0.01); });
    EXPECT_FALSE(Clear());
    EXPECT_TRUE(link.CommError());
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_TRUE(port.PortOpen());
}

TEST_F(PLSReady, RetryMaySucceed) {
    AnswerBusy(10, 0.3001);
    ExpectNotReadyAlert(Answer::retry);
    AnswerBusy(5, 0.1);
    AnswerReady();
    EXPECT_TRUE(Clear());
    EXPECT_FALSE(link.CommError());
}

TEST_F(PLSReady, ABoardThatBecomesReadyJustInTimeAsksNothing) {
    AnswerBusy(29, 0.1);
    AnswerReady();
    EXPECT_TRUE(Clear());
}

TEST_F(PLSReady, TheBusyDisplayTellsOfALongPollAndOfItsEnd) {
    AnswerBusy(10, 0.1);
    AnswerReady();
    EXPECT_TRUE(Clear());
    EXPECT_FALSE(busy.waits.empty());
    EXPECT_EQ(busy.ends, 1);
}

TEST_F(PLSReady, ALateAnswerIsAnAnswer) {
    port.Reply(0x55, 0.9);
    port.Reply(0x00, 0.9);
    port.Reply(0x55, 0.9);
    EXPECT_TRUE(Clear());
}

// What answers the attention is no answer to the poll, and the clock byte is none of the board's
// commands.
TEST_F(PLSReady, APollThatTimedOutIsSentAgain) {
    port.Silence();
    port.Reply(0x55); // the attention after the time-out
    AnswerReady();
    EXPECT_TRUE(Clear());
    EXPECT_EQ(sent, (Bytes{0x38, 0xFF, 0x38, 0x55, 0x55}));
}

TEST_F(PLSReady, AnAnswerThatTimedOutIsAskedForAgain) {
    port.Reply(0x55);
    port.Silence();
    port.Reply(0x00); // a zero that answers the attention tells nothing
    AnswerReady();
    EXPECT_TRUE(Clear());
    EXPECT_EQ(sent, (Bytes{0x38, 0x55, 0xFF, 0x38, 0x55, 0x55}));
}

// A board that answers one byte behind would seem busy for ever.
TEST_F(PLSReady, ALateAnswerToAPollThatTimedOutIsThrownAway) {
    port.Reply(0x55, 1.001); // the poll
    port.Reply(0x55, 0.002); // the attention after the time-out
    AnswerReady();
    EXPECT_TRUE(Clear());
    EXPECT_EQ(sent, (Bytes{0x38, 0xFF, 0x38, 0x55, 0x55}));
}

TEST_F(PLSReady, ADeadLineShowsOnlyTheAlertOfTheExchange) {
    ExpectAlert(NoReplyAlert(), Answer::cancel, [&] { EXPECT_NEAR(Elapsed(), 5.008, 1e-6); });
    EXPECT_FALSE(Clear());
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(sent, (Bytes{0x38, 0xFF, 0xFF}));
}

TEST_F(PLSReady, ALineThatDiesAfterTheReadyAnswerIsReadyWithCommError) {
    port.Replies({0x55, 0x00});
    ExpectAlert(NoReplyAlert(), Answer::cancel);
    EXPECT_TRUE(Clear());
    EXPECT_TRUE(link.CommError());
}

TEST_F(PLSReady, EveryCommandAfterItDoesItsOwnHandshake) {
    AnswerReady();
    Clear();
    TakeCommand(6);
    link.ClearPLSChan(0);
    EXPECT_EQ(port.Sent()[11], 0xFF);
    EXPECT_EQ(port.Sent()[12], 0x1B);
}
