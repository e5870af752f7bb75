#pragma once

#include <QString>

/// What Return, or leaving the cell, is decided on.
struct CommitRequest {
    int column = 0;         ///< column of the cell, 0 to 5
    QString cell;           ///< its text
    QString address;        ///< text of column 1 of the row
    qint16 board = 0;       ///< board of the table
    bool online = false;    ///< the link is open and trusted
    bool commError = false; ///< a communication failure stands
};

enum class CommitAction {
    None,          ///< the column takes no entries
    EmptyCell,     ///< what was typed is no address or no value: the cell becomes empty
    EmptyRow,      ///< the address was taken away: all cells of the row become empty
    AcceptAddress, ///< the address is valid: show `cell`, take its name, go on to the next row
    EndValue,      ///< a value cell that writes nothing: show `cell`, the entry is over
    WriteValue,    ///< write `value` to `variable`, then as EndValue
};

struct CommitOutcome {
    CommitAction action = CommitAction::None;
    QString cell;     ///< text of the cell afterwards
    QString working;  ///< prefix and decimal number of the address, for its name
    QString variable; ///< what the link writes to
    QString value;    ///< value to write, in decimal
};

/// Decides about an address typed into column 1 or a value typed into column 2 (decimal) or 3
/// (hexadecimal). An address in which a character counts for nothing ("B1E2", "W20H") is refused:
/// what is left of it would be another variable. Inputs (X and I) are never written; a Y point is
/// written as the byte behind it.
CommitOutcome DecideCommit(const CommitRequest& request);
