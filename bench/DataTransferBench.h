#pragma once

#include "bench/Row.h"

namespace bench {

/// Download and upload of addresses 32 to 8175 of board 50 on a line paced at 19200 baud, under
/// the busy view as a user has them, against what the line carries; a bare loop just after them;
/// and what the view takes of the time of the download. `board` is the path of the program
/// halden-board. Needs a QApplication.
std::vector<Row> MeasureDataTransfers(const QString& board);

} // namespace bench
