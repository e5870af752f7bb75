#include "pls/views/ChannelDisplay.h"

#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/RunTimeError.h"
#include "controls/grid/Grid.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "link/RSComm.h"
#include "pls/RecallChannelSetpoints.h"
#include "pls/views/ConfigEditor.h"
#include "pls/views/TimingScreen.h"
#include "session/Globals.h"
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <utility>

ChannelDisplay::ChannelDisplay(const TimingSeams& seams, TimingScreen& screen, ConfigEditor& config)
    : seams_(seams), screen_(screen), config_(config), form_(screen.Form()),
      state_(screen.State()) {}

void ChannelDisplay::Guarded(const std::function<void()>& act) {
    try {
        act();
    } catch (const RunTimeError& error) {
        ShowErrorBox(seams_.dialogs, error, QStringLiteral("Display PLS Channels"),
                     MsgStyle::Critical);
    }
}

void ChannelDisplay::ReadBoardConfig() {
    Guarded([this] { config_.ReadBoardConfig(); });
}

void ChannelDisplay::DisplayPLSChannels() {
    Guarded([this] {
        config_.ReadBoardConfig();
        if (seams_.link.CommError())
            return;
        FillGrid();
        screen_.ShowSetpoint(ShowSetpoint(gPLS, 0, 0));
    });
}

// The place in the grid stays: after an edit the user still sees what was edited.
void ChannelDisplay::FillGrid() {
    const QScopedValueRollback<bool> filling(filling_, true);
    Grid& grid = *form_.fgPLSChannels;
    const int top = grid.TopRow();
    state_.rows = ChannelRows(gPLS);
    grid.SetRows(GridRowCount(state_.rows, RowsInSight()));
    for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
        const auto place = static_cast<std::size_t>(row - grid.FixedRows());
        const TimingRow shown = place < state_.rows.size() ? state_.rows[place] : TimingRow();
        grid.SetTextMatrix(row, 0, shown.name);
        grid.SetTextMatrix(row, 1, shown.on);
        grid.SetTextMatrix(row, 2, shown.off);
    }
    grid.Model().Flush();
    grid.SetTopRow(top);
}

int ChannelDisplay::RowsInSight() const {
    const Grid& grid = *form_.fgPLSChannels;
    return RowsThatFit(grid.height(), grid.verticalHeader()->defaultSectionSize());
}

void ChannelDisplay::FitRows() {
    const QScopedValueRollback<bool> filling(filling_, true);
    Grid& grid = *form_.fgPLSChannels;
    const int rows = GridRowCount(state_.rows, RowsInSight());
    if (rows != grid.Rows())
        grid.SetRows(rows);
}

void ChannelDisplay::UploadChannels() {
    if (screen_.IsVisible())
        screen_.FocusDefault();
    screen_.DisableChannelControls();
    if (!std::exchange(state_.gPLSUploadComplete, false))
        seams_.jobs.RunWaitJob(WaitJob::UploadPLSChannels);
    state_.gPLSUploadComplete = false;
    if (seams_.link.CommError())
        return;
    DisplayPLSChannels();
    if (!seams_.link.CommError())
        screen_.EnableChannelControls();
}

// Each step of the progress yields: only controls that are off by now could be touched.
bool ChannelDisplay::RecallChannel(qint16 channel, bool withProgress) {
    QLabel& label = *form_.lblSetpointRecall;
    label.clear();
    label.setVisible(withProgress);
    const auto progress = [&label](const QString& caption) {
        label.setText(caption);
        DoEvents();
    };
    RecallChannelSetpoints(channel, seams_.link, seams_.dialogs,
                           withProgress ? RecallLabel(progress) : RecallLabel());
    label.hide();
    return state_.running && seams_.link.OnlineMode() && !seams_.link.CommError();
}

void ChannelDisplay::SelectGridRow() {
    row_ = form_.fgPLSChannels->Row();
    const std::optional<ShownSetpoint> shown = ::SelectGridRow(gPLS, state_.rows, row_);
    if (shown)
        screen_.ShowSetpoint(*shown);
}

void ChannelDisplay::FollowRow() {
    if (!filling_ && form_.fgPLSChannels->Row() != row_)
        SelectGridRow();
}

void ChannelDisplay::RestoreSelected() {
    screen_.ShowEnds(
        ShowSetpoint(gPLS, screen_.Channel(), screen_.TimingNumber(TimingEntryIndex::Setpoint)));
}
