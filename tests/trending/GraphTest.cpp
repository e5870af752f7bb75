#include "trending/modGraph.h"

#include "base/RunTimeError.h"
#include "reports/FixedMetrics.h"
#include "support/PrintText.h"
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <QStringList>

namespace {
constexpr double lineHeight = 195.0; // of the graph's font in FixedMetrics
constexpr double charWidth = 78.0;

void ExpectLine(const DrawnLine& line, double x1, double y1, double x2, double y2) {
    EXPECT_DOUBLE_EQ(line.x1, x1);
    EXPECT_DOUBLE_EQ(line.y1, y1);
    EXPECT_DOUBLE_EQ(line.x2, x2);
    EXPECT_DOUBLE_EQ(line.y2, y2);
}

struct GraphUnderTest {
    GraphUnderTest(double width, double height) : picture(metrics, width, height) {
        graph.DrawGraphFrame(picture);
    }
    QStringList Labels() const {
        QStringList texts;
        for (const DrawnText& text : picture.Top().texts)
            texts += text.text;
        return texts;
    }
    QStringList YLabels() const { return Labels().mid(0, 6); }
    QStringList XLabels() const { return Labels().mid(6); }

    FixedMetrics metrics;
    Picture picture;
    modGraph graph;
};

// A sheet on which some things cannot be drawn.
class TornSheet final : public DrawingSurface {
public:
    std::function<bool(int)> fails; // of the statement with this number, from 0
    int lines = 0;
    QStringList texts;

protected:
    double WidthInTwips() const override { return 10000; }
    double HeightInTwips() const override { return 5705; }
    double TextWidthInTwips(const QString& text) const override {
        return metrics_.Width(text, Font());
    }
    double TextHeightInTwips(const QString& text) const override {
        return metrics_.Height(text, Font());
    }
    void ClearSheet(bool) override {}
    void DrawLine(double, double, double, double) override {
        FailOnce();
        ++lines;
    }
    void DrawTextAt(double, double, const QString& text) override {
        FailOnce();
        texts += text;
    }

private:
    void FailOnce() {
        if (fails(statement_++))
            throw RunTimeError(ErrorNumber::DeviceIOError);
    }

    FixedMetrics metrics_;
    int statement_ = 0;
};

class GraphOfSize : public testing::TestWithParam<std::pair<int, int>> {};
} // namespace

TEST(Graph, ASurfaceOf10000TwipsHasItsRightEdgeAt9700AndAPlotWidthOf8800) {
    const GraphUnderTest test(10000, 5705);
    EXPECT_EQ(test.graph.PlotWidth(), 8800);
    EXPECT_EQ(test.graph.OriginX(), 900);
    // 5705 - 300 + 195 - 600: the position below "Samples", and 600 up from there.
    EXPECT_EQ(test.graph.OriginY(), 5000);
    EXPECT_EQ(test.graph.PlotHeight(), 4400);
    const auto& lines = test.picture.Ground().lines;
    ASSERT_EQ(lines.size(), 3u + 9u + 5u);
    ExpectLine(lines[0], 900, 5000, 9700, 5000);
    ExpectLine(lines[1], 900, 600, 900, 5000);
    ExpectLine(lines[2], 9700, 600, 9700, 5000);
}

TEST_P(GraphOfSize, TheFrameKeepsItsConstantsAtAnySize) {
    const auto [width, height] = GetParam();
    const GraphUnderTest test(width, height);
    const double bottom = height - 900 + lineHeight;
    const auto& lines = test.picture.Ground().lines;
    ASSERT_EQ(lines.size(), 17u);
    ExpectLine(lines[0], 900, bottom, width - 300, bottom);
    for (int i = 1; i <= 9; ++i) {
        const double x = std::nearbyint(900 + (width - 1200) / 10.0 * i);
        ExpectLine(lines[2 + i], x, bottom, x, 600);
    }
    for (int i = 1; i <= 5; ++i) {
        const double y = std::nearbyint(bottom - (bottom - 600) / 5.0 * i);
        ExpectLine(lines[11 + i], 900, y, width - 300, y);
    }
    EXPECT_DOUBLE_EQ(lines[16].y1, 600); // the top line is a dotted one
}

