#include "link/PortProbe.h"

#include "base/RunTimeError.h"
#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "support/BoardPort.h"
#include "support/PrintText.h"
#include "support/ScriptedPort.h"
#include "support/VirtualClock.h"
#include <gtest/gtest.h>

namespace {
class PortProbeTest : public testing::Test {
protected:
    PortProbe Probe(int number = 7) {
        settings.port = number;
        return ProbePort(port, clock, settings);
    }
    std::string Text(const PortProbe& probe) { return ProbeText(probe, settings).toStdString(); }

    VirtualClock clock;
    ScriptedPort port{clock};
    PortSettings settings{7, 19200};
};
} // namespace

TEST_F(PortProbeTest, OneAttentionByteIsSentAndThePortIsGivenBack) {
    port.SetCommPort(3);
    port.SetSettings(QStringLiteral("9600,n,8,1"));
    port.Reply({0x55});
    const PortProbe probe = Probe();
    EXPECT_EQ(probe.outcome, ProbeOutcome::Answered);
    EXPECT_EQ(port.Sent(), std::vector<int>{0xFF});
    EXPECT_FALSE(port.PortOpen());
    EXPECT_EQ(port.CommPort(), 3);
    EXPECT_EQ(port.Settings(), QStringLiteral("9600,n,8,1"));
}

TEST_F(PortProbeTest, ABoardAnswersInSoManyMilliseconds) {
    haldenboard::SimulatedBoard board;
    haldenboard::Line line(board);
    line.SetBaud(9600);
    BoardPort boardPort(clock, line);
    const PortProbe probe = ProbePort(boardPort, clock, settings);
    EXPECT_EQ(probe.outcome, ProbeOutcome::Answered);
    EXPECT_NEAR(probe.milliseconds, 2, 1); // two bytes of ten bits
    EXPECT_EQ(Text(probe), "COM7 at 19200 baud: a board answered in " +
                               std::to_string(probe.milliseconds) + " ms.");
}

TEST_F(PortProbeTest, SilenceIsNoAnswerAfterOneSecond) {
    const double start = clock.MonotonicSeconds();
    const PortProbe probe = Probe();
    EXPECT_EQ(probe.outcome, ProbeOutcome::NoAnswer);
    EXPECT_DOUBLE_EQ(clock.MonotonicSeconds() - start, 1.0);
    EXPECT_EQ(Text(probe), "COM7 at 19200 baud: the port opens, but no answer came within 1 "
                           "second. Check the cable between this port and the PROG port, the "
                           "supply of the board and the speed.");
    EXPECT_FALSE(port.PortOpen());
}

TEST_F(PortProbeTest, AnotherByteIsNoBoard) {
    port.Reply({0xFF});
    const PortProbe probe = Probe();
    EXPECT_EQ(probe.outcome, ProbeOutcome::Strange);
    EXPECT_EQ(probe.answer, 0xFF);
    EXPECT_EQ(Text(probe), "COM7 at 19200 baud: something answered, but not as a board does (FFH "
                           "after 1 ms). Test once more; if it stays so, check the speed and what "
                           "is connected.");
}

TEST_F(PortProbeTest, APortThatDoesNotOpenIsToldWithItsCause) {
    const QString cause = QStringLiteral("The device /dev/ttyS6 (COM7) is in use by minicom "
                                         "(process 17). Close that program first.");
    port.RefuseToOpen(ErrorNumber::PortAlreadyOpen, cause);
    const PortProbe probe = Probe();
    EXPECT_EQ(probe.outcome, ProbeOutcome::NotOpened);
    EXPECT_EQ(Text(probe), cause.toStdString());
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(PortProbeTest, ADeviceThatGoesAwayIsLost) {
    port.LoseAfter(1);
    const PortProbe probe = Probe();
    EXPECT_EQ(probe.outcome, ProbeOutcome::Lost);
    EXPECT_EQ(Text(probe), "COM7 was lost during the test: Device I/O error");
}

TEST_F(PortProbeTest, WhatLayInTheBufferIsNoAnswer) {
    port.Receive({0x55});
    EXPECT_EQ(Probe().outcome, ProbeOutcome::NoAnswer);
}
