#pragma once

#include <QString>

class Dialogs;

/// Fills gPLS from the .PCF and .CHL files beside the program set of `HdnFile`; a file that is
/// missing gives presets: scale 360, 16 channels (R6500 layout 8), one placeholder a channel.
/// True on success; false for a set of no limit switch board, which leaves gPLS blank, and after an
/// error, which is reported in a box; gPLS then keeps what was read before it. A set of board index
/// 68 counts as the R6500 layout without files. Errors besides those of TextReader: 6 for a number
/// beyond 16 bits, 9 for a channel beyond 64 places and for a setpoint that stands in no channel,
/// 7 for a .CHL file of more than a million lines.
bool ReadPLSFileData(const QString& HdnFile, Dialogs& dialogs);
