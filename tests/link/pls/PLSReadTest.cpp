#include "PLSLinkTest.h"

namespace {
using PLSRead = PLSLinkTest;

struct WordRead {
    QString (RSComm::*read)();
    int command;
};
class EachPLSWord : public PLSLinkTest, public testing::WithParamInterface<WordRead> {
protected:
    QString Read() { return (link.*GetParam().read)(); }
    int Command() const { return GetParam().command; }
};
INSTANTIATE_TEST_SUITE_P(Words, EachPLSWord,
                         testing::Values(WordRead{&RSComm::PLSScaleFactor, 0x18},
                                         WordRead{&RSComm::PLSOffset, 0x28},
                                         WordRead{&RSComm::PLSPos, 0x48},
                                         WordRead{&RSComm::PLSRpm, 0x58}));
} // namespace

TEST_P(EachPLSWord, IsACommandWithTwoClockedBytesLowFirst) {
    AnswerWord(360);
    EXPECT_EQ(Read(), QStringLiteral("360"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, Command(), 0x55, 0x55}));
}

TEST_P(EachPLSWord, AReadOfAVariableAfterItGoesThroughTheHandshake) {
    EnterReadMode();
    AnswerWord(1);
    Read();
    port.ForgetSent();
    AcceptHandshake();
    AnswerRead(0, 4);
    EXPECT_EQ(link.RSRead(QStringLiteral("B40")), QStringLiteral("4"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0, 40}));
}

TEST_P(EachPLSWord, IsMinus9999OnADeadLineWithCommError) {
    for (const int answered : {0, 1, 2, 3}) {
        link.SetCommError(false);
        Acknowledge(answered);
        ExpectAlert(NoReplyAlert(), Answer::cancel);
        EXPECT_EQ(Read(), QStringLiteral("-9999"));
        EXPECT_TRUE(link.CommError());
        EXPECT_EQ(TakeSent().size(), static_cast<std::size_t>(answered + 1 + 2));
    }
}

TEST_P(EachPLSWord, WithCommErrorIsMinus9999AndNothingIsSent) {
    link.SetCommError(true);
    EXPECT_EQ(Read(), QStringLiteral("-9999"));
    EXPECT_EQ(port.Sent(), Bytes{});
}

TEST_P(EachPLSWord, StartsOverAfterATimeOut) {
    AcceptHandshake();
    port.Reply(0x68);
    port.Silence();
    port.Reply(0x55); // the attention after the time-out
    AnswerWord(512);
    EXPECT_EQ(Read(), QStringLiteral("512"));
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, Command(), 0x55, 0x55, 0xFF, 0xFF, Command(), 0x55, 0x55}));
}

TEST_P(EachPLSWord, StartsOverOnlyOnce) {
    for (int i = 0; i < 2; ++i) {
        AcceptHandshake();
        port.Silence();
        port.Reply(0x55);
    }
    EXPECT_EQ(Read(), QStringLiteral("-9999"));
    EXPECT_FALSE(link.CommError());
}

// A late acknowledge would be taken for the low byte.
TEST_P(EachPLSWord, AnAcknowledgeThatComesLateIsNoDataByte) {
    port.Reply(0x55, 1.001); // the attention
    port.Reply(0x55, 0.010); // the attention after the time-out: which of the two is in doubt
    port.Reply(0x55);        // so that another one goes out
    port.Replies({0x55, 0x68, 0x01});
    EXPECT_EQ(Read(), QStringLiteral("360"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF, Command(), 0x55, 0x55}));
}

TEST_F(PLSRead, CancelOfTheHandshakeGivesMinus9999AndGoesOffline) {
    for (int i = 0; i < 4; ++i)
        port.Reply(0x00, 0.5);
    ExpectAlert(NoModeAlert(), Answer::cancel, [&] { EXPECT_NEAR(Elapsed(), 2.1, 0.1); });
    EXPECT_EQ(link.PLSPos(), QStringLiteral("-9999"));
    EXPECT_TRUE(link.CommError());
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(PLSRead, RetryOfTheHandshakeGoesOn) {
    for (int i = 0; i < 4; ++i)
        port.Reply(0x00, 0.5);
    ExpectAlert(NoModeAlert(), Answer::retry);
    AnswerWord(7);
    EXPECT_EQ(link.PLSPos(), QStringLiteral("7"));
}

TEST_F(PLSRead, TheTableIsNineteenClockedBytes) {
    AcceptHandshake();
    Bytes sent{0xFF, 0x0C};
    for (int place = 0; place < 19; ++place) {
        port.Reply(255 - place);
        sent.push_back(0x55);
    }
    const PLSConfigTable table = link.PLSConfigUpload();
    for (std::size_t place = 0; place < table.size(); ++place)
        EXPECT_EQ(table[place], 255 - static_cast<int>(place));
    EXPECT_EQ(port.Sent(), sent);
}

TEST_F(PLSRead, AFailedTableIsReportedAndTheOldOneComes) {
    AcceptHandshake();
    port.Replies(Bytes(19, 7));
    link.PLSConfigUpload();
    for (int cut = 0; cut < 21; ++cut) {
        link.SetCommError(false);
        port.Replies(Bytes(static_cast<std::size_t>(cut), 0x55));
        ExpectAlert(NoReplyAlert(), Answer::cancel);
        ExpectRefusal(QStringLiteral("Not able to Upload Configuration from PLS."),
                      QStringLiteral("PLS Upload"));
        const PLSConfigTable table = link.PLSConfigUpload();
        EXPECT_EQ(table, PLSConfigTable({7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7}));
        EXPECT_TRUE(link.CommError());
    }
}

TEST_F(PLSRead, ATableStruckByATimeOutStartsOver) {
    AcceptHandshake();
    port.Replies(Bytes(18, 7));
    port.Silence();
    port.Reply(0x55);
    AcceptHandshake();
    port.Replies(Bytes(19, 9));
    EXPECT_EQ(link.PLSConfigUpload()[0], 9);
    EXPECT_FALSE(link.CommError());
}

// Nobody must take the table of another board for that of this one.
TEST_F(PLSRead, ATableThatFailsTwiceLeavesCommErrorSet) {
    for (int i = 0; i < 2; ++i) {
        AcceptHandshake();
        port.Silence();
        port.Reply(0x55);
    }
    ExpectRefusal(QStringLiteral("Not able to Upload Configuration from PLS."),
                  QStringLiteral("PLS Upload"));
    EXPECT_EQ(link.PLSConfigUpload(), PLSConfigTable{});
    EXPECT_TRUE(link.CommError());
}
