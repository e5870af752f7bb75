#pragma once

#include "link/ProgramIdent.h"

/// The question asked before a dump: what is on disk, what it would replace in the board. Lines
/// are parted by CR LF; the last one has no line end.
QString DumpQuestion(const ProgramIdent& onDisk, const QString& boardName,
                     const ProgramIdent& inBoard);
