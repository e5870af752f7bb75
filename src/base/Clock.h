#pragma once

#include <QDateTime>

/// The seam for time. Time-outs and waits use the monotonic seconds, so that they survive
/// midnight and a clock that is set; what a user sees uses the wall clock.
class Clock {
public:
    virtual ~Clock();

    /// Seconds since an arbitrary moment; never goes back.
    virtual double MonotonicSeconds() const = 0;
    /// Local date and time.
    virtual QDateTime WallClock() const = 0;
    /// Blocks for `seconds` (0 or more) of monotonic time. Runs no handler and no timer.
    virtual void Wait(double seconds) = 0;
};

/// The clock of the machine.
class SystemClock final : public Clock {
public:
    double MonotonicSeconds() const override;
    QDateTime WallClock() const override;
    void Wait(double seconds) override;
};

/// Told while a link operation blocks, so that the window stays painted and shows a busy cursor
/// although no event is handled. An implementation must not run handlers or timers.
class BusyDisplay {
public:
    virtual ~BusyDisplay();
    /// Called about every 100 ms of a wait; `seconds` is how long it has lasted so far.
    virtual void StillWaiting(double seconds) = 0;
    /// Called once at the end of a wait for which StillWaiting was called.
    virtual void WaitEnded() = 0;
};

/// For programs without a window.
class NoBusyDisplay final : public BusyDisplay {
public:
    void StillWaiting(double) override {}
    void WaitEnded() override {}
};
