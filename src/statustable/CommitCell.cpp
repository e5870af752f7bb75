#include "statustable/CommitCell.h"

#include "base/NumberReader.h"
#include "link/VariableAddress.h"
#include "statustable/AddressEntry.h"
#include "statustable/TableAddress.h"

namespace {
CommitOutcome Outcome(CommitAction action, const QString& cell = QString()) {
    CommitOutcome outcome;
    outcome.action = action;
    outcome.cell = cell;
    return outcome;
}

CommitOutcome DecideAddress(const QString& cell, const TableAddress& address, qint16 board) {
    if (cell.size() < shortestAddress)
        return Outcome(CommitAction::EmptyRow);
    const QString working = address.Working();
    if (!ValidAdd(working, board))
        return Outcome(CommitAction::EmptyCell);
    const bool hexadecimal = address.isHexadecimal;
    CommitOutcome outcome = Outcome(CommitAction::AcceptAddress, cell);
    if (hexadecimal)
        outcome.cell = UpperHex(address.WholeNumber()) + u'H'; // drops leading zeros
    outcome.working = working;
    return outcome;
}

// Decimal text of a hexadecimal one, digit by digit; far too long a number stays far too large.
QString DecimalOfHexadecimal(const QString& digits) {
    double value = 0;
    for (const QChar digit : digits)
        value = value * 16 + static_cast<double>(HexNumberValue(QStringView(&digit, 1)));
    return QString::number(value, 'f', 0);
}

bool IsHexadecimal(const QString& text) {
    for (const QChar c : text)
        if (!QStringView(u"0123456789ABCDEF").contains(c))
            return false;
    return true;
}

// Whether an address text stands for one variable and no other. Letters that are no digits of a
// hexadecimal address would be read as nothing: "W20H" as 20H.
bool NamesAVariable(const QString& text, const TableAddress& address) {
    return address.isHexadecimal ? IsHexadecimal(text.chopped(1)) : address.IsNumber();
}

CommitOutcome DecideValue(const CommitRequest& request, const QString& cell,
                          const TableAddress& address) {
    const bool decimal = request.column == TableColumn::Decimal;
    CommitOutcome outcome = Outcome(CommitAction::EndValue, cell);
    // A text such as "N/A" is no value: read as 0 it would switch something off.
    if (cell.isEmpty() || !(decimal ? IsNumeric(cell) : IsHexadecimal(cell)))
        return outcome;
    const bool input = address.prefix == u'X' || address.prefix == u'I';
    if (!request.online || request.commError || input)
        return outcome;
    outcome.action = CommitAction::WriteValue;
    outcome.value =
        decimal ? QString::number(NumberValue(cell), 'f', 0) : DecimalOfHexadecimal(cell);
    outcome.variable =
        address.prefix == u'Y' ? EquateAdd(address.Working(), request.board) : address.Working();
    return outcome;
}
} // namespace

CommitOutcome DecideCommit(const CommitRequest& request) {
    const QString cell = request.cell.toUpper();
    const QString addressText = request.address.toUpper();
    const TableAddress address = SplitAddress(addressText);
    if (!cell.isEmpty() && !NamesAVariable(addressText, address))
        return Outcome(CommitAction::EmptyCell);
    switch (request.column) {
    case TableColumn::Address:
        return DecideAddress(cell, address, request.board);
    case TableColumn::Decimal:
    case TableColumn::Hexadecimal:
        return DecideValue(request, cell, address);
    default:
        return Outcome(CommitAction::None);
    }
}
