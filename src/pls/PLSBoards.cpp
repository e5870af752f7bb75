#include "pls/PLSBoards.h"

#include "link/TargetBoards.h"
#include <algorithm>

namespace {
constexpr PLSBoard boards[] = {
    {PLSBoardIndex::K2041, u"K2041"},      {PLSBoardIndex::R6020, u"R6020(PLS)"},
    {PLSBoardIndex::R6021, u"R6021(PLS)"}, {PLSBoardIndex::R6040, u"R6040"},
    {PLSBoardIndex::R6041, u"R6041"},      {PLSBoardIndex::R6500, u"R6500(PLS)"},
};
} // namespace

std::span<const PLSBoard> PLSBoards() {
    return boards;
}

int PLSBoardPosition(qint16 BoardIndex) {
    const auto found = std::find_if(std::begin(boards), std::end(boards),
                                    [=](const PLSBoard& it) { return it.index == BoardIndex; });
    return found == std::end(boards) ? -1 : static_cast<int>(found - std::begin(boards));
}

qint16 PLSBoardIndexAt(int position) {
    const bool inList = position >= 0 && position < static_cast<int>(std::size(boards));
    return boards[inList ? position : 0].index;
}

qint16 TimingBoardIndex(qint16 BoardIndex) {
    return BoardIndex == BoardIndex::Default ? PLSBoardIndex::R6500 : BoardIndex;
}
