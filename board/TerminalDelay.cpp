#include "board/TerminalDelay.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <poll.h>
#include <sched.h>
#include <termios.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace haldenboard {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int Tries = 25;
constexpr double Longest = 60e-6;                         // seconds
constexpr auto Idle = std::chrono::microseconds(521);     // a byte time at 19200 baud
constexpr auto Patience = std::chrono::milliseconds(200); // for one try

// The host: sleeps until a byte comes and hands it back, until none comes for a while.
void Echo(int terminal) {
    for (int count = 0; count < Tries; ++count) {
        pollfd input{terminal, POLLIN, 0};
        uint8_t byte = 0;
        if (poll(&input, 1, static_cast<int>(Patience.count())) != 1 ||
            read(terminal, &byte, 1) != 1 || write(terminal, &byte, 1) != 1)
            return;
    }
}

// Gives a negative number if no answer comes.
double TryOnce(PseudoTerminal& terminal) {
    const std::array<uint8_t, 1> question{0x55};
    std::array<uint8_t, 1> answer{};
    const auto begin = Clock::now();
    terminal.Write(question);
    while (Clock::now() < begin + Patience) {
        if (terminal.Read(answer) > 0)
            return std::chrono::duration<double>(Clock::now() - begin).count();
        sched_yield();
    }
    return -1;
}

} // namespace

double MeasureTurnaround(PseudoTerminal& terminal) {
    std::thread host(Echo, terminal.FarHandle());
    std::vector<double> taken;
    for (int count = 0; count < Tries; ++count) {
        std::this_thread::sleep_for(Idle); // the host's processor falls asleep as it will later
        const double once = TryOnce(terminal);
        if (once < 0)
            break;
        taken.push_back(once);
    }
    host.join();
    tcflush(terminal.FarHandle(), TCIOFLUSH); // of a try given up
    if (taken.size() < Tries)
        return 0;
    std::sort(taken.begin(), taken.end());
    return std::min(taken[Tries / 4], Longest);
}

} // namespace haldenboard
