#pragma once

#include <QString>

/// Board index of the program set that `path` belongs to, whatever its extension: the character
/// code of the first character of the first item of the .hdn file beside it. 68 if that file does
/// not exist or is empty. Raises 5 for an empty first item and as TextReader for a file that
/// cannot be read.
qint16 ProgramBoardIndex(const QString& path);

/// Board index that an existing .hdn file holds; 68 if it is empty. Raises as ProgramBoardIndex.
qint16 BoardIndexOfHdnFile(const QString& hdnFile);
