#pragma once

#include "base/Clock.h"

/// Keeps the windows on the screen painted and shows a busy cursor while a link operation blocks.
/// It only paints: no handler and no timer runs, and what the user types or clicks stays queued.
class PaintedBusyDisplay final : public BusyDisplay {
public:
    /// Seconds of a wait after which the user is shown that it lasts.
    static constexpr double patience = 0.25;

    ~PaintedBusyDisplay() override;
    void StillWaiting(double seconds) override;
    void WaitEnded() override;

private:
    bool showsCursor_ = false;
};
