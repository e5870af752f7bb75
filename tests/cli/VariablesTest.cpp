#include "cli/CommandLineTest.h"

#include <QJsonArray>

namespace {
class VariablesTest : public CommandLineTest {
protected:
    // Replies: attention at the opening, two of the handshake, then two a byte read.
    static constexpr int firstReadEcho = 4;
    static constexpr int firstReadData = 5;
};
} // namespace

TEST_F(VariablesTest, EachKindOfVariableIsRead) {
    Poke(100, QByteArray::fromHex("0C2710270100"));
    Poke(0xF00A, QByteArray(1, 7));
    ASSERT_EQ(Run(QStringLiteral("read --model K2012 B100 W100 D102 B100.2 F545 X30 F00AH")),
              ExitCode::Done);
    EXPECT_EQ(console.out.last(), QStringLiteral("B100 = 12\nW100 = 9996\nD102 = 20000\n"
                                                 "B100.2 = 1\nF545 = 0\nX30 = 0\nF00AH = 7"));
    EXPECT_TRUE(console.err.isEmpty());
}

TEST_F(VariablesTest, TheObjectOfAReadHasItsShape) {
    Poke(100, QByteArray(1, 12));
    EXPECT_EQ(Run(QStringLiteral("read --json --model 50 B100")), ExitCode::Done);
    const QJsonObject value{{QStringLiteral("variable"), QStringLiteral("B100")},
                            {QStringLiteral("value"), 12}};
    const QJsonObject whole{
        {QStringLiteral("command"), QStringLiteral("read")},
        {QStringLiteral("outcome"), QStringLiteral("done")},
        {QStringLiteral("exitCode"), 0},
        {QStringLiteral("reason"), QString()},
        {QStringLiteral("result"), QJsonObject{{QStringLiteral("values"), QJsonArray{value}}}}};
    EXPECT_EQ(Json(), whole);
}

TEST_F(VariablesTest, TheSetTellsTheModel) {
    folder.Write(QStringLiteral("A.hdn"), "2\r\n");
    EXPECT_EQ(Run(QStringLiteral("read --set @A.hdn B8000")), ExitCode::Done);
    EXPECT_EQ(Run(QStringLiteral("read --set @none.hdn B8000")), ExitCode::Files);
}

TEST_F(VariablesTest, ValuesAreWrittenWithoutAQuestion) {
    ASSERT_EQ(Run(QStringLiteral("write --model K2012 B100=12 W102=513 B105.7=1")), ExitCode::Done);
    EXPECT_EQ(Memory(100, 6).toHex(), QByteArray("0c0001020080"));
    EXPECT_EQ(console.out.last(), QStringLiteral("B100 = 12\nW102 = 513\nB105.7 = 1"));
}

TEST_F(VariablesTest, ADeadLineIsNoCommunicationAndNobodyIsAskedToRetry) {
    CutLineAtReply(1);
    EXPECT_EQ(Run(QStringLiteral("read --json --model K2012 B100")), ExitCode::NoCommunication);
    EXPECT_TRUE(Json()[QStringLiteral("reason")].toString().startsWith(
        QStringLiteral("Cannot Communicate with Target Board. Verify")));
    EXPECT_TRUE(console.prompts.isEmpty());
}

TEST_F(VariablesTest, AtATerminalTheUserMayRetry) {
    console.mayAsk = true;
    console.answers = {QStringLiteral("r")};
    for (int reply = 1; reply <= 3; ++reply)
        LoseReply(reply);
    EXPECT_EQ(Run(QStringLiteral("read --model K2012 B100")), ExitCode::Done);
    EXPECT_EQ(console.prompts, QStringList{QStringLiteral("[retry/Cancel]")});
}

// The link gives "0" then, and no error.
TEST_F(VariablesTest, AnEchoThatIsLostIsNoValue) {
    Poke(100, QByteArray(1, 12));
    LoseReply(firstReadEcho);
    EXPECT_EQ(Run(QStringLiteral("read --model K2012 B100")), ExitCode::Failed);
    EXPECT_TRUE(console.out.isEmpty());
}

// The link gives the acknowledge of its attention then, 85, and no error.
TEST_F(VariablesTest, ADataByteThatIsLostIsNoValue) {
    Poke(100, QByteArray(1, 12));
    LoseReply(firstReadData);
    EXPECT_EQ(Run(QStringLiteral("read --model K2012 B100")), ExitCode::Failed);
    EXPECT_TRUE(console.out.isEmpty());
}

TEST_F(VariablesTest, AReplyThatIsLostWhileABitIsWrittenHarmsNoOtherBit) {
    for (int reply = 2; reply <= 10; ++reply) {
        SCOPED_TRACE(reply);
        ConnectBoard(k2012);
        Poke(100, QByteArray(1, 0x22));
        LoseReply(reply);
        const ExitCode code = Run(QStringLiteral("write --model K2012 B100.0=1"));
        if (code == ExitCode::Done) {
            EXPECT_EQ(Memory(100, 1).toHex(), QByteArray("23"));
        }
        EXPECT_EQ(Memory(100, 1)[0] & ~1, 0x22);
    }
}

TEST_F(VariablesTest, ALineCutInTheMiddleKeepsWhatWasRead) {
    Poke(100, QByteArray::fromHex("0102"));
    CutLineAtReply(firstReadData + 1);
    EXPECT_EQ(Run(QStringLiteral("read --json --model K2012 B100 B101")),
              ExitCode::NoCommunication);
    EXPECT_EQ(Result()[QStringLiteral("values")].toArray().size(), 1);
}

TEST_F(VariablesTest, AWriteThatIsNeverEchoedIsNotDone) {
    for (int reply = 4; reply <= 60; ++reply)
        line->Faults().Order({.kind = haldenboard::FaultKind::Wrong, .nth = reply, .bytes = {}});
    EXPECT_NE(Run(QStringLiteral("write --model K2012 B100=12")), ExitCode::Done);
    EXPECT_TRUE(console.out.isEmpty());
}

TEST_F(VariablesTest, AnInterruptionEndsBetweenVariables) {
    interrupted = true;
    EXPECT_EQ(Run(QStringLiteral("write --model K2012 B100=12 B101=13")), ExitCode::Cancelled);
    EXPECT_EQ(Memory(101, 1).toHex(), QByteArray("00"));
}

// The link tries a write twice and then says nothing.
TEST_F(VariablesTest, AByteThatIsTwiceEchoedWronglyIsNotDone) {
    int failed = 0;
    for (int second = firstReadEcho + 1; second <= firstReadEcho + 12; ++second) {
        SCOPED_TRACE(second);
        ConnectBoard(k2012);
        for (const int reply : {firstReadEcho, second})
            line->Faults().Order(
                {.kind = haldenboard::FaultKind::Wrong, .nth = reply, .bytes = {}});
        const ExitCode code = Run(QStringLiteral("write --model K2012 B100=12"));
        EXPECT_TRUE(code == ExitCode::Failed || Memory(100, 1) == QByteArray(1, 12));
        failed += code == ExitCode::Failed;
        EXPECT_EQ(Messages().contains(QStringLiteral("did not acknowledge every byte")),
                  failed > 0);
    }
    EXPECT_GT(failed, 0);
}
