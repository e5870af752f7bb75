#include "statustable/AddressEntry.h"

#include "link/TargetBoards.h"
#include "statustable/CommitCell.h"
#include "statustable/TableAddress.h"

namespace {
constexpr qsizetype longestAddress = 5; // before its point and bit digit
constexpr qsizetype shortestBeforePoint = 2;
constexpr char16_t backspace = 8;

bool IsOneOf(QChar key, QStringView keys) {
    return keys.contains(key.toUpper());
}

// Boards that have physical points.
bool HasPoints(qint16 board) {
    switch (board) {
    case 49:
    case 50:
    case 58:
    case 59:
    case 60:
    case 61:
    case 65:
    case 66:
        return true;
    default:
        return false;
    }
}

bool IsAddressKey(QChar key, qint16 board) {
    if (IsOneOf(key, u"0123456789ABCDEFHW"))
        return true;
    if (IsOneOf(key, u"XY"))
        return HasPoints(board);
    return key.toUpper() == u'I' && board == BoardIndex::K2012;
}

bool PointAllowed(const QString& text) {
    return text.size() >= shortestBeforePoint && !text.contains(u'.') &&
           IsOneOf(text.front(), u"BIXY");
}

bool AllowedInAddress(const QString& text, QChar key, qint16 board) {
    if (key == u'.')
        return PointAllowed(text);
    if (text.endsWith(u'.'))
        return IsOneOf(key, u"01234567");
    return !text.contains(u'.') && text.size() < longestAddress && IsAddressKey(key, board);
}

bool Allowed(const QString& text, QChar key, int column, qint16 board) {
    switch (column) {
    case TableColumn::Address:
        return AllowedInAddress(text, key, board);
    case TableColumn::Decimal:
        return IsOneOf(key, u"0123456789");
    case TableColumn::Hexadecimal:
        return IsOneOf(key, u"0123456789ABCDEF");
    default:
        return false;
    }
}

// Points are two-part numbers: the points 0 and 1 of a group, then those of the next group.
QString NextPoint(QChar prefix, qint64 number) {
    return prefix + QString::number(number % 2 == 0 ? number + 1 : number + 9);
}

QString BitText(QChar prefix, qint64 number, int bit) {
    return QStringLiteral("%1%2.%3").arg(prefix).arg(number).arg(bit);
}

bool IsPointPrefix(QChar prefix) {
    return prefix == u'I' || prefix == u'X' || prefix == u'Y';
}

QString NextBit(const TableAddress& address) {
    constexpr int lastBit = 7;
    const qint64 number = address.WholeNumber();
    if (address.Bit() < lastBit)
        return BitText(address.prefix, number, address.Bit() + 1);
    if (address.prefix == u'B')
        return BitText(address.prefix, number + 1, 0);
    if (IsPointPrefix(address.prefix))
        return BitText(address.prefix, number % 2 == 0 ? number + 1 : number + 9, 0);
    return QString();
}
} // namespace

QString TextAfterKey(const QString& text, QChar key, int column, qint16 board) {
    if (key == QChar(backspace))
        return text.chopped(text.isEmpty() ? 0 : 1);
    return Allowed(text, key, column, board) ? text + key : text;
}

QString PastedAddress(const QString& text, qint16 board) {
    QString typed;
    for (const QChar key : text) {
        if (key.isSpace())
            continue;
        const QString after = TextAfterKey(typed, key, TableColumn::Address, board);
        if (after == typed)
            return QString();
        typed = after;
    }
    CommitRequest request;
    request.column = TableColumn::Address;
    request.cell = request.address = typed;
    request.board = board;
    const CommitOutcome outcome = DecideCommit(request);
    return outcome.action == CommitAction::AcceptAddress ? outcome.cell : QString();
}

QString NextAddress(const QString& address) {
    const TableAddress split = SplitAddress(address);
    if (split.isBit)
        return NextBit(split);
    const qint64 number = split.WholeNumber();
    if (split.isHexadecimal)
        return UpperHex(number + 1) + u'H';
    switch (split.prefix.unicode()) {
    case u'B':
    case u'F':
        return split.prefix + QString::number(number + 1);
    case u'W':
        return split.prefix + QString::number(number + 2);
    case u'D':
        return split.prefix + QString::number(number + 4);
    case u'I':
    case u'X':
    case u'Y':
        return NextPoint(split.prefix, number);
    default:
        return QString();
    }
}
