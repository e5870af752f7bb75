#include "controls/grid/GridModel.h"

#include <algorithm>
#include <QFontDatabase>

namespace {
// Beyond this many changed cells one change of the whole grid is cheaper than one of each.
constexpr std::size_t mostSingleChanges = 200;
} // namespace

GridModel::GridModel(int fixedRows, QObject* parent, Alarms& alarms)
    : QAbstractTableModel(parent), fixedRows_(fixedRows), rows_(fixedRows), alarms_(alarms),
      lastShown_(alarms.Milliseconds() - repaintInterval),
      showGathered_(alarms.Make([this] { Flush(); })),
      oldestMarkEnds_(alarms.Make([this] { DropOldMarks(); })) {}

bool GridModel::Contains(int row, int col) const {
    return row >= 0 && row < Rows() && col >= 0 && col < cols_;
}

void GridModel::SetRows(int rows) {
    rows = std::max(rows, fixedRows_);
    if (rows == Rows())
        return;
    ForgetGathered();
    const bool more = rows > Rows();
    if (more)
        beginInsertRows(QModelIndex(), Rows() - fixedRows_, rows - fixedRows_ - 1);
    else
        beginRemoveRows(QModelIndex(), rows - fixedRows_, Rows() - fixedRows_ - 1);
    rows_.resize(rows, std::vector<QString>(cols_));
    more ? endInsertRows() : endRemoveRows();
}

void GridModel::SetCols(int cols) {
    if (cols == cols_ || cols < 0)
        return;
    beginResetModel();
    ForgetGathered();
    cols_ = cols;
    columns_.resize(cols);
    for (auto& row : rows_)
        row.resize(cols);
    endResetModel();
}

QString GridModel::Text(int row, int col) const {
    return Contains(row, col) ? rows_[row][col] : QString();
}

void GridModel::SetText(int row, int col, const QString& text) {
    if (!Contains(row, col) || rows_[row][col] == text)
        return;
    rows_[row][col] = text;
    ++revision_;
    Changed(row, col);
}

void GridModel::InsertRows(int row, int count, const QStringList& texts) {
    if (count <= 0)
        return;
    row = std::clamp(row, fixedRows_, Rows());
    ForgetGathered();
    const int first = row - fixedRows_;
    beginInsertRows(QModelIndex(), first, first + count - 1);
    std::vector<QString> cells(texts.begin(), texts.end());
    cells.resize(cols_);
    rows_.insert(rows_.begin() + row, count, cells);
    endInsertRows();
}

void GridModel::RemoveRows(int row, int count) {
    count = std::min(count, Rows() - row);
    if (row < fixedRows_ || count <= 0)
        return;
    ForgetGathered();
    const int first = row - fixedRows_;
    beginRemoveRows(QModelIndex(), first, first + count - 1);
    rows_.erase(rows_.begin() + row, rows_.begin() + row + count);
    endRemoveRows();
}

void GridModel::Clear() {
    ForgetGathered();
    for (auto& row : rows_)
        std::fill(row.begin(), row.end(), QString());
    if (cols_ == 0)
        return;
    if (Rows() > fixedRows_)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, cols_ - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, cols_ - 1);
}

void GridModel::SetAlignment(int col, Qt::Alignment alignment) {
    if (col < 0 || col >= cols_)
        return;
    columns_[col].alignment = alignment;
    Q_EMIT headerDataChanged(Qt::Horizontal, col, col);
}

void GridModel::SetFixedPitch(int col) {
    if (col >= 0 && col < cols_)
        columns_[col].fixedPitch = true;
}

void GridModel::MarkChanged(int row, int col) {
    if (!Contains(row, col))
        return;
    const Cell cell(row, col);
    std::erase_if(marks_, [&cell](const Mark& mark) { return mark.cell == cell; });
    marks_.push_back({cell, alarms_.Milliseconds() + markTime});
    if (!oldestMarkEnds_->IsSet())
        oldestMarkEnds_->Set(markTime);
    Changed(row, col);
}

void GridModel::DropOldMarks() {
    const qint64 now = alarms_.Milliseconds();
    for (const Mark& mark : marks_)
        if (mark.until <= now)
            Changed(mark.cell.first, mark.cell.second);
    std::erase_if(marks_, [now](const Mark& mark) { return mark.until <= now; });
    if (!marks_.empty())
        oldestMarkEnds_->Set(
            static_cast<int>(marks_.front().until - now)); // the oldest stands first
}

void GridModel::Changed(int row, int col) {
    changed_.emplace(row, col);
    Gather();
}

void GridModel::Gather() {
    if (showGathered_->IsSet())
        return;
    const qint64 since = alarms_.Milliseconds() - lastShown_;
    showGathered_->Set(static_cast<int>(std::max<qint64>(repaintInterval - since, 0)));
}

void GridModel::Flush() {
    showGathered_->Stop();
    if (changed_.empty())
        return;
    lastShown_ = alarms_.Milliseconds();
    std::set<Cell> changed;
    changed.swap(changed_);
    const bool single = changed.size() <= mostSingleChanges;
    if (!single && Rows() > fixedRows_)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, cols_ - 1));
    for (const auto& [row, col] : changed)
        if (single || row < fixedRows_)
            ShowChange(row, col);
}

void GridModel::ShowChange(int row, int col) {
    if (row < fixedRows_) {
        Q_EMIT headerDataChanged(Qt::Horizontal, col, col);
        return;
    }
    const QModelIndex cell = index(row - fixedRows_, col);
    Q_EMIT dataChanged(cell, cell);
}

// Row numbers that were gathered or marked mean other rows once rows come or go; the view repaints
// all of it then.
void GridModel::ForgetGathered() {
    Flush();
    marks_.clear();
    ++revision_;
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Rows() - fixedRows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cols_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const Cell cell(index.row() + fixedRows_, index.column());
    if (!Contains(cell.first, cell.second))
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return rows_[cell.first][cell.second];
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(columns_[cell.second].alignment);
    case Qt::FontRole:
        return columns_[cell.second].fixedPitch
                   ? QVariant(QFontDatabase::systemFont(QFontDatabase::FixedFont))
                   : QVariant();
    case ChangedRole:
        return std::any_of(marks_.begin(), marks_.end(),
                           [&cell](const Mark& mark) { return mark.cell == cell; });
    default:
        return QVariant();
    }
}

QString GridModel::HeadText(int col) const {
    QStringList lines;
    for (int row = 0; row < fixedRows_; ++row)
        lines += Text(row, col);
    return lines.join(u'\n');
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= cols_)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return HeadText(section);
    case Qt::AccessibleTextRole: {
        const QString head = HeadText(section).simplified();
        return head.isEmpty() ? QStringLiteral("Column %1").arg(section + 1) : head;
    }
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(columns_[section].alignment);
    case Qt::FontRole:
        return columns_[section].fixedPitch
                   ? QVariant(QFontDatabase::systemFont(QFontDatabase::FixedFont))
                   : QVariant();
    default:
        return QVariant();
    }
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}
