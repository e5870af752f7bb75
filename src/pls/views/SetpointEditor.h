#pragma once

#include "pls/views/TimingSeams.h"
#include "programset/PLSRecord.h"

class ChannelDisplay;
class NumericEntries;
class TimingScreen;
struct TimingState;

/// The buttons of the channel and setpoint frames. Everything goes straight to the board and is
/// then read back: the view never holds an edit that the board has not accepted. A link failure
/// ends a handler where it is, with the controls off; the loop then takes the view offline.
class SetpointEditor {
public:
    SetpointEditor(const TimingSeams& seams, TimingScreen& screen, ChannelDisplay& channels);

    void cmdAddSetpoint_Click();
    void cmdAdjustSetpoint_Click();
    void cmdPulseTrain_Click();
    void cmdRecallChan_Click();
    void cmdClearChan_Click();
    void cmdClearAll_Click();

    /// The channel entry was left with a number within its range, or stepped to it.
    void ChannelEntered(int name);
    /// The setpoint entry likewise.
    void SetpointEntered(int index);

private:
    bool AddToBoard(qint16 channel, Setpoint candidate);
    bool AdjustInBoard(qint16 channel, int index, Setpoint candidate);
    bool RewriteChannel(qint16 channel);
    bool ClearInBoard(qint16 channel);
    void ShowBoard(qint16 channel, int index);
    void TellRefusedSetpoint(const char* title);
    bool LinkFailed() const;

    TimingSeams seams_;
    TimingScreen& screen_;
    ChannelDisplay& channels_;
    TimingState& state_;
};
