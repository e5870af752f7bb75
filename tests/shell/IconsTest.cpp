#include "shell/Icons.h"

#include "shell/CommandTable.h"
#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>
#include <string>

namespace {
constexpr int size = 48; // pixels

QImage OnGround(const QString& name, QIcon::Mode mode, const QColor& ground) {
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    ShellIcon(name).paint(&painter, image.rect(), Qt::AlignCenter, mode);
    return image;
}

// How much a picture stands out from its ground, as a sum over all points.
double Ink(const QImage& image, const QColor& ground) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor point = image.pixelColor(x, y);
            sum += std::abs(point.red() - ground.red()) + std::abs(point.green() - ground.green()) +
                   std::abs(point.blue() - ground.blue());
        }
    return sum;
}

class Icons : public testing::TestWithParam<int> {
protected:
    const QColor ground{GetParam(), GetParam(), GetParam()};
};
} // namespace

TEST_P(Icons, ADisabledButtonIsToldFromAnEnabledOneAndStillSeen) {
    for (const ToolbarEntry& button : ToolbarTable()) {
        const QString key = QString::fromLatin1(button.key);
        if (key.isEmpty())
            continue;
        const double enabled = Ink(OnGround(key, QIcon::Normal, ground), ground);
        const double disabled = Ink(OnGround(key, QIcon::Disabled, ground), ground);
        EXPECT_GT(enabled, 0) << button.key;
        EXPECT_LT(disabled, 0.5 * enabled) << button.key;
        EXPECT_GT(disabled, 0.1 * enabled) << button.key;
    }
}

TEST_P(Icons, ADisabledButtonHasNoColour) {
    const QImage image = OnGround(QStringLiteral("Program"), QIcon::Disabled, ground);
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
            ASSERT_LE(image.pixelColor(x, y).hsvSaturation(), 4) << x << ' ' << y;
}

TEST(Icon, IsDrawnAtTheSizeThatIsWanted) {
    const QIcon icon = ShellIcon(QStringLiteral("Program"));
    EXPECT_EQ(icon.pixmap(QSize(24, 24), 2.0, QIcon::Disabled).size(), QSize(48, 48));
    EXPECT_EQ(icon.pixmap(QSize(31, 31), 1.0, QIcon::Normal).size(), QSize(31, 31));
}

INSTANTIATE_TEST_SUITE_P(OnLightAndDark, Icons, testing::Values(239, 45), [](const auto& ground) {
    return "Ground" + std::to_string(ground.param);
});

TEST(Icon, OfTheProgramHasSharpEdgesAtSixteenPixels) {
    const QImage small = ProgramIcon().pixmap(QSize(16, 16), 1.0).toImage();
    EXPECT_EQ(small.pixelColor(7, 6), QColor(0xff, 0xb9, 0x38)); // the pulse on the display
    EXPECT_EQ(small.pixelColor(7, 5), QColor(0x12, 0x30, 0x4c)); // the display above it
    const QImage large = ProgramIcon().pixmap(QSize(size, size), 1.0).toImage();
    EXPECT_EQ(large, ShellIcon(QStringLiteral("Quentor")).pixmap(QSize(size, size), 1.0).toImage());
    EXPECT_NE(small, ShellIcon(QStringLiteral("Quentor")).pixmap(QSize(16, 16), 1.0).toImage());
}
