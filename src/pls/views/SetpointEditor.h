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

    /// Adds the ON and OFF of the entries (divisions) to the channel, or tells why not.
    void cmdAddSetpoint_Click();
    /// Puts them in place of the setpoint selected: the channel is cleared and written anew.
    void cmdAdjustSetpoint_Click();
    /// Replaces the channel by ON and OFF divisions all round from the START division on.
    void cmdPulseTrain_Click();
    /// Reads the channel from the board.
    void cmdRecallChan_Click();
    /// Asks, then clears the channel; a board that refuses is asked again if the user wants it.
    void cmdClearChan_Click();
    /// Asks, then clears every channel by job 8.
    void cmdClearAll_Click();

    /// The channel entry was left with a number within its range (0 to 77), or stepped to it.
    void ChannelEntered(int name);
    /// The setpoint entry likewise (0 to the channel's last index).
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
