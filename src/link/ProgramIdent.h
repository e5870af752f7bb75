#pragma once

#include <QByteArray>
#include <QString>

/// The ident block of a board: eight characters of ident, a checksum byte, a revision byte.
namespace IdentBlock {
constexpr qint32 Address = 61424; ///< 0xEFF0, the same on every model
constexpr int IdentLength = 8;
constexpr int ChecksumOffset = 8;
constexpr int RevisionOffset = 9;
constexpr int Length = 10;
} // namespace IdentBlock

/// By what a program is known: ident, and checksum and revision in decimal.
struct ProgramIdent {
    QString ident = QStringLiteral("Unknown");
    QString revision = QStringLiteral("Unknown");
    QString checksum = QStringLiteral("Unknown");
};

/// Reads the one line of a .REV file: the ident, two MarkHex digits of the checksum, two of the
/// revision, with nothing between them: "PUMP1:301" is PUMP1, checksum 163, revision 1. Raises
/// InvalidProcedureCall (5) for a line of fewer than four characters.
ProgramIdent ParseRevLine(const QString& line);

/// The line of a .REV file. `checksum` and `revision` are 0 to 255.
QString RevLine(const QString& ident, int checksum, int revision);

/// The eight bytes that a board keeps of an ident: without blanks around it, cut to eight
/// characters or filled up with 0.
QByteArray IdentBytes(const QString& ident);
