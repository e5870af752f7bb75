#include "statustable/views/TableLoop.h"

#include "base/RunTimeError.h"
#include "controls/grid/Grid.h"
#include "link/RSComm.h"
#include "session/CommMode.h"
#include "statustable/AddressEntry.h"
#include "statustable/CellTexts.h"
#include "statustable/TableAddress.h"
#include "statustable/views/TableState.h"
#include <utility>

TableLoop::TableLoop(Grid& grid, RSComm& link, CommMode& mode, TableState& state)
    : grid_(grid), link_(link), mode_(mode), state_(state) {}

ViewLoop::Step TableLoop::TakeStep() {
    if (!state_.active || !grid_.isVisible() || link_.OperationRuns())
        return Step::Rest;
    if (link_.CommError()) {
        link_.SetOnlineMode(false);
        mode_.RefreshCommMode();
    }
    if (std::exchange(state_.restart, false))
        BeginAnew();
    return link_.OnlineMode() ? OnlinePass() : OfflinePass();
}

void TableLoop::BeginAnew() {
    row_ = 0;
    shownAddresses_.clear();
    lastOffline_.reset();
}

bool TableLoop::Skipped(int row) const {
    return row == state_.editingRow ||
           grid_.TextMatrix(row, TableColumn::Address).size() < shortestAddress;
}

ViewLoop::Step TableLoop::OnlinePass() {
    lastOffline_.reset();
    if (row_ == 0)
        row_ = grid_.TopRow();
    while (row_ < grid_.Rows() && grid_.RowIsVisible(row_)) {
        const int row = row_++;
        if (Skipped(row))
            continue;
        ShowBoardValue(row);
        read_ = true;
        return Step::Worked;
    }
    row_ = 0;
    return std::exchange(read_, false) ? Step::Worked : Step::Rest;
}

// The link may show a box while it reads, and behind it the rows may have changed.
void TableLoop::ShowBoardValue(int row) {
    const QString address = grid_.TextMatrix(row, TableColumn::Address);
    const std::optional<QString> value = ReadFromBoard(address);
    const bool sameRow = state_.active && !state_.restart && row != state_.editingRow &&
                         grid_.TextMatrix(row, TableColumn::Address) == address;
    if (link_.CommError() || !link_.OnlineMode())
        row_ = 0;
    else if (value && sameRow) {
        ShowCells(row, OnlineCellTexts(address, *value), shownAddresses_.value(row) == address);
        shownAddresses_[row] = address;
    }
}

// A table file may hold an address that no board has; its row shows nothing.
std::optional<QString> TableLoop::ReadFromBoard(const QString& address) {
    try {
        return link_.RSRead(VariableToRead(address, state_.tableBoard));
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

void TableLoop::ShowCells(int row, const CellTexts& cells, bool markChanges) {
    const std::pair<int, const QString&> texts[] = {{TableColumn::Decimal, cells.decimal},
                                                    {TableColumn::Hexadecimal, cells.hexadecimal},
                                                    {TableColumn::High, cells.high},
                                                    {TableColumn::Low, cells.low}};
    for (const auto& [column, text] : texts) {
        if (grid_.TextMatrix(row, column) == text)
            continue;
        grid_.SetTextMatrix(row, column, text);
        if (markChanges)
            grid_.Model().MarkChanged(row, column);
    }
}

TableLoop::OfflineView TableLoop::ViewNow() const {
    return {grid_.Model().Revision(), grid_.TopRow(), state_.editingRow,
            grid_.viewport()->height()};
}

// Nothing of it takes time, so all rows are one step; and while nothing changes there is nothing to
// do at all.
ViewLoop::Step TableLoop::OfflinePass() {
    row_ = 0;
    if (!state_.offlineLoaded) {
        lastOffline_.reset();
        return Step::Rest;
    }
    if (lastOffline_ == ViewNow())
        return Step::Rest;
    for (int row = grid_.TopRow(); row < grid_.Rows() && grid_.RowIsVisible(row); ++row) {
        if (Skipped(row))
            continue;
        const QString address = grid_.TextMatrix(row, TableColumn::Address);
        ShowCells(row, OfflineCellTexts(address, state_.offlineData), false);
    }
    lastOffline_ = ViewNow();
    return Step::Rest;
}
