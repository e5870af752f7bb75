#pragma once

#include "programset/PLSRecord.h"
#include <array>

/// How scale, channel count and PLS program limit each other. A board has a fixed store: the more
/// divisions a cycle has, the fewer channels and programs fit. Half the channels go with twice the
/// divisions: 64 with up to 511, 8 with up to 4096. What fits beyond that are further programs.

/// Highest octal name of a channel: 7, 17, 37 or 77 for 8, 16, 32 or 64 channels; 7 for any other
/// count. The upper end of the channel entry (updTmg 1).
int HighestChannelName(int channels);
/// Upper end of the position entries (updTmg 0, 2, 3, 4; standard layout also updPLS_CFG 12, 15,
/// 16): scale - 1, never under 0.
int HighestPosition(int scaleFactor);

// R6500 layout.

constexpr std::size_t plsChanOptionCount = 4;
/// Which of optPlsChan 0 to 3 (8, 16, 32 and 64 channels) can be chosen.
using PLSChanOptions = std::array<bool, plsChanOptionCount>;

/// What the configuration controls of the R6500 layout hold. The first three are fields of
/// PLSRecord; the view shows `scale` and `program` in entries 0 and 1.
struct R6500Coupling {
    int scale = 0;                   ///< ScaleFactor, 2 to 4096
    int program = 0;                 ///< PLSProgram, 0 to 7
    int channels = 0;                ///< Channels
    int option = -1;                 ///< selected optPlsChan, -1 for none
    PLSChanOptions optionEnabled{};  ///< optPlsChan 0 to 3
    int scaleMax = 4096;             ///< Max of entry 0
    int programMax = 7;              ///< Max of entry 1
    int channelMax = 77;             ///< Max of updTmg 1: octal digits in decimal look
    int positionMax = 359;           ///< Max of updTmg 0, 2, 3 and 4
    bool channelEntryToZero = false; ///< an option was clicked: the channel up-down becomes 0

    bool operator==(const R6500Coupling&) const = default;
};

/// The controls for a record as it was read from a board. Nothing is corrected: a channel count
/// that no option has selects 8 channels and stays as read, a scale too high for its channels
/// stays as read. The record's values are the board's; showing them must never change them.
R6500Coupling ShowR6500(const PLSRecord& record);
/// The controls with scale, program and channels of a record, and all else as it was.
R6500Coupling WithFieldsOf(const PLSRecord& record, R6500Coupling controls);
/// Entry 0 was accepted with `scale`. An option that no longer fits gives way to the largest that
/// does, exactly as if the user had clicked it. The upper end of entry 1 stays: only a click of an
/// option sets it.
R6500Coupling ScaleStored(R6500Coupling controls, int scale);
/// Entry 1 was accepted with `program`.
R6500Coupling ProgramStored(R6500Coupling controls, int program);
/// optPlsChan 0 to 3 was clicked: channels and upper ends are set, then scale and program are cut
/// down to theirs, and the channel entry goes to 0.
R6500Coupling PLSChanClicked(R6500Coupling controls, int option);
/// Writes ScaleFactor, PLSProgram and Channels into the record.
void StoreCoupling(const R6500Coupling& controls, PLSRecord& record);

/// optPlsChan that a scale allows. 8 channels always fit.
PLSChanOptions OptionsForScale(int scale);
// These raise std::out_of_range for an option that is not 0 to 3.

/// Upper end of entry 0 for an option: 4096, 2047, 1023 or 511.
int ScaleMaxOf(int option);
/// Upper end of entry 1 for an option and a scale: 7, 3, 1 or 0.
int ProgramMaxOf(int option, int scale);
/// Channel count of an option: 8, 16, 32 or 64.
int ChannelsOf(int option);

// Standard layout.

/// Scale, and the positions that must stay below it. Fields of PLSRecord, shown in entries 10, 12,
/// 15 and 16.
struct StandardPositions {
    int scale = 0;        ///< ScaleFactor, 2 to 512
    int stopLocation = 0; ///< division, as the two below
    int windowOn = 0;
    int windowOff = 0;

    bool operator==(const StandardPositions&) const = default;
};

/// Entry 10 was accepted with `scale`: positions at or above it come down to scale - 1, which is
/// now the upper end of their entries (HighestPosition).
StandardPositions ScaleStored(StandardPositions positions, int scale);
/// Scale and positions of a record.
StandardPositions PositionsOf(const PLSRecord& record);
/// Writes scale and positions into the record; each must fit 16 bits.
void StorePositions(const StandardPositions& positions, PLSRecord& record);

/// Channel count of optR6PlsChan 0 or 1: 16 or 32. The upper end of the channel entry is its
/// HighestChannelName; after a click the channel up-down becomes 0.
int StandardChannelsOf(int option);
/// optR6PlsChan that shows a channel count: 1 from 32 on, else 0.
int StandardOptionFor(int channels);
