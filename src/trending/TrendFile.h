#pragma once

#include <QString>
#include <vector>

/// One row of the sample grid: both texts are kept as they stand, empty rows included.
struct TrendRow {
    QString elapsed; ///< seconds since the first sample, "12.34"
    QString data;    ///< the value as the board gave it, in decimal

    bool operator==(const TrendRow&) const = default;
};

/// What a .tdt file holds: the variable, the board as an entry of the list of boards, the heads of
/// the grid's columns, then one grid row a line, the newest sample first.
struct TrendFile {
    /// Most rows that are read from a file; far beyond what a grid is good for.
    static constexpr int rowLimit = 1'000'000;

    QString address;        ///< text of the variable's entry, which may be no variable at all
    int boardListEntry = 0; ///< entry of TableBoardNames, 0 for "(none)"
    std::vector<TrendRow> rows;
};

/// How an attempt to read a trend file ended.
enum class TrendFileState { Empty, Read };

/// Reads the trend file at `path` whole before anything is changed. A line with one value has
/// empty data, values behind the second are passed over, and empty lines are no rows; a board that
/// the list does not have reads as "(none)". Raises as TextReader, 62 for a file cut before the
/// column heads, 7 for one of more than rowLimit rows; `trend` is untouched then.
TrendFileState ReadTrendFile(const QString& path, TrendFile& trend);

/// Writes the trend file, whole or not at all. Raises as WriteWholeFile.
void WriteTrendFile(const QString& path, const TrendFile& trend);
