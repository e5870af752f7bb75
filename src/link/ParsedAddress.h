#pragma once

#include <QString>

/// What a variable text means on the wire.
struct ParsedAddress {
    QChar width = u'B'; ///< 'B' one byte, 'W' a word of two, 'D' a double word of two words
    qint32 address = 0; ///< board address of the first byte
    qint16 mask = 0;    ///< bits of the byte, for bit variables
    bool isBit = false; ///< the value is 0 or 1, by the mask
};

/// Reads a variable: hexadecimal ("F000H"), bit ("B100.3"), by first letter ("B8176", "W100",
/// "D100", "F17"). Any other text falls back to the byte at address 32. Total: numbers that make
/// no sense read as 0, and a bit 8 or 9 has a mask outside the byte: it reads 0 and cannot be set.
ParsedAddress ParseAddress(const QString& variable);
