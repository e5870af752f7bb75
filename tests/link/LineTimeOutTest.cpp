#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

namespace {
using Bytes = std::vector<int>;
constexpr int retry = 4;
constexpr int cancel = 2;

// All tests start in read mode, so that the first byte of a read is an address byte.
class LineTimeOut : public testing::Test, protected LinkUnderTest {
protected:
    LineTimeOut() {
        GoOnline();
        EnterReadMode();
        start = clock.MonotonicSeconds();
    }
    QString ReadB100() { return link.RSRead(QStringLiteral("B100")); }
    double Elapsed() const { return clock.MonotonicSeconds() - start; }

    double start = 0.0;
};
} // namespace

TEST_F(LineTimeOut, ADeadLineCostsFiveSecondsAndTwoAttentionsBeforeTheAlert) {
    ExpectAlert(NoReplyAlert(), cancel, [&] {
        EXPECT_NEAR(Elapsed(), 5.0, 1e-6);
        EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0xFF}));
        EXPECT_TRUE(link.CommError());
        EXPECT_TRUE(link.CommErrorAlert());
        EXPECT_TRUE(link.OperationRuns());
    });
    EXPECT_EQ(ReadB100(), QStringLiteral("0"));
    EXPECT_NEAR(Elapsed(), 5.0, 1e-6);
    EXPECT_FALSE(link.OperationRuns());
}

TEST_F(LineTimeOut, CancelLeavesCommErrorThePortOpenAndNoFurtherBytes) {
    ExpectAlert(NoReplyAlert(), cancel);
    ReadB100();
    EXPECT_TRUE(link.CommError());
    EXPECT_TRUE(link.CommErrorAlert());
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_TRUE(port.PortOpen());
    port.ForgetSent();
    EXPECT_EQ(ReadB100(), QStringLiteral("0")); // no second alert: the dialogs expect none
    EXPECT_EQ(port.Sent(), Bytes{});
    EXPECT_NEAR(Elapsed(), 5.0, 1e-6);
}

TEST_F(LineTimeOut, TheFirstAttentionGoesOutAfterOneSecondTheSecondAfterThree) {
    port.Reply(0, 0.001); // high byte is echoed
    port.Silence();       // low byte is not answered
    port.Reply(0x2A, 1.999);
    EXPECT_EQ(ReadB100(), QStringLiteral("42"));
    EXPECT_NEAR(Elapsed(), 0.001 + 1.0 + 1.999, 1e-6);
    EXPECT_EQ(port.Sent(), (Bytes{0, 100, 0xFF}));
}

TEST_F(LineTimeOut, TheAnswerToAnAttentionIsReturnedAsTheReply) {
    port.Reply(0);
    port.Silence();
    port.Reply(0x55);
    EXPECT_EQ(ReadB100(), QStringLiteral("85"));
    EXPECT_FALSE(link.CommErrorAlert());
    EXPECT_FALSE(link.CommError());
    port.ForgetSent();
    AcceptHandshake(); // link mode is none
    AnswerRead(0, 3);
    EXPECT_EQ(ReadB100(), QStringLiteral("3"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0x01, 0, 100}));
}

TEST_F(LineTimeOut, AnAttentionThatAnswersAnAddressByteIsAWrongEcho) {
    port.Silence();
    port.Reply(0x55);
    EXPECT_EQ(ReadB100(), QStringLiteral("0"));
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF}));
}

TEST_F(LineTimeOut, AnAttentionThatAnswersAddressByte55IsNoEcho) {
    port.Silence();
    port.Reply(0x55);
    EXPECT_EQ(link.RSRead(QStringLiteral("B21760")), QStringLiteral("0")); // 0x5500
    EXPECT_EQ(port.Sent(), (Bytes{0x55, 0xFF})) << "no low byte to a board that awaits a command";
}

TEST_F(LineTimeOut, NoFurtherAddressGoesOutAfterATimeOutInsideAWord) {
    port.Reply(3);
    port.Silence();
    port.Reply(0x55);
    EXPECT_EQ(link.RSRead(QStringLiteral("W800")), QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), (Bytes{3, 0x20, 0xFF})) << "3 as a command would stop the machine";
}

TEST_F(LineTimeOut, RetryWaitsOnAgainstTheOldDeadlineWithCommErrorStanding) {
    port.Silence();
    port.Silence();
    port.Reply(0, 3.0); // of the second attention: one second after the alert
    ExpectAlert(NoReplyAlert(), retry);
    EXPECT_EQ(ReadB100(), QStringLiteral("0"));
    EXPECT_NEAR(Elapsed(), 6.0, 1e-6);
    EXPECT_TRUE(link.CommError()) << "only the next time-out would have cleared it";
    EXPECT_FALSE(link.CommErrorAlert());
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0xFF}));
}

TEST_F(LineTimeOut, RetryOnADeadLineTakesTwoTwoAndTwoSecondsMore) {
    ExpectAlert(NoReplyAlert(), retry, [&] { EXPECT_NEAR(Elapsed(), 5.0, 1e-6); });
    ExpectAlert(NoReplyAlert(), cancel, [&] { EXPECT_NEAR(Elapsed(), 11.0, 1e-6); });
    EXPECT_EQ(ReadB100(), QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0xFF, 0xFF, 0xFF}));
}

TEST_F(LineTimeOut, ABoxThatOutlivesTheOldDeadlineTimesOutAtOnce) {
    for (int i = 0; i < 3; ++i)
        port.Silence();
    port.Reply(0x55);
    ExpectAlert(NoReplyAlert(), retry, [&] { clock.Wait(60.0); });
    ReadB100();
    EXPECT_NEAR(Elapsed(), 65.001, 1e-6);
    EXPECT_FALSE(link.CommError()) << "cleared by the time-out after the box";
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0xFF, 0xFF}));
}

TEST_F(LineTimeOut, AReplyThatCameBehindTheBoxIsTaken) {
    port.Silence();
    port.Silence();
    port.Reply(0, 2.5);
    ExpectAlert(NoReplyAlert(), retry, [&] { clock.Wait(60.0); });
    ReadB100();
    EXPECT_NEAR(Elapsed(), 65.0, 1e-6);
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0xFF}));
}

TEST_F(LineTimeOut, AReplyJustBeforeTheFirstSecondIsInTime) {
    port.Reply(0, 0.999);
    port.Reply(9, 0.999);
    EXPECT_EQ(ReadB100(), QStringLiteral("9"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 100}));
}

TEST_F(LineTimeOut, MidnightDoesNotMatter) {
    clock.SetWallClock(QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59, 500)));
    ExpectAlert(NoReplyAlert(), cancel, [&] { EXPECT_NEAR(Elapsed(), 5.0, 1e-6); });
    ReadB100();
    EXPECT_EQ(clock.WallClock().date(), QDate(2027, 1, 1));
}

TEST_F(LineTimeOut, AClockThatIsSetDoesNotMatter) {
    ExpectAlert(NoReplyAlert(), retry,
                [&] { clock.SetWallClock(QDateTime(QDate(1999, 1, 1), QTime(0, 0))); });
    ExpectAlert(NoReplyAlert(), cancel, [&] { EXPECT_NEAR(Elapsed(), 11.0, 1e-6); });
    ReadB100();
}
