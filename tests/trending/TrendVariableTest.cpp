#include "trending/TrendVariable.h"

#include "support/PrintText.h"
#include <gtest/gtest.h>

namespace {
constexpr int k2010 = 1;
using Entered = TrendVariable::Entered;
} // namespace

TEST(TrendVariable, BeginsWithoutAVariable) {
    const TrendVariable variable;
    EXPECT_FALSE(variable.Known());
    EXPECT_EQ(variable.FirstEntry(), "(none)");
    EXPECT_EQ(variable.Address(), "");
    EXPECT_EQ(variable.Board(), 0);
}

TEST(TrendVariable, X31WithTheBoardNoneIsInvalid) {
    TrendVariable variable;
    EXPECT_EQ(variable.Enter("X31"), Entered::Refused);
    EXPECT_FALSE(variable.Known());
    EXPECT_EQ(variable.FirstEntry(), "(none)");
}

TEST(TrendVariable, ABitOf9InB100_9BecomesB100_7) {
    TrendVariable variable;
    EXPECT_EQ(variable.Enter("b100.9"), Entered::Taken);
    EXPECT_EQ(variable.FirstEntry(), "B100.7");
    EXPECT_EQ(variable.Address(), "B100.7");
    EXPECT_EQ(WithBitWithin7("B100.7"), "B100.7");
    EXPECT_EQ(WithBitWithin7("B100.8"), "B100.7");
    EXPECT_EQ(WithBitWithin7("B109"), "B109");
}

TEST(TrendVariable, APointIsReadAsTheByteBehindIt) {
    TrendVariable variable;
    variable.SelectBoard(k2010);
    EXPECT_EQ(variable.Enter("x30"), Entered::Taken);
    EXPECT_EQ(variable.FirstEntry(), "X30");
    EXPECT_EQ(variable.Address(), "B49");
}

TEST(TrendVariable, TheOneEnteredLastIsTheFirstEntryAndStandsOnce) {
    TrendVariable variable;
    variable.Enter("B40");
    variable.Enter("W100");
    variable.Enter("B40");
    EXPECT_EQ(variable.List(), (QStringList{"B40", "W100", "(none)"}));
    EXPECT_EQ(variable.Click("W100"), Entered::Taken);
    EXPECT_EQ(variable.List(), (QStringList{"W100", "B40", "(none)"}));
    EXPECT_EQ(variable.Address(), "W100");
}

TEST(TrendVariable, ARefusedTextLeavesTheVariableInUse) {
    TrendVariable variable;
    variable.Enter("B40");
    EXPECT_EQ(variable.Click("(none)"), Entered::Refused);
    EXPECT_EQ(variable.Enter("(none)"), Entered::Refused);
    EXPECT_EQ(variable.Enter(""), Entered::Refused);
    EXPECT_EQ(variable.Enter("W33"), Entered::Refused);
    EXPECT_EQ(variable.FirstEntry(), "B40");
    EXPECT_EQ(variable.Address(), "B40");
}

TEST(TrendVariable, ABoardThatHasTheVariableGivesItItsAddress) {
    TrendVariable variable;
    variable.SelectBoard(k2010);
    variable.Enter("X30");
    variable.SelectBoard(0);
    EXPECT_EQ(variable.Address(), "B49"); // that board has no such point
    variable.SelectBoard(k2010);
    EXPECT_EQ(variable.Address(), "B49");
}

TEST(TrendVariable, TheBoardsOfTheListHaveTheirIndexes) {
    const std::vector<int> indexes{0, 49, 50, 51, 52, 53, 54, 56, 58, 59, 60, 61, 65, 66, 68};
    TrendVariable variable;
    for (int entry = 0; entry < 15; ++entry) {
        variable.SelectBoard(entry);
        EXPECT_EQ(variable.Board(), indexes[entry]);
    }
}
