#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace haldenboard {

/// Puts lines together from text that comes in pieces. A line that grows beyond bounds is given
/// cut, so that an endless one costs no memory.
class InputLines {
public:
    static constexpr size_t LongestLine = 4096; ///< characters

    /// Takes the next piece and gives the lines that it completes, without their ends.
    std::vector<std::string> Take(std::string_view piece);

private:
    std::string begun_;
};

} // namespace haldenboard
