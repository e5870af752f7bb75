#include "TimingStates.h"

#include <gtest/gtest.h>

namespace {
using Control = TimingControl;
using Family = TimingFamily;
using namespace TimingStates;

constexpr char standardPlain[] = "----------xx-------";
constexpr char standardAll[] = "----------xxxxxxxxx";
} // namespace

TEST(TimingEnablement, TheListOfBoardsIsDisabledInAllOnlineStates) {
    for (const State state :
         {State::Connecting, State::Moving, State::Stopped, State::StoppedChanged,
          State::StartedAgain, State::ChannelBusy, State::ResetBusy, State::OffsetBusy}) {
        const TimingEnablement controls = InState(r6041, true, state);
        EXPECT_FALSE(controls.IsLive(Control::cboTargetBoard));
        EXPECT_FALSE(controls.IsLive(Control::lblTargetBoard));
    }
}

TEST(TimingEnablement, NoConfigurationOrOffsetIsLiveBesideAMovingMachine) {
    for (const qint16 board : {r6500, r6041}) {
        for (const State state : {State::Moving, State::StartedAgain, State::StartedWithChange}) {
            const TimingEnablement controls = InState(board, true, state);
            for (int entry = 0; entry < FamilySize(Family::txtPLS_CFG); ++entry)
                EXPECT_FALSE(controls.IsLive(Family::txtPLS_CFG, entry));
            EXPECT_FALSE(controls.IsLive(Family::txtTmg, 0));
            EXPECT_FALSE(controls.IsLive(Control::cmdSetOffset));
            EXPECT_FALSE(controls.IsLive(Control::cmdResetPLSConfig));
        }
    }
}

TEST(TimingEnablement, AnEntryLeftAsTheMachineStartsMakesNoOptionLive) {
    TimingEnablement controls = InState(r6500, false, State::StartedAgain);
    controls.EntryStored();
    controls.FitChannelOptions(OptionsForScale(360));
    for (int option = 0; option < FamilySize(Family::optPlsChan); ++option)
        EXPECT_FALSE(controls.IsLive(Family::optPlsChan, option));
}

TEST(TimingEnablement, WhileTheOffsetIsSentItsEntryCannotBeReached) {
    const TimingEnablement controls = InState(r6500, false, State::OffsetBusy);
    EXPECT_FALSE(controls.IsLive(Family::txtTmg, 0));
}

TEST(TimingEnablement, ThirtyTwoChannelsAreChosenOnOneBoardAndOnlyOnline) {
    for (const qint16 board : {55, 62, 67, 63, 64, 69}) {
        for (const bool online : {false, true}) {
            TimingEnablement controls;
            controls.SelectBoard(board, online);
            EXPECT_EQ(controls.IsEnabled(Family::optR6PlsChan, 1), board == r6041 && online);
        }
    }
    TimingEnablement controls;
    controls.SelectBoard(r6041, true);
    controls.SelectBoard(r6021, true);
    EXPECT_FALSE(controls.IsEnabled(Family::optR6PlsChan, 1));
}

TEST(TimingEnablement, ChoosingABoardChangesFramesShownAndOneOptionOnly) {
    TimingEnablement controls = InState(r6021, false, State::Stopped);
    const std::string before = AllMarks(controls);
    controls.SelectBoard(r6500, true);
    EXPECT_EQ(FrameMarks(controls), "--xxx...x");
    controls.SelectBoard(r6021, true);
    EXPECT_EQ(AllMarks(controls), before);
}

TEST(TimingEnablement, ACheckBoxFreesAndLocksItsEntries) {
    TimingEnablement controls = InState(r6041, false, State::Stopped);
    controls.BrakeWearClicked(true, true);
    EXPECT_EQ(Marks(controls, Family::txtPLS_CFG), "----------xxxxxxx--");
    EXPECT_EQ(Marks(controls, Family::lblBWComp), "xx");
    controls.SpeedWindowClicked(true, true);
    EXPECT_EQ(Marks(controls, Family::updPLS_CFG), standardAll);
    controls.BrakeWearClicked(false, true);
    EXPECT_EQ(Marks(controls, Family::lblPLS_CFG), "----------xx-----xx");
    EXPECT_EQ(Marks(controls, Family::lblBWComp), "--");
    controls.SpeedWindowClicked(false, true);
    EXPECT_EQ(Marks(controls, Family::txtPLS_CFG), standardPlain);
}

