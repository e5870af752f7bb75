#pragma once

#include "base/Clock.h"
#include "base/MSComm.h"
#include <array>
#include <cstdint>
#include <numeric>
#include <vector>

namespace bench {

/// Passes everything on to a port and counts the bytes that cross its line.
class CountingPort final : public MSComm {
public:
    explicit CountingPort(MSComm& port) : port_(port) {}

    /// Bytes sent and taken so far.
    qint64 Bytes() const { return bytes_; }

    /// How often bytes from `first` to `last` were sent so far.
    qint64 Sent(std::uint8_t first, std::uint8_t last) const {
        return std::accumulate(sent_.begin() + first, sent_.begin() + last + 1, qint64(0));
    }

    /// From now on keeps the moments (monotonic seconds) at which this byte is sent. The clock must
    /// outlive the port.
    void NoteTimesOf(std::uint8_t byte, const Clock& clock) {
        notedByte_ = byte;
        clock_ = &clock;
        times_.clear();
    }
    const std::vector<double>& NotedTimes() const { return times_; }

    int CommPort() const override { return port_.CommPort(); }
    void SetCommPort(int number) override { port_.SetCommPort(number); }
    QString Settings() const override { return port_.Settings(); }
    void SetSettings(const QString& settings) override { port_.SetSettings(settings); }
    void SetInputLen(int length) override { port_.SetInputLen(length); }
    void SetInputMode(int mode) override { port_.SetInputMode(mode); }
    bool PortOpen() const override { return port_.PortOpen(); }
    void SetPortOpen(bool open) override { port_.SetPortOpen(open); }
    int InBufferCount() override { return port_.InBufferCount(); }
    void SetInBufferCount(int count) override { port_.SetInBufferCount(count); }
    void Output(const QByteArray& bytes) override {
        bytes_ += bytes.size();
        for (const char byte : bytes)
            Count(static_cast<std::uint8_t>(byte));
        port_.Output(bytes);
    }
    QByteArray Input() override {
        const QByteArray bytes = port_.Input();
        bytes_ += bytes.size();
        return bytes;
    }
    bool WaitForInput(double deadline) override { return port_.WaitForInput(deadline); }

private:
    void Count(std::uint8_t byte) {
        ++sent_[byte];
        if (clock_ && byte == notedByte_)
            times_.push_back(clock_->MonotonicSeconds());
    }

    MSComm& port_;
    qint64 bytes_ = 0;
    std::array<qint64, 256> sent_{};
    const Clock* clock_ = nullptr; // while moments are kept
    std::uint8_t notedByte_ = 0;
    std::vector<double> times_;
};

} // namespace bench
