#pragma once

#include <QString>

/// Where a board keeps the three bytes of the program configuration, the same on every model.
namespace ConfigAddress {
constexpr qint32 C = 8188;
constexpr qint32 B = 8189;
constexpr qint32 A = 8190;
} // namespace ConfigAddress

/// The three configuration codes that travel between the .LCF file and the board. What they do is
/// the firmware's matter.
struct ProgramConfig {
    qint16 codeA = 3; ///< on the board 1 is 3, 2 is 5, anything else 12
    qint16 codeB = 0; ///< on the board the same number, 0 to 255
    qint16 codeC = 3; ///< on the board 1 is 5, 2 is 10, anything else 20
};

/// Takes the codes from the one line of an .LCF file, characters 36, 39 and 40 counted from 1. A
/// character that is missing or no digit is code 0.
ProgramConfig ParseLcfLine(const QString& line);

/// The 44 characters of an .LCF file for a board index: see TargetBoards.h for the first one, "0"
/// where a board has none, so that the codes keep their places. A code B that is no single digit
/// cannot stand in its one place and becomes its default, 0.
QString LcfLine(qint16 boardIndex, const ProgramConfig& config);

/// Byte on the board, 0 to 255, for a code.
int BoardByteOfCodeA(qint16 code);
int BoardByteOfCodeC(qint16 code);

/// Code of a byte on the board; for A and C a byte that stands for none is code 3.
qint16 CodeAOfBoardByte(int byte);
qint16 CodeBOfBoardByte(int byte);
qint16 CodeCOfBoardByte(int byte);
