#pragma once

#include <QString>

/// A board index is the character code of the first character of a program set's .hdn file.
namespace BoardIndex {
constexpr qint16 K2010 = 49;
constexpr qint16 K2012 = 50;
constexpr qint16 K2016 = 54;
constexpr qint16 K2024 = 56;
constexpr qint16 T7110 = 65;
constexpr qint16 R6500PLC = 68;
/// Index of a set whose .hdn file is missing or empty.
constexpr qint16 Default = R6500PLC;
} // namespace BoardIndex

/// What a program dump does with a set of this board.
enum class DumpRoute { Program, PLS, Refused };

/// One model of the family of boards.
struct TargetBoard {
    qint16 index;            ///< character code
    const char16_t* name;    ///< as users know it
    const char16_t* lcfCode; ///< first character of the .LCF file, or empty
    char memoryClass;        ///< 'A', 'B' or 'C': which addresses exist
    DumpRoute dump;
    qint32 imageStart;  ///< first address of the program image, 0 if it cannot be uploaded
    qint32 imageLength; ///< bytes of the program image, a multiple of 16
};

/// The model of an index, or null.
const TargetBoard* FindTargetBoard(qint16 index);

/// Name of the model; of an index without one the character of that code and " Is Not Defined.".
QString TargetboardName(qint16 BoardType);
/// First character of the model's .LCF file; empty where it has none.
QString LCFBoardIndex(qint16 BoardType);

/// True for the limit switch boards: 55, 62, 63, 64, 67 and 69. Every other index counts as a PLC.
bool IsPLSBoard(qint16 index);
/// True for indexes 56 to 65: a dump writes three configuration bytes and the .LCF file counts.
bool HasConfigurationBytes(qint16 index);
/// True for the two models with a real time clock, 54 and 65.
bool HasRealTimeClock(qint16 index);
/// Memory class of an index: 'A', 'B', or 'C' for every index that is in neither.
char MemoryClass(qint16 index);
