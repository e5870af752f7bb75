#pragma once

#include "base/Clock.h"

/// Tells the busy display of one wait, once it has become a long one, and of its end.
class LongWait {
public:
    LongWait(BusyDisplay& busy, const Clock& clock) : busy_(busy), clock_(clock) { Begin(); }
    ~LongWait() { End(); }
    LongWait(const LongWait&) = delete;
    LongWait& operator=(const LongWait&) = delete;

    /// A wait starts now: again, after a box that came between.
    void Begin() { start_ = clock_.MonotonicSeconds(); }
    /// The wait is over.
    void End() {
        if (shown_)
            busy_.WaitEnded();
        shown_ = false;
    }
    /// Shows a wait that has become long by `now`; gives the time of the next look at it.
    double Look(double now) {
        const double quietEnd = start_ + quietWait;
        if (now < quietEnd)
            return quietEnd;
        busy_.StillWaiting(now - start_);
        shown_ = true;
        return now + waitSlice;
    }

private:
    static constexpr double quietWait = 0.25; // seconds of a wait that the user is not shown
    static constexpr double waitSlice = 0.1;  // seconds between looks at the busy display

    BusyDisplay& busy_;
    const Clock& clock_;
    double start_ = 0.0;
    bool shown_ = false;
};
