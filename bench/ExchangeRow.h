#pragma once

#include "bench/Row.h"

namespace bench {

/// Exchanges per second through the link, reading one byte variable again and again, against a
/// bare loop that exchanges the same bytes on the same terminal. The two take turns in slices
/// of some 10 ms, so that a machine that is busy now and then is busy for both. The ratio is the
/// median of the ratios of neighbouring slices, the rates are medians too.
Row MeasureExchanges();

} // namespace bench
