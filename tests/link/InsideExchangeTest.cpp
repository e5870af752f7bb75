#include "support/LinkUnderTest.h"
#include <functional>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QTimer>

// Between the bytes of an exchange nothing else runs; behind the boxes that the link shows in the
// midst of one, nothing else comes to the line.

namespace {
using Bytes = std::vector<int>;
constexpr int retry = 4;
constexpr int cancel = 2;
constexpr double late = 0.9; // seconds: just in time, and long enough for a busy display

class InsideExchange : public testing::Test, protected LinkUnderTest {
protected:
    InsideExchange() {
        GoOnline();
        QObject::connect(&timer, &QTimer::timeout, [this] { ++handled; });
        timer.start(0);
        QMetaObject::invokeMethod(
            &timer, [this] { ++handled; }, Qt::QueuedConnection);
    }
    // So many acknowledges, each of which comes late.
    void AcknowledgeLate(int count) {
        for (int i = 0; i < count; ++i)
            port.Reply(0x55, late);
    }
    void ExpectNothingRan() {
        EXPECT_EQ(handled, 0);
        QCoreApplication::processEvents();
        EXPECT_EQ(handled, 2) << "what was pending runs as soon as it may";
    }

    // What a careless handler behind a box might do.
    void Disturb() {
        const Bytes sent = port.Sent();
        EXPECT_TRUE(link.CommError()) << "tells the handler to leave the line alone";
        link.SetCommError(false);
        EXPECT_EQ(link.RSRead(QStringLiteral("W200")), QStringLiteral("0"));
        link.RSWrite(QStringLiteral("B300"), QStringLiteral("7"));
        link.RSWrite(QStringLiteral("F9"), QStringLiteral("1"));
        EXPECT_EQ(link.FaultCode(), 0);
        EXPECT_EQ(link.PLSPos(), QStringLiteral("-9999"));
        EXPECT_FALSE(link.ClearPLSChan(0));
        EXPECT_FALSE(link.RecallChannel(0));
        link.OpenRSComm(port);
        link.CloseRSComm();
        EXPECT_TRUE(port.PortOpen());
        EXPECT_EQ(port.Sent(), sent);
    }

    QTimer timer;
    int handled = 0;
};
} // namespace

TEST_F(InsideExchange, AReadWithLateRepliesRunsNoHandlerAndNoTimer) {
    AcknowledgeLate(2);
    for (const int byte : {0, 1, 0, 2}) // echo and data, twice
        port.Reply(byte, late);
    EXPECT_EQ(link.RSRead(QStringLiteral("W100")), QStringLiteral("513"));
    EXPECT_FALSE(busy.waits.empty()) << "the waits were long ones";
    ExpectNothingRan();
}

TEST_F(InsideExchange, AWriteOfABitWithLateRepliesRunsNoHandlerAndNoTimer) {
    AcknowledgeLate(2);
    port.Reply(0, late);
    port.Reply(0x80, late);
    AcknowledgeLate(2);
    for (const int byte : {0, 100, 0x88})
        port.Reply(byte, late);
    link.RSWrite(QStringLiteral("B100.3"), QStringLiteral("1"));
    EXPECT_EQ(link.FailedOperations(), 0u);
    ExpectNothingRan();
}

TEST_F(InsideExchange, ATimeOutAndTheHandshakeAfterItRunNoHandlerAndNoTimer) {
    AcceptHandshake();
    port.Silence();
    port.Reply(0x55, late);
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("0"));
    AcceptHandshake();
    AnswerRead(0, 9);
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("9"));
    ExpectNothingRan();
}

TEST_F(InsideExchange, ALimitSwitchCommandAndItsReadyPollRunNoHandlerAndNoTimer) {
    AcknowledgeLate(8);
    AcknowledgeLate(2); // busy
    port.Replies({0x55, 0x00, 0x55});
    EXPECT_TRUE(link.ClearPLSChan(5));
    ExpectNothingRan();
}

TEST_F(InsideExchange, OpeningAndClosingRunNoHandlerAndNoTimer) {
    AcknowledgeLate(2);
    link.OpenRSComm(port);
    link.CloseRSComm();
    EXPECT_FALSE(link.CommError());
    ExpectNothingRan();
}

TEST_F(InsideExchange, NothingComesToTheLineBehindTheBoxOfADeadLine) {
    EnterReadMode();
    for (int i = 0; i < 3; ++i)
        port.Silence();
    ExpectAlert(NoReplyAlert(), retry, [this] {
        Disturb();
        port.Reply(0x55);
    });
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("0"));
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0xFF, 0xFF}));
    EXPECT_FALSE(link.CommError());
    AcceptHandshake();
    AnswerRead(0, 9);
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("9"));
}

TEST_F(InsideExchange, WhatClearsCommErrorBehindABoxThatIsCancelledDoesNotCount) {
    EnterReadMode();
    ExpectAlert(NoReplyAlert(), cancel, [this] { Disturb(); });
    link.RSRead(QStringLiteral("B100"));
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(port.Sent(), (Bytes{0, 0xFF, 0xFF}));
}

TEST_F(InsideExchange, ARetryOfTheHandshakeReadsTheVariableThatWasAskedFor) {
    for (int i = 0; i < 4; ++i)
        port.Reply(0x00, 0.5);
    ExpectAlert(NoModeAlert(), retry, [this] { Disturb(); });
    AcceptHandshake();
    AnswerRead(0, 8);
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("8"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01, 0, 100}));
    EXPECT_FALSE(link.CommError());
    EXPECT_TRUE(link.OnlineMode());
}

TEST_F(InsideExchange, ARetryOfTheHandshakeWritesTheValueThatWasAskedFor) {
    for (int i = 0; i < 4; ++i)
        port.Reply(0x00, 0.5);
    ExpectAlert(NoModeAlert(), retry, [this] { Disturb(); });
    AcceptHandshake();
    AnswerWrite(0, 100, 5);
    link.RSWrite(QStringLiteral("B100"), QStringLiteral("5"));
    EXPECT_EQ(port.Sent(), (Bytes{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x02, 0, 100, 5}));
}

TEST_F(InsideExchange, ARetryOfTheReadyPollGoesOnWithThePoll) {
    AcknowledgeLate(8);
    for (int i = 0; i < 8; ++i)
        port.Reply(0x55, 0.5); // busy
    ExpectAlert(QStringLiteral("Cannot Determine PLS READY Mode Within Target Board."), retry,
                [this] { Disturb(); });
    port.Replies({0x55, 0x00, 0x55});
    EXPECT_TRUE(link.ClearPLSChan(5));
    EXPECT_FALSE(link.CommError());
}
