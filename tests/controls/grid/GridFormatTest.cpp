#include "controls/grid/GridFormat.h"

#include "support/PrintText.h"
#include <gtest/gtest.h>

TEST(GridFormat, GivesAnAlignmentForEachColumn) {
    const auto columns = ReadGridFormat("^|<|^|^|>|>");
    ASSERT_EQ(columns.size(), 6u);
    EXPECT_EQ(columns[0].alignment, Qt::AlignCenter);
    EXPECT_EQ(columns[1].alignment, Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(columns[5].alignment, Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(columns[5].head, QString());
}

TEST(GridFormat, GivesTheTextOfTheHead) {
    const auto columns = ReadGridFormat("<Channel|>Value|Plain|");
    ASSERT_EQ(columns.size(), 4u);
    EXPECT_EQ(columns[0].head, QString("Channel"));
    EXPECT_EQ(columns[1].head, QString("Value"));
    EXPECT_EQ(columns[2].head, QString("Plain"));
    EXPECT_EQ(columns[2].alignment, Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(columns[3].head, QString());
}
