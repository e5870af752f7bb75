#include "base/Clock.h"
#include "link/LongWait.h"
#include "link/RSComm.h"

// The commands of a limit switch board have no echo: each byte sent is acknowledged whatever it
// was, and each byte asked for is taken as it comes. So a reply counts only while the link mode
// stands, which every time-out takes back.

namespace {
constexpr std::uint8_t acknowledge = 0x55;
constexpr std::uint8_t clockByte = 0x55; // asks for the next data byte
constexpr std::uint8_t readyPoll = 0x38;
constexpr std::uint8_t readyAnswer = 0x00;
constexpr std::uint8_t recallCommand = 0x09;
constexpr double readyTime = 3.0;      // seconds in which the board must become ready
constexpr double readyRetryTime = 2.0; // seconds more after each Retry
constexpr int readAttempts = 2;
constexpr int failedPLSRead = -9999;

std::uint8_t LowByte(int value) {
    return static_cast<std::uint8_t>(value & 0xFF);
}

std::uint8_t HighByte(int value) {
    return static_cast<std::uint8_t>((value >> 8) & 0xFF);
}
} // namespace

int RSComm::ReadPLSWord(std::uint8_t command) {
    std::array<std::uint8_t, 2> word{};
    if (!ReadPLSBytes(LinkMode::PLSReadWord, command, word))
        return failedPLSRead;
    return word[1] * 256 + word[0];
}

// A read changes nothing in the board: one that a time-out struck starts over, once.
bool RSComm::ReadPLSBytes(int mode, std::uint8_t command, std::span<std::uint8_t> bytes) {
    bool read = false;
    for (int attempt = 0; attempt < readAttempts && !read && !commError_; ++attempt)
        read = SetTargetMode(mode, command) && ClockBytes(mode, bytes);
    linkMode_ = LinkMode::None;
    return read;
}

bool RSComm::ClockBytes(int mode, std::span<std::uint8_t> bytes) {
    for (std::uint8_t& byte : bytes) {
        const int reply = ExchangeByte(clockByte);
        if (reply == noReply || linkMode_ != mode)
            return false;
        byte = static_cast<std::uint8_t>(reply);
    }
    return true;
}

// Sends a command and its data. At the first byte that is not acknowledged in time it stops: the
// board may have taken that byte or not, and the attention after it for data, so that any further
// byte could be taken for another one or, once the board has what it wants, for a command (0x03
// stops the machine). The next handshake fills up what the board may still want.
bool RSComm::SendPLSData(int mode, std::uint8_t command, std::span<const std::uint8_t> data) {
    if (!SetTargetMode(mode, command, static_cast<int>(data.size())))
        return false;
    for (const std::uint8_t byte : data)
        if (ExchangeByte(byte) != acknowledge || linkMode_ != mode)
            return false;
    dataOwed_ = 0;
    return true;
}

bool RSComm::WritePLS(int mode, std::uint8_t command, std::span<const std::uint8_t> data) {
    const bool written = SendPLSData(mode, command, data) && WaitPLSReady();
    linkMode_ = LinkMode::None;
    return written;
}

bool RSComm::WritePLSWord(std::uint8_t command, int value) {
    const std::array data{LowByte(value), HighByte(value)};
    return WritePLS(LinkMode::PLSWriteWord, command, data);
}

bool RSComm::WriteChannelRecord(std::uint8_t command, qint16 channel, int first, int second,
                                bool flag) {
    if (!IsPLSChannel(channel))
        return false;
    const std::array data{LowByte(channel), LowByte(first),   HighByte(first),
                          LowByte(second),  HighByte(second), static_cast<std::uint8_t>(flag)};
    return WritePLS(LinkMode::PLSChannel, command, data);
}

// Waits until the board has done what it was told. Nothing is asked of the user while CommError
// stands: its own box has been shown.
bool RSComm::WaitPLSReady() {
    LongWait display(busy_, clock_);
    const int mode = linkMode_;
    double deadline = clock_.MonotonicSeconds() + readyTime;
    while (!commError_) {
        const double now = clock_.MonotonicSeconds();
        display.Look(now);
        if (now >= deadline) {
            display.End();
            commError_ = !UserRetries(
                QStringLiteral("Cannot Determine PLS READY Mode Within Target Board."));
            display.Begin();
            deadline = clock_.MonotonicSeconds() + readyRetryTime;
            continue;
        }
        linkMode_ = mode;
        if (BoardSaysReady(mode))
            return true;
        if (linkMode_ != mode && !commError_)
            LetLineFallQuiet();
    }
    return false;
}

// One poll. It begins with an empty input buffer: a late reply is no answer to it.
bool RSComm::BoardSaysReady(int mode) {
    if (ExchangeByte(readyPoll, Reply::Wait, InputBuffer::Clear) != acknowledge ||
        linkMode_ != mode)
        return false;
    if (ExchangeByte(clockByte) != readyAnswer || linkMode_ != mode)
        return false;
    ExchangeByte(clockByte); // ends the poll; whatever it brings, the board is ready
    return true;
}

// Asks for the next edge of a channel. From its last byte on the board may count it as given:
// asking again would pass over it.
bool RSComm::ReadEdge(qint16 channel, std::array<std::uint8_t, 3>& edge, bool& mayBeGiven) {
    const std::array data{LowByte(channel)};
    if (!SendPLSData(LinkMode::PLSRecall, recallCommand, data))
        return false;
    if (ClockBytes(LinkMode::PLSRecall, std::span(edge).first(2))) {
        mayBeGiven = true;
        if (ClockBytes(LinkMode::PLSRecall, std::span(edge).last(1)))
            return true;
    }
    if (commError_)
        channelRecallState_ = 0;
    return false;
}
