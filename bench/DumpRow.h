#pragma once

#include "bench/Row.h"

namespace bench {

/// Bytes per second of a dump of 16 KiB into the simulated board at 19200 baud, from the user's Yes
/// to the last byte of the ident, against the line: every byte that crosses it, either way, costs
/// 10 bit times, since the board answers only when it was asked. The two fixed waits of a dump,
/// 0.1 and 2.0 seconds, are taken off. `board` is the path of the program halden-board.
Row MeasureDump(const QString& board);

} // namespace bench
