#include "bench/Row.h"

namespace bench {

namespace {
constexpr int nameWidth = -46;
constexpr int numberWidth = 11;

QString Line(const QString& name, const QString& value, const QString& reference,
             const QString& ratio, const QString& goal, const QString& ok) {
    return QStringLiteral("%1%2%3%4%5  %6\n")
        .arg(name, nameWidth)
        .arg(value, numberWidth)
        .arg(reference, numberWidth)
        .arg(ratio, 8)
        .arg(goal, 7)
        .arg(ok);
}

QString Number(double number, int decimals) {
    return QString::number(number, 'f', decimals);
}
} // namespace

Row RowOfRates(const QString& name, double value, double reference, double goal) {
    return {name, value, reference, value / reference, goal};
}

Row RowOfLimit(const QString& name, double value, double limit) {
    return {name, value, limit, limit / value, 1.0};
}

bool IsReached(const Row& row) {
    return row.ratio >= row.goal;
}

QString HeadText() {
    return Line(QStringLiteral("name"), QStringLiteral("value"), QStringLiteral("reference"),
                QStringLiteral("ratio"), QStringLiteral("goal"), QStringLiteral("ok?"));
}

QString RowText(const Row& row) {
    return Line(row.name, Number(row.value, 1), Number(row.reference, 1), Number(row.ratio, 3),
                Number(row.goal, 2), IsReached(row) ? QStringLiteral("yes") : QStringLiteral("NO"));
}

} // namespace bench
