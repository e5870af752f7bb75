#include "base/port/TestTerminal.h"
#include "base/RunTimeError.h"
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>

namespace {
constexpr int handlesOfALine = 3; // the far side, the port and its lock

class SerialLoss : public testing::Test, protected PortOnFolder {
protected:
    void SetUp() override {
        OpenOn(terminal_.Path());
        ASSERT_TRUE(port.PortOpen());
    }
    // Handles that this process has open.
    static int OpenHandles() {
        return static_cast<int>(QDir(QStringLiteral("/proc/self/fd"))
                                    .entryList(QDir::AllEntries | QDir::System)
                                    .size());
    }
    TestTerminal terminal_;
};
} // namespace

TEST_F(SerialLoss, WaitEndsAtOnceAndThePortIsClosed) {
    const int handles = OpenHandles();
    terminal_.Vanish();
    const double start = clock.MonotonicSeconds();
    EXPECT_FALSE(port.WaitForInput(start + plenty));
    EXPECT_LT(clock.MonotonicSeconds() - start, 1.0);
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(OpenHandles(), handles - handlesOfALine);
}

TEST_F(SerialLoss, OutputToALostDeviceNeitherRaisesNorBlocks) {
    terminal_.Vanish();
    EXPECT_NO_THROW(port.Output("x"));
    EXPECT_FALSE(port.PortOpen());
    EXPECT_NO_THROW(port.Output("y"));
    EXPECT_EQ(port.Input(), QByteArray());
    EXPECT_EQ(port.InBufferCount(), 0);
    EXPECT_NO_THROW(port.SetInBufferCount(0));
}

TEST_F(SerialLoss, LossOnAnIdleLineIsSeenByTheEventLoop) {
    const int handles = OpenHandles();
    terminal_.Vanish();
    const QDeadlineTimer end(static_cast<int>(plenty * 1000));
    while (port.PortOpen() && !end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_FALSE(port.PortOpen());
    QCoreApplication::processEvents();
    EXPECT_EQ(OpenHandles(), handles - handlesOfALine);
}

TEST_F(SerialLoss, LossIsSeenAfterAFullBufferWasDiscarded) {
    for (int block = 0; block < 17; ++block) {
        terminal_.Send(QByteArray(256, 'n'));
        ASSERT_TRUE(terminal_.DriverHoldsInput());
        QCoreApplication::processEvents();
    }
    port.SetInBufferCount(0);
    terminal_.Vanish();
    const QDeadlineTimer end(static_cast<int>(plenty * 1000));
    while (port.PortOpen() && !end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(SerialLoss, DiscardOnALostDeviceDoesNotRaise) {
    terminal_.Vanish();
    EXPECT_NO_THROW(port.SetInBufferCount(0));
    EXPECT_FALSE(port.WaitForInput(In(plenty)));
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(SerialLoss, ClosingALostPortIsNoError) {
    terminal_.Vanish();
    EXPECT_NO_THROW(port.SetPortOpen(false));
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(SerialLoss, OpeningAgainWhileItIsAwayNamesTheDevice) {
    terminal_.Vanish();
    EXPECT_FALSE(port.WaitForInput(In(plenty)));
    try {
        port.SetPortOpen(true);
        ADD_FAILURE() << "opened a device that is not there";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::DeviceUnavailable);
        EXPECT_TRUE(error.Description().contains(terminal_.Path()));
    }
}

TEST_F(SerialLoss, PortOpensAgainOnceTheDeviceIsBack) {
    terminal_.Vanish();
    port.Output("x");
    ASSERT_FALSE(port.PortOpen());
    TestTerminal back;
    OpenOn(back.Path());
    back.Send("z");
    EXPECT_TRUE(port.WaitForInput(In(plenty)));
    EXPECT_EQ(port.Input(), "z");
    QCoreApplication::processEvents();
    EXPECT_TRUE(port.PortOpen());
}
