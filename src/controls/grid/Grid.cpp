#include "controls/grid/Grid.h"

#include "controls/grid/GridDelegate.h"
#include "controls/grid/GridFormat.h"
#include "controls/grid/GridHeader.h"
#include <algorithm>
#include <numeric>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <utility>

namespace {
constexpr int rowPadding = 6; // pixels above and below a row's text together
constexpr int mostMovesOn = 4;
} // namespace

Grid::Grid(int fixedRows, QWidget* parent, Alarms& alarms)
    : QTableView(parent), model_(new GridModel(fixedRows, this, alarms)),
      delegate_(new GridDelegate(this)) {
    setHorizontalHeader(new GridHeader(this));
    setModel(model_);
    setItemDelegate(delegate_);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setContextMenuPolicy(Qt::CustomContextMenu);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    FitRowHeight();
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int col, int, int width) { NoteUserWidth(col, width); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &Grid::Scrolled);
    connect(this, &QTableView::clicked, this, [this] { Q_EMIT Click(); });
    // A screen reader moves the current cell without a key or the mouse.
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, &Grid::FollowSelection,
            Qt::QueuedConnection);
}

QModelIndex Grid::IndexOf(int row, int col) const {
    return model_->index(row - FixedRows(), col);
}

void Grid::SetRows(int rows) {
    model_->SetRows(rows);
    FollowSelection();
}

void Grid::SetFormatString(const QString& format) {
    const auto columns = ReadGridFormat(format);
    for (int col = 0; col < static_cast<int>(columns.size()) && col < Cols(); ++col) {
        model_->SetAlignment(col, columns[col].alignment);
        if (!columns[col].head.isEmpty() && FixedRows() > 0)
            SetTextMatrix(0, col, columns[col].head);
    }
}

void Grid::AddItem(const QString& texts, int row, int count) {
    const int keptRow = row_;
    const int keptCol = col_;
    model_->InsertRows(row < 0 ? Rows() : row, count, texts.split(u'\t'));
    MoveTo(keptRow, keptCol);
}

void Grid::RemoveItem(int row, int count) {
    const int keptRow = row_;
    const int keptCol = col_;
    model_->RemoveRows(row, count);
    MoveTo(keptRow, keptCol);
}

QRect Grid::Selected() const {
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty()) {
        const QModelIndex current = currentIndex();
        return QRect(current.column(), current.row(), 1, 1);
    }
    QRect selected;
    for (const QItemSelectionRange& range : selection)
        selected |= QRect(range.left(), range.top(), range.width(), range.height());
    return selected;
}

int Grid::RowSel() const {
    const QModelIndex current = currentIndex();
    return current.isValid() ? current.row() + FixedRows() : row_;
}

int Grid::ColSel() const {
    const QModelIndex current = currentIndex();
    return current.isValid() ? current.column() : col_;
}

void Grid::SetCell(int row, int col) {
    MoveTo(row, col);
    if (row_ >= 0)
        scrollTo(IndexOf(row_, col_));
}

// Without the scrolling, for what happens beside the user's own moves.
void Grid::MoveTo(int row, int col) {
    if (Rows() <= FixedRows() || Cols() == 0)
        return;
    row = std::clamp(row, FixedRows(), Rows() - 1);
    col = std::clamp(col, 0, Cols() - 1);
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(IndexOf(row, col), QItemSelectionModel::ClearAndSelect);
    setAutoScroll(scrolls);
    FollowSelection();
}

// The selection is a rectangle that ends at Qt's current index: it began at the corner opposite.
QPoint Grid::SelectionStart() const {
    const QModelIndex end = currentIndex();
    if (!end.isValid())
        return QPoint(-1, -1);
    const QRect selected = Selected();
    return QPoint(end.column() == selected.left() ? selected.right() : selected.left(),
                  (end.row() == selected.top() ? selected.bottom() : selected.top()) + FixedRows());
}

// Who is told of the move may move the cell on; the second look notices that.
void Grid::FollowSelection() {
    if (movingCell_)
        return;
    const QScopedValueRollback<bool> moving(movingCell_, true);
    for (int look = 0; look < mostMovesOn; ++look) {
        const QPoint now = SelectionStart();
        if (now == QPoint(col_, row_))
            return;
        const int leftRow = std::exchange(row_, now.y());
        const int leftCol = std::exchange(col_, now.x());
        if (leftRow >= 0)
            Q_EMIT LeaveCell(leftRow, leftCol);
        Q_EMIT EnterCell();
    }
}

