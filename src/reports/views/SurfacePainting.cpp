#include "reports/views/SurfacePainting.h"

#include <cmath>
#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

namespace {
constexpr double twipsPerPoint = 20.0;
constexpr double twipsPerPixel = 15.0; // at 96 dots per inch
} // namespace

QFont FontInTwips(const SurfaceFont& font) {
    QFont made(font.name);
    made.setStyleHint(font.name == QStringLiteral("Times") ? QFont::Serif : QFont::SansSerif);
    made.setPixelSize(static_cast<int>(std::lround(font.size * twipsPerPoint)));
    made.setBold(font.bold);
    made.setItalic(font.italic);
    made.setUnderline(font.underline);
    made.setHintingPreference(QFont::PreferNoHinting);
    return made;
}

double QtTextMetrics::Width(const QString& text, const SurfaceFont& font) const {
    return QFontMetricsF(FontInTwips(font)).horizontalAdvance(text);
}

double QtTextMetrics::Height(const QString&, const SurfaceFont& font) const {
    return QFontMetricsF(FontInTwips(font)).height();
}

QColor PaperColour(int colour) {
    return colour == PaletteColour::Grey ? QColor(0x80, 0x80, 0x80) : QColor(Qt::black);
}

QColor ScreenColour(int colour, const QPalette& palette) {
    const QColor ground = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const bool dark = ground.lightness() < text.lightness();
    switch (colour) {
    case PaletteColour::Grey:
        return dark ? QColor(0x80, 0x80, 0x80) : QColor(0x9a, 0x9a, 0x9a);
    case PaletteColour::LightBlue:
        return dark ? QColor(0x6c, 0xb6, 0xff) : QColor(0x00, 0x55, 0xd4);
    default:
        return text;
    }
}

void PaintLine(QPainter& painter, const DrawnLine& line, const ColourOf& colourOf) {
    QPen pen(colourOf(line.pen.colour), line.pen.width * twipsPerPixel);
    pen.setStyle(line.pen.style == DrawStyle::Dotted ? Qt::DotLine : Qt::SolidLine);
    painter.setPen(pen);
    // Upright and level lines are sharpest on whole pixels, slanted ones when smoothed.
    const bool slanted = line.x1 != line.x2 && line.y1 != line.y2;
    painter.setRenderHint(QPainter::Antialiasing, slanted);
    painter.drawLine(QPointF(line.x1, line.y1), QPointF(line.x2, line.y2));
}

void PaintText(QPainter& painter, const DrawnText& text, const ColourOf& colourOf) {
    const QFont font = FontInTwips(text.font);
    painter.setFont(font);
    painter.setPen(colourOf(text.colour));
    painter.drawText(QPointF(text.x, text.y + QFontMetricsF(font).ascent()), text.text);
}

void PaintDrawing(QPainter& painter, const Drawing& drawing, const ColourOf& colourOf) {
    for (const DrawnLine& line : drawing.lines)
        PaintLine(painter, line, colourOf);
    for (const DrawnText& text : drawing.texts)
        PaintText(painter, text, colourOf);
}
