#include "TimingStates.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace {
using Control = TimingControl;
using Family = TimingFamily;
using namespace TimingStates;

// "x" enabled, "-" disabled; frames not shown ".".
struct Row {
    const char* name;
    qint16 board;
    bool checked; ///< both check boxes
    State state;
    const char* frames;  ///< fraTmg 0 to 8
    const char* entries; ///< label, text box and up-down 0 to 18
    const char* options; ///< optPlsChan 0 to 3, optR6PlsChan 0 and 1
    const char* checks;  ///< chkR6BWComp, chkR6SpdWinEn, lblBWComp 0 and 1
    const char* editor;  ///< txtTmg 0 to 5, updTmg 0 to 5, lblTmg 0 to 3
    const char* buttons; ///< reset, offset, recall, clear, clear all, add, adjust, pulse train
    const char* others;  ///< grid, status bar, lblTargetBoard, cboTargetBoard
};
void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

constexpr char noEntry[] = "-------------------";
constexpr char r6500Entries[] = "xxxxxxxxxx---------";
constexpr char standardPlain[] = "----------xx-------";
constexpr char standardAll[] = "----------xxxxxxxxx";
constexpr char noEditor[] = "------ ------ ----";
constexpr char channelEditor[] = "-xxxxx -xxxxx xxxx";
constexpr char wholeEditor[] = "xxxxxx xxxxxx xxxx";

constexpr Row rows[] = {
    // The view opens.
    {"R6500Opened", r6500, false, State::Opened, "-----...-", noEntry, "------", "----", noEditor,
     "--------", "--xx"},
    {"StandardOpened", r6041, true, State::Opened, "..-------", noEntry, "------", "----", noEditor,
     "--------", "--xx"},
    // Offline.
    {"R6500Offline", r6500, false, State::Offline, "-----...-", noEntry, "------", "----", noEditor,
     "--------", "--xx"},
    {"StandardOffline", r6041, true, State::Offline, "..-------", noEntry, "------", "----",
     noEditor, "--------", "--xx"},
    {"R6500OfflineAfterAllWasOn", r6500, false, State::OfflineAgain, "-----...-", noEntry, "------",
     "----", noEditor, "--------", "--xx"},
    {"StandardOfflineAfterAllWasOn", r6041, true, State::OfflineAgain, "..-------", noEntry,
     "------", "----", noEditor, "--------", "--xx"},
    // Going online.
    {"R6500Connecting", r6500, false, State::Connecting, "-----...-", noEntry, "------", "----",
     noEditor, "--------", "----"},
    {"R6500UploadFailed", r6500, false, State::UploadFailed, "-----...-", noEntry, "------", "----",
     noEditor, "--------", "--xx"},
    // The machine moves.
    {"R6500Moving", r6500, false, State::Moving, "--x-x...x", noEntry, "------", "----",
     channelEditor, "--xxxxxx", "xx--"},
    {"StandardMoving", r6041, true, State::Moving, "..x-x---x", noEntry, "------", "----",
     channelEditor, "--xxxxxx", "xx--"},
    {"R6500StartedAgain", r6500, false, State::StartedAgain, "--x-x...x", noEntry, "------", "----",
     channelEditor, "--xxxxxx", "xx--"},
    {"StandardStartedAgain", r6041, true, State::StartedAgain, "..x-x---x", noEntry, "------",
     "----", channelEditor, "--xxxxxx", "xx--"},
    // It started while a change was not sent: the channels stay locked with the rest.
    {"R6500StartedWithChange", r6500, false, State::StartedWithChange, "-----...-", noEntry,
     "------", "----", noEditor, "--------", "-x--"},
    // It stands, the configuration is that of the board.
    {"R6500Stopped", r6500, false, State::Stopped, "xxxxx...x", r6500Entries, "xxxx--", "----",
     wholeEditor, "-xxxxxxx", "xx--"},
    {"R6041StoppedUnchecked", r6041, false, State::Stopped, "..xxxxxxx", standardPlain, "----xx",
     "xx--", wholeEditor, "-xxxxxxx", "xx--"},
    {"R6041StoppedChecked", r6041, true, State::Stopped, "..xxxxxxx", standardAll, "----xx", "xxxx",
     wholeEditor, "-xxxxxxx", "xx--"},
    {"R6021Stopped", r6021, false, State::Stopped, "..xxxxxxx", standardPlain, "----x-", "xx--",
     wholeEditor, "-xxxxxxx", "xx--"},
    {"R6500UndoneByHand", r6500, false, State::UndoneByHand, "xxxxx...x", r6500Entries, "xxxx--",
     "----", wholeEditor, "-xxxxxxx", "xx--"},
    {"R6500OffsetSent", r6500, false, State::OffsetSent, "xxxxx...x", r6500Entries, "xxxx--",
     "----", wholeEditor, "-xxxxxxx", "xx--"},
    // It stands, the configuration was changed.
    {"R6500StoppedChanged", r6500, false, State::StoppedChanged, "xx---...-", r6500Entries,
     "xxxx--", "----", noEditor, "x-------", "-x--"},
    {"StandardStoppedChanged", r6041, true, State::StoppedChanged, "..---xxx-", standardAll,
     "----xx", "xxxx", noEditor, "x-------", "-x--"},
    // Work on the board under way, from a standing machine.
    {"R6500ChannelBusy", r6500, false, State::ChannelBusy, "xx-x-...-", r6500Entries, "xxxx--",
     "----", "x----- x----- ----", "-x------", "-x--"},
    {"R6500ResetBusy", r6500, false, State::ResetBusy, "-----...-", noEntry, "------", "----",
     noEditor, "--------", "-x--"},
    {"StandardResetBusy", r6041, true, State::ResetBusy, "..-------", noEntry, "------", "----",
     noEditor, "--------", "-x--"},
    {"R6500OffsetBusy", r6500, false, State::OffsetBusy, "-----...-", noEntry, "------", "----",
     "x----- ------ ----", "--------", "-x--"},
    {"StandardOffsetBusy", r6041, true, State::OffsetBusy, "..-------", noEntry, "------", "----",
     "x----- ------ ----", "--------", "-x--"},
};

