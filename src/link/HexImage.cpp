#include "link/HexImage.h"

#include "base/NumberReader.h"
#include "base/TextFile.h"
#include "link/MarkHex.h"
#include <algorithm>
#include <numeric>
#include <optional>
#include <QStringView>

namespace {
// A board's 64 KiB with a record for each byte take less than a quarter of this.
constexpr qsizetype mostCharacters = 4 * 1024 * 1024;
constexpr int programModeEnd = 0xFF; // as a count it would be taken for attention
constexpr qsizetype countPlace = 1;
constexpr qsizetype addressPlace = 3;
constexpr qsizetype addressDigits = 4;
constexpr qsizetype dataPlace = 9;

bool IsHexDigit(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'F') || (c >= u'a' && c <= u'f');
}

// Bytes of `count` pairs of digits from `place` on; nothing if one of the digits is missing.
std::optional<QByteArray> BytesAt(QStringView line, qsizetype place, qsizetype count) {
    const QStringView digits = line.mid(place, 2 * count);
    if (digits.size() < 2 * count || !std::all_of(digits.begin(), digits.end(), IsHexDigit))
        return std::nullopt;
    QByteArray bytes;
    for (qsizetype i = 0; i < count; ++i)
        bytes.append(static_cast<char>(HexNumberValue(digits.mid(2 * i, 2))));
    return bytes;
}
} // namespace

HexLine ParseHexLine(const QString& line) {
    HexLine parsed;
    if (!line.startsWith(u':'))
        return parsed;
    parsed.kind = HexLine::Kind::Unsendable;
    const std::optional<QByteArray> countByte = BytesAt(line, countPlace, 1);
    if (!countByte)
        return parsed;
    const int count = static_cast<std::uint8_t>(countByte->front());
    if (count == 0)
        parsed.kind = HexLine::Kind::Empty;
    if (count == 0 || count == programModeEnd)
        return parsed;
    const std::optional<QByteArray> address = BytesAt(line, addressPlace, addressDigits / 2);
    const std::optional<QByteArray> data = BytesAt(line, dataPlace, count);
    if (!address || !data)
        return parsed;
    parsed.kind = HexLine::Kind::Record;
    parsed.address = line.mid(addressPlace, addressDigits);
    parsed.wire = *countByte + *address + *data;
    return parsed;
}

std::uint8_t RecordSum(const QByteArray& wire) {
    const auto add = [](int sum, char byte) { return sum + static_cast<std::uint8_t>(byte); };
    return static_cast<std::uint8_t>(std::accumulate(wire.begin(), wire.end(), 0, add));
}

HexImage::HexImage(const QString& path) {
    TextReader file(path);
    empty_ = file.AtEnd();
    qsizetype characters = 0;
    while (sendable_ && !file.AtEnd()) {
        const QString line = file.LineInput();
        characters += line.size() + 1;
        lines_.push_back(ParseHexLine(FirstItem(line)));
        sendable_ = lines_.back().kind != HexLine::Kind::Unsendable && characters <= mostCharacters;
    }
}

QString HexDataLine(qint32 address, const QByteArray& sixteenBytes) {
    const QString digits = QString::fromLatin1(sixteenBytes.toHex().toUpper());
    return QStringLiteral(":10") + TwoHexDigits(address / 256) + TwoHexDigits(address % 256) +
           QStringLiteral("00") + digits;
}
