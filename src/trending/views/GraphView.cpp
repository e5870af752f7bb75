#include "trending/views/GraphView.h"

#include "trending/modGraph.h"
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr double twipsPerPixel = 15.0; // at 96 dots per inch

QPalette PaperPalette() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}
} // namespace

GraphView::GraphView(const modGraph& graph, QWidget* parent)
    : QWidget(parent), graph_(graph), picture_(metrics_, 0.0, 0.0) {
    setMouseTracking(true);
    setAccessibleName(QStringLiteral("Trend graph"));
}

void GraphView::Show(const std::vector<qint32>& samples) {
    samples_ = samples;
    if (pointed_ && *pointed_ >= static_cast<int>(samples_.size()))
        pointed_.reset();
    update();
}

void GraphView::PaintPicture(QPainter& painter, const QPalette& colours) const {
    painter.scale(1.0 / twipsPerPixel, 1.0 / twipsPerPixel);
    const auto colourOf = [&](int colour) { return ScreenColour(colour, colours); };
    PaintDrawing(painter, picture_.Ground(), colourOf);
    PaintDrawing(painter, picture_.Top(), colourOf);
}

QImage GraphView::Image() const {
    constexpr int enlarged = 2;
    QImage image(size() * enlarged, QImage::Format_RGB32);
    image.setDevicePixelRatio(enlarged);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintPicture(painter, PaperPalette());
    return image;
}

QString GraphView::CrosshairText() const {
    if (!pointed_)
        return QString();
    return QStringLiteral("Sample %1: %2").arg(*pointed_).arg(samples_[*pointed_]);
}

void GraphView::PaintCrosshair(QPainter& painter) const {
    const double x = graph_.XOf(*pointed_);
    const double top = graph_.OriginY() - graph_.PlotHeight();
    const int black = PaletteColour::Black;
    const auto colourOf = [this](int colour) { return ScreenColour(colour, palette()); };
    const double y = graph_.YOf(samples_[static_cast<std::size_t>(*pointed_)]);
    const double right = graph_.OriginX() + graph_.PlotWidth();
    const SurfacePen hair{black, 1, DrawStyle::Dotted};
    PaintLine(painter, {x, double(graph_.OriginY()), x, top, hair}, colourOf);
    PaintLine(painter, {double(graph_.OriginX()), y, right, y, hair}, colourOf);
    const SurfaceFont font{picture_.Font().name, picture_.Font().size, true, false, false};
    const QString text = CrosshairText();
    const double textWidth = metrics_.Width(text, font);
    const double textX = x + textWidth > width() * twipsPerPixel ? x - textWidth : x;
    const double textY = top - metrics_.Height(text, font);
    PaintText(painter, {textX, textY, text, font, black}, colourOf);
}

void GraphView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    PaintPicture(painter, palette());
    if (pointed_)
        PaintCrosshair(painter);
}

void GraphView::resizeEvent(QResizeEvent*) {
    picture_.Resize(width() * twipsPerPixel, height() * twipsPerPixel);
}

void GraphView::mouseMoveEvent(QMouseEvent* event) {
    const auto sample = graph_.SampleAt(event->position().x() * twipsPerPixel);
    const bool drawn = sample && *sample < static_cast<int>(samples_.size());
    pointed_ = drawn ? sample : std::nullopt;
    update();
}

void GraphView::leaveEvent(QEvent*) {
    pointed_.reset();
    update();
}
