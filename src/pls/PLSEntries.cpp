#include "pls/PLSEntries.h"

#include <array>

namespace {
constexpr EntryLimits milliseconds{0, 255};
constexpr EntryLimits standardPosition{0, 511};
constexpr EntryLimits thresholdRpm{0, 5999};
constexpr EntryLimits cyclePosition{0, 4095};

constexpr std::array<PLSEntry, plsEntryCount> configEntries{{
    {"Scale Factor (2-4096):", {2, 4096}, 0, {&PLSRecord::ScaleFactor}},
    {"PLS Program (0-7):", {0, 7}, 0, {&PLSRecord::PLSProgram}},
    {"CH00 (0-255 msec):", milliseconds, 1, SpeedCompField(0)},
    {"CH01 (0-255 msec):", milliseconds, 1, SpeedCompField(1)},
    {"CH02 (0-255 msec):", milliseconds, 1, SpeedCompField(2)},
    {"CH03 (0-255 msec):", milliseconds, 1, SpeedCompField(3)},
    {"CH04 (0-255 msec):", milliseconds, 1, SpeedCompField(4)},
    {"CH05 (0-255 msec):", milliseconds, 1, SpeedCompField(5)},
    {"CH06 (0-255 msec):", milliseconds, 1, SpeedCompField(6)},
    {"CH07 (0-255 msec):", milliseconds, 1, SpeedCompField(7)},
    {"Scale Factor (2-512):", {2, 512}, 5, {&PLSRecord::ScaleFactor}},
    {"Remote Display Strobe Preset (2.5msec TB):", {1, 255}, 5, {&PLSRecord::StrobePreset}},
    {"Desired Stop Location:", standardPosition, 6, {&PLSRecord::StopLocation}},
    {"Allowed Stopping Error +-:", {0, 255}, 6, {&PLSRecord::StopError}},
    {"Timing Signal Width:", {0, 254}, 6, {&PLSRecord::SignalWidth}},
    {"Compensation Enable Window:", standardPosition, 6, {&PLSRecord::WindowOn}},
    {"X:", standardPosition, 6, {&PLSRecord::WindowOff}},
    {"Low Speed Threshold:", thresholdRpm, 7, {&PLSRecord::LowThreshold}},
    {"High Speed Threshold:", thresholdRpm, 7, {&PLSRecord::HighThreshold}},
}};

constexpr std::array<TimingEntry, timingEntryCount> setpointEntries{{
    {"Resolver Offset", -1, {0, 359}, 3, true},
    {"PLS Channel", -1, {0, 77}, 4, false},
    {"ON", 0, cyclePosition, 8, true},
    {"OFF", 1, cyclePosition, 8, true},
    {"START", 2, cyclePosition, 8, true},
    {"SETPOINT", 3, {0, 2048}, 8, false},
}};
} // namespace

const PLSEntry& ConfigEntry(int index) {
    return configEntries.at(static_cast<std::size_t>(index));
}

bool IsR6500Entry(int index) {
    return index <= PLSEntryIndex::LastSpeedComp;
}

qint16 ReadConfigEntry(const PLSRecord& record, int index) {
    return ConfigEntry(index).field.Of(record);
}

void StoreConfigEntry(PLSRecord& record, int index, qint16 value) {
    ConfigEntry(index).field.Of(record) = value;
}

const TimingEntry& SetpointEntry(int index) {
    return setpointEntries.at(static_cast<std::size_t>(index));
}
