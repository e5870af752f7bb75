// Draws an SVG file as a square PNG picture: RenderIcon SVG PIXELS PNG. Part of the build.
#include <cstdio>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace {
constexpr int largestSize = 1024; // pixels; larger icons have no place in an icon theme

bool Render(const QString& svg, int pixels, const QString& png) {
    QSvgRenderer drawing(svg);
    if (!drawing.isValid() || pixels < 1 || pixels > largestSize)
        return false;
    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter, picture.rect());
    painter.end();
    return picture.save(png, "PNG");
}
} // namespace

int main(int argc, char** argv) {
    const QCoreApplication qt(argc,
                              argv); // a build has no display; drawings without text need none
    const QStringList words = QCoreApplication::arguments();
    if (words.size() == 4 && Render(words[1], words[2].toInt(), words[3]))
        return EXIT_SUCCESS;
    std::fputs("usage: RenderIcon SVG PIXELS PNG, of an SVG file that can be drawn\n", stderr);
    return EXIT_FAILURE;
}
