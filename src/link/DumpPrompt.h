#pragma once

#include "link/ProgramIdent.h"

/// The question asked before a dump: what is on disk, what it would replace in the board. Lines
/// are parted by CR LF; the last one has no line end.
QString DumpQuestion(const ProgramIdent& onDisk, const QString& boardName,
                     const ProgramIdent& inBoard);

/// What the user is told when a set fails its checks or its image holds what is no record.
QString InvalidProgramText();
