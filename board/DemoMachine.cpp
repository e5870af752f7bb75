#include "board/DemoMachine.h"

#include <cmath>

namespace haldenboard {

namespace {

constexpr int Tenths = 100, Seconds = 102, SawTooth = 104, Triangle = 106, Temperature = 108;
constexpr int Parts = 110, Binary = 114, Walking = 115, Flags = 40;
constexpr int ClockSeconds = 43008, ClockMinutes = 43010, ClockHours = 43012;
constexpr int ClockDay = 43015, ClockMonth = 43016, ClockYear = 43017;
constexpr double StepsPerSecond = 10;

int DaysOf(int month, int year) {
    if (month == 2)
        return year % 4 == 0 ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

} // namespace

DemoMachine::DemoMachine(const BoardModel& model, Memory& memory, double now)
    : model_(model), memory_(memory), start_(now) {}

int DemoMachine::Word(int address) const {
    return memory_[address] + 256 * memory_[address + 1];
}

void DemoMachine::SetWord(int address, int value) {
    memory_[address] = static_cast<uint8_t>(value % 256);
    memory_[address + 1] = static_cast<uint8_t>(value / 256 % 256);
}

void DemoMachine::AdvanceTo(double now, bool standing) {
    // The hair that is added keeps a step on time whose moment no binary fraction hits exactly.
    const auto due = static_cast<uint64_t>(std::floor((now - start_) * StepsPerSecond + 1e-6));
    while (elapsed_ < due) {
        ++elapsed_;
        if (model_.hasClock && elapsed_ % 10 == 0)
            ClockSecond();
        if (!standing)
            Step();
    }
}

void DemoMachine::Step() {
    ++steps_;
    Count();
    Ramp();
    Toggle();
}

void DemoMachine::Count() {
    SetWord(Tenths, Word(Tenths) + 1);
    if (steps_ % 10 == 0)
        SetWord(Seconds, Word(Seconds) + 1);
    if (steps_ % 5 != 0)
        return;
    const int low = Word(Parts) + 1;
    SetWord(Parts, low > 9999 ? 0 : low);
    if (low > 9999)
        SetWord(Parts + 2, Word(Parts + 2) + 1);
}

void DemoMachine::Ramp() {
    const int saw = Word(SawTooth) + 10;
    SetWord(SawTooth, saw >= 1000 ? 0 : saw);

    const int level = Word(Triangle);
    rising_ = level >= 4000 ? false : level < 40 ? true : rising_;
    SetWord(Triangle, rising_ ? level + 40 : level - 40);

    if (steps_ % 10 != 0)
        return;
    const int degrees = Word(Temperature);
    heating_ = degrees >= 250 ? false : degrees <= 200 ? true : heating_;
    if (degrees < 200)
        SetWord(Temperature, 200);
    else
        SetWord(Temperature, heating_ ? degrees + 1 : degrees - 1);
}

void DemoMachine::Toggle() {
    memory_[Binary] = static_cast<uint8_t>(memory_[Binary] + 1);
    memory_[Walking] = static_cast<uint8_t>(1 << (steps_ / 2 % 8));
    memory_[model_.firstOutputByte] = memory_[Walking];
    memory_[model_.firstOutputByte + 1] = static_cast<uint8_t>(~memory_[Walking]);
    const int flips =
        (steps_ % 5 == 0 ? 1 : 0) + (steps_ % 10 == 0 ? 2 : 0) + (steps_ % 20 == 0 ? 4 : 0);
    memory_[Flags] = static_cast<uint8_t>(memory_[Flags] ^ flips);
}

void DemoMachine::OutputsOff() {
    memory_[model_.firstOutputByte] = 0;
    memory_[model_.firstOutputByte + 1] = 0;
}

void DemoMachine::ClockSecond() {
    if (++memory_[ClockSeconds] < 60)
        return;
    memory_[ClockSeconds] = 0;
    if (++memory_[ClockMinutes] < 60)
        return;
    memory_[ClockMinutes] = 0;
    if (++memory_[ClockHours] < 24)
        return;
    memory_[ClockHours] = 0;
    if (++memory_[ClockDay] <= DaysOf(memory_[ClockMonth], memory_[ClockYear]))
        return;
    memory_[ClockDay] = 1;
    if (++memory_[ClockMonth] <= 12)
        return;
    memory_[ClockMonth] = 1;
    memory_[ClockYear] = static_cast<uint8_t>((memory_[ClockYear] + 1) % 100);
}

} // namespace haldenboard
