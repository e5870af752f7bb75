#include "base/port/LinuxPort.h"
#include "base/port/TestTerminal.h"
#include "base/RunTimeError.h"
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QTimer>

namespace {
class SerialPortExchange : public testing::Test, protected PortOnFolder {
protected:
    void SetUp() override {
        OpenOn(terminal_.Path());
        ASSERT_TRUE(port.PortOpen());
    }
    TestTerminal terminal_;
};

int NumberRaisedBy(const std::function<void()>& statement) {
    try {
        statement();
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}
} // namespace

TEST_F(SerialPortExchange, EveryByteValueGoesOutUnchanged) {
    QByteArray all;
    for (int byte = 0; byte <= 0xFF; ++byte)
        all.append(static_cast<char>(byte));
    for (const char byte : all)
        port.Output(QByteArray(1, byte));
    EXPECT_EQ(terminal_.Received(256), all);
}

TEST_F(SerialPortExchange, EveryByteValueComesInUnchanged) {
    for (int byte = 0; byte <= 0xFF; ++byte) {
        terminal_.Send(QByteArray(1, static_cast<char>(byte)));
        ASSERT_TRUE(port.WaitForInput(In(plenty))) << byte;
        EXPECT_EQ(port.Input(), QByteArray(1, static_cast<char>(byte)));
    }
    EXPECT_EQ(port.InBufferCount(), 0);
}

TEST_F(SerialPortExchange, InputTakesOneByteAtATime) {
    terminal_.Send("abc");
    ASSERT_TRUE(terminal_.DriverHoldsInput());
    EXPECT_EQ(port.Input(), "a");
    EXPECT_EQ(port.Input(), "b");
    EXPECT_EQ(port.Input(), "c");
    EXPECT_EQ(port.Input(), QByteArray());
}

TEST_F(SerialPortExchange, InputLengthZeroTakesAllThereAre) {
    terminal_.Send("ab");
    ASSERT_TRUE(port.WaitForInput(In(plenty)));
    terminal_.Send("cd");
    ASSERT_TRUE(terminal_.DriverHoldsInput());
    port.SetInputLen(0);
    EXPECT_EQ(port.Input(), "abcd");
}

TEST_F(SerialPortExchange, CountHoldsWhatTheDriverHasToo) {
    EXPECT_EQ(port.InBufferCount(), 0);
    terminal_.Send("ab");
    ASSERT_TRUE(terminal_.DriverHoldsInput());
    EXPECT_EQ(port.InBufferCount(), 2);
    ASSERT_TRUE(port.WaitForInput(In(plenty)));
    terminal_.Send("c");
    ASSERT_TRUE(terminal_.DriverHoldsInput());
    EXPECT_EQ(port.InBufferCount(), 3);
}

TEST_F(SerialPortExchange, DiscardTakesWhatTheDriverHasToo) {
    terminal_.Send("ab");
    ASSERT_TRUE(port.WaitForInput(In(plenty)));
    terminal_.Send("cd");
    ASSERT_TRUE(terminal_.DriverHoldsInput());
    port.SetInBufferCount(0);
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_FALSE(port.WaitForInput(In(0)));
    terminal_.Send("e");
    ASSERT_TRUE(port.WaitForInput(In(plenty)));
    EXPECT_EQ(port.Input(), "e");
}

TEST_F(SerialPortExchange, CountTakesNoValueButZero) {
    EXPECT_EQ(NumberRaisedBy([&] { port.SetInBufferCount(1); }), ErrorNumber::InvalidProcedureCall);
}

TEST_F(SerialPortExchange, WaitLastsUntilTheDeadlineAndNotLonger) {
    const double start = clock.MonotonicSeconds();
    EXPECT_FALSE(port.WaitForInput(start + 0.03));
    const double lasted = clock.MonotonicSeconds() - start;
    EXPECT_GE(lasted, 0.03);
    EXPECT_LT(lasted, 1.0);
    EXPECT_TRUE(port.PortOpen());
}

TEST_F(SerialPortExchange, WaitPastItsDeadlineStillSeesAByte) {
    terminal_.Send("x");
    ASSERT_TRUE(terminal_.DriverHoldsInput());
    EXPECT_TRUE(port.WaitForInput(In(-1)));
}

TEST_F(SerialPortExchange, NoTimerAndNoHandlerRunsDuringAWait) {
    int handled = 0;
    QTimer::singleShot(0, [&] { ++handled; });
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [&] { ++handled; }, Qt::QueuedConnection);
    EXPECT_FALSE(port.WaitForInput(In(0.03)));
    EXPECT_EQ(handled, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(handled, 2);
}

TEST_F(SerialPortExchange, OutputReturnsAlthoughNobodyTakesTheBytes) {
    const double start = clock.MonotonicSeconds();
    port.Output(QByteArray(64 * 1024, 'x'));
    EXPECT_LT(clock.MonotonicSeconds() - start, 1.0);
    EXPECT_TRUE(port.PortOpen());
}

TEST_F(SerialPortExchange, NoiseOnAnIdleLineFillsNoMoreThanTheBuffer) {
    for (int block = 0; block < 40; ++block) {
        terminal_.Send(QByteArray(256, 'n'));
        ASSERT_TRUE(terminal_.DriverHoldsInput());
        QCoreApplication::processEvents();
        if (port.InBufferCount() > 4096)
            break;
    }
    EXPECT_LE(port.InBufferCount(), 4096 + 256);
    port.SetInBufferCount(0);
    terminal_.Send("y");
    EXPECT_TRUE(port.WaitForInput(In(plenty)));
    EXPECT_TRUE(port.PortOpen());
}

TEST_F(SerialPortExchange, SpeedMayChangeWhileOpen) {
    port.SetSettings(QStringLiteral("19200,n,8,1"));
    EXPECT_EQ(port.Settings(), QStringLiteral("19200,n,8,1"));
    terminal_.Send("s");
    EXPECT_TRUE(port.WaitForInput(In(plenty)));
}

TEST_F(SerialPortExchange, ClosedPortNeitherSendsNorReceives) {
    terminal_.Send("x");
    port.SetPortOpen(false);
    EXPECT_FALSE(port.PortOpen());
    port.Output("y");
    EXPECT_EQ(port.Input(), QByteArray());
    EXPECT_EQ(port.InBufferCount(), 0);
    port.SetInBufferCount(0);
    const double start = clock.MonotonicSeconds();
    EXPECT_FALSE(port.WaitForInput(start + plenty));
    EXPECT_LT(clock.MonotonicSeconds() - start, 1.0);
    port.SetPortOpen(false);
}

TEST_F(SerialPortExchange, PseudoTerminalHasNoLatencySetting) {
    EXPECT_EQ(LinuxPort::LowLatency(0x7FFFFFF), std::nullopt);
    port.SetPortOpen(false);
    port.SetPortOpen(true);
    EXPECT_TRUE(port.PortOpen());
}
