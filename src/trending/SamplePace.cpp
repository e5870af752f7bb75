#include "trending/SamplePace.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double tolerance = 1e-6; // seconds; far below what a timer can tell
}

void SamplePace::Start(double now, double interval) {
    start_ = now;
    interval_ = interval;
    next_ = 1.0;
}

bool SamplePace::Due(double now) const {
    return Running() && now + tolerance >= start_ + next_ * interval_;
}

void SamplePace::Served(double now) {
    const double passed = std::floor((now - start_ + tolerance) / interval_);
    next_ = std::max(next_, passed) + 1.0;
}

int SamplePace::MillisecondsLeft(double now) const {
    const double left = start_ + next_ * interval_ - now - tolerance;
    return std::max(0, static_cast<int>(std::ceil(left * 1000.0)));
}
