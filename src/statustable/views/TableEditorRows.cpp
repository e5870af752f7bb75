// The part of the editor that works on rows: which keys do so, adding, deleting, pasting.

#include "base/Dialogs.h"
#include "controls/grid/Grid.h"
#include "statustable/AddressEntry.h"
#include "statustable/TableAddress.h"
#include "statustable/views/TableEditor.h"
#include "statustable/views/TableNames.h"
#include "statustable/views/TableState.h"
#include <algorithm>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

namespace {
constexpr char16_t backspace = 8;

bool IsCommand(const QKeyEvent& key) {
    return (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

// First column of each line of a spreadsheet's text.
QStringList FirstColumn(const QString& text) {
    QStringList lines = QString(text).remove(u'\r').split(u'\n');
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    for (QString& line : lines)
        line = line.section(u'\t', 0, 0).trimmed();
    return lines;
}
} // namespace

bool TableEditor::OnKey(const QKeyEvent& key) {
    if (key.matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(grid_.Clip());
        return true;
    }
    if (key.matches(QKeySequence::Paste)) {
        PasteAddresses(QGuiApplication::clipboard()->text());
        return true;
    }
    if (IsCommand(key))
        return false;
    if (OnKeyDown(key))
        return true;
    const QString text = key.text();
    if (text.isEmpty() || !(text.front().isPrint() || text.front() == QChar(backspace)))
        return false;
    if (text.front() != u' ')
        OnTyped(text.front());
    return true;
}

bool TableEditor::OnKeyDown(const QKeyEvent& key) {
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        OnReturn();
        return true;
    case Qt::Key_Escape:
        OnEscape();
        return true;
    case Qt::Key_Insert:
        InsertRows();
        return true;
    case Qt::Key_Backspace:
        if (editing_)
            return false;
        DeleteSelection();
        return true;
    case Qt::Key_Delete:
        DeleteSelection();
        return true;
    default:
        return false;
    }
}

// The append row stays, wherever the selection ends.
void TableEditor::DeleteSelection() {
    Reset();
    const int row = grid_.Row();
    const int first = std::min(row, grid_.RowSel());
    const int last = std::min(std::max(row, grid_.RowSel()), grid_.Rows() - 2);
    const bool wholeRows = grid_.ColSel() == TableColumn::count - 1;
    if (IsAppendRow(row)) {
        grid_.SetCell(row, TableColumn::Address);
    } else if (wholeRows) {
        grid_.RemoveItem(first, last - first + 1);
        state_.restart = true;
        grid_.SetCell(first, TableColumn::Address);
    } else {
        for (int emptied = first; emptied <= last; ++emptied)
            EmptyRow(emptied);
        grid_.SetCell(row, TableColumn::Address);
    }
    grid_.setFocus();
    Q_EMIT TableEdited();
}

void TableEditor::InsertRows() {
    if (grid_.Rows() >= tableRowLimit) {
        dialogs_.MsgBox(QStringLiteral("Maximum Row Limit Reached."), MsgStyle::Exclamation,
                        QStringLiteral("Add Cell"));
        grid_.setFocus();
        return;
    }
    CommitPending();
    Reset();
    const int wanted = std::abs(grid_.RowSel() - grid_.Row()) + 1;
    grid_.AddItem(QString(), std::min(grid_.Row(), grid_.RowSel()),
                  std::min(wanted, tableRowLimit - grid_.Rows()));
    state_.restart = true;
    Q_EMIT TableEdited();
}

void TableEditor::OnClick() {
    if (IsAppendRow(grid_.Row())) {
        TurnAppendRowIntoDataRow();
    } else if (grid_.Col() < TableColumn::Address || grid_.Col() > TableColumn::Hexadecimal) {
        grid_.SetCol(TableColumn::Address);
        grid_.setFocus();
        ShowBelow(grid_.Row());
    }
}

// Gives whether there is a new data row: at the limit there is none.
bool TableEditor::TurnAppendRowIntoDataRow() {
    const int row = grid_.Row();
    const bool room = grid_.Rows() - 1 < tableRowLimit;
    if (room) {
        grid_.SetTextMatrix(row, TableColumn::Name, QString());
        grid_.AddItem(QStringLiteral("*"));
        grid_.SetCell(row, TableColumn::Address);
    } else {
        grid_.SetTextMatrix(row, TableColumn::Address, QString());
        grid_.SetCell(row - 1, TableColumn::Address);
    }
    grid_.setFocus();
    ShowBelow(grid_.Row() + 1);
    state_.restart = true;
    return room;
}

// Makes room from row `first` on and gives how many of the rows there are.
int TableEditor::RoomForRows(int first, int count) {
    const int dataRows = grid_.Rows() - 1 - first; // the append row is none
    const int more = std::min(count - dataRows, tableRowLimit - grid_.Rows());
    if (more > 0)
        grid_.AddItem(QString(), grid_.Rows() - 1, more);
    return std::min(count, grid_.Rows() - 1 - first);
}

void TableEditor::PasteAddresses(const QString& text) {
    const QStringList lines = FirstColumn(text);
    if (lines.isEmpty() || grid_.Row() < firstDataRow || grid_.Col() > TableColumn::Address)
        return;
    Reset();
    const int first = grid_.Row();
    const int room = RoomForRows(first, static_cast<int>(lines.size()));
    int taken = 0;
    for (int i = 0; i < room; ++i) {
        EmptyRow(first + i);
        const QString address = PastedAddress(lines[i], state_.tableBoard);
        if (address.isEmpty())
            continue;
        AcceptAddress(first + i, address, SplitAddress(address).Working());
        ++taken;
    }
    state_.restart = true;
    const int blank = static_cast<int>(lines.count(QString()));
    Q_EMIT TableEdited();
    Q_EMIT PasteEnded(taken, static_cast<int>(lines.size()) - taken - blank);
}
