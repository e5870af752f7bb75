#pragma once

#include "bench/Row.h"

namespace bench {

/// Download and upload of a limit switch board of 64 channels with eight setpoints each on a line
/// paced at 19200 baud, under the busy view as a user has them, against what the line carries; and
/// a bare loop just before and after them. `board` is the path of the program halden-board. Needs
/// a QApplication.
std::vector<Row> MeasurePLSTransfers(const QString& board);

} // namespace bench
