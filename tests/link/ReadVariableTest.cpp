#include "base/RunTimeError.h"
#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;

class ReadVariable : public testing::Test, protected LinkUnderTest {
protected:
    ReadVariable() { GoOnline(); }
    QString Read(const char* variable) { return link.RSRead(QString::fromLatin1(variable)); }
};
} // namespace

TEST_F(ReadVariable, AByteAfterAnIdleLineTakesTheHandshakeAndTwoExchanges) {
    AcceptHandshake();
    AnswerRead(0x1F, 0x2A);
    EXPECT_EQ(Read("B8176"), QStringLiteral("42"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0x1F, 0xF0}));
}

TEST_F(ReadVariable, TheNextReadOfAnyAddressCarriesNoHandshake) {
    EnterReadMode();
    AnswerRead(0x1F, 7);
    EXPECT_EQ(Read("B8177"), QStringLiteral("7"));
    EXPECT_EQ(port.Sent(), (Bytes{0x1F, 0xF1}));
}

TEST_F(ReadVariable, TheSameVariableInAnyLetterCaseIsReadAgain) {
    EnterReadMode();
    AnswerRead(0, 9);
    EXPECT_EQ(Read("b40"), QStringLiteral("9"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 40}));
}

TEST_F(ReadVariable, W100SendsAddress100AndThen101) {
    EnterReadMode();
    AnswerRead(0, 0xE8);
    AnswerRead(0, 0x03);
    EXPECT_EQ(Read("W100"), QStringLiteral("1000"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0, 101}));
}

TEST_F(ReadVariable, W100TwiceInARowMakesFourExchangesAndNoHandshake) {
    AcceptHandshake();
    AnswerRead(0, 1);
    AnswerRead(0, 2);
    EXPECT_EQ(Read("W100"), QStringLiteral("513"));
    port.ForgetSent();
    AnswerRead(0, 3);
    AnswerRead(0, 4);
    EXPECT_EQ(Read("W100"), QStringLiteral("1027"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0, 101}));
}

TEST_F(ReadVariable, D100OfTheHighestBytesIs655359999) {
    EnterReadMode();
    for (const int data : {0x0F, 0x27, 0xFF, 0xFF})
        AnswerRead(0, data);
    EXPECT_EQ(Read("D100"), QStringLiteral("655359999"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0, 101, 0, 102, 0, 103}));
}

TEST_F(ReadVariable, AWordAcrossAPageSendsTheNextHighByte) {
    EnterReadMode();
    AnswerRead(0x00, 1);
    AnswerRead(0x01, 0);
    EXPECT_EQ(Read("W255"), QStringLiteral("1"));
    EXPECT_EQ(port.Sent(), (Bytes{0x00, 0xFF, 0x01, 0x00}));
}

TEST_F(ReadVariable, ABitIs1WhenItIsSetInTheByteAndElse0) {
    EnterReadMode();
    AnswerRead(0, 0x08);
    EXPECT_EQ(Read("B100.3"), QStringLiteral("1"));
    AnswerRead(0, 0xF7);
    EXPECT_EQ(Read("B100.3"), QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0, 100}));
}

TEST_F(ReadVariable, FlagF3IsABitOfByte32) {
    EnterReadMode();
    AnswerRead(0, 0x08);
    EXPECT_EQ(Read("F3"), QStringLiteral("1"));
    AnswerRead(0, 0xF7);
    EXPECT_EQ(Read("f3"), QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 32, 0, 32}));
}

TEST_F(ReadVariable, ABitBeyondTheByteReads0) {
    EnterReadMode();
    AnswerRead(0, 0xFF);
    EXPECT_EQ(Read("B100.9"), QStringLiteral("0"));
}

TEST_F(ReadVariable, AHexadecimalAddressIsAByte) {
    EnterReadMode();
    AnswerRead(0xF0, 200);
    EXPECT_EQ(Read("F000H"), QStringLiteral("200"));
    EXPECT_EQ(port.Sent(), (Bytes{0xF0, 0x00}));
}

TEST_F(ReadVariable, AnotherVariableIsParsedAnew) {
    EnterReadMode();
    AnswerRead(0, 0x08);
    EXPECT_EQ(Read("B100.3"), QStringLiteral("1"));
    AnswerRead(0, 0x08);
    EXPECT_EQ(Read("B100"), QStringLiteral("8"));
}

TEST_F(ReadVariable, AWrongEchoGives0AndTheNextReadGoesThroughTheHandshake) {
    EnterReadMode();
    port.Reply(0x33);
    EXPECT_EQ(Read("B100"), QStringLiteral("0"));
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(port.Sent(), (Bytes{0}));
    port.ForgetSent();
    AcceptHandshake();
    AnswerRead(0, 5);
    EXPECT_EQ(Read("B100"), QStringLiteral("5"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0, 100}));
}

TEST_F(ReadVariable, WithCommErrorItGives0AndSendsNothing) {
    link.SetCommError(true);
    for (const char* variable : {"B100", "W100", "B100.3", "B70000"})
        EXPECT_EQ(Read(variable), QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(ReadVariable, AnAddressBeyondTheWireIsAnOverflowBeforeAnyByte) {
    for (const char* variable : {"B65536", "W65535", "D65533", "B100000H", "B-1"}) {
        try {
            Read(variable);
            ADD_FAILURE() << variable;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), 6) << variable;
        }
        EXPECT_FALSE(link.OperationRuns());
    }
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_F(ReadVariable, TheLastAddressIsRead) {
    EnterReadMode();
    AnswerRead(0xFF, 1);
    AnswerRead(0xFF, 2);
    EXPECT_EQ(Read("W65534"), QStringLiteral("513"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFE, 0xFF, 0xFF}));
}

TEST_F(ReadVariable, ATextThatIsNoVariableReadsByte32) {
    EnterReadMode();
    AnswerRead(0, 3);
    EXPECT_EQ(Read("X30"), QStringLiteral("3"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 32}));
}
