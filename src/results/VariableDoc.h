#pragma once

#include "programset/NameTable.h"
#include <array>
#include <QString>
#include <vector>

/// The documented variables of a program, out of its .nam and .doc files: five ranges in the order
/// of the sections of these files. The points of "I" have a section of their own here.
class VariableDoc {
public:
    static constexpr int sections = 5;
    /// Texts of either kind that the tables hold.
    static constexpr int mostVariables = 992 + 9 * (8176 + 3 * 152);

    /// One variable that has a name, a description or both.
    struct Row {
        QString variable; ///< "F0012", "B0100.3"
        QString nicName;
        QString description;
    };

    /// Takes one of the two files. Whole lines; the first character alone says what a line is: "#"
    /// a comment, "&" the end of a section, "/" the start of bit mode, which "#" and "&" end; any
    /// other begins an entry. Outside bit mode an entry is four characters of a decimal address and
    /// a text, in bit mode one of a bit number and the text of that bit of the last address. The
    /// flags have no bits: there the bit is not looked at. Reading stops at the fifth "&".
    ///
    /// Returns the number of entries. Raises as TextReader, 5 for an empty line,
    /// SubscriptOutOfRange (9) for an address or a bit outside its section and 7 for a file of more
    /// than 16 million characters.
    int Read(const QString& path, NameKind kind);
    /// All variables that have a text, in the order of the sections. Bytes below address 32, which
    /// the board keeps for itself, are left out.
    std::vector<Row> Rows() const;

private:
    void AddRows(int section, qint64 number, std::vector<Row>& rows) const;

    std::array<NameTable, sections> tables_{
        NameTable(991, NameTable::Bits::None), NameTable(8175, NameTable::Bits::Eight),
        NameTable(151, NameTable::Bits::Eight), NameTable(151, NameTable::Bits::Eight),
        NameTable(151, NameTable::Bits::Eight)};
};
