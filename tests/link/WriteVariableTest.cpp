#include "base/RunTimeError.h"
#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;

class WriteVariable : public testing::Test, protected LinkUnderTest {
protected:
    WriteVariable() { GoOnline(); }
    void Write(const char* variable, const QString& value) {
        link.RSWrite(QString::fromLatin1(variable), value);
    }
    void ExpectRefusal(const char* reason) {
        dialogs.ExpectBox(QStringLiteral("Error:\r") + QString::fromLatin1(reason), 16,
                          QStringLiteral("ENTRY ALERT"), 1);
    }
    // A first write, so that the next one carries no handshake.
    void EnterWriteMode() {
        AcceptHandshake();
        AnswerWrite(0, 40, 1);
        Write("B40", QStringLiteral("1"));
        port.ForgetSent();
    }
};
} // namespace

TEST_F(WriteVariable, AByteAfterAReadTakesTheHandshakeAndThreeEchoes) {
    EnterReadMode();
    AcceptHandshake();
    AnswerWrite(0x1F, 0xF0, 5);
    Write("B8176", QStringLiteral("5"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x02, 0x1F, 0xF0, 0x05}));
}

TEST_F(WriteVariable, TheNextWriteCarriesNoHandshake) {
    EnterWriteMode();
    AnswerWrite(0x1F, 0xF1, 0);
    Write("B8177", QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), (Bytes{0x1F, 0xF1, 0}));
}

TEST_F(WriteVariable, AWordGoesOutLowByteFirst) {
    EnterWriteMode();
    AnswerWrite(0, 100, 0xE8);
    AnswerWrite(0, 101, 0x03);
    Write("W100", QStringLiteral("1000"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0xE8, 0, 101, 0x03}));
}

TEST_F(WriteVariable, ADoubleWordGoesOutAsLowAndHighWordOfDecimalRadix) {
    EnterWriteMode();
    port.AnswerLikeBoard(true);
    Write("D100", QStringLiteral("655359999"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0x0F, 0, 101, 0x27, 0, 102, 0xFF, 0, 103, 0xFF}));
}

TEST_F(WriteVariable, MarksAroundTheDigitsAreDropped) {
    port.AnswerLikeBoard(true);
    Write("W100", QStringLiteral("1,000"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 2, 0, 100, 0xE8, 0, 101, 0x03}));
    port.ForgetSent();
    Write("B100", QStringLiteral("25%"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 25}));
    port.ForgetSent();
    Write("B100", QStringLiteral(" 9 ") + QChar(176));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 9}));
}

TEST_F(WriteVariable, ThereAreNoFractions) {
    port.AnswerLikeBoard(true);
    Write("B100", QStringLiteral("12.5"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 2, 0, 100, 125}));
}

TEST_F(WriteVariable, AnythingButDigitsAndMarksIsRefused) {
    for (const char* value : {"-1", "+1", "abc", "1a", "&H10", "1\t", "1\r\n"}) {
        ExpectRefusal("Only Numerical Data Allowed.");
        Write("W100", QString::fromLatin1(value));
    }
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(WriteVariable, DigitsOfOtherScriptsAreRefused) {
    ExpectRefusal("Only Numerical Data Allowed.");
    Write("B100", QString(QChar(0x0665))); // arabic-indic five
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(WriteVariable, AByteTakes255AndRefuses256) {
    EnterWriteMode();
    AnswerWrite(0, 100, 255);
    Write("B100", QStringLiteral("255"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 255}));
    ExpectRefusal("Entry out of Range (0-255).");
    Write("B100", QStringLiteral("256"));
    EXPECT_EQ(port.Sent().size(), 3u);
}

TEST_F(WriteVariable, AWordTakes65535AndRefuses65536) {
    EnterWriteMode();
    port.AnswerLikeBoard(true);
    Write("W100", QStringLiteral("65535"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 255, 0, 101, 255}));
    ExpectRefusal("Entry out of Range (0-65,535).");
    Write("W100", QStringLiteral("65536"));
    EXPECT_EQ(port.Sent().size(), 6u);
}

TEST_F(WriteVariable, ADoubleWordRefusesWhatItsWordsCannotHold) {
    ExpectRefusal("Entry out of Range (0-655,359,999).");
    Write("D100", QStringLiteral("655,360,000"));
    ExpectRefusal("Entry out of Range (0-655,359,999).");
    Write("D100", QString(400, u'9'));
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(WriteVariable, ARefusedValueLeavesTheLinkModeUnchanged) {
    EnterReadMode();
    ExpectRefusal("Entry out of Range (0-255).");
    Write("B100", QStringLiteral("300"));
    ExpectRefusal("Only Numerical Data Allowed.");
    Write("B100", QStringLiteral("-1"));
    AnswerRead(0, 6);
    EXPECT_EQ(link.RSRead(QStringLiteral("B41")), QStringLiteral("6"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 41})) << "no handshake";
}

TEST_F(WriteVariable, AfterARefusedWriteTheNextReadParsesItsOwnVariable) {
    EnterReadMode();
    ExpectRefusal("Entry out of Range (0-65,535).");
    Write("W200", QStringLiteral("70000"));
    AnswerRead(0, 6);
    EXPECT_EQ(link.RSRead(QStringLiteral("B40")), QStringLiteral("6"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 40}));
}

TEST_F(WriteVariable, AWrongEchoIsRetriedOnceThroughTheHandshake) {
    EnterWriteMode();
    port.Replies({0, 0x77});
    AcceptHandshake();
    AnswerWrite(0, 100, 5);
    Write("B100", QStringLiteral("5"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0xFF, 0x02, 0, 100, 5}));
}

TEST_F(WriteVariable, AWrongEchoOfTheDataIsRetriedToo) {
    EnterWriteMode();
    port.Replies({0, 100, 4});
    AcceptHandshake();
    AnswerWrite(0, 100, 5);
    Write("B100", QStringLiteral("5"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 5, 0xFF, 0x02, 0, 100, 5}));
}

TEST_F(WriteVariable, ASecondWrongEchoIsSilent) {
    EnterWriteMode();
    port.Reply(0x77);
    AcceptHandshake();
    port.Reply(0x77);
    Write("B100", QStringLiteral("5"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0x02, 0}));
    EXPECT_FALSE(link.CommError());
    EXPECT_TRUE(link.OnlineMode());
}

TEST_F(WriteVariable, WithCommErrorNothingIsSent) {
    link.SetCommError(true);
    Write("B100", QStringLiteral("5"));
    Write("B100.3", QStringLiteral("1"));
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(WriteVariable, AnAddressBeyondTheWireIsAnOverflowBeforeAnyByte) {
    EnterReadMode();
    for (const char* variable : {"B65536", "W65535", "D65533", "B65536.1"}) {
        try {
            Write(variable, QStringLiteral("1"));
            ADD_FAILURE() << variable;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), 6) << variable;
        }
    }
    EXPECT_EQ(port.Sent(), Bytes{});
    AnswerRead(0, 8);
    EXPECT_EQ(link.RSRead(QStringLiteral("B40")), QStringLiteral("8")) << "its own variable still";
    EXPECT_EQ(port.Sent(), (Bytes{0, 40}));
}

TEST_F(WriteVariable, AnAttentionThatAnswersIsNoEcho) {
    EnterWriteMode();
    port.Replies({0, 100});
    port.Silence();
    port.Reply(0x55); // answers the resynchronising attention; the data byte is 0x55 too
    AcceptHandshake();
    AnswerWrite(0, 100, 0x55);
    Write("B100", QStringLiteral("85"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0x55, 0xFF, 0xFF, 0x02, 0, 100, 0x55}));
}
