#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;

class WriteBit : public testing::Test, protected LinkUnderTest {
protected:
    WriteBit() { GoOnline(); }
    void Write(const char* variable, const char* value) {
        link.RSWrite(QString::fromLatin1(variable), QString::fromLatin1(value));
    }
    void ExpectRefusal(const char* reason) {
        dialogs.ExpectBox(QStringLiteral("Error:\r") + QString::fromLatin1(reason), 16,
                          QStringLiteral("ENTRY ALERT"), 1);
    }
};
} // namespace

TEST_F(WriteBit, ReadsTheByteAndWritesItWithTheBitSet) {
    EnterReadMode();
    AnswerRead(0, 0xA0);
    AcceptHandshake();
    AnswerWrite(0, 100, 0xA8);
    Write("B100.3", "1");
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0xFF, 0x02, 0, 100, 0xA8}));
}

TEST_F(WriteBit, ReadsTheByteAndWritesItWithTheBitCleared) {
    EnterReadMode();
    AnswerRead(0, 0xFF);
    AcceptHandshake();
    AnswerWrite(0, 100, 0xF7);
    Write("B100.3", "0");
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0xFF, 0x02, 0, 100, 0xF7}));
}

TEST_F(WriteBit, AFlagIsWrittenInItsByte) {
    EnterReadMode();
    AnswerRead(0, 0x01);
    AcceptHandshake();
    AnswerWrite(0, 34, 0x03);
    Write("F17", "1");
    EXPECT_EQ(port.Sent(), (Bytes{0, 34, 0xFF, 0x02, 0, 34, 0x03}));
}

TEST_F(WriteBit, TakesOnly0And1) {
    for (const char* value : {"2", "0.5", "10", "255"}) {
        ExpectRefusal("Enter 0 or 1 Only.");
        Write("B100.3", value);
    }
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(WriteBit, ABitBeyondTheByteCannotBeSet) {
    EnterReadMode();
    AnswerRead(0, 0x10);
    ExpectRefusal("Entry out of Range (0-255).");
    Write("B100.8", "1");
    EXPECT_EQ(port.Sent(), (Bytes{0, 100}));
}

TEST_F(WriteBit, AfterAReadOfTheSameByteItsOtherBitsAreLost) {
    AcceptHandshake();
    AnswerRead(0, 0xA5);
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("165"));
    port.ForgetSent();
    AnswerRead(0, 0xA8); // bit 3 is set, so the read gives 1 and not the byte
    AcceptHandshake();
    AnswerWrite(0, 100, 0x09);
    Write("B100.3", "1");
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0xFF, 0x02, 0, 100, 0x09}));
}

TEST_F(WriteBit, AfterAReadOfTheSameByteWithTheBitClearOnlyTheMaskIsWritten) {
    AcceptHandshake();
    AnswerRead(0, 0xA5);
    link.RSRead(QStringLiteral("b100"));
    port.ForgetSent();
    AnswerRead(0, 0xA5);
    AcceptHandshake();
    AnswerWrite(0, 100, 0x08);
    Write("B100.3", "1");
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0xFF, 0x02, 0, 100, 0x08}));
}

TEST_F(WriteBit, WhenTheByteCannotBeReadNothingIsWrittenAndTheWholeIsRetriedOnce) {
    EnterReadMode();
    port.Reply(0x66); // wrong echo of the first read
    AcceptHandshake();
    port.Reply(0x66); // and of the second
    Write("B100.3", "1");
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0x01, 0}));
    EXPECT_FALSE(link.CommError());
}

TEST_F(WriteBit, ARetryAfterAFailedReadWritesTheByte) {
    EnterReadMode();
    port.Reply(0x66);
    AcceptHandshake();
    AnswerRead(0, 0x80);
    AcceptHandshake();
    AnswerWrite(0, 100, 0x88);
    Write("B100.3", "1");
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0x01, 0, 100, 0xFF, 0x02, 0, 100, 0x88}));
}

// The acknowledge of the attention after the time-out is 55H and no value of the byte.
TEST_F(WriteBit, ALostDataByteOfTheReadIsNoByteToWrite) {
    EnterReadMode();
    port.Reply(0);
    port.Silence();
    port.Reply(0x55);
    AcceptHandshake();
    AnswerRead(0, 0x22);
    AcceptHandshake();
    AnswerWrite(0, 100, 0x2A);
    Write("B100.3", "1");
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0xFF, 0xFF, 0x01, 0, 100, 0xFF, 0x02, 0, 100, 0x2A}));
}

TEST_F(WriteBit, TheRetryAfterALostEchoWritesTheByteOfTheFirstRead) {
    EnterReadMode();
    AnswerRead(0, 0x22);
    AcceptHandshake();
    port.Replies({0, 100});
    port.Silence();
    port.Reply(0x55);
    AcceptHandshake();
    AnswerWrite(0, 100, 0x2A);
    Write("B100.3", "1");
    EXPECT_EQ(port.Sent(),
              (Bytes{0, 100, 0xFF, 0x02, 0, 100, 0x2A, 0xFF, 0xFF, 0x02, 0, 100, 0x2A}));
}

TEST_F(WriteBit, ADeadLineEndsTheWriteWithoutARetry) {
    EnterReadMode();
    ExpectAlert(NoReplyAlert(), 2);
    Write("B100.3", "1");
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0xFF}));
    EXPECT_TRUE(link.CommError());
}
