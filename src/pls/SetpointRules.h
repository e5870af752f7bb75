#pragma once

#include "programset/PLSRecord.h"
#include <optional>
#include <QString>

/// Which setpoints a channel accepts, and what is sent to the board for an edit. The board is the
/// final judge; these checks catch slips before they reach it.

/// A message of the view.
struct SetpointRefusal {
    QString text;
    QString title;

    bool operator==(const SetpointRefusal&) const = default;
};

/// Whether either end of `candidate` lies inside `existing`, both ends of it included. Only the
/// ends are looked at: a candidate that surrounds an existing setpoint does not overlap it.
/// `scaleFactor` is the number of divisions of the cycle.
bool SetpointOverlaps(Setpoint existing, Setpoint candidate, int scaleFactor);

/// Why a setpoint cannot be added to a channel (information icon), or nothing.
std::optional<SetpointRefusal> RefusesAdd(const SetpointList& channel, Setpoint candidate,
                                          int scaleFactor);
/// Why the setpoint at `index` cannot become `candidate` (information icon), or nothing. It is
/// never compared with itself.
std::optional<SetpointRefusal> RefusesAdjust(const SetpointList& channel, int index,
                                             Setpoint candidate, int scaleFactor);

/// Whether SingleSetpoint is to clear the channel first: it holds only its placeholder, told by
/// the last setpoint. False for a channel that was not read: what it holds is not known.
bool AddClearsChannel(const SetpointList& channel);
/// Whether the channel has a setpoint of this index. Adjusting clears the channel in the board
/// before it writes: without one there is nothing to write back, so the view must not begin.
bool HasSetpoint(const SetpointList& channel, int index);
/// What an adjust writes after it has cleared the channel: all setpoints in list order, the one at
/// `index` replaced. An index that the channel has not leaves the list as it is.
SetpointList AdjustedSetpoints(SetpointList channel, int index, Setpoint candidate);
