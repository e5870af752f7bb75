#include "base/CharacterSet.h"

#include <algorithm>
#include <array>

namespace {
// Characters of the bytes 0x80 to 0x9F; the rest of the code page equals the Unicode numbers.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Byte of a character, or -1.
int FindCode(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return unit;
    const auto found = std::find(upperControls.begin(), upperControls.end(), unit);
    return found == upperControls.end() ? -1
                                        : 0x80 + static_cast<int>(found - upperControls.begin());
}
} // namespace

QChar CharacterOfCode(std::uint8_t code) {
    if (code >= 0x80 && code < 0xA0)
        return QChar(upperControls[code - 0x80]);
    return QChar(static_cast<char16_t>(code));
}

std::uint8_t CodeOfCharacter(QChar character) {
    const int code = FindCode(character);
    return code < 0 ? std::uint8_t{'?'} : static_cast<std::uint8_t>(code);
}

bool IsWindows1252(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return FindCode(c) >= 0; });
}

QString FromWindows1252(const QByteArray& bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return CharacterOfCode(static_cast<std::uint8_t>(byte)); });
    return text;
}

QByteArray ToWindows1252(const QString& text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), bytes.begin(),
                   [](QChar c) { return static_cast<char>(CodeOfCharacter(c)); });
    return bytes;
}
