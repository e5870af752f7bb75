#include "pls/ConfigCoupling.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {
// What a click of an option sets, written out: program limits for a scale under 512, 512 to 1023,
// 1024 to 2047, 2048 and more.
constexpr int channelsOf[] = {8, 16, 32, 64};
constexpr int channelMaxOf[] = {7, 17, 37, 77};
constexpr int scaleMaxOf[] = {4096, 2047, 1023, 511};
constexpr int programMaxOf[][4] = {{7, 3, 1, 0}, {3, 1, 0, 0}, {1, 0, 0, 0}, {0, 0, 0, 0}};

int Band(int scale) {
    if (scale >= 2048)
        return 3;
    if (scale >= 1024)
        return 2;
    return scale >= 512 ? 1 : 0;
}

PLSChanOptions Enabled(int scale) {
    constexpr PLSChanOptions byBand[] = {{true, true, true, true},
                                         {true, true, true, false},
                                         {true, true, false, false},
                                         {true, false, false, false}};
    return byBand[Band(scale)];
}

void ExpectClicked(R6500Coupling& state, int option) {
    state.option = option;
    state.channels = channelsOf[option];
    state.channelMax = channelMaxOf[option];
    state.scaleMax = scaleMaxOf[option];
    state.programMax = programMaxOf[option][Band(state.scale)];
    if (state.scale > state.scaleMax) {
        state.scale = state.scaleMax;
        state.positionMax = state.scale - 1;
        state.optionEnabled = Enabled(state.scale);
    }
    if (state.program > state.programMax)
        state.program = state.programMax;
    state.channelEntryToZero = true;
}

void ExpectScale(R6500Coupling& state, int scale) {
    state.scale = scale;
    state.positionMax = scale - 1;
    state.optionEnabled = Enabled(scale);
    if (scale >= 2048) {
        if (state.option != 0)
            ExpectClicked(state, 0);
    } else if (scale >= 1024) {
        if (state.option > 1)
            ExpectClicked(state, 1);
    } else if (scale >= 512 && state.option == 3) {
        ExpectClicked(state, 2);
    }
}

R6500Coupling WithOption(int option, int scale, int program) {
    PLSRecord record;
    record.Channels = static_cast<qint16>(channelsOf[option]);
    record.ScaleFactor = static_cast<qint16>(scale);
    record.PLSProgram = static_cast<qint16>(program);
    return ShowR6500(record);
}

// Calls `check` with every option, scale and program that the entries accept; stops at a failure.
template <typename Check>
void ForWholeRange(Check check) {
    for (int option = 0; option < 4; ++option) {
        for (int scale = 2; scale <= 4096; ++scale) {
            for (int program = 0; program <= 7; ++program) {
                ASSERT_NO_FATAL_FAILURE(check(option, scale, program))
                    << "option " << option << " scale " << scale << " program " << program;
                if (testing::Test::HasFailure())
                    return;
            }
        }
    }
}
} // namespace

TEST(ConfigCoupling, AStoredScaleFitsTheOptionsOverTheWholeRange) {
    ForWholeRange([](int option, int scale, int program) {
        const R6500Coupling before = WithOption(option, 100, program);
        R6500Coupling expected = before;
        ExpectScale(expected, scale);
        const R6500Coupling stored = ScaleStored(before, scale);
        ASSERT_TRUE(stored == expected);
        ASSERT_LE(stored.scale, stored.scaleMax);
        ASSERT_TRUE(stored.optionEnabled[static_cast<std::size_t>(stored.option)]);
    });
}

TEST(ConfigCoupling, AClickedOptionLimitsScaleAndProgramOverTheWholeRange) {
    ForWholeRange([](int option, int scale, int program) {
        // From every scale, also one that the board holds against its own rules.
        for (int clicked = 0; clicked < 4; ++clicked) {
            const R6500Coupling before = WithOption(option, scale, program);
            R6500Coupling expected = before;
            ExpectClicked(expected, clicked);
            const R6500Coupling after = PLSChanClicked(before, clicked);
            ASSERT_TRUE(after == expected) << "clicked " << clicked;
            ASSERT_LE(after.scale, scaleMaxOf[clicked]);
            ASSERT_LE(after.program, programMaxOf[clicked][Band(after.scale)]);
        }
    });
}

TEST(ConfigCoupling, ShowingARecordNeverChangesItOverTheWholeRange) {
    ForWholeRange([](int option, int scale, int program) {
        const R6500Coupling shown = WithOption(option, scale, program);
        ASSERT_EQ(shown.option, option);
        ASSERT_EQ(shown.programMax, programMaxOf[option][Band(scale)]);
        ASSERT_EQ(shown.scaleMax, scaleMaxOf[option]);
        ASSERT_EQ(shown.channelMax, channelMaxOf[option]);
        ASSERT_FALSE(shown.channelEntryToZero);
        PLSRecord record;
        StoreCoupling(shown, record);
        ASSERT_EQ(record.Channels, channelsOf[option]);
        ASSERT_EQ(record.ScaleFactor, scale);
        ASSERT_EQ(record.PLSProgram, program);
    });
}

TEST(ConfigCoupling, EntryZeroTakesUpTo4096With8Channels) {
    EXPECT_EQ(WithOption(0, 360, 0).scaleMax, 4096); // 5000 is refused with 2 and 4096
}