TEST(TimingEnablement, ACheckBoxDoesNothingBeforeTheFirstPassOnline) {
    TimingEnablement controls = InState(r6041, true, State::Stopped);
    const std::string before = AllMarks(controls);
    controls.BrakeWearClicked(false, false);
    controls.SpeedWindowClicked(false, false);
    EXPECT_EQ(AllMarks(controls), before);
}

TEST(TimingEnablement, AnAcceptedEntryLets8ChannelsBeChosen) {
    TimingEnablement controls = InState(r6500, false, State::Stopped);
    controls.FitChannelOptions({false, true, false, true});
    controls.EntryStored();
    EXPECT_EQ(Marks(controls, Family::optPlsChan), "xx-x");
}

TEST(TimingEnablement, OptionsFollowTheScale) {
    TimingEnablement controls = InState(r6500, false, State::Stopped);
    controls.FitChannelOptions(OptionsForScale(2048));
    EXPECT_EQ(Marks(controls, Family::optPlsChan), "x---");
    controls.FitChannelOptions(OptionsForScale(512));
    EXPECT_EQ(Marks(controls, Family::optPlsChan), "xxx-");
}

TEST(TimingEnablement, ATurnOfTheLoopThatChangesNothingTouchesNothing) {
    for (const State state : {State::Stopped, State::ChannelBusy}) {
        TimingEnablement controls = InState(r6500, false, state);
        const std::string before = AllMarks(controls);
        controls.AfterTick(true, false);
        EXPECT_EQ(AllMarks(controls), before);
    }
    TimingEnablement changed = InState(r6500, false, State::StoppedChanged);
    const std::string before = AllMarks(changed);
    changed.AfterTick(true, true);
    EXPECT_EQ(AllMarks(changed), before);
}

TEST(TimingEnablement, WorkThatEndsDoesNotUnlockChannelsBesideAChangedConfiguration) {
    TimingEnablement controls = InState(r6500, false, State::StoppedChanged);
    const std::string before = AllMarks(controls);
    controls.EnableChannelControls();
    controls.EnableOffsetControls();
    controls.AfterTick(true, true);
    EXPECT_EQ(AllMarks(controls), before);
}

TEST(TimingEnablement, AFrameThatIsNotShownHoldsNothingLive) {
    TimingEnablement controls = InState(r6041, true, State::Stopped);
    EXPECT_TRUE(controls.IsLive(Family::txtPLS_CFG, 10));
    EXPECT_TRUE(controls.IsLive(Control::chkR6BWComp));
    controls.SelectBoard(r6500, true);
    EXPECT_FALSE(controls.IsLive(Family::txtPLS_CFG, 10));
    EXPECT_FALSE(controls.IsLive(Control::chkR6BWComp));
    EXPECT_FALSE(controls.IsLive(Family::fraTmg, 5));
}

TEST(TimingEnablement, EachGroupOperationUndoesItsOpposite) {
    TimingEnablement controls = InState(r6041, true, State::Stopped);
    const std::string before = AllMarks(controls);
    controls.DisableChannelControls();
    EXPECT_NE(AllMarks(controls), before);
    controls.EnableChannelControls();
    EXPECT_EQ(AllMarks(controls), before);
    controls.DisableOffsetControls();
    EXPECT_NE(AllMarks(controls), before);
    controls.EnableOffsetControls();
    EXPECT_EQ(AllMarks(controls), before);
    controls.DisableConfigControls();
    EXPECT_NE(AllMarks(controls), before);
    controls.EnableConfigControls(true, true);
    EXPECT_EQ(AllMarks(controls), before);
}
