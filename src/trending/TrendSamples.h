#pragma once

#include "trending/TrendFile.h"
#include <deque>
#include <QString>
#include <vector>

/// The rows of the sample grid: row 0 holds the heads, row 1 the newest sample. A cleared grid has
/// 12 rows, the empty ones of which are pushed down and out by samples.
class TrendSamples {
public:
    static constexpr int clearedRows = 12;
    static constexpr int columns = 3;
    /// Row that an acquired sample pushes out: 257 samples stand above it.
    static constexpr int removedRow = 258;
    static const QString numberHead;  ///< "#"
    static const QString elapsedHead; ///< "(sec)"
    static const QString dataHead;    ///< "Data:"

    TrendSamples() { Clear(); }

    /// Number of rows, the heads included: 12 or more.
    int Rows() const { return static_cast<int>(rows_.size()) + 1; }
    /// Text of a cell: column 0 the row's number, 1 the elapsed seconds, 2 the value. Empty outside
    /// the grid.
    QString Text(int row, int column) const;
    /// Rows 1 and on.
    const std::deque<TrendRow>& DataRows() const { return rows_; }

    /// Back to the first state.
    void Clear();
    /// Puts an acquired sample into row 1. Row 258 goes if there is one then; returns whether it
    /// did.
    bool Add(const TrendRow& sample);
    /// The rows of a file in their order, all of them; at least as many rows as a cleared grid.
    void Load(const std::vector<TrendRow>& rows);

private:
    std::deque<TrendRow> rows_;
};

/// The values to graph, newest first: those of rows 1 to samplesToGraph + 1 (1 to 255 asked for,
/// anything else counts as the nearer end), fewer if the grid has fewer rows. A value is the whole
/// number that its text begins with, 0 for an empty cell, held within 32 bits.
std::vector<qint32> ValuesToGraph(const TrendSamples& samples, int samplesToGraph);

/// Ends of the number of samples to graph.
constexpr int leastSamplesToGraph = 1;
constexpr int mostSamplesToGraph = 255;
