#pragma once

#include <QStringView>

/// The permissive number reader: skips blanks and tabs, takes a sign, digits, one decimal point
/// and an exponent as far as they form a number, and stops at the first character that cannot
/// belong to it. Text that holds no number is 0, a number beyond the type the largest one; nothing
/// is ever raised.
double NumberValue(QStringView text);

/// NumberValue without its fraction, cut toward zero and held within the 64-bit range.
qint64 WholeNumberValue(QStringView text);

/// A permissive reader of hexadecimal digits, either case: stops at the first character that is
/// none; no digits give 0. Reads at most eight digits.
qint64 HexNumberValue(QStringView text);

/// Whether the whole text, but for blanks around it, is one number: the test that entries use.
bool IsNumeric(QStringView text);

/// Rounds to the nearest whole number, halves to the even one: the whole-number rounding of the
/// system. Raises Overflow (6) outside the 32-bit range.
qint32 RoundToWhole(double value);
