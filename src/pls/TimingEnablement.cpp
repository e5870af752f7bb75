#include "pls/TimingEnablement.h"

#include "pls/OptionSwitches.h"
#include "pls/PLSBoards.h"
#include "pls/PLSEntries.h"

namespace {
using Control = TimingControl;
using Family = TimingFamily;

constexpr int frameCount = 9;
constexpr std::array<int, static_cast<std::size_t>(Family::Count)> familySizes{frameCount,
                                                                               plsEntryCount,
                                                                               plsEntryCount,
                                                                               plsEntryCount,
                                                                               2,
                                                                               4,
                                                                               2,
                                                                               timingEntryCount,
                                                                               timingEntryCount,
                                                                               4};

// Channel editor: the channel and setpoint entries, without the offset.
constexpr int firstChannelEntry = TimingEntryIndex::Channel;
constexpr int lastChannelEntry = TimingEntryIndex::Setpoint;
} // namespace

int FamilySize(TimingFamily family) {
    return familySizes.at(static_cast<std::size_t>(family));
}

int FrameOf(TimingControl control) {
    switch (control) {
    case Control::fgPLSChannels:
        return 2;
    case Control::cmdSetOffset:
        return 3;
    case Control::cmdRecallChan:
    case Control::cmdClearChan:
    case Control::cmdClearAll:
        return 4;
    case Control::chkR6BWComp:
        return 6;
    case Control::chkR6SpdWinEn:
        return 7;
    case Control::cmdAddSetpoint:
    case Control::cmdAdjustSetpoint:
    case Control::cmdPulseTrain:
        return 8;
    default:
        return -1;
    }
}

int FrameOf(TimingFamily family, int index) {
    switch (family) {
    case Family::lblPLS_CFG:
    case Family::txtPLS_CFG:
    case Family::updPLS_CFG:
        return ConfigEntry(index).frame;
    case Family::lblBWComp:
        return 6;
    case Family::optPlsChan:
        return 0;
    case Family::optR6PlsChan:
        return 5;
    case Family::txtTmg:
    case Family::updTmg:
        return SetpointEntry(index).frame;
    case Family::lblTmg:
        return 8;
    default:
        return -1;
    }
}

TimingEnablement::TimingEnablement() {
    Set(Control::lblTargetBoard, true);
    Set(Control::cboTargetBoard, true);
}

bool TimingEnablement::IsEnabled(TimingFamily family, int index) const {
    return families_[static_cast<std::size_t>(family)].at(static_cast<std::size_t>(index));
}

bool TimingEnablement::IsLive(TimingControl control) const {
    return IsEnabled(control) && FrameIsLive(FrameOf(control));
}

bool TimingEnablement::IsLive(TimingFamily family, int index) const {
    if (family == Family::fraTmg)
        return FrameIsLive(index);
    return IsEnabled(family, index) && FrameIsLive(FrameOf(family, index));
}

bool TimingEnablement::FrameVisible(int frame) const {
    const bool r6500 = boardIndex_ == PLSBoardIndex::R6500;
    switch (frame) {
    case 0:
    case 1:
        return r6500;
    case 5:
    case 6:
    case 7:
        return !r6500;
    default:
        return true;
    }
}

bool TimingEnablement::FrameIsLive(int frame) const {
    return frame < 0 || (IsEnabled(Family::fraTmg, frame) && FrameVisible(frame));
}

void TimingEnablement::SelectBoard(qint16 boardIndex, bool firstPassOnline) {
    boardIndex_ = boardIndex;
    Set(Family::optR6PlsChan, 1, boardIndex == PLSBoardIndex::R6041 && firstPassOnline);
}

void TimingEnablement::EnterOffline() {
    controls_.fill(false);
    for (auto& family : families_)
        family.fill(false);
    Set(Control::lblTargetBoard, true);
    Set(Control::cboTargetBoard, true);
}

void TimingEnablement::BeginOnline() {
    Set(Control::lblTargetBoard, false);
    Set(Control::cboTargetBoard, false);
}

void TimingEnablement::FinishOnline() {
    Set(Control::sbrMachineTiming, true);
    Set(Control::fgPLSChannels, true);
    SetChannelEditor(true);
}

void TimingEnablement::DisableConfigControls() {
    Set(Control::cmdResetPLSConfig, false);
    for (const int frame : {0, 1, 5, 6, 7})
        Set(Family::fraTmg, frame, false);
    SetAll(Family::optPlsChan, false);
    SetAll(Family::optR6PlsChan, false);
    SetEntries(0, plsEntryCount - 1, false);
    SetAll(Family::lblBWComp, false);
    Set(Control::chkR6BWComp, false);
    Set(Control::chkR6SpdWinEn, false);
}

void TimingEnablement::EnableConfigControls(bool brakeWear, bool speedWindow) {
    if (boardIndex_ == PLSBoardIndex::R6500)
        EnableR6500Config();
    else
        EnableStandardConfig(brakeWear, speedWindow);
}

