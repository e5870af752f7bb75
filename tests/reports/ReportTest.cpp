#include "reports/modReport.h"

#include "RecordedPages.h"
#include "session/Globals.h"
#include "support/PrintText.h"
#include "support/VirtualClock.h"
#include <gtest/gtest.h>

namespace {
constexpr double inch = 1440.0;
constexpr double bodyLine = 300.0; // height of a line of 12 points in FixedMetrics
constexpr double footLine = 250.0; // of 10 points

/// A grid that names its cells by row and column.
class NamedCells final : public ReportGrid {
public:
    NamedCells(int rows, int columns) : rows_(rows), columns_(columns) {}
    int Rows() const override { return rows_; }
    int Columns() const override { return columns_; }
    QString Text(int row, int column) const override {
        return QStringLiteral("r%1c%2").arg(row).arg(column);
    }

private:
    int rows_;
    int columns_;
};

// A table of two columns with one row, whose texts are too long.
class LongText final : public ReportGrid {
public:
    int Rows() const override { return 3; }
    int Columns() const override { return 2; }
    QString Text(int row, int) const override {
        return row < 2 ? QStringLiteral("head") : QStringLiteral("abcdefghijklmnop");
    }
};

class Report : public testing::Test {
protected:
    void TearDown() override { gViewDescriptions = false; }
    void PrintTable(int rows) {
        ReportStart(pages, NamedCells(rows, 6), clock, "press", ReportKind::StatusTable);
    }
    void PrintTrend(int rows) {
        ReportStart(pages, NamedCells(rows, 3), clock, "speed.tdt", ReportKind::Trend);
    }
    const DrawnText* Find(const QString& text, std::size_t page = 0) const {
        for (const DrawnText& drawn : pages.Pages().at(page).texts)
            if (drawn.text == text)
                return &drawn;
        ADD_FAILURE() << "no text " << text.toStdString() << " on page " << page + 1;
        return &none;
    }
    int Count(const QString& text) const {
        int count = 0;
        for (const Drawing& page : pages.Pages())
            for (const DrawnText& drawn : page.texts)
                count += drawn.text == text ? 1 : 0;
        return count;
    }

    RecordedPages pages;
    VirtualClock clock;
    DrawnText none;
};
} // namespace

TEST_F(Report, ATableThatFitsOnePageGetsOneHeaderAndOneFooterWithPage1) {
    PrintTable(12);
    ASSERT_EQ(pages.Pages().size(), 1u);
    EXPECT_EQ(Count("Status Table: press"), 1);
    EXPECT_EQ(Count("Page 1"), 1);
    EXPECT_EQ(pages.Pages()[0].lines.size(), 2u);
    EXPECT_EQ(Count("r11c5"), 1);
    EXPECT_EQ(pages.Document()->ended, 0); // that is up to the job
}

TEST_F(Report, TheHeaderStandsCentredAboveALine) {
    PrintTable(3);
    const DrawnText* header = Find("Status Table: press");
    const double width = 19 * 120.0;
    EXPECT_DOUBLE_EQ(header->x, (8.5 * inch - width - 0.5 * inch) / 2);
    EXPECT_DOUBLE_EQ(header->y, 0.1 * inch);
    EXPECT_EQ(header->font, (SurfaceFont{"Times", 12, true, false, false}));
    const DrawnLine& line = pages.Pages()[0].lines[0];
    EXPECT_DOUBLE_EQ(line.x1, 0.5 * inch);
    EXPECT_DOUBLE_EQ(line.x2, 8.0 * inch);
    EXPECT_DOUBLE_EQ(line.y1, 0.1 * inch + bodyLine);
    EXPECT_DOUBLE_EQ(line.y2, line.y1);
}

TEST_F(Report, BothHeadRowsOfATableAreBoldAndTheSecondIsUnderlined) {
    PrintTable(3);
    EXPECT_EQ(Find("r0c0")->font, (SurfaceFont{"Times", 12, true, false, false}));
    EXPECT_EQ(Find("r1c0")->font, (SurfaceFont{"Times", 12, true, false, true}));
    EXPECT_EQ(Find("r2c0")->font, (SurfaceFont{"Times", 12, false, false, false}));
    EXPECT_NEAR(Find("r0c0")->y, 0.35 * inch + bodyLine, 1e-6);
    EXPECT_NEAR(Find("r1c0")->y, 0.35 * inch + 2 * bodyLine, 1e-6);
    EXPECT_NEAR(Find("r2c0")->y, 0.35 * inch + 3 * bodyLine, 1e-6);
}

TEST_F(Report, ColumnsStandOneInchApart) {
    PrintTable(3);
    for (int column = 0; column < 6; ++column)
        EXPECT_DOUBLE_EQ(Find(QStringLiteral("r2c%1").arg(column))->x, (0.5 + column) * inch);
}

TEST_F(Report, WithDescriptionsShownTheAddressColumnStarts2InchesFromColumn0) {
    gViewDescriptions = true;
    PrintTable(3);
    EXPECT_DOUBLE_EQ(Find("r2c0")->x, 0.5 * inch);
    EXPECT_DOUBLE_EQ(Find("r2c1")->x, 2.5 * inch);
    EXPECT_DOUBLE_EQ(Find("r2c2")->x, 3.5 * inch);
    EXPECT_DOUBLE_EQ(Find("r0c1")->x, 2.5 * inch);
}

