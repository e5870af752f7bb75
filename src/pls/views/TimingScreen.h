#pragma once

#include "pls/ChannelEntry.h"
#include "pls/views/TimingForm.h"
#include "pls/views/TimingState.h"
#include <QPointer>

class NumericEntries;
class QWidget;

/// Index in NumericEntries of a setpoint entry: behind the configuration entries.
constexpr int EntryOfTiming(int index) {
    return plsEntryCount + index;
}

/// Carries the state of the timing view to its controls. The parts of the view change the state
/// and then show it here.
class TimingScreen {
public:
    TimingScreen(QWidget& view, TimingForm& form, TimingState& state, NumericEntries& entries);

    /// Enables, disables, shows and hides the controls as the state has them. While a handler is
    /// busy, offset and configuration are off too.
    void ShowEnablement();
    /// DisableOffsetControls and EnableOffsetControls, with what txtTmg 0 then shows.
    void DisableOffsetControls();
    void EnableOffsetControls();
    void DisableChannelControls();
    void EnableChannelControls();
    void DisableConfigControls();
    /// A turn of the loop has read the board: see TimingEnablement::AfterTick.
    void AfterTick(bool configChanged);

    /// Shows a setpoint, with its channel, in the setpoint entries.
    void ShowSetpoint(const ShownSetpoint& shown);
    /// Its ON and OFF and the limit of the setpoint entry alone.
    void ShowEnds(const ShownSetpoint& shown);
    /// Sets the text of setpoint entry 0 to 5 if it is another one.
    void ShowTimingText(int index, const QString& text);
    /// All setpoint entries show "-": there is no board.
    void ClearTimingTexts();
    /// Upper end of the offset, ON, OFF and START entries, in divisions.
    void SetPositionMax(int max);
    /// Upper end of the channel entry, an octal name.
    void SetChannelMax(int name);
    /// The four panels say that nothing is known.
    void ClearPanels();

    /// Number in a setpoint entry, held within 16 bits; 0 where there is none.
    int TimingNumber(int index) const;
    /// Number of the channel entry: the octal name in decimal look.
    int ChannelName() const { return TimingNumber(TimingEntryIndex::Channel); }
    /// Binary channel number of the channel entry; one that Chan has no place for gives 0.
    qint16 Channel() const;
    /// What the ON and OFF entries hold.
    Setpoint TypedSetpoint() const;

    /// Brings the strip up to date with the channel entry, gPLS and the panels.
    void ShowCycle();
    /// The focus goes to the hidden button cmdDefault.
    void FocusDefault();
    /// Whether the view is on the screen.
    bool IsVisible() const;

    TimingForm& Form() { return form_; }
    TimingState& State() { return state_; }

private:
    void ShowFrames();
    void ShowEntries();
    void ShowFamilies();
    void ShowControls();
    bool IsBlocked(int frame) const;
    void Enable(QWidget& control, bool enabled);

    QWidget& view_;
    TimingForm& form_;
    TimingState& state_;
    NumericEntries& entries_;
};

/// A handler that talks to the board, from its begin to its end: the other handlers stay away, and
/// the focus comes back to where it was if that can take it.
class BusyHandler {
public:
    explicit BusyHandler(TimingScreen& screen);
    ~BusyHandler();
    BusyHandler(const BusyHandler&) = delete;
    BusyHandler& operator=(const BusyHandler&) = delete;

private:
    TimingScreen& screen_;
    QPointer<QWidget> focused_;
};
