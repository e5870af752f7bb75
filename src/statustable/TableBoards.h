#pragma once

#include <optional>
#include <QString>
#include <QStringList>

/// The boards a status table can belong to, and their places in the list of boards.

/// Names of the list, "(none)" first.
QStringList TableBoardNames();

/// Board index of a list entry, 0 for "(none)" and for an entry outside the list.
qint16 BoardOfListEntry(int entry);

/// List entry of a board index; none for a board that has no entry, the limit switch boards among
/// them.
std::optional<int> ListEntryOfBoard(qint16 board);

/// Why the program set of this board cannot be viewed in a status table.
QString RefusedBoardMessage(qint16 board);
