#pragma once

namespace haldenboard {

/// The turning shaft that a limit switch board watches.
class Resolver {
public:
    /// @param rpm turns a minute, 0 to 65535, from `now` (seconds) on
    void SetSpeed(int rpm, double now);
    /// A shaft that is held does not turn and keeps its speed for when it is let go.
    void Hold(bool held, double now);

    int Speed() const { return held_ ? 0 : rpm_; } ///< turns a minute, 0 while held

    /// Division of the turn at `now` (seconds), without any offset.
    /// @param divisions of a turn, 1 or more
    /// @return 0 to divisions - 1
    int Position(double now, int divisions) const;

private:
    double TurnsAt(double now) const;

    int rpm_ = 0;
    bool held_ = false;
    double turns_ = 0; ///< part of a turn at since_, 0 up to 1
    double since_ = 0; ///< seconds
};

} // namespace haldenboard
