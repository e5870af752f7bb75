#pragma once

#include "programset/PLSRecord.h"
#include <optional>
#include <vector>

/// Geometry of the strip that draws one machine cycle from left to right. Nothing is painted here;
/// all lengths are in the unit of the width given, 0 at position 0 of the cycle.

/// A stretch of the cycle in which the channel is on: from ON up to OFF.
struct StripSpan {
    double left = 0.0;
    double right = 0.0;
    int setpoint = 0; ///< index in the channel's list; a wrapped setpoint has two spans

    bool operator==(const StripSpan&) const = default;
};

/// One cycle.
struct CycleStrip {
    std::vector<StripSpan> spans;
    std::optional<double> marker; ///< where the machine stands, if that is known

    bool operator==(const CycleStrip&) const = default;
};

/// Lays out a channel on a strip of `width`. Placeholders give no span; ON above OFF gives two,
/// one to the right end and one from the left. Positions outside 0 to `scaleFactor` - 1 are none of
/// the cycle: spans end at its ends, a marker there is left out. A scale under 2 (nothing read
/// yet) or a width of 0 gives an empty strip.
CycleStrip LayOutCycle(int scaleFactor, const SetpointList& channel, std::optional<int> position,
                       double width);

/// The same in words, for those who cannot see the strip: "CH3: ON 30 to 60, 330 to 10 of 360;
/// the machine stands at 187". "Nothing was read" under a scale of 2; "never ON" without a span.
QString CycleInWords(int scaleFactor, const QString& channelName, const SetpointList& channel,
                     std::optional<int> position);
