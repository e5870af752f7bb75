#pragma once

#include <QHeaderView>

/// The heads of a grid. They keep the same distance from the column's edges as the cells, so that
/// a head of digits stands exactly above the digits of its column.
class GridHeader final : public QHeaderView {
    Q_OBJECT
public:
    explicit GridHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};
