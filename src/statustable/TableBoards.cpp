#include "statustable/TableBoards.h"

#include "link/TargetBoards.h"
#include <array>

namespace {
struct TableBoard {
    qint16 index;
    const char16_t* name;
};

constexpr std::array<TableBoard, 15> boards{{{0, u"(none)"},
                                             {49, u"K2010"},
                                             {50, u"K2012"},
                                             {51, u"K2014"},
                                             {52, u"K2021"},
                                             {53, u"K2022"},
                                             {54, u"K2016"},
                                             {56, u"K2024"},
                                             {58, u"R6010"},
                                             {59, u"R6011"},
                                             {60, u"R6012"},
                                             {61, u"R6020"},
                                             {65, u"T7110"},
                                             {66, u"R6021"},
                                             {68, u"R6500"}}};
} // namespace

QStringList TableBoardNames() {
    QStringList names;
    for (const TableBoard& board : boards)
        names += QString::fromUtf16(board.name);
    return names;
}

qint16 BoardOfListEntry(int entry) {
    return entry >= 0 && entry < static_cast<int>(boards.size()) ? boards[entry].index : qint16(0);
}

std::optional<int> ListEntryOfBoard(qint16 board) {
    for (int entry = 0; entry < static_cast<int>(boards.size()); ++entry)
        if (boards[entry].index == board)
            return entry;
    return std::nullopt;
}

QString RefusedBoardMessage(qint16 board) {
    if (!IsPLSBoard(board))
        return QStringLiteral("Inappropriate or Unrecognized Target Board Type.");
    return QStringLiteral("Unable to View NicNames or Data for Target Board %1.")
        .arg(TargetboardName(board));
}
