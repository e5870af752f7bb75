#pragma once

#include <QString>

/// Rules for typing into the table: which key does what to a cell's text.

/// Columns of the table, from 0.
namespace TableColumn {
constexpr int Name = 0;
constexpr int Address = 1;
constexpr int Decimal = 2;
constexpr int Hexadecimal = 3;
constexpr int High = 4;
constexpr int Low = 5;
constexpr int count = 6;
} // namespace TableColumn

/// First row below the two head rows.
constexpr int firstDataRow = 2;
/// Most rows that a user can make by hand, heads and append row included: the highest 16-bit row
/// number, with which the suite counts the rows of a table.
constexpr int tableRowLimit = 32767;

/// The text of a cell after a key; the same text when the key is refused. Backspace (8) drops the
/// last character. An address takes at most five characters before its point and the one digit of
/// a bit, each of them one that addresses of the table's board hold; a decimal value takes digits,
/// a hexadecimal one hexadecimal digits.
QString TextAfterKey(const QString& text, QChar key, int column, qint16 board);

/// The address that a pasted text stands for: as if it had been typed, blanks left out, but a text
/// that would lose a character on the way is refused whole, since what is left of it would be
/// another variable. A refused text gives an empty one.
QString PastedAddress(const QString& text, qint16 board);

/// The next variable of the same kind, for filling a table by pressing Return: the next bit, byte,
/// word, double word, flag or point. Empty for an address of no kind.
QString NextAddress(const QString& address);
