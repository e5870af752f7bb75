#include "link/ProgramConfig.h"

#include "base/NumberReader.h"
#include "link/TargetBoards.h"

namespace {
constexpr qsizetype placeOfCodeA = 36; // counted from 1
constexpr qsizetype placeOfCodeB = 39;
constexpr qsizetype placeOfCodeC = 40;
constexpr qint16 otherCode = 3;

qint16 DigitAt(const QString& line, qsizetype place) {
    return static_cast<qint16>(WholeNumberValue(line.mid(place - 1, 1)));
}

QString Digit(qint16 code) {
    return QString::number(code >= 0 && code <= 9 ? code : 0);
}
} // namespace

ProgramConfig ParseLcfLine(const QString& line) {
    ProgramConfig config;
    config.codeA = DigitAt(line, placeOfCodeA);
    config.codeB = DigitAt(line, placeOfCodeB);
    config.codeC = DigitAt(line, placeOfCodeC);
    return config;
}

QString LcfLine(qint16 boardIndex, const ProgramConfig& config) {
    const QString board = LCFBoardIndex(boardIndex);
    return (board.isEmpty() ? QStringLiteral("0") : board) + QString(34, u'0') +
           Digit(config.codeA) + QStringLiteral("00") + Digit(config.codeB) + Digit(config.codeC) +
           QStringLiteral("000%");
}

int BoardByteOfCodeA(qint16 code) {
    return code == 1 ? 3 : code == 2 ? 5 : 12;
}

int BoardByteOfCodeC(qint16 code) {
    return code == 1 ? 5 : code == 2 ? 10 : 20;
}

qint16 CodeAOfBoardByte(int byte) {
    return byte == 3 ? 1 : byte == 5 ? 2 : otherCode;
}

qint16 CodeBOfBoardByte(int byte) {
    return static_cast<qint16>(byte);
}

qint16 CodeCOfBoardByte(int byte) {
    return byte == 5 ? 1 : byte == 10 ? 2 : otherCode;
}