std::string EditorMarks(const TimingEnablement& controls) {
    return Marks(controls, Family::txtTmg) + ' ' + Marks(controls, Family::updTmg) + ' ' +
           Marks(controls, Family::lblTmg);
}

class TimingEnablementTest : public testing::TestWithParam<Row> {};
} // namespace

TEST_P(TimingEnablementTest, ShowsAndEnables) {
    const Row& row = GetParam();
    const TimingEnablement controls = InState(row.board, row.checked, row.state);
    EXPECT_EQ(FrameMarks(controls), row.frames);
    for (const Family family : {Family::lblPLS_CFG, Family::txtPLS_CFG, Family::updPLS_CFG})
        EXPECT_EQ(Marks(controls, family), row.entries);
    EXPECT_EQ(Marks(controls, Family::optPlsChan) + Marks(controls, Family::optR6PlsChan),
              row.options);
    EXPECT_EQ(Marks(controls, {Control::chkR6BWComp, Control::chkR6SpdWinEn}) +
                  Marks(controls, Family::lblBWComp),
              row.checks);
    EXPECT_EQ(EditorMarks(controls), row.editor);
    EXPECT_EQ(
        Marks(controls, {Control::cmdResetPLSConfig, Control::cmdSetOffset, Control::cmdRecallChan,
                         Control::cmdClearChan, Control::cmdClearAll, Control::cmdAddSetpoint,
                         Control::cmdAdjustSetpoint, Control::cmdPulseTrain}),
        row.buttons);
    EXPECT_EQ(Marks(controls, {Control::fgPLSChannels, Control::sbrMachineTiming,
                               Control::lblTargetBoard, Control::cboTargetBoard}),
              row.others);
}

INSTANTIATE_TEST_SUITE_P(States, TimingEnablementTest, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST_P(TimingEnablementTest, NothingIsLiveInAFrameThatIsOffOrHidden) {
    const Row& row = GetParam();
    const TimingEnablement controls = InState(row.board, row.checked, row.state);
    for (int family = 0; family < static_cast<int>(Family::Count); ++family) {
        const auto members = static_cast<Family>(family);
        for (int index = 0; index < FamilySize(members); ++index) {
            const int frame = members == Family::fraTmg ? index : FrameOf(members, index);
            const bool reachable = frame < 0 || (controls.IsEnabled(Family::fraTmg, frame) &&
                                                 controls.FrameVisible(frame));
            EXPECT_EQ(controls.IsLive(members, index),
                      reachable && controls.IsEnabled(members, index))
                << family << " " << index;
        }
    }
}
