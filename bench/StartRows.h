#pragma once

#include "bench/Row.h"

namespace bench {

/// Start of the program `program`: milliseconds from its start to the first window on the screen,
/// and megabytes of resident memory once it has come to rest, medians of several starts. It runs as
/// a user runs it, but on the offscreen platform and with a data folder of its own; Qt's log of
/// window painting tells when the first window was handed to the screen.
std::vector<Row> MeasureStart(const QString& program);

} // namespace bench
