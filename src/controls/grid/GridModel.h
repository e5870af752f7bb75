#pragma once

#include "base/Alarms.h"
#include <memory>
#include <QAbstractTableModel>
#include <set>
#include <vector>

/// The texts of a grid: rows of plain texts, with no object per cell. Rows are counted from 0 with
/// the fixed rows, which are the heads and do not scroll; columns from 0.
///
/// Changes of texts are shown gathered, at most 25 times a second however fast they come; the
/// texts themselves are always the newest.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    /// Shortest time between two repaints for changed texts, in milliseconds: as often as an eye
    /// can follow, and rare enough to leave the processor to the serial line.
    static constexpr int repaintInterval = 40;
    /// How long a changed value stays marked, in milliseconds: long enough for a glance, and over
    /// before values that change every second look marked for good.
    static constexpr int markTime = 600;
    /// True for a cell whose value changed a moment ago.
    static constexpr int ChangedRole = Qt::UserRole;

    /// `alarms` time the repaints and marks; they must outlive the model.
    explicit GridModel(int fixedRows, QObject* parent = nullptr, Alarms& alarms = Alarms::System());

    int Rows() const { return static_cast<int>(rows_.size()); }
    int Cols() const { return cols_; }
    int FixedRows() const { return fixedRows_; }
    /// Adds empty rows or removes rows at the end; never fewer than the fixed rows.
    void SetRows(int rows);
    /// Sets the number of columns; a negative one is ignored. Texts in columns that stay are kept.
    void SetCols(int cols);
    /// Text of a cell; empty outside the grid.
    QString Text(int row, int col) const;
    /// Sets the text of a cell; nothing outside the grid, so that a row may be gone by now.
    void SetText(int row, int col, const QString& text);
    /// Puts `count` rows of these texts before row `row`, which is held within FixedRows and Rows.
    void InsertRows(int row, int count, const QStringList& texts);
    /// Removes the rows from `row` on, as far as they exist and are not fixed.
    void RemoveRows(int row, int count);
    /// Empties all cells.
    void Clear();

    /// Aligns the texts of a column and its head; nothing outside the grid.
    void SetAlignment(int col, Qt::Alignment alignment);
    /// Shows the column in a font of one width, so that digits stand below digits.
    void SetFixedPitch(int col);
    /// Marks a cell as changed for markTime.
    void MarkChanged(int row, int col);
    /// Shows what has changed now instead of gathering it.
    void Flush();
    /// Goes up by one with every change of a text or of the rows: tells whether anything changed.
    quint64 Revision() const { return revision_; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    using Cell = std::pair<int, int>; // row, column

    struct Column {
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
        bool fixedPitch = false;
    };
    struct Mark {
        Cell cell;
        qint64 until;
    };

    bool Contains(int row, int col) const;
    QString HeadText(int col) const;
    void Changed(int row, int col);
    void ShowChange(int row, int col);
    void Gather();
    void ForgetGathered();
    void DropOldMarks();

    int fixedRows_;
    int cols_ = 0;
    std::vector<std::vector<QString>> rows_;
    std::vector<Column> columns_;
    quint64 revision_ = 0;

    std::set<Cell> changed_;
    std::vector<Mark> marks_;
    Alarms& alarms_;
    qint64 lastShown_;
    std::unique_ptr<Alarm> showGathered_;
    std::unique_ptr<Alarm> oldestMarkEnds_;
};
