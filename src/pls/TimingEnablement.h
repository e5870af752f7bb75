#pragma once

#include "pls/ConfigCoupling.h"
#include <array>
#include <QtGlobal>

/// The single controls of the timing view.
enum class TimingControl {
    cmdResetPLSConfig,
    cmdSetOffset,
    cmdRecallChan,
    cmdClearChan,
    cmdClearAll,
    cmdAddSetpoint,
    cmdAdjustSetpoint,
    cmdPulseTrain,
    chkR6BWComp,
    chkR6SpdWinEn,
    fgPLSChannels,
    sbrMachineTiming,
    lblTargetBoard,
    cboTargetBoard,
    Count
};

/// Its families of controls that are told by index.
enum class TimingFamily {
    fraTmg,       ///< 0 to 8
    lblPLS_CFG,   ///< 0 to 18
    txtPLS_CFG,   ///< 0 to 18
    updPLS_CFG,   ///< 0 to 18
    lblBWComp,    ///< 0 and 1
    optPlsChan,   ///< 0 to 3
    optR6PlsChan, ///< 0 and 1
    txtTmg,       ///< 0 to 5
    updTmg,       ///< 0 to 5
    lblTmg,       ///< 0 to 3
    Count
};

/// Members of a family.
int FamilySize(TimingFamily family);
/// The frame that holds a control, 0 to 8; -1 for one outside all frames and for a frame.
int FrameOf(TimingControl control);
int FrameOf(TimingFamily family, int index);

/// Which controls of the timing view are enabled and which frames are shown. Each operation
/// changes what its comment names and nothing else; the view carries the outcome to its widgets.
/// A control moves metal: none may be live in a state that forbids it, so that a control counts as
/// live only while its frame is enabled too.
class TimingEnablement {
public:
    /// As the view opens, before it is known whether a board answers: only the board's list.
    TimingEnablement();

    bool operator==(const TimingEnablement&) const = default;

    /// Own flag of a control, whatever its frame.
    bool IsEnabled(TimingControl control) const { return controls_[Place(control)]; }
    /// `index` as FamilySize tells.
    bool IsEnabled(TimingFamily family, int index) const;
    /// Whether a user can reach it: enabled, in an enabled frame that is shown (or in none).
    bool IsLive(TimingControl control) const;
    bool IsLive(TimingFamily family, int index) const;
    /// Whether fraTmg 0 to 8 is shown.
    bool FrameVisible(int frame) const;

    /// A board was chosen in cboTargetBoard, or the view took it from the program set: frames 0 and
    /// 1 are shown for `boardIndex` 69, frames 5, 6 and 7 for every other. 32 channels
    /// (optR6PlsChan 1) are enabled for R6041 (64) alone, and there only with `firstPassOnline`.
    void SelectBoard(qint16 boardIndex, bool firstPassOnline);

    /// Everything off but the list of boards.
    void EnterOffline();
    /// Going online begins: the board cannot be changed any more. The channels are uploaded next.
    void BeginOnline();
    /// The upload went well: grid, status bar and the channel and setpoint editor come on.
    void FinishOnline();

    /// Reset button, configuration frames, channel options, entries 0 to 18, both check boxes.
    void DisableConfigControls();
    /// What the selected board has of the configuration. On the R6500 layout all channel options
    /// come on; the view then validates entry 0, and FitChannelOptions follows.
    /// `brakeWear` and `speedWindow` tell whether the check boxes are checked.
    void EnableConfigControls(bool brakeWear, bool speedWindow);
    void DisableChannelControls() { SetChannelControls(false); }
    void EnableChannelControls() { SetChannelControls(true); }
    /// Disabled: txtTmg 0 shows "-". Enabled: "0".
    void DisableOffsetControls() { SetOffsetControls(false); }
    void EnableOffsetControls() { SetOffsetControls(true); }

    /// An accepted configuration entry other than entry 0: 8 channels can be chosen.
    void EntryStored();
    /// Entry 0 was accepted, or an option was clicked: options as R6500Coupling::optionEnabled.
    void FitChannelOptions(const PLSChanOptions& options);
    /// chkR6BWComp was clicked: entries 12 to 16 and lblBWComp. Does nothing unless
    /// `firstPassOnline`.
    void BrakeWearClicked(bool checked, bool firstPassOnline);
    /// chkR6SpdWinEn was clicked: entries 17 and 18. Likewise.
    void SpeedWindowClicked(bool checked, bool firstPassOnline);

    /// The end of a turn of the loop that read the board: while a standing machine's configuration
    /// is changed and not in the board, the reset button is on and channels and offset are locked;
    /// once it is sent or undone, they come back. A moving machine takes no configuration: the
    /// reset button goes off and all else stays.
    void AfterTick(bool machineStopped, bool configChanged);
    /// A speed was read. Just stopped: configuration and offset come on, and the view validates
    /// entry 0 on the R6500 layout; just started: they go off.
    void JustStopped(bool brakeWear, bool speedWindow);
    void JustStarted();

    /// The offset is sent: its frame, up-down and button, configuration and channels off. Only a
    /// standing machine and an accepted offset bring them back, with EndSetOffset.
    void BeginSetOffset();
    void EndSetOffset(bool brakeWear, bool speedWindow);

private:
    static std::size_t Place(TimingControl control) { return static_cast<std::size_t>(control); }
    void Set(TimingControl control, bool enabled) { controls_[Place(control)] = enabled; }
    void Set(TimingFamily family, int index, bool enabled);
    void SetRange(TimingFamily family, int first, int last, bool enabled);
    void SetAll(TimingFamily family, bool enabled);
    void SetEntries(int first, int last, bool enabled);
    void SetChannelEditor(bool enabled);
    void SetChannelControls(bool enabled);
    void SetOffsetControls(bool enabled);
    void EnableR6500Config();
    void EnableStandardConfig(bool brakeWear, bool speedWindow);
    bool FrameIsLive(int frame) const;

    static constexpr std::size_t mostMembers = 19;
    qint16 boardIndex_ = 0;
    std::array<bool, static_cast<std::size_t>(TimingControl::Count)> controls_{};
    std::array<std::array<bool, mostMembers>, static_cast<std::size_t>(TimingFamily::Count)>
        families_{};
};
