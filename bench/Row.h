#pragma once

#include <QString>
#include <vector>

namespace bench {

/// One line of the table: a measured value against what it is measured by.
struct Row {
    QString name;     ///< what was measured, with its unit
    double value;     ///< as measured
    double reference; ///< the limit, or the other way of doing the same
    double ratio;     ///< the part of the goal that was reached, higher is better
    double goal;      ///< lowest ratio that will do
};

/// A row whose ratio is the value divided by the reference.
Row RowOfRates(const QString& name, double value, double reference, double goal);

/// A row of which the less the better: the ratio is the limit divided by the value, 1 when the
/// limit is just kept.
Row RowOfLimit(const QString& name, double value, double limit);

/// True when the row reaches its goal.
bool IsReached(const Row& row);

/// The line of headings of the table.
QString HeadText();
/// A row as a line of the table.
QString RowText(const Row& row);

} // namespace bench
