#pragma once

#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "support/BoardPort.h"
#include <stdexcept>

/// The run has no end: raised out of the port, where no handler of the program catches it.
struct RunsAway : std::runtime_error {
    RunsAway() : std::runtime_error("the run does not end") {}
};

/// A port to the simulated board that looks after the line: bytes that go out while a
/// communication failure stands are counted, a run without an end is broken off, and the adapter
/// may be pulled out.
class CheckedPort final : public MSComm {
public:
    CheckedPort(VirtualClock& clock, haldenboard::Line& line) : port_(clock, line), clock_(clock) {}

    /// Whose CommError is looked at.
    void Watch(const RSComm& link) { link_ = &link; }
    /// The adapter goes away when this many more bytes have gone out, for so many seconds.
    void PullAfter(int bytes, double seconds) {
        bytesUntilPull_ = bytes;
        awaySeconds_ = seconds;
    }
    /// Bytes that went out although a communication failure stood.
    int BytesAfterFailure() const { return bytesAfterFailure_; }

    int CommPort() const override { return port_.CommPort(); }
    void SetCommPort(int port) override { port_.SetCommPort(port); }
    QString Settings() const override { return port_.Settings(); }
    void SetSettings(const QString& settings) override { port_.SetSettings(settings); }
    void SetInputLen(int length) override { port_.SetInputLen(length); }
    void SetInputMode(int mode) override { port_.SetInputMode(mode); }
    bool PortOpen() const override { return port_.PortOpen(); }
    void SetPortOpen(bool open) override {
        CountWork();
        if (open && clock_.MonotonicSeconds() < awayUntil_)
            throw RunTimeError(ErrorNumber::InvalidPortNumber);
        port_.SetPortOpen(open);
    }
    int InBufferCount() override {
        CountWork();
        return port_.InBufferCount();
    }
    void SetInBufferCount(int count) override { port_.SetInBufferCount(count); }
    void Output(const QByteArray& bytes) override {
        CountWork();
        if (link_ && link_->CommError())
            bytesAfterFailure_ += static_cast<int>(bytes.size());
        if (bytesUntilPull_ > 0 && --bytesUntilPull_ == 0) {
            awayUntil_ = clock_.MonotonicSeconds() + awaySeconds_;
            port_.Lose();
        }
        port_.Output(bytes);
    }
    QByteArray Input() override { return port_.Input(); }
    bool WaitForInput(double deadline) override {
        CountWork();
        return port_.WaitForInput(deadline);
    }

private:
    void CountWork() {
        constexpr qint64 mostCalls = 3'000'000;
        if (++calls_ > mostCalls)
            throw RunsAway();
    }

    BoardPort port_;
    VirtualClock& clock_;
    const RSComm* link_ = nullptr;
    int bytesUntilPull_ = 0;
    double awaySeconds_ = 0.0;
    double awayUntil_ = 0.0;
    int bytesAfterFailure_ = 0;
    qint64 calls_ = 0;
};
