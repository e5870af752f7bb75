#include "PLSLinkTest.h"

// A command whose bytes are cut short by the line, and what reaches the board after it.

namespace {
class PLSCut : public PLSLinkTest {
protected:
    // The record of one setpoint after its scale factor, answered up to so many data bytes.
    void SendRecord(int answered) {
        AnswerWord(360);
        AcceptHandshake();
        Acknowledge(answered);
    }
    bool Program() { return link.SingleSetpoint(3, 3, 3, false); }
};
const Bytes record{0xFF, 0x18, 0x55, 0x55, 0xFF, 0x1B, 3, 3, 0, 3, 0, 1};
} // namespace

TEST_F(PLSCut, ADeadLineAtEachByteIsACommError) {
    for (int answered = 0; answered < 6; ++answered) {
        link.SetCommError(false);
        // What the last round owed to the board goes out with the first handshake.
        if (answered > 0)
            Acknowledge(6);
        SendRecord(answered);
        ExpectAlert(NoReplyAlert(), Answer::cancel);
        EXPECT_FALSE(Program());
        EXPECT_TRUE(link.CommError());
        const Bytes sent = TakeSent();
        const std::size_t before = answered > 0 ? 6 : 0;
        const auto begin = sent.begin() + static_cast<int>(before);
        EXPECT_EQ(Bytes(begin, begin + 7 + answered),
                  Bytes(record.begin(), record.begin() + 7 + answered));
        EXPECT_EQ(Bytes(begin + 7 + answered, sent.end()), (Bytes{0xFF, 0xFF}));
    }
}

TEST_F(PLSCut, ATimeOutInTheDataSendsNoFurtherByteOfIt) {
    for (int answered = 0; answered < 6; ++answered) {
        if (answered > 0)
            Acknowledge(6);
        SendRecord(answered);
        port.Silence();
        port.Reply(0x55); // the attention after the time-out, taken for data
        EXPECT_FALSE(Program());
        EXPECT_FALSE(link.CommError());
        EXPECT_EQ(TakeSent().size(), (answered > 0 ? 6u : 0u) + 7u + answered + 1u);
    }
}

TEST_F(PLSCut, RetryAfterADeadLineSendsNoFurtherByteOfIt) {
    SendRecord(2);
    for (int i = 0; i < 3; ++i)
        port.Silence();
    ExpectAlert(NoReplyAlert(), Answer::retry);
    port.Reply(0x55); // the attention after Retry
    EXPECT_FALSE(Program());
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(Bytes(port.Sent().begin() + 9, port.Sent().end()), (Bytes{0xFF, 0xFF, 0xFF}));
}

TEST_F(PLSCut, AnotherAnswerThanTheAcknowledgeSendsNoFurtherByte) {
    SendRecord(1);
    port.Reply(0x57);
    EXPECT_FALSE(Program());
    EXPECT_EQ(port.Sent().size(), 8u);
}

// The board may wait for six bytes more and takes the first attentions for them.
TEST_F(PLSCut, TheNextHandshakeOfAnyKindFillsTheRecordUpFirst) {
    SendRecord(1);
    port.Reply(0x57);
    Program();
    port.ForgetSent();
    Acknowledge(6);
    AcceptHandshake();
    AnswerRead(0, 4);
    EXPECT_EQ(link.RSRead(QStringLiteral("B40")), QStringLiteral("4"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01, 0, 40}));
}

TEST_F(PLSCut, AfterThatTheHandshakeIsShortAgain) {
    SendRecord(1);
    port.Reply(0x57);
    Program();
    Acknowledge(6);
    AnswerWord(1);
    link.PLSPos();
    port.ForgetSent();
    AnswerWord(2);
    EXPECT_EQ(link.PLSPos(), QStringLiteral("2"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x48, 0x55, 0x55}));
}

TEST_F(PLSCut, AFillingByteThatTimedOutDoesNotCount) {
    SendRecord(1);
    port.Reply(0x57);
    Program();
    port.ForgetSent();
    Acknowledge(3);
    port.Silence();
    port.Reply(0x55);
    Acknowledge(3);
    AnswerWord(2);
    EXPECT_EQ(link.PLSPos(), QStringLiteral("2"));
    EXPECT_EQ(port.Sent(),
              (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x48, 0x55, 0x55}));
}

TEST_F(PLSCut, CloseLeavesNoRecordOpen) {
    SendRecord(1);
    port.Reply(0x57);
    Program();
    port.ForgetSent();
    Acknowledge(7);
    link.CloseRSComm();
    EXPECT_EQ(port.Sent(), Bytes(7, 0xFF));
}

// The command byte reached the board and its acknowledge did not come: the attention is data.
TEST_F(PLSCut, ACommandByteThatTimedOutIsFilledUpBeforeItIsSentAgain) {
    AnswerWord(360);
    port.Reply(0x55);
    port.Silence();
    port.Reply(0x55);
    Acknowledge(6);
    TakeCommand(6);
    EXPECT_TRUE(Program());
    EXPECT_EQ(Bytes(port.Sent().begin() + 4, port.Sent().end()),
              (Bytes{0xFF, 0x1B, 0xFF,                   //
                     0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, //
                     0xFF, 0x1B, 3,    3,    0,    3,    0, 1, 0x38, 0x55, 0x55}));
}

TEST_F(PLSCut, AWordOwesTwoBytes) {
    for (const int word : {10, 100, 360})
        AnswerWord(word);
    AcceptHandshake();
    port.Replies({0x55, 0x54});
    EXPECT_FALSE(link.SetPLSOffset(0));
    port.ForgetSent();
    Acknowledge(2);
    AnswerWord(5);
    link.PLSPos();
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF, 0x48, 0x55, 0x55}));
}
