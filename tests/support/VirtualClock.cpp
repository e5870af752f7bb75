#include "support/VirtualClock.h"

#include <algorithm>

QDateTime VirtualClock::WallClock() const {
    return wallClock_.addMSecs(static_cast<qint64>((now_ - wallClockSetAt_) * 1000.0));
}

void VirtualClock::AdvanceTo(double seconds) {
    now_ = std::max(now_, seconds);
}

void VirtualClock::SetWallClock(const QDateTime& time) {
    wallClock_ = time;
    wallClockSetAt_ = now_;
}
