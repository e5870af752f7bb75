#pragma once

#include "board/FaultPlan.h"
#include "board/SimulatedBoard.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace haldenboard {

/// One byte that went over the line. `at` is the moment, in seconds, at which it was whole at its
/// receiver.
struct LoggedByte {
    double at;
    bool toBoard;
    uint8_t value;
};

/// The serial line between a host and the board: full duplex, bytes at the pace of a UART with
/// start bit, eight data bits and stop bit. Times are seconds on any clock that the caller keeps;
/// each call's `now` must not be below that of the call before it, but that HostWrites may tell
/// late of a byte that started a while ago.
///
/// A byte from the host starts when the host's UART is free, is at the board one byte time later,
/// and the answer starts at that moment, or when the board's UART is free.
class Line {
public:
    static constexpr int DefaultBaud = 9600;

    /// The board must outlive the line.
    explicit Line(SimulatedBoard& board);
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    /// Sets the pace of bytes that start from now on.
    /// @param baud bits a second; 0 for no pace: bytes and answers take no time
    /// @throws std::invalid_argument if it is negative
    void SetBaud(int baud);
    /// Seconds that one byte takes, 0 without pace.
    double ByteTime() const { return byteTime_; }

    /// The host's UART takes a byte at `now`; its bytes queue behind each other.
    void HostWrites(uint8_t byte, double now);

    /// When the next byte for the host is whole at the host, or was if it is still unread; nullopt
    /// if none is under way. Final unless the host writes again.
    std::optional<double> NextArrival() const;

    /// Bytes that have arrived by `now` and were not read.
    int HostAvailable(double now);
    /// Takes the oldest of these.
    std::optional<uint8_t> HostReads(double now);
    /// Throws away what has arrived by `now`; what is still under way arrives later.
    void DiscardHostInput(double now);

    /// Lets everything happen that is due by `now`, the board's machine included.
    void Settle(double now);

    FaultPlan& Faults() { return faults_; }

    /// Every byte that went over the line, in the order of the times at which it was whole. What is
    /// under way is in it already, as its outcome is settled.
    const std::vector<LoggedByte>& Log() const;
    /// From the start the log is kept. Turning it off keeps what stands in it.
    void KeepLog(bool on) { keepLog_ = on; }
    /// Takes the bytes whole by `now` out of the log.
    std::vector<LoggedByte> TakeLog(double now);

private:
    struct Flight {
        double at;
        uint8_t value;
    };

    void DeliverOne() const;
    void DeliverUntil(double now) const;
    void Send(const Transmission& sent, double at) const;
    void Note(double at, bool toBoard, uint8_t value) const;

    SimulatedBoard& board_;
    double byteTime_;
    double hostFree_ = 0; ///< when the host's transmitter has sent what it holds
    bool keepLog_ = true;

    // A question about the future lets the board take what is under way to it. No caller can see
    // that but by the answer, so these change under const.
    mutable FaultPlan faults_;
    mutable std::deque<Flight> toBoard_;
    mutable std::deque<Flight> toHost_;
    mutable double boardFree_ = 0;
    mutable std::vector<LoggedByte> log_;
};

} // namespace haldenboard