QString Grid::Clip() const {
    const QRect selected = Selected();
    QStringList lines;
    for (int row = selected.top(); row <= selected.bottom(); ++row) {
        QStringList cells;
        for (int col = selected.left(); col <= selected.right(); ++col)
            cells += TextMatrix(row + FixedRows(), col);
        lines += cells.join(u'\t');
    }
    return lines.join(QStringLiteral("\r\n"));
}

int Grid::TopRow() const {
    return std::max(rowAt(0), 0) + FixedRows();
}

void Grid::SetTopRow(int row) {
    updateGeometries(); // the scroll bar may not know yet of rows that have come
    verticalScrollBar()->setValue(row - FixedRows());
}

bool Grid::RowIsVisible(int row) const {
    if (row < 0 || row >= Rows())
        return false;
    if (row < FixedRows())
        return true;
    const int top = rowViewportPosition(row - FixedRows());
    return top + rowHeight(row - FixedRows()) > 0 && top < viewport()->height();
}

void Grid::ShowTypedCell(int row, int col) {
    delegate_->SetTypedCell(row < FixedRows() ? QModelIndex() : IndexOf(row, col));
    viewport()->update();
}

void Grid::ShareWidth(const std::vector<int>& weights, const std::vector<int>& leastWidths) {
    const QScopedValueRollback<bool> sharing(sharingWidth_, true);
    const int columns = std::min(Cols(), static_cast<int>(weights.size()));
    int free = viewport()->width();
    int shares = 0;
    for (int col = 0; col < columns; ++col) {
        const auto own = userWidths_.find(col);
        free -= own == userWidths_.end() ? leastWidths[col] : own->second;
        shares += own == userWidths_.end() ? weights[col] : 0;
    }
    for (int col = 0; col < columns; ++col) {
        if (userWidths_.contains(col)) {
            setColumnWidth(col, userWidths_[col]);
            continue;
        }
        const int extra = shares > 0 && free > 0 ? free * weights[col] / shares : 0;
        setColumnWidth(col, leastWidths[col] + extra);
    }
}

void Grid::NoteUserWidth(int col, int width) {
    if (!sharingWidth_ && QGuiApplication::mouseButtons() != Qt::NoButton)
        userWidths_[col] = width;
}

void Grid::FitRowHeight() {
    const int height = fontMetrics().height() + rowPadding;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

// On some keyboards plus stands above the equals sign, which serves as well.
bool Grid::SizeColumn(const QKeyEvent& event) {
    const bool wider = event.key() == Qt::Key_Plus || event.key() == Qt::Key_Equal;
    if (!(event.modifiers() & Qt::ControlModifier) || (!wider && event.key() != Qt::Key_Minus) ||
        currentIndex().column() < 0)
        return false;
    const int col = currentIndex().column();
    const int step = 2 * fontMetrics().averageCharWidth();
    userWidths_[col] = std::max(columnWidth(col) + (wider ? step : -step),
                                horizontalHeader()->minimumSectionSize());
    setColumnWidth(col, userWidths_[col]);
    return true;
}

// What a key does is shown at once: only what comes from elsewhere is gathered.
void Grid::keyPressEvent(QKeyEvent* event) {
    const bool taken = SizeColumn(*event) || (keyHandler_ && keyHandler_(*event));
    if (!taken)
        QTableView::keyPressEvent(event);
    FollowSelection();
    model_->Flush();
    if (taken)
        event->accept();
}

void Grid::mousePressEvent(QMouseEvent* event) {
    QTableView::mousePressEvent(event);
    FollowSelection();
}

void Grid::mouseMoveEvent(QMouseEvent* event) {
    QTableView::mouseMoveEvent(event);
    FollowSelection();
}

void Grid::mouseReleaseEvent(QMouseEvent* event) {
    FollowSelection();
    QTableView::mouseReleaseEvent(event);
}

void Grid::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        FitRowHeight();
}

void Grid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    Q_EMIT Resized();
    Q_EMIT Scrolled();
}
