#pragma once

#include "controls/grid/GridModel.h"
#include <functional>
#include <map>
#include <QTableView>
#include <vector>

class GridDelegate;
class QKeyEvent;

/// A grid of texts with heads that do not scroll, as all views of tables use it: a display with
/// one current cell and a selection that reaches from it to another cell. It has no editing of its
/// own; its owner makes one from the keys. Rows are counted from 0, the fixed rows included.
///
/// Tab leaves the grid; the arrow keys, Home, End and the page keys move, with Shift they extend
/// the selection. Ctrl and plus or minus make the current column wider or narrower, as dragging its
/// edge in the heads does.
class Grid : public QTableView {
    Q_OBJECT
public:
    /// `alarms` time the repaints and marks; they must outlive the grid.
    explicit Grid(int fixedRows, QWidget* parent = nullptr, Alarms& alarms = Alarms::System());

    /// Number of rows, the fixed ones included.
    int Rows() const { return model_->Rows(); }
    int Cols() const { return model_->Cols(); }
    int FixedRows() const { return model_->FixedRows(); }
    /// Adds empty rows at the end or removes rows there; never fewer than the fixed rows. A current
    /// cell that is gone moves to the last row that is left.
    void SetRows(int rows);
    /// Sets the number of columns; 0 or more. Texts in columns that stay are kept.
    void SetCols(int cols) { model_->SetCols(cols); }
    /// Alignment of the columns and texts of their heads; see ReadGridFormat.
    void SetFormatString(const QString& format);
    /// Text of a cell; empty outside the grid.
    QString TextMatrix(int row, int col) const { return model_->Text(row, col); }
    /// Sets the text of a cell; nothing outside the grid.
    void SetTextMatrix(int row, int col, const QString& text) { model_->SetText(row, col, text); }
    /// Empties all cells, the heads too.
    void Clear() { model_->Clear(); }
    /// Puts `count` rows of the same texts before row `row`; without one, behind the last. Cells
    /// are parted by tabs. The current cell keeps its row number.
    void AddItem(const QString& texts, int row = -1, int count = 1);
    /// Removes rows from `row` on; fixed rows stay. The current cell keeps its row number while
    /// there is such a row.
    void RemoveItem(int row, int count = 1);

    /// The current cell, where the selection began; -1 while there is none.
    int Row() const { return row_; }
    int Col() const { return col_; }
    /// The cell at the other end of the selection.
    int RowSel() const;
    int ColSel() const;
    void SetRow(int row) { SetCell(row, col_); }
    void SetCol(int col) { SetCell(row_, col); }
    /// Makes a cell current, with nothing else selected, and shows it. Both are held within the
    /// rows below the heads and the columns.
    void SetCell(int row, int col);
    /// The selected cells as text: tabs between columns, CR LF between rows.
    QString Clip() const;

    /// First row below the heads that can be seen.
    int TopRow() const;
    /// Scrolls so that a row is the first below the heads, or as near to it as the end allows.
    void SetTopRow(int row);
    /// Whether any part of a row can be seen.
    bool RowIsVisible(int row) const;

    /// Shows a cell as the one that is typed in; row 0 for none.
    void ShowTypedCell(int row, int col);
    /// Asked before the grid looks at a key itself; true when the key was taken.
    void SetKeyHandler(std::function<bool(const QKeyEvent&)> handler) { keyHandler_ = handler; }
    /// Shares the free width out among the columns by weight, none below its least width in
    /// pixels. A column that the user has sized keeps that width.
    void ShareWidth(const std::vector<int>& weights, const std::vector<int>& leastWidths);

    GridModel& Model() { return *model_; }
    const GridModel& Model() const { return *model_; }

Q_SIGNALS:
    /// The current cell is now another one; this is the cell before.
    void LeaveCell(int row, int col);
    /// The current cell is now another one.
    void EnterCell();
    /// A cell was clicked with the left button.
    void Click();
    /// The width to share may be another one now.
    void Resized();
    /// The rows that can be seen may be others now.
    void Scrolled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QModelIndex IndexOf(int row, int col) const;
    QRect Selected() const;
    QPoint SelectionStart() const;
    void FollowSelection();
    void MoveTo(int row, int col);
    void FitRowHeight();
    void NoteUserWidth(int col, int width);
    bool SizeColumn(const QKeyEvent& event);

    GridModel* model_;
    GridDelegate* delegate_;
    std::function<bool(const QKeyEvent&)> keyHandler_;
    int row_ = -1;
    int col_ = -1;
    bool movingCell_ = false;
    bool sharingWidth_ = false;
    std::map<int, int> userWidths_;
};
