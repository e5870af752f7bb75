#pragma once

#include <cstdint>
#include <vector>

namespace haldenboard {

/// A place where a channel's output changes.
struct PlsEdge {
    uint8_t state;     ///< 1 the output goes on, 0 it goes off, 2 there is no edge to give
    uint16_t position; ///< division of the turn, 0 to scale factor - 1
    bool operator==(const PlsEdge&) const = default;
};

/// One output over one turn of the machine: for each division whether the output is on.
/// Setpoints that overlap melt into one; setpoints that only touch stay two, since the host asks
/// for them back as it gave them.
class ChannelTrack {
public:
    /// @param divisions divisions of a turn, 2 to 4096; the track begins with nothing on
    explicit ChannelTrack(int divisions);

    void Clear();

    /// Turns the output on from `on` up to, not including, `off`, through division 0 if `on` is
    /// above `off`. Positions from the number of divisions up and on = off change nothing.
    /// @return whether the setpoint was taken
    bool Add(int on, int off);

    /// The edges of a turn by position, from division 0 on. Where one setpoint ends as the next
    /// begins, its off edge comes before the on edge. Nothing on gives none, and so does an output
    /// that is on all round.
    std::vector<PlsEdge> Edges() const;

private:
    int Next(int division) const;
    int Before(int division) const;

    std::vector<uint8_t> on_;
    std::vector<uint8_t> joint_; ///< one setpoint ends and another begins at this division
};

} // namespace haldenboard
