#include "statustable/views/TableEditor.h"

#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "controls/grid/Grid.h"
#include "link/RSComm.h"
#include "session/Globals.h"
#include "statustable/AddressEntry.h"
#include "statustable/CommitCell.h"
#include "statustable/TableAddress.h"
#include "statustable/views/TableNames.h"
#include "statustable/views/TableState.h"
#include <utility>

TableEditor::TableEditor(Grid& grid, RSComm& link, Dialogs& dialogs, TableState& state)
    : grid_(grid), link_(link), dialogs_(dialogs), state_(state) {
    grid_.SetKeyHandler([this](const QKeyEvent& key) { return OnKey(key); });
    connect(&grid_, &Grid::Click, this, &TableEditor::OnClick);
    connect(&grid_, &Grid::EnterCell, this, &TableEditor::OnEnterCell);
    connect(&grid_, &Grid::LeaveCell, this, &TableEditor::OnLeaveCell);
}

bool TableEditor::IsAppendRow(int row) const {
    return row == grid_.Rows() - 1;
}

// With auto increment an address goes on to the next row with the next address. The leave flag
// must not outlive this Return: the next address typed here would be left unchecked.
void TableEditor::OnReturn() {
    escapeArmed_ = false;
    skipLeave_ = true;
    const int row = grid_.Row();
    const bool automatic = autoIncrement_ && grid_.Col() == TableColumn::Address &&
                           grid_.TextMatrix(row, TableColumn::Address).size() >= shortestAddress;
    CommitCell(row, grid_.Col());
    EndEdit();
    if (accepted_)
        GoOn(row, automatic);
    skipLeave_ = false;
    Q_EMIT TableEdited();
}

void TableEditor::OnEscape() {
    if (editing_) {
        grid_.SetTextMatrix(grid_.Row(), grid_.Col(), savedText_);
        EndEdit();
    }
    if (!std::exchange(escapeArmed_, !escapeArmed_))
        return;
    state_.editingRow = 0;
    Q_EMIT GridLeft();
}

void TableEditor::OnTyped(QChar key) {
    escapeArmed_ = false;
    if (IsAppendRow(grid_.Row()) && !TurnAppendRowIntoDataRow())
        return;
    const int col = grid_.Col();
    if (col < TableColumn::Address || col > TableColumn::Hexadecimal)
        return;
    state_.editingRow = grid_.Row();
    if (!editing_)
        BeginEdit();
    const QString text = grid_.TextMatrix(grid_.Row(), col);
    grid_.SetTextMatrix(grid_.Row(), col, TextAfterKey(text, key, col, state_.tableBoard));
}

void TableEditor::BeginEdit() {
    editing_ = true;
    uncommitted_ = grid_.Col() == TableColumn::Address;
    savedText_ = grid_.TextMatrix(grid_.Row(), grid_.Col());
    grid_.SetTextMatrix(grid_.Row(), grid_.Col(), QString());
    grid_.ShowTypedCell(grid_.Row(), grid_.Col());
}

void TableEditor::EndEdit() {
    editing_ = false;
    uncommitted_ = false;
    savedText_.clear();
    grid_.ShowTypedCell(0, 0);
}

void TableEditor::Reset() {
    EndEdit();
    escapeArmed_ = false;
    skipLeave_ = false;
    state_.editingRow = 0;
}

void TableEditor::CommitPending() {
    if (!uncommitted_)
        return;
    const int row = grid_.Row();
    CommitCell(row, TableColumn::Address);
    EndEdit();
    state_.editingRow = 0;
}

