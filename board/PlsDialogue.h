#pragma once

#include "board/PlsUnit.h"
#include "board/Resolver.h"
#include "board/WireBytes.h"

#include <array>
#include <cstdint>
#include <vector>

namespace haldenboard {

/// The commands of a limit switch board, one at a time. Each ends by itself, and the board then
/// waits for its next command with no new attention needed.
class PlsDialogue {
public:
    PlsDialogue(PlsUnit& unit, Resolver& resolver) : unit_(unit), resolver_(resolver) {}

    /// Whether `command` is one of these; if so the dialogue begins.
    /// @param now seconds; position and speed are those of this moment
    bool Begin(uint8_t command, double now);

    /// Whether 0xFF would be attention now: only where a clock byte is due.
    bool AttentionHere() const { return dataLeft_ == 0; }

    bool Done() const { return dataLeft_ == 0 && clocked_ >= answers_.size(); }

    /// Takes one byte that is not attention. Data bytes are acknowledged; clock bytes bring the
    /// answer's bytes one by one. Any other byte in place of a clock is refused and ends the
    /// command. Call only while Done() is false.
    Reply Take(uint8_t byte);

    /// How often a ready poll is answered "busy" after each command that works on the board.
    void SetBusyAnswers(int count) { busyAnswers_ = count; }

    /// Forgets the work that a ready poll would still find going on.
    void Restart() { busyLeft_ = 0; }

private:
    void BeginWord(int value);
    void BeginPoll();
    Reply TakeData(uint8_t byte);
    void Carry();
    void CarryRecord();
    int Word(int place) const { return data_[place] + 256 * data_[place + 1]; }
    int PositionNow(double now) const;

    PlsUnit& unit_;
    Resolver& resolver_;
    uint8_t command_ = 0;
    int dataLeft_ = 0;
    int dataTaken_ = 0;
    std::array<uint8_t, PlsUnit::BlockSize> data_{};
    std::vector<uint8_t> answers_; ///< what the clock bytes to come bring
    size_t clocked_ = 0;
    int busyAnswers_ = 0;
    int busyLeft_ = 0;
};

} // namespace haldenboard
