#pragma once

#include "programset/NameTable.h"

class Dialogs;

/// The names of all variables of a program set.
struct NameTables {
    NameTable gNicFlags{1000, NameTable::Bits::None};   ///< F variables
    NameTable gNicMemory{8195, NameTable::Bits::Eight}; ///< B, W, D and hexadecimal addresses
    NameTable gNicInputs{151, NameTable::Bits::Eight};  ///< X points
    NameTable gNicOutputs{151, NameTable::Bits::Eight}; ///< Y points
    NameTable gNicImage{151, NameTable::Bits::Eight};   ///< I points

    /// Empties all texts of all five.
    void Clear();
};

/// Digits of the variable number at the start of an entry of a name file: 4 for a table of no
/// board and for the boards 50 and 68, whose memory is larger, else 3.
int NameNumberWidth(qint16 tableBoard);

/// Reads a .nam or .doc file into the tables. Control lines are one character long: "&" begins
/// the next section (flags, memory, inputs, outputs and image together; what follows is dropped)
/// and ends bit mode, "/" begins bit mode, "#" ends it. Raises as TextReader, and
/// SubscriptOutOfRange (9) for a number or bit outside its table; what was read so far is kept.
void ReadNameFile(const QString& path, NameKind kind, int numberWidth, NameTables& tables);

/// Which of the two files were found.
struct NameFilesFound {
    bool nicNames = false;
    bool descriptions = false;
};

/// Empties the tables and reads both name files, telling the user about a file that does not
/// exist or fails. A failure ends the load; what was read so far is kept.
NameFilesFound LoadNicNames(NameTables& tables, const QString& namPath, const QString& docPath,
                            qint16 tableBoard, Dialogs& dialogs);

/// Name of a variable by its address text, of one kind; empty where it has none.
QString NameOfVariable(const NameTables& tables, const QString& address, NameKind kind);
