#include "link/VariableValue.h"

namespace {
constexpr qint64 radix = 10000; // of the two words of a double word

QByteArray WordBytes(qint64 word) {
    QByteArray bytes;
    bytes.append(static_cast<char>(word % 256));
    bytes.append(static_cast<char>(word / 256));
    return bytes;
}
} // namespace

int BytesOfWidth(QChar width) {
    if (width == u'W')
        return 2;
    return width == u'D' ? 4 : 1;
}

qint64 ValueOfBytes(const std::uint8_t* bytes, int count) {
    if (count == 1)
        return bytes[0];
    const qint64 low = bytes[1] * 256 + bytes[0];
    return count == 2 ? low : (bytes[3] * 256 + bytes[2]) * radix + low;
}

QByteArray BytesOfValue(QChar width, qint64 value) {
    if (width == u'W')
        return WordBytes(value);
    if (width == u'D')
        return WordBytes(value % radix) + WordBytes(value / radix);
    return QByteArray(1, static_cast<char>(value));
}

WidthLimit LimitOfWidth(QChar width) {
    if (width == u'W')
        return {65535, QStringLiteral("Entry out of Range (0-65,535).")};
    if (width == u'D')
        return {655359999, QStringLiteral("Entry out of Range (0-655,359,999).")};
    return {255, QStringLiteral("Entry out of Range (0-255).")};
}
