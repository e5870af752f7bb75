#include "results/ResultsPaper.h"

#include "base/RunTimeError.h"
#include "reports/DrawingSurface.h"
#include "results/KeptPrinter.h"
#include "support/ExpectError.h"
#include "support/PrintText.h"
#include <gtest/gtest.h>
#include <QStringList>

namespace {
constexpr double inch = 1440.0;
constexpr double line = 250.0;        // height of a line of 10 points in FixedMetrics
constexpr int charactersOfLine = 108; // of 100 twips each in 7.5 inches

class ResultsPaper : public testing::Test {
protected:
    const std::vector<Drawing>& Print(const QString& text) {
        PrintResultsText(printer, font, text);
        EXPECT_EQ(printer.paper.ended, 1);
        return printer.paper.pages;
    }

    KeptPrinter printer;
    const SurfaceFont font{QStringLiteral("Courier"), 10, true, true, true};
};
} // namespace

TEST_F(ResultsPaper, HasAMarginOfHalfAnInchAndTheFontOfTheTextBox) {
    const auto& pages = Print("first\r\n\r\nthird\r\n");
    ASSERT_EQ(pages.size(), 1u);
    ASSERT_EQ(pages[0].texts.size(), 2u);
    EXPECT_EQ(printer.paper.orientation, PaperOrientation::Portrait);
    for (const DrawnText& text : pages[0].texts) {
        EXPECT_NEAR(text.x, 0.5 * inch, 1e-6);
        EXPECT_EQ(text.font, font);
    }
    EXPECT_NEAR(pages[0].texts[0].y, 0.0, 1e-6);
    EXPECT_NEAR(pages[0].texts[1].y, 2 * line, 1e-6);
}

TEST_F(ResultsPaper, ALineTooLongForThePaperGoesOnBelow) {
    const auto& pages =
        Print(QString(charactersOfLine, 'a') + "\n" + QString(2 * charactersOfLine + 1, 'b'));
    QStringList printed;
    for (const DrawnText& text : pages.at(0).texts)
        printed += text.text;
    EXPECT_EQ(printed, (QStringList{QString(charactersOfLine, 'a'), QString(charactersOfLine, 'b'),
                                    QString(charactersOfLine, 'b'), "b"}));
}

TEST_F(ResultsPaper, AFullPageGoesOnWithTheNextAndNoLineIsLost) {
    QString text;
    for (int number = 0; number < 200; ++number)
        text += QStringLiteral("line %1\r\n").arg(number);
    const auto& pages = Print(text);
    EXPECT_EQ(pages.size(), 4u); // 63 lines of 250 twips on 15840
    int number = 0;
    for (const Drawing& page : pages)
        for (const DrawnText& printed : page.texts) {
            EXPECT_EQ(printed.text, QStringLiteral("line %1").arg(number++));
            EXPECT_LE(printed.y + line, 11 * inch);
            EXPECT_NEAR(printed.x, 0.5 * inch, 1e-6);
        }
    EXPECT_EQ(number, 200);
}

TEST_F(ResultsPaper, TabsReachToTheNextEighthColumn) {
    EXPECT_EQ(Print("a\tb\t\tc").at(0).texts.at(0).text, "a       b               c");
}

TEST_F(ResultsPaper, AnEndlessLineIsPrintedWhole) {
    const auto& pages = Print(QString(200000, 'x'));
    qsizetype printed = 0;
    for (const Drawing& page : pages)
        for (const DrawnText& text : page.texts)
            printed += text.text.size();
    EXPECT_EQ(printed, 200000);
}

TEST_F(ResultsPaper, AnEmptyTextHasNoPage) {
    EXPECT_TRUE(Print(QString()).empty());
}

TEST_F(ResultsPaper, AFailureOfThePrinterIsPassedOn) {
    printer.paper.fails = true;
    ExpectError(ErrorNumber::DeviceIOError, [&] { PrintResultsText(printer, font, "text"); });
}
