#include "link/ProgramIdent.h"

#include "base/CharacterSet.h"
#include "base/RunTimeError.h"
#include "link/MarkHex.h"

namespace {
constexpr qsizetype pairLength = 2;
constexpr qsizetype pairsLength = 2 * pairLength; // checksum and revision

QString MarkHexPair(int byte) {
    QString digits = TwoHexDigits(byte);
    return HEX2MarkHEX(digits);
}

// Blanks alone: a tab or a 0 character is part of an ident.
QString WithoutBlanksAround(const QString& text) {
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == u' ')
        ++start;
    while (end > start && text[end - 1] == u' ')
        --end;
    return text.mid(start, end - start);
}
} // namespace

ProgramIdent ParseRevLine(const QString& line) {
    if (line.size() < pairsLength)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    ProgramIdent program;
    program.ident = line.chopped(pairsLength);
    program.revision = MarkHexToDecimal(line.right(pairLength));
    program.checksum = MarkHexToDecimal(line.mid(line.size() - pairsLength, pairLength));
    return program;
}

QString RevLine(const QString& ident, int checksum, int revision) {
    return ident + MarkHexPair(checksum) + MarkHexPair(revision);
}

QByteArray IdentBytes(const QString& ident) {
    const QByteArray text = ToWindows1252(WithoutBlanksAround(ident));
    return text.leftJustified(IdentBlock::IdentLength, '\0', true);
}
