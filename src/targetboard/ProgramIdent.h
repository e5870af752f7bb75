#pragma once

#include <array>
#include <QString>

/// Ident of the program in a board: ten bytes from B61424 up, where a program dump puts them: eight
/// characters of the name, checksum, revision.
namespace BoardIdent {
constexpr int firstAddress = 61424;
constexpr int checksumOffset = 8;
constexpr int revisionOffset = 9;
constexpr int length = 10;
} // namespace BoardIdent

/// Variable of a byte of the ident, offset 0 to 9.
QString BoardIdentAddress(int offset);

/// Places of the ident labels. Those after the checksum are on disk only.
namespace IdentLabel {
constexpr int Name = 0;
constexpr int Revision = 1;
constexpr int Checksum = 2;
constexpr int TargetBoard = 3;
constexpr int RevDate = 4;
constexpr int InPLCCount = 3;
constexpr int OnDiskCount = 5;
} // namespace IdentLabel

/// Ident in a board as far as it has been read, by IdentLabel.
using IdentInPLC = std::array<QString, IdentLabel::InPLCCount>;
/// Takes a byte of the ident, offset 0 to 9, with its value in decimal: the first character of the
/// name starts a new name.
void TakeIdentByte(IdentInPLC& ident, int offset, const QString& value);

/// What the disk says about a program set.
struct DiskIdent {
    QString name = QStringLiteral("-");
    int revision = 0;      ///< 0 to 255
    int checksum = 0;      ///< 0 to 255
    qint16 boardIndex = 0; ///< index of the set's board
    QString date =
        QStringLiteral("-"); ///< when the .hex file was last modified, by the user's locale

    /// Texts by IdentLabel.
    std::array<QString, IdentLabel::OnDiskCount> Texts() const;
};

/// Reads the .rev and .hex siblings of a .hdn file and its board index. The .rev line is the name,
/// two MarkHex digits of the checksum and two of the revision. A .rev file that is missing or empty
/// leaves name, revision and checksum at "-", 0 and 0, and so does a missing .hdn file.
/// Raises 5 for a line of fewer than four characters, and as TextReader and ProgramBoardIndex.
DiskIdent ReadDiskIdent(const QString& HdnFile);
