#include "controls/WrappingRow.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QStyle>
#include <QWidget>

namespace {
constexpr int usualGap = 6; // pixels, where the style leaves it open
} // namespace

// One by one: a layout that goes takes itself out of this one.
WrappingRow::~WrappingRow() {
    while (count() > 0)
        delete takeAt(0);
}

void WrappingRow::AddTogether(const QList<QWidget*>& controls) {
    auto* together = new QHBoxLayout;
    for (QWidget* control : controls)
        together->addWidget(control);
    addChildLayout(together);
    addItem(together);
}

void WrappingRow::addItem(QLayoutItem* item) {
    items_.emplace_back(item);
}

int WrappingRow::count() const {
    return static_cast<int>(items_.size());
}

QLayoutItem* WrappingRow::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index) {
    if (!itemAt(index))
        return nullptr;
    QLayoutItem* taken = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return taken;
}

int WrappingRow::Gap() const {
    const QWidget* parent = parentWidget();
    const int ofStyle =
        parent ? parent->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, parent)
               : -1;
    return ofStyle < 0 ? usualGap : ofStyle;
}

QSize WrappingRow::sizeHint() const {
    QSize all(-Gap(), 0);
    for (const auto& item : items_) {
        const QSize wanted = item->sizeHint();
        all = QSize(all.width() + Gap() + wanted.width(), std::max(all.height(), wanted.height()));
    }
    return all.expandedTo(QSize(0, 0)).grownBy(contentsMargins());
}

QSize WrappingRow::minimumSize() const {
    QSize largest(0, 0);
    for (const auto& item : items_)
        largest = largest.expandedTo(item->sizeHint());
    return largest.grownBy(contentsMargins());
}

int WrappingRow::heightForWidth(int width) const {
    return PutInLines(QRect(0, 0, width, 0), Act::Measure);
}

void WrappingRow::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    PutInLines(rect, Act::Move);
}

int WrappingRow::PutInLines(const QRect& rect, Act act) const {
    const QMargins margins = contentsMargins();
    const QRect inside = rect.marginsRemoved(margins);
    const int lineHeight = minimumSize().height() - margins.top() - margins.bottom();
    QPoint at = inside.topLeft();
    for (const auto& item : items_) {
        const int width = item->sizeHint().width();
        if (at.x() > inside.left() && at.x() + width > inside.right() + 1)
            at = QPoint(inside.left(), at.y() + lineHeight + Gap());
        if (act == Act::Move)
            item->setGeometry(QRect(at, QSize(width, lineHeight)));
        at.rx() += width + Gap();
    }
    return at.y() + lineHeight + margins.bottom() - rect.top();
}
