#pragma once

#include "bench/Row.h"

namespace bench {

/// Milliseconds from the command that opens a table file of 32,000 lines to its rows on the screen,
/// and how many times the processor time of 16,000 lines they take; medians. Needs a QApplication.
std::vector<Row> MeasureTableOpening();

/// Milliseconds of processor time a second that the whole program takes, offline with a table that
/// shows the data file, while nothing changes. Needs a QApplication.
Row MeasureOfflineTable();

} // namespace bench
