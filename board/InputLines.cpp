#include "board/InputLines.h"

#include <algorithm>

namespace haldenboard {

std::vector<std::string> InputLines::Take(std::string_view piece) {
    std::vector<std::string> lines;
    while (!piece.empty()) {
        const size_t end = std::min(piece.find('\n'), piece.size());
        begun_ += piece.substr(0, std::min(end, LongestLine - begun_.size()));
        if (end == piece.size())
            break;
        lines.push_back(std::move(begun_));
        begun_.clear();
        piece.remove_prefix(end + 1);
    }
    return lines;
}

} // namespace haldenboard
