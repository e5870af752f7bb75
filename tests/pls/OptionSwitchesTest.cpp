#include "pls/OptionSwitches.h"

#include <gtest/gtest.h>

namespace {
PLSRecord AllSet() {
    PLSRecord record;
    record.ScaleFactor = 360;
    record.OptionFlags = PLSOption::BrakeWearCompensation | PLSOption::SpeedWindow;
    record.StrobePreset = 9;
    record.StopLocation = 11;
    record.StopError = 12;
    record.SignalWidth = 13;
    record.WindowOn = 14;
    record.WindowOff = 15;
    record.LowThreshold = 16;
    record.HighThreshold = 17;
    return record;
}
} // namespace

TEST(OptionSwitches, ClearingBrakeWearSetsWindowOffToScaleLessOneAndTheFourOthersToZero) {
    PLSRecord record = AllSet();
    SwitchClicked(record, brakeWearSwitch, false, true);
    PLSRecord expected = AllSet();
    expected.OptionFlags = PLSOption::SpeedWindow;
    expected.StopLocation = expected.StopError = expected.SignalWidth = expected.WindowOn = 0;
    expected.WindowOff = 359;
    EXPECT_EQ(record, expected);
}

TEST(OptionSwitches, ClearingTheSpeedWindowSetsBothThresholdsToZero) {
    PLSRecord record = AllSet();
    SwitchClicked(record, speedWindowSwitch, false, true);
    PLSRecord expected = AllSet();
    expected.OptionFlags = PLSOption::BrakeWearCompensation;
    expected.LowThreshold = expected.HighThreshold = 0;
    EXPECT_EQ(record, expected);
}

TEST(OptionSwitches, CheckingSetsItsBitAndKeepsTheEntries) {
    for (const OptionSwitch& option : {brakeWearSwitch, speedWindowSwitch}) {
        PLSRecord record = AllSet();
        record.OptionFlags = 0;
        PLSRecord expected = record;
        SwitchClicked(record, option, true, true);
        expected.OptionFlags = option.bit;
        EXPECT_EQ(record, expected);
        EXPECT_TRUE(IsSwitchedOn(record, option));
    }
}

TEST(OptionSwitches, DoNothingBeforeTheFirstPassOnline) {
    for (const OptionSwitch& option : {brakeWearSwitch, speedWindowSwitch}) {
        PLSRecord record = AllSet();
        SwitchClicked(record, option, false, false);
        EXPECT_EQ(record, AllSet());
        record.OptionFlags = 0;
        SwitchClicked(record, option, true, false);
        EXPECT_FALSE(IsSwitchedOn(record, option));
    }
}

TEST(OptionSwitches, AreTheTwoLowBitsOfTheFlags) {
    PLSRecord record;
    record.OptionFlags = 1;
    EXPECT_TRUE(IsSwitchedOn(record, brakeWearSwitch));
    EXPECT_FALSE(IsSwitchedOn(record, speedWindowSwitch));
    record.OptionFlags = 2;
    EXPECT_FALSE(IsSwitchedOn(record, brakeWearSwitch));
    EXPECT_TRUE(IsSwitchedOn(record, speedWindowSwitch));
}
