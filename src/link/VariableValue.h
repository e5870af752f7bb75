#pragma once

#include <cstdint>
#include <QByteArray>
#include <QString>

/// How many bytes a variable of this width ('B', 'W' or 'D') takes: 1, 2 or 4.
int BytesOfWidth(QChar width);

/// Value of 1, 2 or 4 bytes as they stand on the board, low byte first. A double word is of
/// decimal radix: high word x 10000 + low word, 0 to 655,415,535 for any bytes.
qint64 ValueOfBytes(const std::uint8_t* bytes, int count);

/// The bytes in which a value of this width goes out, low byte first. The value must not be above
/// the limit of its width.
QByteArray BytesOfValue(QChar width, qint64 value);

/// The highest value of a width and what a user is told about a higher one.
struct WidthLimit {
    qint64 highest;
    QString message;
};

/// The limit of width 'B' (255), 'W' (65,535) or 'D' (655,359,999 = 65535 x 10000 + 9999, since
/// double words are decimal).
WidthLimit LimitOfWidth(QChar width);
