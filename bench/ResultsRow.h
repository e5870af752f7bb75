#pragma once

#include "bench/Row.h"

namespace bench {

/// Milliseconds from the command that searches a program set, its results file of 50,000 lines
/// already there, to its lines on the screen; median. Needs a QApplication.
Row MeasureResults();

} // namespace bench
