#include "controls/grid/GridFormat.h"

#include <QStringList>

namespace {
GridColumnFormat ReadColumn(const QString& part) {
    GridColumnFormat column;
    if (part.isEmpty())
        return column;
    const QChar mark = part.front();
    if (mark == u'^')
        column.alignment = Qt::AlignCenter;
    if (mark == u'>')
        column.alignment = Qt::AlignRight | Qt::AlignVCenter;
    const bool marked = mark == u'<' || mark == u'^' || mark == u'>';
    column.head = part.mid(marked ? 1 : 0);
    return column;
}
} // namespace

std::vector<GridColumnFormat> ReadGridFormat(const QString& format) {
    std::vector<GridColumnFormat> columns;
    const QStringList parts = format.split(u'|');
    for (const QString& part : parts)
        columns.push_back(ReadColumn(part));
    return columns;
}
