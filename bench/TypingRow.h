#pragma once

#include "bench/Row.h"

namespace bench {

/// Milliseconds from a key to the typed text on the screen, 99th percentile, in the status table of
/// the whole program while it polls 20 byte rows at 9600 baud. The keys come from a thread of
/// their own at any moment of a pass. `board` is the path of the program halden-board. Needs a
/// QApplication.
Row MeasureTyping(const QString& board);

} // namespace bench
