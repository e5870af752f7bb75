#include "statustable/TableAddress.h"

#include "base/NumberReader.h"
#include <algorithm>

namespace {
constexpr qsizetype bitLength = 2; // characters of ".3"

// No exponent either: "B1E2" is rather a hexadecimal address without its "H" than B100.
bool IsDigits(QStringView text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

// The last two digits are the low byte, all before them the high byte.
qint64 HexadecimalNumber(QStringView digits) {
    const QStringView low = digits.right(2);
    return HexNumberValue(digits.chopped(low.size())) * 256 + HexNumberValue(low);
}
} // namespace

qint64 TableAddress::WholeNumber() const {
    const qsizetype behindIt = isBit ? std::min(bitLength, number.size()) : 0;
    return WholeNumberValue(QStringView(number).chopped(behindIt));
}

int TableAddress::Bit() const {
    return isBit ? static_cast<int>(WholeNumberValue(QStringView(number).last(1))) : 0;
}

bool TableAddress::IsNumber() const {
    const QStringView whole = QStringView(number).trimmed();
    if (!isBit)
        return IsDigits(whole);
    return whole.size() > bitLength && whole[whole.size() - bitLength] == u'.' &&
           IsDigits(whole.chopped(bitLength)) && IsDigits(whole.last(1));
}

TableAddress SplitAddress(const QString& address) {
    TableAddress split;
    if (address.isEmpty())
        return split;
    if (address.endsWith(u'H', Qt::CaseInsensitive)) {
        split.isHexadecimal = true;
        split.prefix = u'B';
        split.number = QString::number(HexadecimalNumber(QStringView(address).chopped(1)));
        return split;
    }
    split.prefix = address.front().toUpper();
    split.number = address.mid(1);
    split.isBit = split.number.contains(u'.');
    return split;
}

QString UpperHex(qint64 number) {
    return QString::number(number, 16).toUpper();
}
