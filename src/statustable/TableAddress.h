#pragma once

#include <QString>

/// The address text of a table row taken apart, in the one way that display, names and editing
/// share. Letter case does not matter.
struct TableAddress {
    QChar prefix;               ///< upper-case kind of variable; 'B' for a hexadecimal address
    QString number;             ///< what follows the prefix, in decimal: "100", "100.3"
    bool isHexadecimal = false; ///< the text ended in "H"
    bool isBit = false;         ///< the number names a bit: its last character is the bit digit

    /// Prefix and decimal number: the text that the link understands.
    QString Working() const { return prefix + number; }
    /// The number without its bit, cut to a whole number; 0 if the text holds none. Negative only
    /// for a text that no key can make.
    qint64 WholeNumber() const;
    /// The bit, 0 to 9; 0 where isBit is false or the last character is no digit.
    int Bit() const;
    /// Whether the number is one: digits all through, without sign or exponent, and, where a point
    /// stands, one bit digit behind it. Blanks around it do not count.
    bool IsNumber() const;
};

/// Takes an address text apart. Total: an empty text has a null prefix and an empty number.
TableAddress SplitAddress(const QString& address);

/// Addresses shorter than this many characters name nothing.
constexpr qsizetype shortestAddress = 2;

/// Number in upper-case hexadecimal, without prefix or padding; the number must not be negative.
QString UpperHex(qint64 number);