TEST_F(Report, ATextThatIsTooLongForItsColumnEndsWithAnEllipsis) {
    RecordedPages sheet;
    ReportStart(sheet, LongText(), clock, QStringLiteral("press"), ReportKind::StatusTable);
    const std::vector<DrawnText>& texts = sheet.Pages().at(0).texts;
    // 120 twips a letter and 0.95 inches of room: eleven letters fit.
    EXPECT_EQ(texts.at(5).text, QStringLiteral("abcdefghij\u2026"));
    EXPECT_EQ(texts.at(6).text, QStringLiteral("abcdefghijklmnop"));
}

TEST_F(Report, TheFooterShowsDateTimeAndPageBelowALine) {
    clock.SetWallClock(QDateTime(QDate(2026, 3, 9), QTime(8, 0, 5)));
    PrintTable(3);
    const double y = 11 * inch - footLine - 0.1 * inch;
    const DrawnText* page = Find("Page 1");
    EXPECT_NEAR(page->y, y, 1e-6);
    EXPECT_NEAR(page->x, 8.0 * inch - 6 * 100.0, 1e-6);
    EXPECT_EQ(page->font, (SurfaceFont{"Times", 10, false, false, false}));
    const auto& texts = pages.Pages()[0].texts;
    const DrawnText& date = texts[texts.size() - 2];
    EXPECT_TRUE(date.text.contains("2026")) << date.text.toStdString();
    EXPECT_TRUE(date.text.contains(":05")) << date.text.toStdString();
    EXPECT_DOUBLE_EQ(date.x, 0.5 * inch);
    EXPECT_NEAR(date.y, y, 1e-6);
    const DrawnLine& line = pages.Pages()[0].lines.back();
    EXPECT_NEAR(line.y1, y - 0.1 * inch, 1e-6);
    EXPECT_NEAR(line.x1, 0.5 * inch, 1e-6);
    EXPECT_NEAR(line.x2, 8.0 * inch, 1e-6);
}

TEST_F(Report, APageBreakRepeatsTheHeaderAndTheColumnHeads) {
    PrintTable(80);
    ASSERT_EQ(pages.Pages().size(), 2u);
    EXPECT_EQ(Count("Status Table: press"), 2);
    EXPECT_EQ(Count("r0c0"), 2);
    EXPECT_EQ(Count("r1c5"), 2);
    EXPECT_EQ(Count("Page 1"), 1);
    EXPECT_EQ(Count("Page 2"), 1);
    EXPECT_NEAR(Find("Status Table: press", 1)->y, 0.1 * inch, 1e-6);
}

TEST_F(Report, ATrendPrintsItsHeadAndNumbersItsRows) {
    gViewDescriptions = true; // is of the status table alone
    PrintTrend(4);
    EXPECT_EQ(Find("r0c0")->font, (SurfaceFont{"Times", 12, true, false, true}));
    EXPECT_EQ(Count("Trend Data: speed.tdt"), 1);
    EXPECT_EQ(Count("r1c0"), 0);
    EXPECT_DOUBLE_EQ(Find("1")->x, 0.5 * inch);
    EXPECT_DOUBLE_EQ(Find("r1c1")->x, 1.5 * inch);
    EXPECT_DOUBLE_EQ(Find("r1c2")->x, 2.5 * inch);
    EXPECT_EQ(Count("3"), 1);
    EXPECT_EQ(Count("4"), 0);
}

TEST_F(Report, ATableOf32000RowsBreaksItsPagesAlikeAndLosesNoRow) {
    PrintTable(32000);
    // The first row stands 0.35 inch and three lines down, at 1404. A row must end at least a line
    // and 0.9 inch above the foot, at 14244 of 15840 twips; the one that does not is the last of
    // its page: 42 rows end by 14004, the 43rd at 14304.
    constexpr int rowsOnPage = 43;
    constexpr int dataRows = 32000 - 2;
    ASSERT_EQ(pages.Pages().size(), std::size_t((dataRows + rowsOnPage - 1) / rowsOnPage));
    int row = 2;
    for (const Drawing& page : pages.Pages()) {
        const int onPage = std::min(rowsOnPage, 32000 - row);
        // Header, two head rows and the footer are 1 + 12 + 2 texts.
        ASSERT_EQ(page.texts.size(), std::size_t(15 + onPage * 6));
        EXPECT_EQ(page.texts[13].text, QStringLiteral("r%1c0").arg(row));
        row += onPage;
        EXPECT_EQ(page.texts[12 + onPage * 6].text, QStringLiteral("r%1c5").arg(row - 1));
    }
    EXPECT_EQ(row, 32000);
    EXPECT_EQ(pages.Pages().back().texts.back().text, "Page 745");
}

TEST_F(Report, NoRowReachesTheFooter) {
    PrintTable(500);
    for (const Drawing& page : pages.Pages())
        for (std::size_t i = 0; i + 2 < page.texts.size(); ++i)
            EXPECT_LT(page.texts[i].y + bodyLine, page.lines.back().y1);
}

TEST_F(Report, AGridOfHeadsAloneIsOnePage) {
    PrintTable(2);
    EXPECT_EQ(pages.Pages().size(), 1u);
    EXPECT_EQ(Count("Page 1"), 1);
}
