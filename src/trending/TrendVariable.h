#pragma once

#include <QString>
#include <QStringList>

/// The variable of a trend and the list of those used before: the rules behind the entry of the
/// variable and the choice of the board.
class TrendVariable {
public:
    /// What the list holds below the variables.
    static const QString none; ///< "(none)"

    enum class Entered { Taken, Refused };

    /// A board as an entry of TableBoardNames, 0 to 14; another number is "(none)". Where the
    /// variable exists on it, its address follows.
    void SelectBoard(int listEntry);
    int BoardListEntry() const { return boardListEntry_; }
    /// Board index, 0 for "(none)".
    qint16 Board() const;

    /// A text that was typed: upper case, and with a bit above 7 made 7. A variable that the board
    /// has is taken: it becomes the first entry of the list. Anything else changes nothing.
    Entered Enter(const QString& text);
    /// An entry of the list that was clicked: likewise, in the letters that it has.
    Entered Click(const QString& text);

    /// The variables, the one entered last first, and "(none)".
    const QStringList& List() const { return list_; }
    /// What the entry goes back to when a text is refused or given up.
    const QString& FirstEntry() const { return list_.first(); }
    /// Whether a variable was ever entered.
    bool Known() const { return list_.size() > 1; }
    /// What is read from the board for the variable; empty while none is known.
    const QString& Address() const { return address_; }

private:
    Entered Take(const QString& text);

    int boardListEntry_ = 0;
    QStringList list_{none};
    QString address_;
};

/// The text with a bit above 7, the highest of a byte, made 7: "B100.9" is "B100.7". Without a
/// point nothing is changed.
QString WithBitWithin7(const QString& text);