void TimingEnablement::EnableR6500Config() {
    Set(Family::fraTmg, 0, true);
    Set(Family::fraTmg, 1, true);
    SetAll(Family::optPlsChan, true);
    SetEntries(PLSEntryIndex::Scale, PLSEntryIndex::LastSpeedComp, true);
}

void TimingEnablement::EnableStandardConfig(bool brakeWear, bool speedWindow) {
    for (const int frame : {5, 6, 7})
        Set(Family::fraTmg, frame, true);
    Set(Family::optR6PlsChan, 0, true);
    Set(Family::optR6PlsChan, 1, boardIndex_ == PLSBoardIndex::R6041);
    SetEntries(PLSEntryIndex::StandardScale, PLSEntryIndex::StrobePreset, true);
    Set(Control::chkR6BWComp, true);
    if (brakeWear)
        BrakeWearClicked(true, true);
    Set(Control::chkR6SpdWinEn, true);
    if (speedWindow)
        SpeedWindowClicked(true, true);
}

void TimingEnablement::EntryStored() {
    Set(Family::optPlsChan, 0, true);
}

void TimingEnablement::FitChannelOptions(const PLSChanOptions& options) {
    for (std::size_t option = 0; option < options.size(); ++option)
        Set(Family::optPlsChan, static_cast<int>(option), options[option]);
}

void TimingEnablement::BrakeWearClicked(bool checked, bool firstPassOnline) {
    if (!firstPassOnline)
        return;
    SetEntries(brakeWearSwitch.firstEntry, brakeWearSwitch.lastEntry, checked);
    SetAll(Family::lblBWComp, checked);
}

void TimingEnablement::SpeedWindowClicked(bool checked, bool firstPassOnline) {
    if (firstPassOnline)
        SetEntries(speedWindowSwitch.firstEntry, speedWindowSwitch.lastEntry, checked);
}

void TimingEnablement::AfterTick(bool machineStopped, bool configChanged) {
    const bool lockedByChange = IsEnabled(Control::cmdResetPLSConfig);
    Set(Control::cmdResetPLSConfig, machineStopped && configChanged);
    if (!machineStopped || (!configChanged && !lockedByChange))
        return;
    SetChannelControls(!configChanged);
    SetOffsetControls(!configChanged);
}

void TimingEnablement::JustStopped(bool brakeWear, bool speedWindow) {
    EnableConfigControls(brakeWear, speedWindow);
    EnableOffsetControls();
}

void TimingEnablement::JustStarted() {
    DisableConfigControls();
    DisableOffsetControls();
}

void TimingEnablement::BeginSetOffset() {
    Set(Family::fraTmg, 3, false);
    Set(Family::updTmg, TimingEntryIndex::Offset, false);
    Set(Control::cmdSetOffset, false);
    DisableConfigControls();
    DisableChannelControls();
}

void TimingEnablement::EndSetOffset(bool brakeWear, bool speedWindow) {
    EnableOffsetControls();
    EnableConfigControls(brakeWear, speedWindow);
    EnableChannelControls();
}

void TimingEnablement::Set(TimingFamily family, int index, bool enabled) {
    families_[static_cast<std::size_t>(family)].at(static_cast<std::size_t>(index)) = enabled;
}

void TimingEnablement::SetRange(TimingFamily family, int first, int last, bool enabled) {
    for (int index = first; index <= last; ++index)
        Set(family, index, enabled);
}

void TimingEnablement::SetAll(TimingFamily family, bool enabled) {
    SetRange(family, 0, FamilySize(family) - 1, enabled);
}

void TimingEnablement::SetEntries(int first, int last, bool enabled) {
    for (const Family family : {Family::lblPLS_CFG, Family::txtPLS_CFG, Family::updPLS_CFG})
        SetRange(family, first, last, enabled);
}

void TimingEnablement::SetChannelEditor(bool enabled) {
    SetRange(Family::txtTmg, firstChannelEntry, lastChannelEntry, enabled);
    SetRange(Family::updTmg, firstChannelEntry, lastChannelEntry, enabled);
    SetAll(Family::lblTmg, enabled);
    for (const Control button :
         {Control::cmdRecallChan, Control::cmdClearChan, Control::cmdClearAll,
          Control::cmdAdjustSetpoint, Control::cmdAddSetpoint, Control::cmdPulseTrain})
        Set(button, enabled);
}

void TimingEnablement::SetChannelControls(bool enabled) {
    for (const int frame : {2, 4, 8})
        Set(Family::fraTmg, frame, enabled);
    Set(Control::fgPLSChannels, enabled);
    SetChannelEditor(enabled);
}

void TimingEnablement::SetOffsetControls(bool enabled) {
    Set(Family::fraTmg, 3, enabled);
    Set(Family::txtTmg, TimingEntryIndex::Offset, enabled);
    Set(Family::updTmg, TimingEntryIndex::Offset, enabled);
    Set(Control::cmdSetOffset, enabled);
}
