#include "link/MarkHex.h"

#include "base/NumberReader.h"
#include "base/RunTimeError.h"

namespace {
constexpr char16_t firstMark = u':';
constexpr char16_t firstLetter = u'A';

void ReplaceSix(QString& text, char16_t from, char16_t to) {
    for (QChar& c : text)
        if (c.unicode() >= from && c.unicode() < from + 6)
            c = QChar(static_cast<char16_t>(c.unicode() - from + to));
}
} // namespace

QString MarkHex2HEX(QString& MarkHEX) {
    ReplaceSix(MarkHEX, firstMark, firstLetter);
    return MarkHEX;
}

QString HEX2MarkHEX(QString& HexCode) {
    ReplaceSix(HexCode, firstLetter, firstMark);
    return HexCode;
}

QString TwoHexDigits(int byte) {
    return QStringLiteral("%1").arg(byte, 2, 16, QLatin1Char('0')).toUpper();
}

QString MarkHexToDecimal(const QString& pair) {
    QString digits = pair;
    return QString::number(HexNumberValue(MarkHex2HEX(digits)));
}

qint16 Dec2Octal(qint16 DecNum) {
    return ToInteger16(DecNum / 8 * 10 + DecNum % 8);
}

qint16 Octal2Dec(qint16 OctNum) {
    return ToInteger16(OctNum / 10 * 8 + OctNum % 10);
}
