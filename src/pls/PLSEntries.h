#pragma once

#include "pls/PLSLayout.h"
#include "programset/PLSRecord.h"

/// The entries of the timing view: which field each one edits and what it may hold. The limits are
/// what the boards take: a byte, a scale of 512 or 4096 divisions, speeds of four digits.

/// What the up-down of an entry lets it hold, both ends included.
struct EntryLimits {
    int min = 0;
    int max = 0;

    bool operator==(const EntryLimits&) const = default;
};

/// Configuration entries: txtPLS_CFG, lblPLS_CFG and updPLS_CFG 0 to 18.
constexpr int plsEntryCount = 19;

/// Indexes of the configuration entries.
namespace PLSEntryIndex {
constexpr int Scale = 0;          ///< R6500 layout; standard layout: StandardScale
constexpr int Program = 1;        ///< R6500 layout
constexpr int FirstSpeedComp = 2; ///< R6500 layout, CH00
constexpr int LastSpeedComp = 9;  ///< R6500 layout, CH07
constexpr int StandardScale = 10; ///< standard layout, as all below
constexpr int StrobePreset = 11;  ///< units of 2.5 msec
constexpr int StopLocation = 12;  ///< division
constexpr int StopError = 13;     ///< divisions
constexpr int SignalWidth = 14;   ///< timing signal width
constexpr int WindowOn = 15;      ///< division
constexpr int WindowOff = 16;     ///< division
constexpr int LowThreshold = 17;  ///< RPM
constexpr int HighThreshold = 18; ///< RPM
} // namespace PLSEntryIndex

/// One configuration entry. Entries 0, 1, 12, 15 and 16 change their upper end at run time
/// (ConfigCoupling.h); the limits here are those at start.
struct PLSEntry {
    const char* label;  ///< text of its label
    EntryLimits limits; ///< at start
    int frame;          ///< index of the fraTmg that holds it
    PLSField field;     ///< what it edits
};

// The operations on an index raise std::out_of_range for one that is not an entry's.

/// The configuration entry of an index, 0 to 18.
const PLSEntry& ConfigEntry(int index);
/// Whether boards of the R6500 layout have the entry: 0 to 9. The others have 10 to 18.
bool IsR6500Entry(int index);
/// Value of the field that entry 0 to 18 edits.
qint16 ReadConfigEntry(const PLSRecord& record, int index);
/// Stores a value, which the entry has accepted, in its field. Nothing else changes: what follows
/// from a new scale is in ConfigCoupling.h.
void StoreConfigEntry(PLSRecord& record, int index, qint16 value);

/// Title of the message that refuses the text of a configuration entry.
inline constexpr char configEntryTitle[] = "Set-up";

/// Setpoint entries: txtTmg and updTmg 0 to 5.
constexpr int timingEntryCount = 6;

/// Indexes of the setpoint entries.
namespace TimingEntryIndex {
constexpr int Offset = 0;   ///< resolver offset
constexpr int Channel = 1;  ///< octal name
constexpr int On = 2;       ///< ON position, or ON division of a pulse train
constexpr int Off = 3;      ///< OFF position, or OFF division of a pulse train
constexpr int Start = 4;    ///< START division of a pulse train
constexpr int Setpoint = 5; ///< index within the channel
} // namespace TimingEntryIndex

/// One setpoint entry.
struct TimingEntry {
    const char* meaning; ///< caption of its frame, or text of its label
    int label;           ///< index of its lblTmg, -1 where the frame tells what it is
    EntryLimits limits;  ///< at start
    int frame;           ///< index of the fraTmg that holds it
    bool isPosition;     ///< its upper end follows the scale: ScaleFactor - 1
};

/// The setpoint entry of an index, 0 to 5.
const TimingEntry& SetpointEntry(int index);

/// Title of the message that refuses the text of a setpoint entry, whichever of the six it is.
inline constexpr char setpointEntryTitle[] = "Resolver Offset";
