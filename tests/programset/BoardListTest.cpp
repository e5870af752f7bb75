#include "programset/BoardList.h"

#include "base/RunTimeError.h"
#include "link/TargetBoards.h"
#include <gtest/gtest.h>

namespace {
constexpr qint16 inOrder[] = {50, 51, 54, 55, 56, 58, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 69};
}

TEST(BoardList, HasSeventeenEntriesInOrder) {
    const QStringList names = BoardList::Names();
    ASSERT_EQ(names.size(), 17);
    for (int position = 0; position < 17; ++position) {
        EXPECT_EQ(BoardList::BoardAt(position), inOrder[position]);
        EXPECT_EQ(names[position], TargetboardName(inOrder[position]));
    }
    EXPECT_EQ(BoardList::BoardAt(BoardList::firstPosition), 68);
}

TEST(BoardList, ExistingSetSelectsItsBoard) {
    for (int position = 0; position < 16; ++position)
        EXPECT_EQ(BoardList::PositionToSelect(inOrder[position]), position);
}

TEST(BoardList, SetOfBoardIndex69SelectsTheFirstBoardOfTheList) {
    EXPECT_EQ(BoardList::PositionToSelect(69), 0);
}

TEST(BoardList, IndexesNotInTheListLeaveTheSelectionAlone) {
    for (const qint16 index : {0, 49, 52, 53, 57, 70, 255})
        EXPECT_EQ(BoardList::PositionToSelect(index), std::nullopt) << index;
}

TEST(BoardList, PositionOutsideTheListIsAnError) {
    EXPECT_THROW(BoardList::BoardAt(-1), RunTimeError);
    EXPECT_THROW(BoardList::BoardAt(17), RunTimeError);
}
