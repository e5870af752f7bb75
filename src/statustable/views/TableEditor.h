#pragma once

#include <functional>
#include <QObject>
#include <QString>

class Dialogs;
class Grid;
class QKeyEvent;
class RSComm;
struct TableState;

/// Makes an editor of the grid's keys and clicks: an address typed into column 1 is checked and
/// takes its name, a value typed into column 2 or 3 is written to the board.
class TableEditor final : public QObject {
    Q_OBJECT
public:
    /// All must outlive the object. It takes the keys of the grid.
    TableEditor(Grid& grid, RSComm& link, Dialogs& dialogs, TableState& state);

    /// Whether Return on an address fills the next row with the next address.
    void SetAutoIncrement(bool on) { autoIncrement_ = on; }
    /// Forgets what is being typed, before the table is emptied.
    void Reset();
    /// Commits an address that is still being typed, before the table is saved.
    void CommitPending();
    /// Puts the addresses of a spreadsheet column into column 1 from the current row on; each is
    /// checked as if it were typed, and its row stays empty if it is none.
    void PasteAddresses(const QString& text);

Q_SIGNALS:
    /// Address texts or rows have changed by hand.
    void TableEdited();
    /// The second Esc: the grid is to be left.
    void GridLeft();
    /// A paste has ended: so many addresses were taken, so many were none.
    void PasteEnded(int taken, int refused);

private:
    bool OnKey(const QKeyEvent& key);
    bool OnKeyDown(const QKeyEvent& key);
    void OnReturn();
    void OnEscape();
    void OnTyped(QChar key);
    void BeginEdit();
    void EndEdit();
    void OnClick();
    void OnEnterCell();
    void OnLeaveCell(int row, int col);
    void DeleteSelection();
    void InsertRows();
    bool TurnAppendRowIntoDataRow();

    void CommitCell(int row, int col);
    void GoOn(int row, bool autoIncrement);
    void WriteValue(const QString& variable, const QString& value);
    void AcceptAddress(int row, const QString& text, const QString& working);
    void EmptyRow(int row);
    void EmptyCells(int row, int firstCol);
    int RoomForRows(int first, int count);
    bool IsAppendRow(int row) const;
    void ShowBelow(int row);

    Grid& grid_;
    RSComm& link_;
    Dialogs& dialogs_;
    TableState& state_;
    bool autoIncrement_ = false;
    QString savedText_;        // the cell's text before the first key
    bool editing_ = false;     // the cell was cleared for typing and savedText_ is valid
    bool uncommitted_ = false; // column 1 holds an address that was not checked yet
    bool escapeArmed_ = false; // one Esc was pressed with nothing to undo
    bool skipLeave_ = false;   // the next leaving of a cell must not commit
    bool accepted_ = false;    // the last commit took an address
};
