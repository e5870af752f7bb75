#include "trending/TrendOutput.h"

#include "base/Dialogs.h"
#include "reports/RecordedPages.h"
#include "reports/ReportPrinter.h"
#include "support/PrintText.h"
#include "support/VirtualClock.h"
#include "trending/TrendSamples.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

namespace {
/// A document whose pages are kept when it is gone.
struct Printed {
    std::vector<Drawing> pages;
    PaperOrientation orientation = PaperOrientation::Portrait;
    int ended = 0;
};

class KeptPages final : public PagedSurface {
public:
    KeptPages(Printed& printed, double width, double height)
        : printed_(printed), width_(width), height_(height) {}
    void EndDoc() override { ++printed_.ended; }

protected:
    void BeginNextPage() override { begun_ = false; }
    double WidthInTwips() const override { return width_; }
    double HeightInTwips() const override { return height_; }
    double TextWidthInTwips(const QString& text) const override {
        return metrics_.Width(text, Font());
    }
    double TextHeightInTwips(const QString& text) const override {
        return metrics_.Height(text, Font());
    }
    void ClearSheet(bool) override {}
    void DrawLine(double x1, double y1, double x2, double y2) override {
        Sheet().lines.push_back({x1, y1, x2, y2, Pen()});
    }
    void DrawTextAt(double x, double y, const QString& text) override {
        Sheet().texts.push_back({x, y, text, Font(), Pen().colour});
    }

private:
    Drawing& Sheet() {
        if (!begun_)
            printed_.pages.emplace_back();
        begun_ = true;
        return printed_.pages.back();
    }

    Printed& printed_;
    FixedMetrics metrics_;
    double width_;
    double height_;
    bool begun_ = false;
};

class LetterPrinter final : public ReportPrinter {
public:
    QString DeviceName() const override { return QStringLiteral("letter"); }
    void UsePrinter(const PrinterChoice&) override {}
    std::unique_ptr<PagedSurface> OpenDocument(PaperOrientation orientation) override {
        printed.orientation = orientation;
        const bool landscape = orientation == PaperOrientation::Landscape;
        return std::make_unique<KeptPages>(printed, landscape ? 15840 : 12240,
                                           landscape ? 12240 : 15840);
    }

    Printed printed;
};

TrendSamples ThreeSamples() {
    TrendSamples samples;
    samples.Add({"0", "7"});
    samples.Add({"0.5", "8"});
    samples.Add({"1", "9"});
    return samples;
}
} // namespace

TEST(TrendOutput, TheGraphIsOneBlackLandscapePage) {
    LetterPrinter printer;
    PrintGraph(printer, ThreeSamples(), 2);
    EXPECT_EQ(printer.printed.orientation, PaperOrientation::Landscape);
    EXPECT_EQ(printer.printed.ended, 1);
    ASSERT_EQ(printer.printed.pages.size(), 1u);
    const std::vector<DrawnLine>& lines = printer.printed.pages[0].lines;
    ASSERT_EQ(lines.size(), 17u + 2u);
    EXPECT_EQ(lines.back().pen.colour, PaletteColour::Black);
    EXPECT_DOUBLE_EQ(lines.back().x2, 15840 - 300);
}

TEST(TrendOutput, TheReportOfATrendIsAPortraitDocumentThatIsEndedOnce) {
    LetterPrinter printer;
    const VirtualClock clock;
    const TrendSamples samples = ThreeSamples();
    PrintReport(printer, TrendReportGrid(samples), clock, "speed.tdt", ReportKind::Trend);
    EXPECT_EQ(printer.printed.orientation, PaperOrientation::Portrait);
    EXPECT_EQ(printer.printed.ended, 1);
    ASSERT_EQ(printer.printed.pages.size(), 1u);
    EXPECT_EQ(printer.printed.pages[0].texts[0].text, "Trend Data: speed.tdt");
    EXPECT_EQ(printer.printed.pages[0].texts[3].text, "Data:");
    EXPECT_EQ(printer.printed.pages[0].texts[6].text, "9");
}

TEST(TrendOutput, CommaSeparatedValuesHaveAHeadAndNoEmptyRows) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.csv"));
    ExportTrendCsv(path, ThreeSamples());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("Time (sec),Value\r\n1,9\r\n0.5,8\r\n0,7\r\n"));
}
