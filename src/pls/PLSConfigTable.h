#pragma once

#include <array>
#include <QtGlobal>
#include <span>

/// Values of the configuration table sent to a board: four blocks of six, as its commands take it.
using PLSSentTable = std::array<qint16, 24>;
/// Values of the configuration table read from a board: all that it answers, 0 to 255 each.
constexpr int plsReadTableSize = 19;

/// The table that PLSConfigDownload sends, from gPLS. The layout is the R6500 layout for board
/// index 69 alone. Words stand as low byte, high byte; places without a meaning are 0. The bytes of
/// a record read from a file may lie outside 0 to 255: the sender checks them.
PLSSentTable BuildPLSConfigArray(qint16 BoardIndex);

/// Stores a table read from the board into gPLS. Its order is not that of the table sent. On boards
/// of the standard layout but the R6041 the number of channels is 16 whatever the table holds.
/// ScaleFactor and Offset stay: they are read by commands of their own. Raises 9 for a table of
/// fewer than 19 values and Overflow (6) for a word beyond 16 bits; gPLS then stays as it was.
void ApplyPLSConfig(std::span<const qint16> Table, qint16 BoardIndex);

/// True when the configurations of gPLS and gPLSSnapshot differ. Channel setpoints, Offset and the
/// texts are not compared.
bool ConfigChanged();
