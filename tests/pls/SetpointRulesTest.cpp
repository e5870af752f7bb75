#include "pls/SetpointRules.h"

#include "pls/SetpointTexts.h"
#include <gtest/gtest.h>

namespace {
// ON first, as the screen shows it.
Setpoint OnOff(int on, int off) {
    return {static_cast<qint16>(off), static_cast<qint16>(on)};
}

// Whether one end lies inside, worked out by walking the existing span division by division.
bool Walked(Setpoint existing, int end, int scale) {
    if (existing.on == existing.off)
        return false;
    for (int at = existing.on;; at = (at + 1) % scale) {
        if (at == end)
            return true;
        if (at == existing.off)
            return false;
    }
}
} // namespace

TEST(SetpointOverlaps, AgreesWithAWalkAlongTheCycleForEveryPairOfSetpoints) {
    constexpr int scale = 12;
    for (int on = 0; on < scale; ++on) {
        for (int off = 0; off < scale; ++off) {
            const Setpoint existing = OnOff(on, off);
            for (int newOn = 0; newOn < scale; ++newOn) {
                for (int newOff = 0; newOff < scale; ++newOff) {
                    const bool inside =
                        Walked(existing, newOn, scale) || Walked(existing, newOff, scale);
                    ASSERT_EQ(SetpointOverlaps(existing, OnOff(newOn, newOff), scale), inside)
                        << on << " to " << off << ", new " << newOn << " to " << newOff;
                }
            }
        }
    }
}

TEST(SetpointOverlaps, Existing10To20OverlapsNew20To30ButNot21To30) {
    EXPECT_TRUE(SetpointOverlaps(OnOff(10, 20), OnOff(20, 30), 360));
    EXPECT_FALSE(SetpointOverlaps(OnOff(10, 20), OnOff(21, 30), 360));
    EXPECT_TRUE(SetpointOverlaps(OnOff(10, 20), OnOff(5, 10), 360));
    EXPECT_FALSE(SetpointOverlaps(OnOff(10, 20), OnOff(5, 9), 360));
}

TEST(SetpointOverlaps, ExistingAcrossZeroOverlapsNew355To358ButNot11To349) {
    EXPECT_TRUE(SetpointOverlaps(OnOff(350, 10), OnOff(355, 358), 360));
    EXPECT_FALSE(SetpointOverlaps(OnOff(350, 10), OnOff(11, 349), 360));
}

TEST(SetpointOverlaps, ACandidateAroundAnExistingSetpointPasses) {
    EXPECT_FALSE(SetpointOverlaps(OnOff(10, 20), OnOff(5, 25), 360));
}

TEST(SetpointOverlaps, APlaceholderOverlapsNothing) {
    EXPECT_FALSE(SetpointOverlaps(OnOff(0, 0), OnOff(0, 10), 360));
    EXPECT_FALSE(SetpointOverlaps(OnOff(7, 7), OnOff(7, 10), 360));
}

TEST(SetpointOverlaps, APositionAtOrAboveTheScaleIsNotInsideASetpointAcrossZero) {
    EXPECT_TRUE(SetpointOverlaps(OnOff(350, 10), OnOff(359, 340), 360));
    EXPECT_FALSE(SetpointOverlaps(OnOff(350, 10), OnOff(360, 340), 360));
    EXPECT_FALSE(SetpointOverlaps(OnOff(350, 10), OnOff(-1, 340), 360));
}

TEST(SetpointRules, AddWithOnEqualOffGivesItsMessageWhateverTheRest) {
    const SetpointRefusal expected{QStringLiteral("ON Setpoint cannot Equal OFF Setpoint"),
                                   QStringLiteral("Add Setpoint")};
    EXPECT_EQ(RefusesAdd({}, OnOff(5, 5), 360), expected);
    EXPECT_EQ(RefusesAdd({OnOff(0, 0)}, OnOff(0, 0), 360), expected);
    EXPECT_EQ(RefusesAdd({OnOff(1, 9)}, OnOff(5, 5), 360), expected); // overlaps too
}

TEST(SetpointRules, AddRefusesAnOverlapWithAnySetpointOfTheChannel) {
    const SetpointList channel{OnOff(10, 20), OnOff(100, 120), OnOff(350, 5)};
    const SetpointRefusal expected{QStringLiteral("Setpoint overlaped with existing setpoint."),
                                   QStringLiteral("Add Setpoint")};
    EXPECT_EQ(RefusesAdd(channel, OnOff(20, 30), 360), expected);
    EXPECT_EQ(RefusesAdd(channel, OnOff(90, 100), 360), expected);
    EXPECT_EQ(RefusesAdd(channel, OnOff(30, 355), 360), expected);
    EXPECT_EQ(RefusesAdd(channel, OnOff(30, 90), 360), std::nullopt);
    EXPECT_EQ(RefusesAdd({OnOff(0, 0)}, OnOff(0, 90), 360), std::nullopt);
}

