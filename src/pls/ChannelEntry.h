#pragma once

#include "programset/PLSRecord.h"
#include <optional>

/// The channel entry and the setpoint entry: octal names in a decimal text box, and what the
/// ON, OFF and setpoint entries show for them.

/// What the setpoint entries show for one channel.
struct ShownSetpoint {
    int channel = 0;                  ///< binary number
    int index = 0;                    ///< shown in txtTmg 5
    int lastIndex = 0;                ///< Max of updTmg 5
    std::optional<Setpoint> setpoint; ///< to txtTmg 3 (OFF) and 2 (ON); none: both are emptied

    bool operator==(const ShownSetpoint&) const = default;
};

/// Setpoint `index` of a channel. A channel that is Empty, or that no board has, shows nothing and
/// a last index of 0; so does an index beyond the channel's last, but with its last index.
ShownSetpoint ShowSetpoint(const PLSRecord& record, int channel, int index);

/// A number that was typed or stepped to, as an octal name: a last decimal digit 8 goes up by 2,
/// 9 goes down by 2. So the up arrow goes from 7 to 10, the down arrow from 10 to 7.
int OctalStep(int name);

/// The channel entry after it was validated.
struct ChannelEntered {
    int name = 0;        ///< octal name, corrected: the text of txtTmg 1 and the up-down value
    ShownSetpoint shown; ///< first setpoint of the channel of the number as it was entered
};

/// Validates the channel entry: `entered` is its numeric value, already within its limits. The
/// setpoint shown belongs to the number before the octal correction: the down arrow from 10 reads
/// binary channel 9, though the text then names 7.
ChannelEntered ValidateChannelEntry(const PLSRecord& record, int entered);
