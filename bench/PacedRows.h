#pragma once

#include "bench/Row.h"

namespace bench {

/// Reads per second of a byte and of a word variable from the simulated board on a line paced at
/// 19200 baud, against what the line carries: 4 byte times a byte (two out, two in), 10 bit times
/// each. A bare loop on the same line, in turn with them, shows what line and machine leave
/// possible. Of the slices of each way the median counts. `board` is the path of the program
/// halden-board.
std::vector<Row> MeasurePacedReads(const QString& board);

} // namespace bench
