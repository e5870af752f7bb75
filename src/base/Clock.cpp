#include "base/Clock.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

Clock::~Clock() = default;
BusyDisplay::~BusyDisplay() = default;

double SystemClock::MonotonicSeconds() const {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

QDateTime SystemClock::WallClock() const {
    return QDateTime::currentDateTime();
}

void SystemClock::Wait(double seconds) {
    // Nobody ever signals: the wait ends by its deadline alone, whatever wakes the thread early.
    std::mutex mutex;
    std::condition_variable nobody;
    std::unique_lock lock(mutex);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    nobody.wait_until(lock, deadline, [] { return false; });
}
