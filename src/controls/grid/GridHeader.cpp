#include "controls/grid/GridHeader.h"

#include <QPainter>
#include <QStyleOptionHeader>

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    if (!rect.isValid())
        return;
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    option.rect = rect;
    initStyleOptionForIndex(&option, section);
    painter->save();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    option.rect = rect.adjusted(margin, 0, -margin - 1, 0);
    const QVariant font = model()->headerData(section, Qt::Horizontal, Qt::FontRole);
    painter->setFont(font.isValid() ? font.value<QFont>() : this->font());
    style()->drawControl(QStyle::CE_HeaderLabel, &option, painter, this);
    painter->restore();
}
