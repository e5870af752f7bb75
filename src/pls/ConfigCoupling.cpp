#include "pls/ConfigCoupling.h"

#include "link/MarkHex.h"
#include <algorithm>

namespace {
struct OptionRow {
    int channels;
    int scaleMax;
    std::array<int, 4> programMax; ///< by scale: under 512, 1024, 2048, and above
};

constexpr std::array<OptionRow, plsChanOptionCount> optionRows{{
    {8, 4096, {7, 3, 1, 0}},
    {16, 2047, {3, 1, 0, 0}},
    {32, 1023, {1, 0, 0, 0}},
    {64, 511, {0, 0, 0, 0}},
}};

// Scales from which a column of programMax begins.
constexpr std::array<int, 3> columnStarts{512, 1024, 2048};

const OptionRow& RowOf(int option) {
    return optionRows.at(static_cast<std::size_t>(option));
}

// 0 for a scale under 512, 3 from 2048 on: also the number of options that the scale rules out.
int ColumnOf(int scale) {
    const auto start = std::upper_bound(columnStarts.begin(), columnStarts.end(), scale);
    return static_cast<int>(start - columnStarts.begin());
}

int LargestOptionFor(int scale) {
    return static_cast<int>(plsChanOptionCount) - 1 - ColumnOf(scale);
}

// The option of a channel count that a board gave.
int OptionShowing(int channels) {
    for (int option = 0; option < static_cast<int>(plsChanOptionCount); ++option) {
        if (RowOf(option).channels == channels)
            return option;
    }
    return 0;
}

void SetUpperEnds(R6500Coupling& controls) {
    controls.channelMax = HighestChannelName(ChannelsOf(controls.option));
    controls.scaleMax = ScaleMaxOf(controls.option);
    controls.programMax = ProgramMaxOf(controls.option, controls.scale);
}

void FitToScale(R6500Coupling& controls) {
    controls.positionMax = HighestPosition(controls.scale);
    controls.optionEnabled = OptionsForScale(controls.scale);
}
} // namespace

int HighestChannelName(int channels) {
    return Dec2Octal(static_cast<qint16>(RowOf(OptionShowing(channels)).channels - 1));
}

int HighestPosition(int scaleFactor) {
    return std::max(scaleFactor - 1, 0);
}

R6500Coupling ShowR6500(const PLSRecord& record) {
    R6500Coupling controls = WithFieldsOf(record, {});
    controls.option = OptionShowing(record.Channels);
    SetUpperEnds(controls);
    FitToScale(controls);
    return controls;
}

R6500Coupling WithFieldsOf(const PLSRecord& record, R6500Coupling controls) {
    controls.scale = record.ScaleFactor;
    controls.program = record.PLSProgram;
    controls.channels = record.Channels;
    return controls;
}

R6500Coupling ScaleStored(R6500Coupling controls, int scale) {
    controls.scale = scale;
    FitToScale(controls);
    const int largest = LargestOptionFor(scale);
    const bool noneSelected = controls.option < 0 && largest == 0;
    if (controls.option > largest || noneSelected)
        return PLSChanClicked(controls, largest);
    return controls;
}

R6500Coupling ProgramStored(R6500Coupling controls, int program) {
    controls.program = program;
    return controls;
}

R6500Coupling PLSChanClicked(R6500Coupling controls, int option) {
    controls.option = option;
    controls.channels = ChannelsOf(option);
    SetUpperEnds(controls);
    if (controls.scale > controls.scaleMax)
        controls = ScaleStored(controls, controls.scaleMax);
    controls.program = std::min(controls.program, controls.programMax);
    controls.channelEntryToZero = true;
    return controls;
}

void StoreCoupling(const R6500Coupling& controls, PLSRecord& record) {
    record.ScaleFactor = static_cast<qint16>(controls.scale);
    record.PLSProgram = static_cast<qint16>(controls.program);
    record.Channels = static_cast<qint16>(controls.channels);
}

PLSChanOptions OptionsForScale(int scale) {
    PLSChanOptions enabled{};
    for (std::size_t option = 0; option < enabled.size(); ++option)
        enabled[option] = static_cast<int>(option) <= LargestOptionFor(scale);
    return enabled;
}

int ScaleMaxOf(int option) {
    return RowOf(option).scaleMax;
}

int ProgramMaxOf(int option, int scale) {
    return RowOf(option).programMax[static_cast<std::size_t>(ColumnOf(scale))];
}

int ChannelsOf(int option) {
    return RowOf(option).channels;
}

StandardPositions ScaleStored(StandardPositions positions, int scale) {
    const int highest = HighestPosition(scale);
    positions.scale = scale;
    positions.stopLocation = std::min(positions.stopLocation, highest);
    positions.windowOn = std::min(positions.windowOn, highest);
    positions.windowOff = std::min(positions.windowOff, highest);
    return positions;
}

StandardPositions PositionsOf(const PLSRecord& record) {
    return {record.ScaleFactor, record.StopLocation, record.WindowOn, record.WindowOff};
}

void StorePositions(const StandardPositions& positions, PLSRecord& record) {
    record.ScaleFactor = static_cast<qint16>(positions.scale);
    record.StopLocation = static_cast<qint16>(positions.stopLocation);
    record.WindowOn = static_cast<qint16>(positions.windowOn);
    record.WindowOff = static_cast<qint16>(positions.windowOff);
}

int StandardChannelsOf(int option) {
    return option == 1 ? 32 : 16;
}

int StandardOptionFor(int channels) {
    return channels >= 32 ? 1 : 0;
}
