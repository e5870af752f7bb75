#pragma once

/// The moments at which an interval timer is due: a fixed grid that begins when it is started, so
/// that lateness of one moment never adds to the next. Moments that pass while nobody looks, for
/// example during a long read, are left out and not made up for.
class SamplePace {
public:
    /// Begins a grid at `now` (monotonic seconds); the first moment is one interval (seconds, above
    /// 0) later.
    void Start(double now, double interval);
    void Stop() { interval_ = 0.0; }
    bool Running() const { return interval_ > 0.0; }
    double Interval() const { return interval_; }

    /// Whether a moment of the grid has come.
    bool Due(double now) const;
    /// The moment was served: the next one is the first of the grid after `now`.
    void Served(double now);
    /// Whole milliseconds until the next moment, rounded up: 0 when it has come.
    int MillisecondsLeft(double now) const;

private:
    double start_ = 0.0;
    double interval_ = 0.0;
    double next_ = 1.0; // moment waited for, in intervals from the start
};
