#pragma once

#include "bench/Row.h"

namespace bench {

/// A program upload from a board of 8 KiB of image (K2021) on a line paced at 19200 baud, under its
/// progress view: bytes read a second against what the line carries, from the showing of the view
/// to the box at the end; and a bare loop just before and after it. `board` is the path of the
/// program halden-board. Needs a QApplication.
std::vector<Row> MeasureUpload(const QString& board);

} // namespace bench
