#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

/// Paints the cells of a grid: a soft ground behind values that changed a moment ago, a frame and
/// a caret around the cell that is typed in. All colours come from the palette, so that both stay
/// readable in light and dark schemes.
class GridDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The cell that is typed in; an invalid index for none.
    void SetTypedCell(const QModelIndex& cell) { typed_ = cell; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    QPersistentModelIndex typed_;
};
