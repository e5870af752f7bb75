#pragma once

#include "board/BoardModel.h"
#include "board/MemoryDialogue.h"

#include <cstdint>

namespace haldenboard {

/// A machine that the board seems to run, in steps of 0.1 second of the time handed in. Every
/// variable goes on from what it finds in memory, so that what a host writes there is not undone.
///
/// | variable  | what it does                                                         |
/// |-----------|----------------------------------------------------------------------|
/// | W100      | counts tenths of a second, 0 to 65535                                |
/// | W102      | counts seconds                                                       |
/// | W104      | saw tooth 0 to 990, a cycle in 10 s                                  |
/// | W106      | triangle 0 to 4000 and back, a cycle in 20 s                         |
/// | W108      | temperature 200 to 250 and back, by 1 each second                    |
/// | D110      | parts made, one each 0.5 s; the low word holds 0 to 9999             |
/// | B114      | all bits toggle at halving pace: bit 0 each 0.1 s                    |
/// | B115      | one bit that walks round, a place each 0.2 s                         |
/// | F64 to F66| byte 40, bits 0 to 2: toggle each 0.5, 1 and 2 s                     |
/// | outputs   | two bytes, the walking bit and its complement; 0 in program mode     |
/// | clock     | on models with one, 43008 to 43017, also in program mode             |
class DemoMachine {
public:
    /// @param now seconds; the first step is due 0.1 second later
    DemoMachine(const BoardModel& model, Memory& memory, double now);

    /// Does every step due by `now` (seconds).
    /// @param standing in program mode only the clock goes on
    void AdvanceTo(double now, bool standing);

    /// Puts the output bytes to 0.
    void OutputsOff();

private:
    void Step();
    void Count();
    void Ramp();
    void Toggle();
    void ClockSecond();
    int Word(int address) const;
    void SetWord(int address, int value);

    BoardModel model_;
    Memory& memory_;
    double start_;
    uint64_t elapsed_ = 0; ///< tenths of a second since start_
    uint64_t steps_ = 0;   ///< of these, the ones in which the machine ran
    bool rising_ = true;   ///< W106
    bool heating_ = true;  ///< W108
};

} // namespace haldenboard
