#include "FuzzFile.h"
#include "statustable/TableBoards.h"
#include "trending/TrendFile.h"
#include "trending/TrendSamples.h"

// The trend file .tdt, the grid that shows it and the values of its graph.

namespace {
void Show(const TrendFile& trend) {
    Require(trend.boardListEntry >= 0 && trend.boardListEntry < TableBoardNames().size(),
            "the board stands in the list");
    TrendSamples samples;
    samples.Load(trend.rows);
    Require(samples.Rows() >= TrendSamples::clearedRows,
            "the grid never shrinks below its first size");
    for (const int row : {0, 1, samples.Rows() - 1, samples.Rows()})
        for (int column = 0; column < TrendSamples::columns; ++column)
            samples.Text(row, column);
    for (const int asked : {0, 1, 255, 9999}) {
        const auto values = ValuesToGraph(samples, asked);
        Require(!values.empty() && values.size() <= mostSamplesToGraph + 1,
                "a graph has 1 to 256 values");
    }
}

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("S.tdt"));
    file.Put(input);
    TrendFile trend;
    if (Passes([&] { ReadTrendFile(file.Path(), trend); }))
        Show(trend);
    else
        Require(trend.rows.empty() && trend.address.isEmpty(),
                "a file that cannot be read changes nothing");
}

const RegisteredTarget target("tdt", Run);
} // namespace
