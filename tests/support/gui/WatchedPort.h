#pragma once

#include "support/BoardPort.h"
#include <vector>

/// A port to the simulated board that keeps what was sent and can refuse to open.
class WatchedPort final : public MSComm {
public:
    WatchedPort(VirtualClock& clock, haldenboard::Line& line) : port_(clock, line) {}

    /// SetPortOpen(true) raises this error number with this description.
    void RefuseToOpen(int errorNumber, const QString& description);
    /// The device goes away; it can be opened again.
    void Lose() { port_.Lose(); }
    /// Bytes sent so far, in order.
    const std::vector<int>& Sent() const { return sent_; }
    void ForgetSent() { sent_.clear(); }

    int CommPort() const override { return port_.CommPort(); }
    void SetCommPort(int port) override { port_.SetCommPort(port); }
    QString Settings() const override { return port_.Settings(); }
    void SetSettings(const QString& settings) override { port_.SetSettings(settings); }
    void SetInputLen(int length) override { port_.SetInputLen(length); }
    void SetInputMode(int mode) override { port_.SetInputMode(mode); }
    bool PortOpen() const override { return port_.PortOpen(); }
    void SetPortOpen(bool open) override;
    int InBufferCount() override { return port_.InBufferCount(); }
    void SetInBufferCount(int count) override { port_.SetInBufferCount(count); }
    void Output(const QByteArray& bytes) override;
    QByteArray Input() override { return port_.Input(); }
    bool WaitForInput(double deadline) override { return port_.WaitForInput(deadline); }

private:
    BoardPort port_;
    std::vector<int> sent_;
    int refuseNumber_ = 0;
    QString refuseDescription_;
};
