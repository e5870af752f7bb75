#pragma once

#include "pls/views/TimingSeams.h"
#include <functional>
#include <QtGlobal>

class ConfigEditor;
class TimingScreen;
struct TimingForm;
struct TimingState;

/// The grid of the timing view: what the channels hold, read from the board and shown.
class ChannelDisplay {
public:
    ChannelDisplay(const TimingSeams& seams, TimingScreen& screen, ConfigEditor& config);

    /// Reads the board's configuration and shows it (see ConfigEditor). A run-time error, as over
    /// an answer out of all bounds, is reported by a box.
    void ReadBoardConfig();
    /// Online, reads the configuration again; then fills the grid from gPLS and shows channel 0 in
    /// the entries. A run-time error is reported by a box.
    void DisplayPLSChannels();
    /// Reads configuration and channels from the board, unless the caller just did, and shows
    /// them. After a link failure the channel controls stay off.
    void UploadChannels();
    /// Reads one channel from the board into gPLS, with its progress shown if wanted. False when
    /// the link failed or the view was closed meanwhile: nothing more is to be done then.
    bool RecallChannel(qint16 channel, bool withProgress);

    /// A row was selected or clicked: the entries show its setpoint.
    void SelectGridRow();
    /// The current cell is another one: SelectGridRow if its row is another one too.
    void FollowRow();
    /// The entries show the setpoint that they name again.
    void RestoreSelected();
    /// The grid has another height: it is never shorter than what can be seen.
    void FitRows();

private:
    void Guarded(const std::function<void()>& act);
    void FillGrid();
    int RowsInSight() const;

    TimingSeams seams_;
    TimingScreen& screen_;
    ConfigEditor& config_;
    TimingForm& form_;
    TimingState& state_;
    bool filling_ = false; // the grid is being filled: no row is selected by that
    int row_ = -1;         // the row selected last
};
