#pragma once

#include <QString>
#include <span>

/// Board indexes of the limit switch boards: the character code that begins their sets' .hdn file.
namespace PLSBoardIndex {
constexpr qint16 K2041 = 55;
constexpr qint16 R6020 = 62;
constexpr qint16 R6021 = 67;
constexpr qint16 R6040 = 63;
constexpr qint16 R6041 = 64; ///< the one board of the standard layout with up to 32 channels
constexpr qint16 R6500 = 69; ///< the one board of the R6500 layout
} // namespace PLSBoardIndex

/// A limit switch board as the list cboTargetBoard offers it.
struct PLSBoard {
    qint16 index;         ///< board index
    const char16_t* item; ///< its text in the list
};

/// The boards in the order of the list cboTargetBoard; the list position is the place here.
std::span<const PLSBoard> PLSBoards();

/// List position of a board index, 0 to 5; -1 for every other index, 68 too.
int PLSBoardPosition(qint16 BoardIndex);

/// Board index at a list position; of a position outside the list that of its first board.
qint16 PLSBoardIndexAt(int position);

/// The board that the timing view and ReadPLSFileData take an index for: 68, the index of a set
/// whose .hdn file says nothing, counts as 69; all others stay. The offline viewer and the table
/// sent to the board know only 69 itself.
qint16 TimingBoardIndex(qint16 BoardIndex);
