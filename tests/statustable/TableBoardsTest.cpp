#include "statustable/TableBoards.h"

#include "support/PrintText.h"
#include "TestFiles.h"
#include <gtest/gtest.h>

TEST(TableBoards, StandInTheirOrder) {
    EXPECT_EQ(TableBoardNames(),
              (QStringList{"(none)", "K2010", "K2012", "K2014", "K2021", "K2022", "K2016", "K2024",
                           "R6010", "R6011", "R6012", "R6020", "T7110", "R6021", "R6500"}));
}

TEST(TableBoards, EntriesAndIndexesMapIntoEachOther) {
    const int indexes[] = {0, 49, 50, 51, 52, 53, 54, 56, 58, 59, 60, 61, 65, 66, 68};
    for (int entry = 0; entry < 15; ++entry) {
        EXPECT_EQ(BoardOfListEntry(entry), indexes[entry]);
        EXPECT_EQ(ListEntryOfBoard(static_cast<qint16>(indexes[entry])), entry);
    }
    EXPECT_EQ(BoardOfListEntry(-1), 0);
    EXPECT_EQ(BoardOfListEntry(15), 0);
}

TEST(TableBoards, LimitSwitchBoardsAndUnknownOnesHaveNoEntry) {
    for (const qint16 board : {55, 57, 62, 63, 64, 67, 69, 70, 48, 1, -1})
        EXPECT_EQ(ListEntryOfBoard(board), std::nullopt) << board;
}

TEST(TableBoards, ARefusedBoardIsNamed) {
    const std::pair<qint16, const char*> names[] = {{55, "K2041"},      {62, "R6020(PLS)"},
                                                    {63, "R6040"},      {64, "R6041"},
                                                    {67, "R6021(PLS)"}, {69, "R6500(PLS)"}};
    for (const auto& [board, name] : names)
        EXPECT_EQ(RefusedBoardMessage(board),
                  QString("Unable to View NicNames or Data for Target Board %1.").arg(name));
    EXPECT_EQ(RefusedBoardMessage(57), QString("Inappropriate or Unrecognized Target Board Type."));
}
