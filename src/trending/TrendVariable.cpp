#include "trending/TrendVariable.h"

#include "base/NumberReader.h"
#include "link/VariableAddress.h"
#include "statustable/TableBoards.h"

const QString TrendVariable::none = QStringLiteral("(none)");

QString WithBitWithin7(const QString& text) {
    constexpr int highestBit = 7;
    if (!text.contains(u'.') || NumberValue(text.right(1)) <= highestBit)
        return text;
    return text.chopped(1) + QString::number(highestBit);
}

qint16 TrendVariable::Board() const {
    return BoardOfListEntry(boardListEntry_);
}

void TrendVariable::SelectBoard(int listEntry) {
    boardListEntry_ = listEntry;
    // A point is another byte on another board: the old address would be read under its name.
    if (Known() && ValidAdd(FirstEntry(), Board()))
        address_ = EquateAdd(FirstEntry(), Board());
}

TrendVariable::Entered TrendVariable::Enter(const QString& text) {
    return Take(WithBitWithin7(text.toUpper()));
}

TrendVariable::Entered TrendVariable::Click(const QString& text) {
    return Take(WithBitWithin7(text));
}

TrendVariable::Entered TrendVariable::Take(const QString& text) {
    // The check of variables lets an unknown letter pass, and with it the text of the list's foot.
    if (text.compare(none, Qt::CaseInsensitive) == 0 || !ValidAdd(text, Board()))
        return Entered::Refused;
    list_.removeAll(text); // each leave of the entry takes its text again
    list_.prepend(text);
    address_ = EquateAdd(text, Board());
    return Entered::Taken;
}
