#pragma once

#include <QString>

/// How a user writes a variable and which board byte it is. Prefixes are taken in either case.
///
/// "B8176" a byte, "W100" a word (low byte first), "D100" a double word (low word first, value =
/// high word x 10000 + low word), "B100.3" a bit, "F17" a flag, "F000H" a byte by its hexadecimal
/// address, "X30", "Y81" and "I10" physical points, whose last digit is the point (0 or 1) within
/// the group that the digits before it name.

/// The byte or bit variable behind a physical point of a board ("X30.2" on a K2010 is "B49.2");
/// `Var` itself, letter case included, where the board has no such point or it is no point at
/// all. A bit above 7 becomes 7.
QString EquateAdd(const QString& Var, qint16 TargetBoardIndex);

/// Whether a board of this index has the variable, by its memory class (TargetBoards.h). Bytes run
/// from 32 to 255 (A), 8275 (B) or 65535 (C), words and double words over the even addresses up to
/// one less, flags from 0 to 120 (A) or 991. Points run from 0 to 151 on 49 and 50, else to 21,
/// with the last digit 0 or 1; boards 0 and 68 have none, and image points are on 49 to 54 and 56
/// only. Any other letter passes with the number 0 alone. The bit digit of a bit form is not looked
/// at, and the hexadecimal form is read as a flag number.
bool ValidAdd(const QString& Var, qint16 TargetBoardIndex);
