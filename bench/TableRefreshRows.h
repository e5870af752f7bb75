#pragma once

#include "bench/Row.h"

namespace bench {

/// Rows refreshed a second by the status table of the whole program, 20 byte rows in sight, some
/// with changing values, on a line paced at 19200 baud, against what the line carries; and a bare
/// loop on the same line, in turn with it. Medians of slices. `board` is the path of the program
/// halden-board. Needs a QApplication.
std::vector<Row> MeasureTableRefresh(const QString& board);

} // namespace bench
