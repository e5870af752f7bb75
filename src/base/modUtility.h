#pragma once

#include <QString>

/// Routines that all views use. They report nothing themselves: a failure passes to the caller.

/// Path of the sibling of `path` with another extension: absolute folder, "/", base name, ".",
/// extension. The extension is given without a point and used in the case given.
QString ChangeExtension(const QString& path, const QString& extension);

/// Decimal digits of `value`, left-padded with "0" to `width` characters. A longer text is never
/// cut; the sign of a negative value counts as a character: -5 to width 4 is "00-5".
QString PadNumber(qint16 value, qint16 width);

/// Bits of `value`, most significant first: eight of its low byte (value modulo 256), and with
/// `wide` 1 or more eight of its high part (value divided by 256, truncated) before them. A part
/// of 0 or less gives "00000000".
QString BinaryText(qint32 value, qint16 wide);
