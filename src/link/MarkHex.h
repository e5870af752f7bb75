#pragma once

#include <QString>

/// MarkHex is hexadecimal text with the digits 10 to 15 written as the six characters that follow
/// "9" in the character set, ":;<=>?". Program sets keep checksum, revision and board data in it.

/// Replaces ":" to "?" by "A" to "F", in place, and returns the text. All else passes through.
QString MarkHex2HEX(QString& MarkHEX);
/// Replaces "A" to "F" by ":" to "?", in place, and returns the text. Lower-case letters and all
/// else pass through.
QString HEX2MarkHEX(QString& HexCode);

/// Two digits in upper-case hexadecimal of a byte, 0 to 255.
QString TwoHexDigits(int byte);
/// Decimal text of a pair of MarkHex digits: ":3" is "163".
QString MarkHexToDecimal(const QString& pair);

/// The octal-looking channel number of a plain one: (n \ 8) * 10 + n mod 8, two digits by design,
/// so that 64 is 80. Division truncates toward zero. Raises Overflow (6) beyond 16 bits.
qint16 Dec2Octal(qint16 DecNum);
/// The plain number of an octal-looking one: (n \ 10) * 8 + n mod 10; 80 is 64, 19 is 17.
qint16 Octal2Dec(qint16 OctNum);
