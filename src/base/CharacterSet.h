#pragma once

#include <cstdint>
#include <QByteArray>
#include <QString>

/// Files and boards hold Windows-1252 text. Each of the 256 byte values has one character and
/// comes back as the same byte: the five values that the code page leaves open (81, 8D, 8F, 90
/// and 9D) stand for the control characters of the same number, so nothing is lost on the way.

/// Character of a byte.
QChar CharacterOfCode(std::uint8_t code);
/// Byte of a character; '?' (63) for one that the code page does not hold.
std::uint8_t CodeOfCharacter(QChar character);
/// Whether the code page holds every character of `text`.
bool IsWindows1252(const QString& text);
/// Text of bytes, one character a byte.
QString FromWindows1252(const QByteArray& bytes);
/// Bytes of a text, one byte a character; '?' (63) for what the code page does not hold.
QByteArray ToWindows1252(const QString& text);
