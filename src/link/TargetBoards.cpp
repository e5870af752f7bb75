#include "link/TargetBoards.h"

#include "base/CharacterSet.h"
#include <algorithm>
#include <array>

namespace {
constexpr auto program = DumpRoute::Program;
constexpr auto pls = DumpRoute::PLS;
constexpr auto refused = DumpRoute::Refused;

constexpr std::array<TargetBoard, 21> boards = {{
    {49, u"K2010", u"1", 'A', refused, 0, 0},
    {50, u"K2012", u"1", 'B', program, 0x5000, 0xB000},
    {51, u"K2014", u"?", 'A', program, 0x2000, 0x6000},
    {52, u"K2021", u"2", 'A', program, 0x2000, 0x2000},
    {53, u"K2022", u"3", 'A', program, 0x2000, 0x2000},
    {54, u"K2016", u"D", 'A', program, 0x2000, 0x6000},
    {55, u"K2041", u"", 'C', pls, 0, 0},
    {56, u"K2024", u"F", 'A', program, 0x2000, 0x2000},
    {57, u"Not Defined", u"", 'C', refused, 0, 0},
    {58, u"R6010", u"@", 'A', program, 0x2000, 0x6000},
    {59, u"R6011", u"A", 'A', program, 0x2000, 0x6000},
    {60, u"R6012", u"B", 'A', program, 0x2000, 0x6000},
    {61, u"R6020(PLC)", u"C", 'A', program, 0x2000, 0x6000},
    {62, u"R6020(PLS)", u"", 'C', pls, 0, 0},
    {63, u"R6040", u"", 'C', pls, 0, 0},
    {64, u"R6041", u"", 'C', pls, 0, 0},
    {65, u"T7110", u"E", 'A', program, 0x2000, 0x6000},
    {66, u"R6021(PLC)", u"", 'A', program, 0x2000, 0x6000},
    {67, u"R6021(PLS)", u"", 'C', pls, 0, 0},
    {68, u"R6500(PLC)", u"G", 'B', program, 0x4000, 0x8000},
    {69, u"R6500(PLS)", u"", 'C', pls, 0, 0},
}};
} // namespace

const TargetBoard* FindTargetBoard(qint16 index) {
    const auto found = std::find_if(boards.begin(), boards.end(),
                                    [index](const TargetBoard& b) { return b.index == index; });
    return found == boards.end() ? nullptr : &*found;
}

QString TargetboardName(qint16 BoardType) {
    if (const TargetBoard* board = FindTargetBoard(BoardType))
        return QString::fromUtf16(board->name);
    return CharacterOfCode(static_cast<std::uint8_t>(BoardType)) +
           QStringLiteral(" Is Not Defined.");
}

QString LCFBoardIndex(qint16 BoardType) {
    const TargetBoard* board = FindTargetBoard(BoardType);
    return board ? QString::fromUtf16(board->lcfCode) : QString();
}

bool IsPLSBoard(qint16 index) {
    const TargetBoard* board = FindTargetBoard(index);
    return board && board->dump == DumpRoute::PLS;
}

bool HasConfigurationBytes(qint16 index) {
    return index >= 56 && index <= 65;
}

bool HasRealTimeClock(qint16 index) {
    return index == BoardIndex::K2016 || index == BoardIndex::T7110;
}

char MemoryClass(qint16 index) {
    const TargetBoard* board = FindTargetBoard(index);
    return board ? board->memoryClass : 'C';
}
