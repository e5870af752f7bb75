#pragma once

#include "programset/PLSRecord.h"

/// The two check boxes of the standard layout: each switches one bit of OptionFlags and frees or
/// clears the entries that belong to it.

/// One check box.
struct OptionSwitch {
    qint16 bit;     ///< of PLSOption
    int firstEntry; ///< its entries, first to last
    int lastEntry;
};

/// chkR6BWComp: brake wear compensation of CH00, entries 12 to 16 and both lblBWComp.
inline constexpr OptionSwitch brakeWearSwitch{PLSOption::BrakeWearCompensation, 12, 16};
/// chkR6SpdWinEn: speed window of CH17, entries 17 and 18.
inline constexpr OptionSwitch speedWindowSwitch{PLSOption::SpeedWindow, 17, 18};

/// Whether the check box of a switch is checked for this record.
bool IsSwitchedOn(const PLSRecord& record, const OptionSwitch& option);
/// Value that an entry of a switch takes when the switch is unchecked: its lower end, 0; for the
/// OFF end of the window (entry 16) its upper end, scale - 1, so that the window spans the cycle.
int ClearedValue(int entry, int scaleFactor);
/// The check box was clicked. Checked sets its bit and leaves the entries as they are; unchecked
/// clears it and stores the cleared value of each of its entries, which the view then shows. Does
/// nothing unless `firstPassOnline`: a box that is set while the board is being read or the view
/// is offline is shown, not chosen.
void SwitchClicked(PLSRecord& record, const OptionSwitch& option, bool checked,
                   bool firstPassOnline);
