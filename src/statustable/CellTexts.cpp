#include "statustable/CellTexts.h"

#include "base/modUtility.h"
#include "base/NumberReader.h"
#include "link/VariableAddress.h"
#include "link/VariableValue.h"
#include "statustable/OfflineData.h"
#include "statustable/TableAddress.h"
#include <array>

namespace {
constexpr int firstFlagByte = 32; // flag 0 is bit 0 of this byte

bool IsPoint(QChar kind) {
    return kind == u'I' || kind == u'X' || kind == u'Y';
}

QString Bits(qint64 byte) {
    return BinaryText(static_cast<qint32>(byte), 0);
}

CellTexts OneBit(int byte, qint64 bit) {
    const QString value =
        bit < 8 && (byte >> bit & 1) != 0 ? QStringLiteral("1") : QStringLiteral("0");
    return {value, value, QString(), value};
}

CellTexts OfflineByte(const TableAddress& address, const OfflineData& data) {
    const int byte = data.ByteAt(address.WholeNumber());
    if (address.isBit)
        return OneBit(byte, address.Bit());
    return {QString::number(byte), UpperHex(byte), QString(), Bits(byte)};
}

CellTexts OfflineFlag(qint64 number, const OfflineData& data) {
    return number < 0 ? OneBit(0, 0) : OneBit(data.ByteAt(firstFlagByte + number / 8), number % 8);
}

// Both widths show the bits of their first two bytes.
CellTexts OfflineWord(qint64 number, int bytes, const OfflineData& data) {
    std::array<std::uint8_t, 4> memory{};
    for (int i = 0; i < bytes; ++i)
        memory[i] = static_cast<std::uint8_t>(data.ByteAt(number + i));
    const qint64 value = ValueOfBytes(memory.data(), bytes);
    return {QString::number(value), UpperHex(value), Bits(memory[1]), Bits(memory[0])};
}
} // namespace

QString VariableToRead(const QString& address, qint16 board) {
    const TableAddress split = SplitAddress(address);
    if (split.isHexadecimal)
        return split.Working();
    return IsPoint(split.prefix) ? EquateAdd(address, board) : address;
}

CellTexts OnlineCellTexts(const QString& address, const QString& value) {
    const TableAddress split = SplitAddress(address);
    const qint64 number = WholeNumberValue(value);
    const QString hexadecimal = UpperHex(number);
    if (split.prefix == u'F')
        return {value, hexadecimal, QString(), value};
    if (split.prefix == u'B' || IsPoint(split.prefix))
        return {value, hexadecimal, QString(), split.isBit ? value : Bits(number % 256)};
    return {value, hexadecimal, Bits(number / 256), Bits(number % 256)};
}

CellTexts OfflineCellTexts(const QString& address, const OfflineData& data) {
    const TableAddress split = SplitAddress(address);
    switch (split.prefix.unicode()) {
    case u'B':
        return OfflineByte(split, data);
    case u'F':
        return OfflineFlag(split.WholeNumber(), data);
    case u'W':
        return OfflineWord(split.WholeNumber(), 2, data);
    case u'D':
        return OfflineWord(split.WholeNumber(), 4, data);
    default: {
        const QString none = QStringLiteral("N/A");
        return {none, none, none, none};
    }
    }
}
