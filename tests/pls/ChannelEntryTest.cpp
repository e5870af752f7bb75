#include "pls/ChannelEntry.h"

#include <gtest/gtest.h>

namespace {
Setpoint OnOff(int on, int off) {
    return {static_cast<qint16>(off), static_cast<qint16>(on)};
}

// Each channel holds one setpoint that names it: ON = 100 + binary number.
PLSRecord Numbered() {
    PLSRecord record;
    for (int channel = 0; channel < plsChannelPlaces; ++channel)
        record.Chan[static_cast<std::size_t>(channel)] = {OnOff(100 + channel, 300)};
    return record;
}
} // namespace

TEST(ChannelEntry, TheUpArrowSkipsTheDigitsThatOctalHasNot) {
    EXPECT_EQ(OctalStep(7 + 1), 10);
    EXPECT_EQ(OctalStep(17 + 1), 20);
    EXPECT_EQ(OctalStep(67 + 1), 70);
    EXPECT_EQ(OctalStep(77), 77); // the maximum: the up-down itself stops there
}

TEST(ChannelEntry, TheDownArrowSkipsTheDigitsThatOctalHasNot) {
    EXPECT_EQ(OctalStep(10 - 1), 7);
    EXPECT_EQ(OctalStep(70 - 1), 67);
}

TEST(ChannelEntry, Typing18Gives20AndTyping19Gives17) {
    EXPECT_EQ(OctalStep(18), 20);
    EXPECT_EQ(OctalStep(19), 17);
}

TEST(ChannelEntry, EveryNumberBecomesAnOctalNameAndOctalNamesStay) {
    for (int number = 0; number <= 77; ++number) {
        const int name = OctalStep(number);
        EXPECT_LE(name % 10, 7) << number;
        EXPECT_LE(name, 77) << number;
        if (number % 10 <= 7) {
            EXPECT_EQ(name, number);
        }
    }
}

TEST(ChannelEntry, ShowsTheFirstSetpointOfTheChannelNamed) {
    PLSRecord record = Numbered();
    record.Chan[8] = {OnOff(10, 20), OnOff(30, 40), OnOff(50, 60)};
    const ChannelEntered entered = ValidateChannelEntry(record, 10);
    EXPECT_EQ(entered.name, 10);
    EXPECT_EQ(entered.shown, (ShownSetpoint{8, 0, 2, OnOff(10, 20)}));
}

TEST(ChannelEntry, TheSetpointShownBelongsToTheNumberBeforeTheCorrection) {
    const PLSRecord record = Numbered();
    const ChannelEntered up = ValidateChannelEntry(record, 8); // the up arrow from 7
    EXPECT_EQ(up.name, 10);
    EXPECT_EQ(up.shown, (ShownSetpoint{8, 0, 0, OnOff(108, 300)}));
    const ChannelEntered down = ValidateChannelEntry(record, 9); // the down arrow from 10
    EXPECT_EQ(down.name, 7);
    EXPECT_EQ(down.shown, (ShownSetpoint{9, 0, 0, OnOff(109, 300)}));
}

TEST(ChannelEntry, AnEmptyChannelShowsNothing) {
    EXPECT_EQ(ValidateChannelEntry(PLSRecord(), 5).shown, (ShownSetpoint{5, 0, 0, std::nullopt}));
}

TEST(ChannelEntry, ShowsTheSetpointOfAnIndex) {
    PLSRecord record;
    record.Chan[3] = {OnOff(10, 20), OnOff(30, 40)};
    EXPECT_EQ(ShowSetpoint(record, 3, 1), (ShownSetpoint{3, 1, 1, OnOff(30, 40)}));
    EXPECT_EQ(ShowSetpoint(record, 3, 2), (ShownSetpoint{3, 2, 1, std::nullopt}));
    EXPECT_EQ(ShowSetpoint(record, 3, -1), (ShownSetpoint{3, -1, 1, std::nullopt}));
}

TEST(ChannelEntry, AChannelThatNoBoardHasShowsNothing) {
    const PLSRecord record = Numbered();
    for (const int channel : {-1, 64, 32767})
        EXPECT_EQ(ShowSetpoint(record, channel, 0), (ShownSetpoint{channel, 0, 0, std::nullopt}));
}
