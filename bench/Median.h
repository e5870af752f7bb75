#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace bench {

/// The middle one of an odd number of values, which a few bursts of other work do not move.
inline double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace bench
