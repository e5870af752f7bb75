#include "controls/grid/GridDelegate.h"

#include "controls/grid/GridModel.h"
#include <QPainter>

namespace {
constexpr double changedShare = 0.35; // of the highlight colour in the ground of a changed value
constexpr int caretGap = 2;           // pixels between text and caret
constexpr int textMargin = 4;         // pixels between the cell's edge and its text

QColor Blend(const QColor& over, const QColor& under, double share) {
    const auto mix = [share](double a, double b) { return a * share + b * (1 - share); };
    return QColor::fromRgbF(static_cast<float>(mix(over.redF(), under.redF())),
                            static_cast<float>(mix(over.greenF(), under.greenF())),
                            static_cast<float>(mix(over.blueF(), under.blueF())));
}

int CaretPosition(const QStyleOptionViewItem& option) {
    const int width = option.fontMetrics.horizontalAdvance(option.text);
    if (option.displayAlignment & Qt::AlignRight)
        return option.rect.right() - textMargin + caretGap;
    if (option.displayAlignment & Qt::AlignHCenter)
        return option.rect.center().x() + width / 2 + caretGap;
    return option.rect.left() + textMargin + width + caretGap;
}
} // namespace

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->textElideMode = Qt::ElideRight;
    if (index == typed_) {
        option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
        option->backgroundBrush = option->palette.brush(QPalette::Base);
        return;
    }
    if (index.data(GridModel::ChangedRole).toBool()) {
        const QPalette& palette = option->palette;
        option->backgroundBrush =
            Blend(palette.color(QPalette::Highlight), palette.color(QPalette::Base), changedShare);
    }
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (index != typed_)
        return;
    QStyleOptionViewItem typed(option);
    initStyleOption(&typed, index);
    painter->save();
    painter->setPen(QPen(typed.palette.color(QPalette::Highlight), 2));
    painter->drawRect(typed.rect.adjusted(1, 1, -1, -1));
    painter->setPen(typed.palette.color(QPalette::Text));
    const int x = CaretPosition(typed);
    const int half = typed.fontMetrics.height() / 2;
    painter->drawLine(x, typed.rect.center().y() - half, x, typed.rect.center().y() + half);
    painter->restore();
}