INSTANTIATE_TEST_SUITE_P(Sizes, GraphOfSize,
                         testing::Values(std::pair{10000, 5705}, std::pair{3003, 2501},
                                         std::pair{15840, 12240}, std::pair{57600, 32400}));

TEST(Graph, TitlesStandInTheMiddleAndOnlyTheUpperIsUnderlined) {
    const GraphUnderTest test(10000, 6000);
    const auto& texts = test.picture.Ground().texts;
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].text, "Trending Data");
    EXPECT_DOUBLE_EQ(texts[0].x, 5000 - 13 * charWidth / 2);
    EXPECT_DOUBLE_EQ(texts[0].y, 100);
    EXPECT_EQ(texts[0].font, (SurfaceFont{"MS Sans Serif", 7.8, true, false, true}));
    EXPECT_EQ(texts[1].text, "Samples");
    EXPECT_DOUBLE_EQ(texts[1].x, 5000 - 7 * charWidth / 2);
    EXPECT_DOUBLE_EQ(texts[1].y, 5700);
    EXPECT_EQ(texts[1].font, (SurfaceFont{"MS Sans Serif", 7.8, true, false, false}));
}

TEST(Graph, AxesAreSolidBlackAndTheGridIsDottedGrey) {
    const GraphUnderTest test(10000, 6000);
    const auto& lines = test.picture.Ground().lines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].pen.style, i < 3 ? DrawStyle::Solid : DrawStyle::Dotted);
        EXPECT_EQ(lines[i].pen.colour, i < 3 ? PaletteColour::Black : PaletteColour::Grey);
        EXPECT_EQ(lines[i].pen.width, 1);
    }
}

TEST(Graph, AConstantSignalOf100GivesYLabelsFrom100To110) {
    GraphUnderTest test(10000, 6000);
    test.graph.DrawGraphData(std::vector<qint32>(11, 100), PaletteColour::LightBlue);
    EXPECT_EQ(test.YLabels(), (QStringList{"100", "102", "104", "106", "108", "110"}));
}

TEST(Graph, Values0To100GiveYLabels0To100) {
    GraphUnderTest test(10000, 6000);
    test.graph.DrawGraphData({0, 100, 50}, PaletteColour::LightBlue);
    EXPECT_EQ(test.YLabels(), (QStringList{"0", "20", "40", "60", "80", "100"}));
}

TEST(Graph, With50StepsTheXLabelsAre0To50) {
    GraphUnderTest test(10000, 6000);
    test.graph.DrawGraphData(std::vector<qint32>(51, 0), PaletteColour::LightBlue);
    EXPECT_EQ(test.XLabels(),
              (QStringList{"0", "5", "10", "15", "20", "25", "30", "35", "40", "45", "50"}));
}

TEST(Graph, LabelsAreRoundedHalfToEven) {
    GraphUnderTest test(10000, 6000);
    test.graph.DrawGraphData(std::vector<qint32>(26, 0), PaletteColour::LightBlue);
    EXPECT_EQ(test.XLabels(),
              (QStringList{"0", "2", "5", "8", "10", "12", "15", "18", "20", "22", "25"}));
}

TEST(Graph, YLabelsStandRightAlignedAndXLabelsCentred) {
    GraphUnderTest test(10000, 5705);
    test.graph.DrawGraphData({0, 100}, PaletteColour::LightBlue);
    const auto& texts = test.picture.Top().texts;
    ASSERT_EQ(texts.size(), 17u);
    for (int i = 0; i <= 5; ++i) {
        EXPECT_DOUBLE_EQ(texts[i].x + texts[i].text.size() * charWidth, 800);
        EXPECT_DOUBLE_EQ(texts[i].y, 5000 - 880 * i - lineHeight / 2);
    }
    for (int i = 0; i <= 10; ++i) {
        EXPECT_DOUBLE_EQ(texts[6 + i].x + texts[6 + i].text.size() * charWidth / 2, 900 + 880 * i);
        EXPECT_DOUBLE_EQ(texts[6 + i].y, 5000 + lineHeight / 2);
    }
    EXPECT_FALSE(texts[0].font.bold);
    EXPECT_FALSE(texts[0].font.underline);
}