TEST(SetpointRules, AdjustSaysTheSameInItsOwnWords) {
    const SetpointList channel{OnOff(10, 20), OnOff(100, 120)};
    const SetpointRefusal equal{QStringLiteral("ON Setpoint cannot Equal OFF Setpoint"),
                                QStringLiteral("Setpoint Adjust")};
    const SetpointRefusal overlap{QStringLiteral("Setpoint overlap with existing setpoint."),
                                  QStringLiteral("Adjust Setpoint")};
    EXPECT_EQ(RefusesAdjust(channel, 0, OnOff(15, 15), 360), equal);
    EXPECT_EQ(RefusesAdjust(channel, 0, OnOff(15, 110), 360), overlap);
    EXPECT_EQ(RefusesAdjust(channel, 1, OnOff(15, 30), 360), overlap);
    EXPECT_EQ(RefusesAdjust(channel, 1, OnOff(110, 130), 360), std::nullopt);
}

TEST(SetpointRules, AdjustOfTheOnlySetpointNeverComparesItWithItself) {
    EXPECT_EQ(RefusesAdjust({OnOff(10, 20)}, 0, OnOff(12, 18), 360), std::nullopt);
    EXPECT_EQ(RefusesAdjust({OnOff(10, 20)}, 0, OnOff(10, 20), 360), std::nullopt);
}

TEST(SetpointRules, TheFirstAddOnAnEmptyChannelClearsIt) {
    EXPECT_TRUE(AddClearsChannel({OnOff(0, 0)}));
    EXPECT_TRUE(AddClearsChannel({OnOff(7, 7)}));
    EXPECT_FALSE(AddClearsChannel({OnOff(10, 20)}));
    EXPECT_FALSE(AddClearsChannel({OnOff(0, 0), OnOff(10, 20)})); // the last one tells
    EXPECT_TRUE(AddClearsChannel({OnOff(10, 20), OnOff(0, 0)}));
    EXPECT_FALSE(AddClearsChannel({}));
}

TEST(SetpointRules, AnAdjustWritesTheWholeChannelInListOrder) {
    const SetpointList channel{OnOff(10, 20), OnOff(200, 220), OnOff(100, 120)};
    const SetpointList expected{OnOff(10, 20), OnOff(205, 215), OnOff(100, 120)};
    EXPECT_EQ(AdjustedSetpoints(channel, 1, OnOff(205, 215)), expected);
}

TEST(SetpointRules, ASetpointThatTheChannelHasNotCannotBeAdjusted) {
    const SetpointList channel{OnOff(10, 20)};
    EXPECT_TRUE(HasSetpoint(channel, 0));
    for (const int index : {-1, 1, 2048}) {
        EXPECT_FALSE(HasSetpoint(channel, index));
        EXPECT_EQ(AdjustedSetpoints(channel, index, OnOff(1, 2)), channel);
    }
    EXPECT_FALSE(HasSetpoint({}, 0));
}

TEST(SetpointTexts, ClearingChannel7AsksWithCH0AndChannel10WithCH) {
    EXPECT_EQ(SetpointTexts::ClearChannelQuestion(7),
              QStringLiteral("You are about to Clear Channel CH07.\r\n\r\n"
                             "Do you wish to continue?"));
    EXPECT_EQ(SetpointTexts::ClearChannelQuestion(10),
              QStringLiteral("You are about to Clear Channel CH10.\r\n\r\n"
                             "Do you wish to continue?"));
}

TEST(SetpointTexts, RefusalsByTheBoardNameTheChannelUnpadded) {
    EXPECT_EQ(SetpointTexts::UnableToProgramSetpoint(7),
              QStringLiteral("Unable to Successfully Program Setpoint for Channel CH7."));
    EXPECT_EQ(SetpointTexts::UnableToProgramPulseTrain(17),
              QStringLiteral("Unable to Successfully Program Pulse Train for Channel CH17."));
}

TEST(SetpointTexts, ClearAllKeepsItsFourBlanks) {
    EXPECT_STREQ(SetpointTexts::clearAll, "You are about to Clear ALL PLS Channels.    \r\n\r\n"
                                          "Do you wish to continue?");
}
