#include "statustable/TableAddress.h"

#include "base/NumberReader.h"
#include <algorithm>

namespace {
// The last two digits are the low byte, all before them the high byte.
qint64 HexadecimalNumber(QStringView digits) {
    const QStringView low = digits.right(2);
    return HexNumberValue(digits.chopped(low.size())) * 256 + HexNumberValue(low);
}
} // namespace

qint64 TableAddress::WholeNumber() const {
    const qsizetype bitLength = isBit ? std::min<qsizetype>(2, number.size()) : 0;
    return WholeNumberValue(QStringView(number).chopped(bitLength));
}

int TableAddress::Bit() const {
    return isBit ? static_cast<int>(WholeNumberValue(QStringView(number).last(1))) : 0;
}

bool TableAddress::IsNumber() const {
    return IsNumeric(number) && !number.endsWith(u'.');
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
