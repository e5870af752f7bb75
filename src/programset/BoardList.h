#pragma once

#include <optional>
#include <QString>
#include <QStringList>

/// The list of boards from which a new set takes its own: 17 entries, positions 0 to 16, for the
/// board indexes 50 to 69 without 52, 53 and 57.
namespace BoardList {
constexpr int length = 17;
/// Position that is selected at first, that of index 68.
constexpr int firstPosition = 15;

/// Names of the boards by position.
QStringList Names();
/// Board index of a position. Raises 9 outside 0 to 16.
qint16 BoardAt(int position);
/// Position to select for the board of an existing set. Index 69 gives position 0, not its own 16:
/// users of the suite know the list that way. Nothing for an index that the list does not hold.
std::optional<int> PositionToSelect(qint16 boardIndex);
} // namespace BoardList
