#include "link/ParsedAddress.h"

#include "base/NumberReader.h"
#include <algorithm>
#include <limits>

namespace {
constexpr qint32 firstFlagByte = 32; // flag 0 is bit 0 of this byte, eight flags a byte
constexpr qint32 fallbackAddress = 32;

qint32 AddressNumber(QStringView text) {
    const qint64 value = WholeNumberValue(text);
    return static_cast<qint32>(std::clamp<qint64>(value, std::numeric_limits<qint32>::min(),
                                                  std::numeric_limits<qint32>::max()));
}

ParsedAddress HexadecimalByte(QStringView digits) {
    const QStringView low = digits.right(2);
    const QStringView high = digits.chopped(low.size());
    ParsedAddress parsed;
    parsed.address = static_cast<qint32>(std::min<qint64>(HexNumberValue(high), 0x7FFFFF) * 256 +
                                         HexNumberValue(low));
    return parsed;
}

ParsedAddress BitOfByte(QStringView text) {
    ParsedAddress parsed;
    parsed.isBit = true;
    parsed.address = AddressNumber(text.mid(1, std::max<qsizetype>(text.size() - 3, 0)));
    parsed.mask = static_cast<qint16>(1 << WholeNumberValue(text.last(1)));
    return parsed;
}

ParsedAddress Flag(QStringView digits) {
    const qint32 number = std::max(AddressNumber(digits), 0);
    ParsedAddress parsed;
    parsed.isBit = true;
    parsed.address = firstFlagByte + number / 8;
    parsed.mask = static_cast<qint16>(1 << (number % 8));
    return parsed;
}
} // namespace

ParsedAddress ParseAddress(const QString& variable) {
    const QStringView text(variable);
    if (text.endsWith(u'H', Qt::CaseInsensitive))
        return HexadecimalByte(text.chopped(1));
    if (text.contains(u'.'))
        return BitOfByte(text);
    const QChar first = text.isEmpty() ? QChar() : text.front().toUpper();
    if (first == u'F')
        return Flag(text.mid(1));
    ParsedAddress parsed;
    parsed.address = fallbackAddress;
    if (first == u'B' || first == u'W' || first == u'D') {
        parsed.width = first;
        parsed.address = AddressNumber(text.mid(1));
    }
    return parsed;
}
