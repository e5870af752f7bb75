#include "pls/PLSEntries.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace {
struct Row {
    const char* label;
    int min;
    int max;
    int frame;
    qint16& (*field)(PLSRecord&);
};

template <std::size_t channel>
qint16& Comp(PLSRecord& record) {
    return record.SpeedComp[channel];
}
template <qint16 PLSRecord::*member>
qint16& Member(PLSRecord& record) {
    return record.*member;
}

const Row rows[] = {
    {"Scale Factor (2-4096):", 2, 4096, 0, Member<&PLSRecord::ScaleFactor>},
    {"PLS Program (0-7):", 0, 7, 0, Member<&PLSRecord::PLSProgram>},
    {"CH00 (0-255 msec):", 0, 255, 1, Comp<0>},
    {"CH01 (0-255 msec):", 0, 255, 1, Comp<1>},
    {"CH02 (0-255 msec):", 0, 255, 1, Comp<2>},
    {"CH03 (0-255 msec):", 0, 255, 1, Comp<3>},
    {"CH04 (0-255 msec):", 0, 255, 1, Comp<4>},
    {"CH05 (0-255 msec):", 0, 255, 1, Comp<5>},
    {"CH06 (0-255 msec):", 0, 255, 1, Comp<6>},
    {"CH07 (0-255 msec):", 0, 255, 1, Comp<7>},
    {"Scale Factor (2-512):", 2, 512, 5, Member<&PLSRecord::ScaleFactor>},
    {"Remote Display Strobe Preset (2.5msec TB):", 1, 255, 5, Member<&PLSRecord::StrobePreset>},
    {"Desired Stop Location:", 0, 511, 6, Member<&PLSRecord::StopLocation>},
    {"Allowed Stopping Error +-:", 0, 255, 6, Member<&PLSRecord::StopError>},
    {"Timing Signal Width:", 0, 254, 6, Member<&PLSRecord::SignalWidth>},
    {"Compensation Enable Window:", 0, 511, 6, Member<&PLSRecord::WindowOn>},
    {"X:", 0, 511, 6, Member<&PLSRecord::WindowOff>},
    {"Low Speed Threshold:", 0, 5999, 7, Member<&PLSRecord::LowThreshold>},
    {"High Speed Threshold:", 0, 5999, 7, Member<&PLSRecord::HighThreshold>},
};
} // namespace

TEST(PLSEntries, EachHasItsLabelLimitsAndFrame) {
    ASSERT_EQ(std::size(rows), static_cast<std::size_t>(plsEntryCount));
    for (int index = 0; index < plsEntryCount; ++index) {
        const PLSEntry& entry = ConfigEntry(index);
        EXPECT_STREQ(entry.label, rows[index].label);
        EXPECT_EQ(entry.limits, (EntryLimits{rows[index].min, rows[index].max})) << index;
        EXPECT_EQ(entry.frame, rows[index].frame) << index;
        EXPECT_EQ(IsR6500Entry(index), index < 10) << index;
    }
}

TEST(PLSEntries, StoringChangesTheFieldOfTheEntryAndNoOther) {
    for (int index = 0; index < plsEntryCount; ++index) {
        PLSRecord stored;
        StoreConfigEntry(stored, index, 123);
        EXPECT_EQ(ReadConfigEntry(stored, index), 123) << index;
        PLSRecord expected;
        rows[index].field(expected) = 123;
        EXPECT_EQ(stored, expected) << index;
    }
}

TEST(PLSEntries, TheScaleLabelsTellTheRangeOfTheirLayout) {
    EXPECT_STREQ(ConfigEntry(PLSEntryIndex::Scale).label, "Scale Factor (2-4096):");
    EXPECT_STREQ(ConfigEntry(PLSEntryIndex::StandardScale).label, "Scale Factor (2-512):");
}

TEST(PLSEntries, TheLabelOfEntry16IsX) {
    EXPECT_STREQ(ConfigEntry(PLSEntryIndex::WindowOff).label, "X:");
}

TEST(PLSEntries, SetpointEntriesHaveTheirLimitsAndPlaces) {
    struct {
        const char* meaning;
        int label;
        EntryLimits limits;
        int frame;
        bool isPosition;
    } const expected[] = {
        {"Resolver Offset", -1, {0, 359}, 3, true},
        {"PLS Channel", -1, {0, 77}, 4, false},
        {"ON", 0, {0, 4095}, 8, true},
        {"OFF", 1, {0, 4095}, 8, true},
        {"START", 2, {0, 4095}, 8, true},
        {"SETPOINT", 3, {0, 2048}, 8, false},
    };
    ASSERT_EQ(std::size(expected), static_cast<std::size_t>(timingEntryCount));
    for (int index = 0; index < timingEntryCount; ++index) {
        const TimingEntry& entry = SetpointEntry(index);
        EXPECT_STREQ(entry.meaning, expected[index].meaning);
        EXPECT_EQ(entry.label, expected[index].label) << index;
        EXPECT_EQ(entry.limits, expected[index].limits) << index;
        EXPECT_EQ(entry.frame, expected[index].frame) << index;
        EXPECT_EQ(entry.isPosition, expected[index].isPosition) << index;
    }
}
