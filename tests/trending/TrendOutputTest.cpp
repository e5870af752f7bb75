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
class LetterPrinter final : public ReportPrinter {
public:
    QString DeviceName() const override { return QStringLiteral("letter"); }
    void UsePrinter(const PrinterChoice&) override {}
    std::unique_ptr<PagedSurface> OpenDocument(PaperOrientation orientation) override {
        landscape = orientation == PaperOrientation::Landscape;
        auto pages = landscape ? std::make_unique<RecordedPages>(11.0, 8.5)
                               : std::make_unique<RecordedPages>(8.5, 11.0);
        printed = pages->Document();
        return pages;
    }

    bool landscape = false;
    std::shared_ptr<const RecordedDocument> printed; // the document opened last
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
    EXPECT_TRUE(printer.landscape);
    EXPECT_EQ(printer.printed->ended, 1);
    ASSERT_EQ(printer.printed->pages.size(), 1u);
    const std::vector<DrawnLine>& lines = printer.printed->pages[0].lines;
    ASSERT_EQ(lines.size(), 17u + 2u);
    EXPECT_EQ(lines.back().pen.colour, PaletteColour::Black);
    EXPECT_DOUBLE_EQ(lines.back().x2, 15840 - 300);
}

TEST(TrendOutput, TheReportOfATrendIsAPortraitDocumentThatIsEndedOnce) {
    LetterPrinter printer;
    const VirtualClock clock;
    const TrendSamples samples = ThreeSamples();
    PrintReport(printer, TrendReportGrid(samples), clock, "speed.tdt", ReportKind::Trend);
    EXPECT_FALSE(printer.landscape);
    EXPECT_EQ(printer.printed->ended, 1);
    ASSERT_EQ(printer.printed->pages.size(), 1u);
    EXPECT_EQ(printer.printed->pages[0].texts[0].text, "Trend Data: speed.tdt");
    EXPECT_EQ(printer.printed->pages[0].texts[3].text, "Data:");
    EXPECT_EQ(printer.printed->pages[0].texts[6].text, "9");
}

TEST(TrendOutput, CommaSeparatedValuesHaveAHeadAndNoEmptyRows) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.csv"));
    ExportTrendCsv(path, ThreeSamples());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("Time (sec),Value\r\n1,9\r\n0.5,8\r\n0,7\r\n"));
}
