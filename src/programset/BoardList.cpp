#include "programset/BoardList.h"

#include "base/RunTimeError.h"
#include "link/TargetBoards.h"
#include <algorithm>
#include <array>

namespace {
constexpr std::array<qint16, BoardList::length> boards = {50, 51, 54, 55, 56, 58, 59, 60, 61,
                                                          62, 63, 64, 65, 66, 67, 68, 69};
constexpr qint16 selectsFirst = 69;
} // namespace

QStringList BoardList::Names() {
    QStringList names;
    for (const qint16 board : boards)
        names.append(TargetboardName(board));
    return names;
}

qint16 BoardList::BoardAt(int position) {
    if (position < 0 || position >= length)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return boards[position];
}

std::optional<int> BoardList::PositionToSelect(qint16 boardIndex) {
    if (boardIndex == selectsFirst)
        return 0;
    const auto found = std::find(boards.begin(), boards.end(), boardIndex);
    if (found == boards.end())
        return std::nullopt;
    return static_cast<int>(found - boards.begin());
}
