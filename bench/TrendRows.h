#pragma once

#include "bench/Row.h"

namespace bench {

/// The trend view of the whole program with the simulated board on a line paced at 19200 baud: how
/// late its "100 msec" samples are on their grid, and how many samples a second it takes in
/// "Continuous" against what the line carries, with a bare loop on the same line in turn. `board`
/// is the path of the program halden-board. Needs a QApplication.
std::vector<Row> MeasureTrend(const QString& board);

} // namespace bench