TEST(Graph, TheNewestSampleStandsAtTheLeft) {
    GraphUnderTest test(10000, 5705);
    test.graph.DrawGraphData({100, 0, 50, 25}, PaletteColour::LightBlue);
    const auto& lines = test.picture.Top().lines;
    ASSERT_EQ(lines.size(), 3u);
    ExpectLine(lines[0], 900, 600, 3833, 5000); // 8800 / 3 = 2933.3
    ExpectLine(lines[1], 3833, 5000, 6767, 2800);
    ExpectLine(lines[2], 6767, 2800, 9700, 3900);
    EXPECT_EQ(lines[0].pen.colour, PaletteColour::LightBlue);
    EXPECT_EQ(lines[0].pen.style, DrawStyle::Solid);
}

TEST(Graph, NewDataReplacesTheOldAndLeavesTheFrame) {
    GraphUnderTest test(10000, 6000);
    test.graph.DrawGraphData(std::vector<qint32>(51, 3), PaletteColour::LightBlue);
    test.graph.DrawGraphData({1, 2}, PaletteColour::Black);
    EXPECT_EQ(test.picture.Top().lines.size(), 1u);
    EXPECT_EQ(test.picture.Top().texts.size(), 17u);
    EXPECT_EQ(test.picture.Ground().lines.size(), 17u);
}

TEST(Graph, FewerThanTwoSamplesGiveLabelsAndNoLine) {
    GraphUnderTest test(10000, 6000);
    for (const std::vector<qint32>& samples : {std::vector<qint32>{}, std::vector<qint32>{7}}) {
        test.graph.DrawGraphData(samples, PaletteColour::LightBlue);
        EXPECT_EQ(test.picture.Top().texts.size(), 17u);
        EXPECT_TRUE(test.picture.Top().lines.empty());
        EXPECT_EQ(test.XLabels().last(), "0");
    }
}

TEST(Graph, TheWidestRangeOfValuesIsDrawn) {
    GraphUnderTest test(10000, 5705);
    test.graph.DrawGraphData(
        {std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()},
        PaletteColour::LightBlue);
    EXPECT_EQ(test.YLabels().first(), "-2147483648");
    EXPECT_EQ(test.YLabels().last(), "2147483647");
    ExpectLine(test.picture.Top().lines.at(0), 900, 5000, 9700, 600);
}

TEST(Graph, DataWithoutAFrameDrawsNothing) {
    modGraph graph;
    graph.DrawGraphData({1, 2}, PaletteColour::Black);
    EXPECT_EQ(graph.PlotWidth(), 0);
}

TEST(Graph, TheSampleUnderAPlaceIsTheNearestOne) {
    GraphUnderTest test(10000, 5705);
    EXPECT_EQ(test.graph.SampleAt(5000), std::nullopt);
    test.graph.DrawGraphData({100, 0, 50, 25}, PaletteColour::LightBlue);
    EXPECT_EQ(test.graph.SampleAt(899), std::nullopt);
    EXPECT_EQ(test.graph.SampleAt(900), 0);
    EXPECT_EQ(test.graph.SampleAt(3700), 1);
    EXPECT_EQ(test.graph.SampleAt(9700), 3);
    EXPECT_EQ(test.graph.SampleAt(9701), std::nullopt);
    EXPECT_EQ(test.graph.XOf(1), 3833);
}

TEST(Graph, WhatCannotBeDrawnIsLeftOutAndTheRestIsDrawn) {
    TornSheet sheet;
    // A title, an axis, a label and a line of the data.
    sheet.fails = [](int statement) {
        return statement == 1 || statement == 3 || statement == 20 || statement == 37;
    };
    modGraph graph;
    graph.DrawGraphFrame(sheet);
    EXPECT_EQ(sheet.texts, (QStringList{"Trending Data"}));
    EXPECT_EQ(sheet.lines, 16);
    graph.DrawGraphData({0, 100, 50}, PaletteColour::Black);
    EXPECT_EQ(sheet.texts.mid(1, 5), (QStringList{"0", "40", "60", "80", "100"}));
    EXPECT_EQ(sheet.lines, 16 + 1);
}

TEST(Graph, ASheetOnWhichNothingCanBeDrawnRaisesNothing) {
    TornSheet sheet;
    sheet.fails = [](int) { return true; };
    modGraph graph;
    graph.DrawGraphFrame(sheet);
    graph.DrawGraphData({1, 2}, PaletteColour::Black);
    EXPECT_EQ(sheet.lines, 0);
    EXPECT_TRUE(sheet.texts.isEmpty());
}
