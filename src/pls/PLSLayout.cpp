#include "pls/PLSLayout.h"

#include "pls/PLSBoards.h"
#include <algorithm>

namespace {
using R = PLSRecord;

constexpr PLSField channels{&R::Channels};
constexpr PLSField scaleFactor{&R::ScaleFactor};
constexpr PLSField plsProgram{&R::PLSProgram};
constexpr PLSField optionFlags{&R::OptionFlags};
constexpr PLSField strobePreset{&R::StrobePreset};
constexpr PLSField stopLocation{&R::StopLocation};
constexpr PLSField stopError{&R::StopError};
constexpr PLSField signalWidth{&R::SignalWidth};
constexpr PLSField windowOn{&R::WindowOn};
constexpr PLSField windowOff{&R::WindowOff};
constexpr PLSField lowThreshold{&R::LowThreshold};
constexpr PLSField highThreshold{&R::HighThreshold};

constexpr qint16 scalePreset = 360; // divisions: degrees of a turn
constexpr bool word = true;

constexpr qint16 standardCounts[] = {16, 32};
constexpr PCFColumn standardColumns[] = {
    // field, column, width, min, max, preset
    {channels, 1, 2, 16, 32, 16},
    {scaleFactor, 3, 3, 2, 512, scalePreset},
    {optionFlags, 6, 1, 0, PLSOption::BrakeWearCompensation | PLSOption::SpeedWindow, 0},
    {strobePreset, 7, 3, 1, 255, 1},
    {stopLocation, 10, 3, 0, 511, 0},
    {stopError, 13, 3, 0, 255, 0},
    {signalWidth, 16, 3, 0, 254, 0},
    {windowOn, 19, 3, 0, 511, 0},
    {windowOff, 22, 3, 0, 511, 0},
    {lowThreshold, 25, 4, 0, 5999, 0},
    {highThreshold, 29, 4, 0, 5999, 0},
};
// The board takes the compensation window twice.
constexpr PLSTableEntry standardSent[] = {
    {optionFlags, 0},         {strobePreset, 1},         {stopLocation, 2, word},
    {stopError, 4},           {signalWidth, 5},          {windowOn, 6, word},
    {windowOff, 8, word},     {windowOn, 10, word},      {windowOff, 12, word},
    {lowThreshold, 14, word}, {highThreshold, 16, word}, {channels, 18},
};
// The channel count stands at position 5, but only of the R6041: ApplyPLSConfig sees to it.
constexpr PLSTableEntry standardReceived[] = {
    {lowThreshold, 0, word}, {highThreshold, 2, word}, {optionFlags, 4},
    {stopLocation, 6, word}, {stopError, 8},           {signalWidth, 9},
    {windowOn, 10, word},    {windowOff, 12, word},    {strobePreset, 18},
};

constexpr qint16 r6500Counts[] = {8, 16, 32, 64};
constexpr PCFColumn r6500Columns[] = {
    {channels, 1, 2, 8, 64, 8},
    {scaleFactor, 3, 4, 2, 4096, scalePreset},
    {plsProgram, 7, 1, 0, 7, 0},
    {SpeedCompField(0), 8, 3, 0, 255, 0},
    {SpeedCompField(1), 11, 3, 0, 255, 0},
    {SpeedCompField(2), 14, 3, 0, 255, 0},
    {SpeedCompField(3), 17, 3, 0, 255, 0},
    {SpeedCompField(4), 20, 3, 0, 255, 0},
    {SpeedCompField(5), 23, 3, 0, 255, 0},
    {SpeedCompField(6), 26, 3, 0, 255, 0},
    {SpeedCompField(7), 29, 3, 0, 255, 0},
};
// Blocks of six with a gap at the end of the first.
constexpr PLSTableEntry r6500Sent[] = {
    {plsProgram, 0},        {SpeedCompField(0), 1}, {SpeedCompField(1), 2}, {SpeedCompField(2), 3},
    {SpeedCompField(3), 4}, {SpeedCompField(4), 6}, {SpeedCompField(5), 7}, {SpeedCompField(6), 8},
    {SpeedCompField(7), 9}, {channels, 18},
};
constexpr PLSTableEntry r6500Received[] = {
    {channels, 0},          {plsProgram, 1},        {SpeedCompField(0), 2}, {SpeedCompField(1), 3},
    {SpeedCompField(2), 4}, {SpeedCompField(3), 5}, {SpeedCompField(4), 6}, {SpeedCompField(5), 7},
    {SpeedCompField(6), 8}, {SpeedCompField(7), 9},
};
} // namespace

const PLSLayout standardLayout{
    false, 3, u"1:00:00:00", 14, standardCounts, standardColumns, standardSent, standardReceived};
const PLSLayout r6500Layout{true,         4,         u"1:000:000:000", 17, r6500Counts,
                            r6500Columns, r6500Sent, r6500Received};

qint16& PLSField::Of(PLSRecord& record) const {
    return member ? record.*member : record.SpeedComp.at(speedComp);
}

qint16 PLSField::Of(const PLSRecord& record) const {
    return member ? record.*member : record.SpeedComp.at(speedComp);
}

const PLSLayout& PLSLayoutOf(qint16 BoardIndex) {
    return BoardIndex == PLSBoardIndex::R6500 ? r6500Layout : standardLayout;
}

const PCFColumn* FindColumn(const PLSLayout& layout, PLSField field) {
    const auto found = std::find_if(layout.columns.begin(), layout.columns.end(),
                                    [field](const PCFColumn& it) { return it.field == field; });
    return found == layout.columns.end() ? nullptr : &*found;
}

int ChannelPlacesInUse(const PLSRecord& record) {
    return std::clamp<int>(record.Channels, 0, plsChannelPlaces);
}
