#pragma once

#include "bench/Row.h"

namespace bench {

/// Exchanges per second through the link, reading one byte variable again and again, against a
/// bare loop that exchanges the same bytes on the same terminal. The two take turns in short
/// slices, so that a machine that is busy now and then is busy for both.
Row MeasureExchanges();

} // namespace bench
