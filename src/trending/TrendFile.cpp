#include "trending/TrendFile.h"

#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "statustable/TableBoards.h"
#include "trending/TrendSamples.h"
#include <utility>

namespace {
const QString separator = QStringLiteral(", ");

int BoardListEntry(const QString& item) {
    const qint64 entry = WholeNumberValue(item);
    return entry >= 0 && entry < TableBoardNames().size() ? static_cast<int>(entry) : 0;
}

// The texts of a row are numbers, so that neither holds a comma or a quote.
TrendRow RowOfLine(const QString& line) {
    TrendRow row{FirstItem(line), QString()};
    const qsizetype comma = line.indexOf(u',');
    if (comma >= 0)
        row.data = FirstItem(line.mid(comma + 1));
    return row;
}

void ReadRows(TextReader& reader, std::vector<TrendRow>& rows) {
    while (!reader.AtEnd()) {
        const QString line = reader.LineInput();
        if (line.isEmpty())
            continue;
        if (rows.size() == static_cast<std::size_t>(TrendFile::rowLimit))
            throw RunTimeError(ErrorNumber::OutOfMemory);
        rows.push_back(RowOfLine(line));
    }
}
} // namespace

TrendFileState ReadTrendFile(const QString& path, TrendFile& trend) {
    TextReader reader(path);
    if (reader.AtEnd())
        return TrendFileState::Empty;
    TrendFile file;
    // Line by line, so that a comma in a half typed variable cannot shift all that follows.
    file.address = FirstItem(reader.LineInput());
    file.boardListEntry = BoardListEntry(FirstItem(reader.LineInput()));
    reader.LineInput(); // the heads
    ReadRows(reader, file.rows);
    trend = std::move(file);
    return TrendFileState::Read;
}

void WriteTrendFile(const QString& path, const TrendFile& trend) {
    TextWriter writer(path);
    writer.PrintText(trend.address);
    writer.PrintNumber(trend.boardListEntry);
    writer.PrintText(TrendSamples::elapsedHead + separator + TrendSamples::dataHead);
    for (const TrendRow& row : trend.rows)
        writer.PrintText(row.elapsed + separator + row.data);
    writer.Close();
}
