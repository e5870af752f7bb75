#pragma once

#include "base/MSComm.h"
#include <array>
#include <cstdint>
#include <numeric>

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
            ++sent_[static_cast<std::uint8_t>(byte)];
        port_.Output(bytes);
    }
    QByteArray Input() override {
        const QByteArray bytes = port_.Input();
        bytes_ += bytes.size();
        return bytes;
    }
    bool WaitForInput(double deadline) override { return port_.WaitForInput(deadline); }

private:
    MSComm& port_;
    qint64 bytes_ = 0;
    std::array<qint64, 256> sent_{};
};

} // namespace bench
