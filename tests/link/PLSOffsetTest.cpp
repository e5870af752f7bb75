#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;

class PLSOffset : public testing::Test, protected LinkUnderTest {
protected:
    PLSOffset() { GoOnline(); }
};
} // namespace

TEST_F(PLSOffset, IsACommandWithTwoClockedBytesLowFirst) {
    AcceptHandshake();
    port.Replies({0x2C, 0x01});
    EXPECT_EQ(link.PLSOffset(), QStringLiteral("300"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x28, 0x55, 0x55}));
}

TEST_F(PLSOffset, EveryCallDoesItsOwnHandshake) {
    for (const int value : {0, 1}) {
        AcceptHandshake();
        port.Replies({value, 0});
        EXPECT_EQ(link.PLSOffset(), QString::number(value));
    }
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x28, 0x55, 0x55, 0xFF, 0x28, 0x55, 0x55}));
}

TEST_F(PLSOffset, TheHighestWordIs65535) {
    AcceptHandshake();
    port.Replies({0xFF, 0xFF});
    EXPECT_EQ(link.PLSOffset(), QStringLiteral("65535"));
}

TEST_F(PLSOffset, AReadAfterItGoesThroughTheHandshake) {
    EnterReadMode();
    AcceptHandshake();
    port.Replies({1, 0});
    link.PLSOffset();
    port.ForgetSent();
    AcceptHandshake();
    AnswerRead(0, 4);
    EXPECT_EQ(link.RSRead(QStringLiteral("B40")), QStringLiteral("4"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0, 40}));
}

TEST_F(PLSOffset, AFailedHandshakeGivesMinus9999) {
    ExpectAlert(NoReplyAlert(), 2);
    EXPECT_EQ(link.PLSOffset(), QStringLiteral("-9999"));
}

TEST_F(PLSOffset, NoLowByteGivesMinus9999) {
    AcceptHandshake();
    ExpectAlert(NoReplyAlert(), 2);
    EXPECT_EQ(link.PLSOffset(), QStringLiteral("-9999"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x28, 0x55, 0xFF, 0xFF}));
}

TEST_F(PLSOffset, NoHighByteGivesMinus9999) {
    AcceptHandshake();
    port.Reply(1);
    ExpectAlert(NoReplyAlert(), 2);
    EXPECT_EQ(link.PLSOffset(), QStringLiteral("-9999"));
}

TEST_F(PLSOffset, AnAttentionThatAnswersTheLowByteStartsTheReadOver) {
    AcceptHandshake();
    port.Silence();
    port.Reply(0x55); // the attention after the time-out
    AcceptHandshake();
    port.Replies({0x2C, 0x01});
    EXPECT_EQ(link.PLSOffset(), QStringLiteral("300"));
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x28, 0x55, 0xFF, 0xFF, 0x28, 0x55, 0x55}));
}

TEST_F(PLSOffset, AnAttentionThatAnswersTwiceGivesMinus9999) {
    for (int i = 0; i < 2; ++i) {
        AcceptHandshake();
        port.Reply(0x2C);
        port.Silence();
        port.Reply(0x55);
    }
    EXPECT_EQ(link.PLSOffset(), QStringLiteral("-9999"));
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x28, 0x55, 0x55, 0xFF, 0xFF, 0x28, 0x55, 0x55, 0xFF}));
}

TEST_F(PLSOffset, WithCommErrorItIsMinus9999AndNothingIsSent) {
    link.SetCommError(true);
    EXPECT_EQ(link.PLSOffset(), QStringLiteral("-9999"));
    EXPECT_EQ(port.Sent(), Bytes{});
}
