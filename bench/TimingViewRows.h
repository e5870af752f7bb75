#pragma once

#include "bench/Row.h"

namespace bench {

/// The timing view of the whole program on a limit switch board whose shaft turns, with the
/// background update: reads a second of its loop on a line paced at 19200 baud, against what the
/// line carries (8 byte times a read: attention, command and two bytes, each answered); and
/// milliseconds from a key in the ON entry to the screen, 99th percentile, at 9600 baud. `board` is
/// the path of the program halden-board. Needs a QApplication.
std::vector<Row> MeasureTimingView(const QString& board);

} // namespace bench
