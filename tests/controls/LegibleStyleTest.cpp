#include "controls/LegibleStyle.h"
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableView>

// What can be told from its ground, by the contrast of relative luminance as WCAG 2.1 counts it.

namespace {
double Linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

QPalette Dark() {
    QPalette palette(QColor(0x35, 0x38, 0x3d), QColor(0x2b, 0x2d, 0x31));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x20, 0x23));
    return palette;
}

/// Highest contrast of any point of the mark to the ground around it.
double ContrastOfMark(QWidget& control) {
    control.resize(control.sizeHint());
    const QImage picture = control.grab().toImage();
    const QColor ground = control.palette().color(QPalette::Window);
    constexpr int markWidth = 16; // pixels: the mark stands at the left
    double highest = 1;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < markWidth; ++x)
            highest = std::max(highest, Contrast(picture.pixelColor(x, y), ground));
    return highest;
}

class LegibleStyleTest : public testing::Test {
protected:
    template <class Control>
    double ContrastOf(const QPalette& palette, QStyle* drawing) {
        Control control;
        control.setStyle(drawing);
        control.setPalette(palette);
        return ContrastOfMark(control);
    }
    LegibleStyle legible_{QStringLiteral("fusion")};
    QStyle& style_ = legible_;
    const std::unique_ptr<QStyle> plain_{QStyleFactory::create(QStringLiteral("fusion"))};
};
} // namespace

// 3 to 1 is what controls need to be found.
TEST_F(LegibleStyleTest, EmptyBoxesOptionsAndEntriesAreSeenOnADarkGround) {
    EXPECT_GE(ContrastOf<QCheckBox>(Dark(), &style_), 3.0);
    EXPECT_GE(ContrastOf<QRadioButton>(Dark(), &style_), 3.0);
    EXPECT_GE(ContrastOf<QLineEdit>(Dark(), &style_), 3.0);
    EXPECT_LT(ContrastOf<QCheckBox>(Dark(), plain_.get()), 3.0) << "no longer needed";
}

TEST_F(LegibleStyleTest, LinesOfATableAreSeenOnADarkGround) {
    QTableView table;
    table.setPalette(Dark());
    QStyleOption option;
    option.initFrom(&table);
    const QColor line(
        static_cast<QRgb>(style_.styleHint(QStyle::SH_Table_GridLineColor, &option, &table)));
    EXPECT_GE(Contrast(line, Dark().color(QPalette::Base)), 1.5);
}

TEST_F(LegibleStyleTest, ALightGroundIsDrawnAsEver) {
    const QPalette light(QColor(0xef, 0xef, 0xef));
    QStyleOption option;
    option.palette = light;
    EXPECT_EQ(style_.styleHint(QStyle::SH_Table_GridLineColor, &option),
              plain_->styleHint(QStyle::SH_Table_GridLineColor, &option));
    EXPECT_EQ(ContrastOf<QCheckBox>(light, &style_), ContrastOf<QCheckBox>(light, plain_.get()));
}

TEST_F(LegibleStyleTest, CarriesTheNameOfTheStyleBelow) {
    EXPECT_EQ(style_.objectName(), QStringLiteral("fusion"));
}
