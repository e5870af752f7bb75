#include "pls/MachineMotion.h"

#include <gtest/gtest.h>

namespace {
void ExpectMotion(const MachineMotion& motion, bool stopped, bool justStopped, bool justStarted) {
    EXPECT_EQ(motion.MachineStopped(), stopped);
    EXPECT_EQ(motion.JustStopped(), justStopped);
    EXPECT_EQ(motion.JustStarted(), justStarted);
}
} // namespace

TEST(MachineMotion, AFirstSpeedOfZeroCountsAsJustStopped) {
    MachineMotion motion;
    ExpectMotion(motion, false, false, false);
    motion.SpeedRead(0);
    ExpectMotion(motion, true, true, false);
}

TEST(MachineMotion, AFirstSpeedAboveZeroIsNoStart) {
    MachineMotion motion;
    motion.SpeedRead(120);
    ExpectMotion(motion, false, false, false);
}

TEST(MachineMotion, StoppingAndStartingAreToldOnce) {
    MachineMotion motion;
    motion.SpeedRead(1);
    motion.SpeedRead(0);
    ExpectMotion(motion, true, true, false);
    motion.SpeedRead(0);
    ExpectMotion(motion, true, false, false);
    motion.SpeedRead(1);
    ExpectMotion(motion, false, false, true);
    motion.SpeedRead(500);
    ExpectMotion(motion, false, false, false);
}

TEST(MachineMotion, ClearingForgetsThatTheMachineStood) {
    MachineMotion motion;
    motion.SpeedRead(0);
    motion.Clear();
    ExpectMotion(motion, false, false, false);
    motion.SpeedRead(0);
    EXPECT_TRUE(motion.JustStopped());
}

TEST(MachineTexts, AtExactly50RpmThePositionIsReadAndAt51ItShows888) {
    EXPECT_TRUE(MachineTexts::ReadsPosition(0));
    EXPECT_TRUE(MachineTexts::ReadsPosition(50));
    EXPECT_FALSE(MachineTexts::ReadsPosition(51));
    EXPECT_STREQ(MachineTexts::fastPosition, "Position: 888");
}

TEST(MachineTexts, PanelsShowWhatWasRead) {
    EXPECT_EQ(MachineTexts::Speed(12), QStringLiteral("RPM: 12"));
    EXPECT_EQ(MachineTexts::Position(QStringLiteral("359")), QStringLiteral("Position: 359"));
    EXPECT_EQ(MachineTexts::Offset(QStringLiteral("7")), QStringLiteral("Offset: 7"));
    EXPECT_EQ(MachineTexts::Scale(360), QStringLiteral("Scale: 360"));
}
