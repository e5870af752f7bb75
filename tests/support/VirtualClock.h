#pragma once

#include "base/Clock.h"

/// Time that passes only when somebody waits, so that no test sleeps.
class VirtualClock final : public Clock {
public:
    double MonotonicSeconds() const override { return now_; }
    QDateTime WallClock() const override;
    void Wait(double seconds) override { now_ += seconds; }

    /// Moves on to `seconds` of monotonic time; never back.
    void AdvanceTo(double seconds);
    /// Sets what the wall clock shows now; it goes on from there.
    void SetWallClock(const QDateTime& time);

private:
    double now_ = 1000.0;
    double wallClockSetAt_ = 1000.0;
    QDateTime wallClock_ = QDateTime(QDate(2026, 3, 9), QTime(8, 0));
};