TEST(ConfigCoupling, EntryZeroTakesUpTo511With64ChannelsAndUpTo2047With16) {
    EXPECT_EQ(PLSChanClicked(WithOption(0, 360, 0), 3).scaleMax, 511); // 2000 is refused
    EXPECT_EQ(PLSChanClicked(WithOption(0, 360, 0), 1).scaleMax, 2047);
}

TEST(ConfigCoupling, Scale2048With8ChannelsLimitsTheProgramOnlyAtTheNextOptionClick) {
    const R6500Coupling stored = ScaleStored(WithOption(0, 360, 3), 2048);
    EXPECT_EQ(stored.programMax, 7);
    EXPECT_EQ(stored.program, 3);
    EXPECT_FALSE(stored.channelEntryToZero);
    const R6500Coupling clicked = PLSChanClicked(stored, 0);
    EXPECT_EQ(clicked.programMax, 0);
    EXPECT_EQ(clicked.program, 0);
    EXPECT_TRUE(clicked.channelEntryToZero);
}

TEST(ConfigCoupling, RaisingTheScaleTo1024With32ChannelsSelects16) {
    const R6500Coupling stored = ScaleStored(WithOption(2, 360, 1), 1024);
    EXPECT_EQ(stored.option, 1);
    EXPECT_EQ(stored.channels, 16);
    EXPECT_EQ(stored.channelMax, 17);
    EXPECT_EQ(stored.scaleMax, 2047);
    EXPECT_EQ(stored.scale, 1024);
    EXPECT_EQ(stored.program, 0);
}

TEST(ConfigCoupling, AChannelCountThatNoOptionHasSelects8AndStaysAsRead) {
    for (const int channels : {0, 1, 7, 24, 65, 255}) {
        PLSRecord record;
        record.Channels = static_cast<qint16>(channels);
        record.ScaleFactor = 360;
        const R6500Coupling shown = ShowR6500(record);
        EXPECT_EQ(shown.option, 0);
        EXPECT_EQ(shown.channels, channels);
        EXPECT_EQ(shown.channelMax, 7);
    }
}

TEST(ConfigCoupling, WithNoOptionSelectedOnlyAScaleFrom2048SelectsOne) {
    EXPECT_EQ(ScaleStored(R6500Coupling(), 2047).option, -1);
    EXPECT_EQ(ScaleStored(R6500Coupling(), 2048).option, 0);
    EXPECT_EQ(ScaleStored(R6500Coupling(), 2048).channels, 8);
}

TEST(ConfigCoupling, FieldsOfARecordReplaceThoseOfTheControlsAndNothingElse) {
    PLSRecord record;
    record.Channels = 16;
    record.ScaleFactor = 400;
    record.PLSProgram = 2;
    R6500Coupling expected = WithOption(0, 360, 5);
    const R6500Coupling replaced = WithFieldsOf(record, expected);
    expected.channels = 16;
    expected.scale = 400;
    expected.program = 2;
    EXPECT_EQ(replaced, expected);
}

TEST(ConfigCoupling, AnAcceptedProgramIsStored) {
    R6500Coupling expected = WithOption(0, 360, 0);
    const R6500Coupling stored = ProgramStored(expected, 5);
    expected.program = 5;
    EXPECT_EQ(stored, expected);
}

TEST(ConfigCoupling, AStandardScalePullsStopLocationAndWindowDownOverTheWholeRange) {
    for (int scale = 2; scale <= 512; ++scale) {
        for (int position = 0; position <= 511; ++position) {
            const StandardPositions same{512, position, position, position};
            const int held = std::min(position, scale - 1);
            ASSERT_EQ(ScaleStored(same, scale), (StandardPositions{scale, held, held, held}));
        }
    }
}

TEST(ConfigCoupling, EachStandardPositionIsPulledDownForItself) {
    EXPECT_EQ(ScaleStored(StandardPositions{360, 359, 10, 100}, 100),
              (StandardPositions{100, 99, 10, 99}));
}

TEST(ConfigCoupling, StandardPositionsAreThoseOfTheRecord) {
    PLSRecord record;
    const StandardPositions positions{100, 1, 2, 3};
    StorePositions(positions, record);
    EXPECT_EQ(record.ScaleFactor, 100);
    EXPECT_EQ(record.StopLocation, 1);
    EXPECT_EQ(record.WindowOn, 2);
    EXPECT_EQ(record.WindowOff, 3);
    EXPECT_EQ(PositionsOf(record), positions);
}

TEST(ConfigCoupling, TheChannelEntryGoesToTheHighestOctalName) {
    EXPECT_EQ(HighestChannelName(8), 7);
    EXPECT_EQ(HighestChannelName(16), 17);
    EXPECT_EQ(HighestChannelName(32), 37);
    EXPECT_EQ(HighestChannelName(64), 77);
    EXPECT_EQ(HighestChannelName(0), 7);
    EXPECT_EQ(HighestChannelName(200), 7);
}

TEST(ConfigCoupling, PositionsGoToScaleLessOne) {
    EXPECT_EQ(HighestPosition(360), 359);
    EXPECT_EQ(HighestPosition(2), 1);
    EXPECT_EQ(HighestPosition(0), 0);
}

TEST(ConfigCoupling, StandardOptionsStandFor16And32Channels) {
    EXPECT_EQ(StandardChannelsOf(0), 16);
    EXPECT_EQ(StandardChannelsOf(1), 32);
    EXPECT_EQ(StandardOptionFor(16), 0);
    EXPECT_EQ(StandardOptionFor(31), 0);
    EXPECT_EQ(StandardOptionFor(32), 1);
    EXPECT_EQ(StandardOptionFor(64), 1);
}
