#pragma once

#include "bench/Row.h"

namespace bench {

/// The browser in a folder of 10,000 files: milliseconds from the key that selects the next program
/// set to its tree on the screen, median. Needs a QApplication.
Row MeasureBrowser();

} // namespace bench
