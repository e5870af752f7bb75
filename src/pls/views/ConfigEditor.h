#pragma once

#include "pls/OptionSwitches.h"
#include "pls/views/TimingSeams.h"

class TimingScreen;
struct R6500Coupling;
struct TimingForm;
struct TimingState;

/// The configuration side of the timing view: it shows what the board has, and each entry changes
/// gPLS at once. Nothing of it reaches the board before cmdResetPLSConfig.
class ConfigEditor {
public:
    ConfigEditor(const TimingSeams& seams, TimingScreen& screen);

    /// Reads the board's configuration, scale and offset into gPLS and shows them. Does nothing
    /// offline and stops as soon as the link fails. A scale outside 2 to 4096 or an offset outside
    /// 0 to 4096 counts only if gPLS holds it already; else nothing changes from there on. Raises
    /// as ApplyPLSConfig.
    void ReadBoardConfig();
    /// Brings the configuration controls on, with the options that the scale allows.
    void EnableConfigControls();
    /// The board has refused a configuration and the user gives up: on the R6500 layout 8 channels
    /// are chosen, as by a click, and the values are hidden behind "---".
    void ShowRefusedConfig();
    /// Takes all values and choices off the screen.
    void ShowOffline();

    /// Entry 0 to 18 was left with a number within its range, or its up-down was pressed: gPLS
    /// takes the number, and what hangs on it follows.
    void EntryAccepted(int index, int value);
    /// It was left without taking what was typed.
    void EntryAbandoned(int index);

    /// A board was chosen: list position 0 to 5. Its frames are shown.
    void cboTargetBoard_Click(int position);
    /// 8, 16, 32 or 64 channels (option 0 to 3) were chosen; what no longer fits is cut down.
    void optPlsChan_Click(int option);
    /// 16 or 32 channels (option 0 or 1) were chosen on the standard layout.
    void optR6PlsChan_Click(int option);
    /// A check box now stands like this: its entries are freed, or cleared and locked.
    void chkR6BWComp_Click(bool checked);
    void chkR6SpdWinEn_Click(bool checked);
    /// Options and check boxes as gPLS has them again: a click did not count.
    void ShowChoices();

private:
    bool ReadNumbers();
    void ShowConfig();
    void ShowStandardConfig();
    void ShowSwitches();
    void ShowCoupling();
    void ChangeCoupling(R6500Coupling (*change)(R6500Coupling, int), int value);
    void StandardScaleStored(int scale);
    void SwitchClickedTo(const OptionSwitch& option, bool checked);
    void ShowEntry(int index);
    void SetWindowMax();
    void ChannelEntryToZero();

    RSComm& link_;
    TimingScreen& screen_;
    TimingForm& form_;
    TimingState& state_;
};
