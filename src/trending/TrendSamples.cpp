#include "trending/TrendSamples.h"

#include "base/NumberReader.h"
#include <algorithm>
#include <limits>

const QString TrendSamples::numberHead = QStringLiteral("#");
const QString TrendSamples::elapsedHead = QStringLiteral("(sec)");
const QString TrendSamples::dataHead = QStringLiteral("Data:");

namespace {
QString HeadOf(int column) {
    switch (column) {
    case 0:
        return TrendSamples::numberHead;
    case 1:
        return TrendSamples::elapsedHead;
    case 2:
        return TrendSamples::dataHead;
    default:
        return QString();
    }
}

qint32 GraphedValue(const QString& text) {
    return static_cast<qint32>(std::clamp<qint64>(WholeNumberValue(text),
                                                  std::numeric_limits<qint32>::min(),
                                                  std::numeric_limits<qint32>::max()));
}
} // namespace

QString TrendSamples::Text(int row, int column) const {
    if (row == 0)
        return HeadOf(column);
    if (row < 0 || row >= Rows() || column < 0 || column >= columns)
        return QString();
    if (column == 0)
        return QString::number(row);
    const TrendRow& texts = rows_[row - 1];
    return column == 1 ? texts.elapsed : texts.data;
}

void TrendSamples::Clear() {
    rows_.assign(clearedRows - 1, TrendRow());
}

bool TrendSamples::Add(const TrendRow& sample) {
    rows_.push_front(sample);
    if (Rows() <= removedRow)
        return false;
    rows_.erase(rows_.begin() + (removedRow - 1));
    return true;
}

void TrendSamples::Load(const std::vector<TrendRow>& rows) {
    rows_.assign(rows.begin(), rows.end());
    if (Rows() < clearedRows)
        rows_.resize(clearedRows - 1);
}

std::vector<qint32> ValuesToGraph(const TrendSamples& samples, int samplesToGraph) {
    const int asked = std::clamp(samplesToGraph, leastSamplesToGraph, mostSamplesToGraph);
    const int upperBound = std::min(asked, samples.Rows() - 2);
    std::vector<qint32> values;
    values.reserve(upperBound + 1);
    for (int i = 0; i <= upperBound; ++i)
        values.push_back(GraphedValue(samples.DataRows()[i].data));
    return values;
}