void TableEditor::CommitCell(int row, int col) {
    CommitRequest request;
    request.column = col;
    request.cell = grid_.TextMatrix(row, col);
    request.address = grid_.TextMatrix(row, TableColumn::Address);
    request.board = state_.tableBoard;
    request.online = link_.OnlineMode();
    request.commError = link_.CommError();
    const CommitOutcome outcome = DecideCommit(request);
    accepted_ = outcome.action == CommitAction::AcceptAddress;
    switch (outcome.action) {
    case CommitAction::None:
        return;
    case CommitAction::EmptyCell:
        return grid_.SetTextMatrix(row, col, QString());
    case CommitAction::EmptyRow:
        return EmptyRow(row);
    case CommitAction::AcceptAddress:
        return AcceptAddress(row, outcome.cell, outcome.working);
    case CommitAction::EndValue:
        // What was typed is not the value of the variable: the one shown before comes back.
        grid_.SetTextMatrix(row, col, editing_ ? savedText_ : outcome.cell);
        break;
    case CommitAction::WriteValue:
        grid_.SetTextMatrix(row, col, outcome.cell);
        WriteValue(outcome.variable, outcome.value);
        break;
    }
    grid_.setFocus();
    state_.editingRow = 0;
}

void TableEditor::WriteValue(const QString& variable, const QString& value) {
    try {
        link_.RSWrite(variable, value);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("Status Table"), MsgStyle::Critical);
    }
}

// The values of the variable before must not stand beside another one: offline they would stay.
void TableEditor::AcceptAddress(int row, const QString& text, const QString& working) {
    if (editing_ && text != savedText_)
        EmptyCells(row, TableColumn::Decimal);
    grid_.SetTextMatrix(row, TableColumn::Address, text);
    if (gViewNicNames || gViewDescriptions)
        grid_.SetTextMatrix(row, TableColumn::Name, ShownName(state_.names, working));
}

// The mark of the append row stays.
void TableEditor::EmptyRow(int row) {
    EmptyCells(row, IsAppendRow(row) ? TableColumn::Address : TableColumn::Name);
}

void TableEditor::EmptyCells(int row, int firstCol) {
    for (int col = firstCol; col < TableColumn::count; ++col)
        grid_.SetTextMatrix(row, col, QString());
}

void TableEditor::GoOn(int row, bool autoIncrement) {
    if (!IsAppendRow(row)) {
        skipLeave_ = true;
        grid_.SetRow(row + 1);
        if (IsAppendRow(grid_.Row()))
            OnClick();
    }
    state_.editingRow = 0;
    const QString above = grid_.TextMatrix(row, TableColumn::Address);
    if (!autoIncrement || above.isEmpty() || grid_.Row() != row + 1)
        return;
    const QString next = NextAddress(above);
    if (grid_.TextMatrix(row + 1, TableColumn::Address) != next)
        EmptyRow(row + 1);
    grid_.SetTextMatrix(row + 1, TableColumn::Address, next);
    state_.editingRow = row + 1;
    uncommitted_ = true;
}

void TableEditor::OnEnterCell() {
    if (!state_.active)
        return;
    escapeArmed_ = false;
    EndEdit();
    state_.editingRow = 0;
    if (grid_.Col() > TableColumn::Hexadecimal) {
        grid_.SetCol(TableColumn::Address);
        grid_.setFocus();
    }
    ShowBelow(grid_.Row());
}

// Only what was typed is checked: an address that came with a file stays as it is although the
// board was changed. A value that was not sent must not stand there as if it were the board's.
void TableEditor::OnLeaveCell(int row, int col) {
    if (!state_.active || std::exchange(skipLeave_, false))
        return;
    const bool longEnough = grid_.TextMatrix(row, TableColumn::Address).size() >= shortestAddress;
    if (col == TableColumn::Address && uncommitted_ && longEnough)
        CommitCell(row, col);
    else if (col != TableColumn::Address && editing_)
        grid_.SetTextMatrix(row, col, savedText_);
    if (uncommitted_)
        Q_EMIT TableEdited();
}

void TableEditor::ShowBelow(int row) {
    if (row >= 0 && !grid_.RowIsVisible(row))
        grid_.SetTopRow(grid_.TopRow() + 2);
}
