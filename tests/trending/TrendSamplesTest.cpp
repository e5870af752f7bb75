#include "trending/TrendSamples.h"

#include "support/PrintText.h"
#include <algorithm>
#include <gtest/gtest.h>

namespace {
TrendRow Sample(int i) {
    return {QString::number(i), QString::number(i * 10)};
}
} // namespace

TEST(TrendSamples, OpenWith12RowsAndTheirHeads) {
    const TrendSamples grid;
    EXPECT_EQ(grid.Rows(), 12);
    EXPECT_EQ(grid.Text(0, 0), "#");
    EXPECT_EQ(grid.Text(0, 1), "(sec)");
    EXPECT_EQ(grid.Text(0, 2), "Data:");
    EXPECT_EQ(grid.Text(11, 0), "11");
    EXPECT_EQ(grid.Text(11, 2), "");
    EXPECT_EQ(grid.Text(12, 0), "");
}

TEST(TrendSamples, TheNewestStandsInRow1) {
    TrendSamples grid;
    grid.Add(Sample(1));
    grid.Add(Sample(2));
    EXPECT_EQ(grid.Rows(), 14);
    EXPECT_EQ(grid.Text(1, 1), "2");
    EXPECT_EQ(grid.Text(1, 2), "20");
    EXPECT_EQ(grid.Text(2, 1), "1");
}

TEST(TrendSamples, The258thSampleDropsTheOldest) {
    TrendSamples grid;
    for (int i = 1; i <= 257; ++i)
        grid.Add(Sample(i));
    EXPECT_EQ(grid.Rows(), 258);
    EXPECT_EQ(grid.Text(257, 1), "1");
    EXPECT_TRUE(grid.Add(Sample(258)));
    EXPECT_EQ(grid.Rows(), 258);
    EXPECT_EQ(grid.Text(1, 1), "258");
    EXPECT_EQ(grid.Text(257, 1), "2");
}

TEST(TrendSamples, NeverHoldMoreThan257HoweverLongTheyAreTaken) {
    TrendSamples grid;
    int most = 0;
    for (int i = 1; i <= 100000; ++i) {
        grid.Add(Sample(i));
        most = std::max(most, grid.Rows());
    }
    EXPECT_EQ(most, 258);
}

TEST(TrendSamples, ASampleAddedToALongFileDoesNotMakeItLonger) {
    TrendSamples grid;
    grid.Load(std::vector<TrendRow>(300, Sample(5)));
    grid.Add(Sample(1));
    EXPECT_EQ(grid.Rows(), 301);
}

TEST(TrendSamples, AClearedGridIsAsItOpened) {
    TrendSamples grid;
    for (int i = 1; i <= 20; ++i)
        grid.Add(Sample(i));
    grid.Clear();
    EXPECT_EQ(grid.Rows(), 12);
    EXPECT_EQ(grid.Text(1, 2), "");
}

TEST(TrendSamples, AfterThreeSamplesAFreshGridGraphsThreeValuesAndElevenZeros) {
    TrendSamples grid;
    for (int i = 1; i <= 3; ++i)
        grid.Add(Sample(i));
    std::vector<qint32> expected{30, 20, 10};
    expected.resize(14);
    EXPECT_EQ(ValuesToGraph(grid, 255), expected);
}

TEST(TrendSamples, OneMoreValueThanTheSamplesAskedForIsGraphed) {
    TrendSamples grid;
    for (int i = 1; i <= 257; ++i)
        grid.Add(Sample(i));
    EXPECT_EQ(ValuesToGraph(grid, 50).size(), 51u);
    EXPECT_EQ(ValuesToGraph(grid, 255).size(), 256u);
    EXPECT_EQ(ValuesToGraph(grid, 30000).size(), 256u);
    EXPECT_EQ(ValuesToGraph(grid, -3).size(), 2u);
}

TEST(TrendSamples, AValueIsGraphedWithoutItsFraction) {
    TrendSamples grid;
    grid.Add({"1", "-2.9"});
    grid.Add({"2", "2.9"});
    EXPECT_EQ(ValuesToGraph(grid, 1), (std::vector<qint32>{2, -2}));
}
