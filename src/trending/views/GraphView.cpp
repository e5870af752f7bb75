#include "trending/views/GraphView.h"

#include "trending/modGraph.h"
#include <algorithm>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {
constexpr double twipsPerPixel = 15.0; // at 96 dots per inch
constexpr int samplesOfPage = 10;      // what a page key moves the crosshair by
constexpr int focusFrame = 2;          // pixels

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
    setFocusPolicy(Qt::StrongFocus);
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

QString GraphView::InWords() const {
    if (samples_.empty())
        return QStringLiteral("No samples");
    const auto [least, most] = std::minmax_element(samples_.begin(), samples_.end());
    const QString all =
        QStringLiteral("%1 samples from %2 to %3").arg(samples_.size()).arg(*least).arg(*most);
    return pointed_ ? all + QStringLiteral("; ") + CrosshairText() : all;
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
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), focusFrame));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void GraphView::resizeEvent(QResizeEvent*) {
    picture_.Resize(width() * twipsPerPixel, height() * twipsPerPixel);
}

void GraphView::mouseMoveEvent(QMouseEvent* event) {
    const auto sample = graph_.SampleAt(event->position().x() * twipsPerPixel);
    const bool drawn = sample && *sample < static_cast<int>(samples_.size());
    Point(drawn ? sample : std::nullopt);
}

// Whoever works from the keyboard keeps the crosshair wherever the mouse lies.
void GraphView::leaveEvent(QEvent*) {
    if (!hasFocus())
        Point(std::nullopt);
}

void GraphView::Point(std::optional<int> sample) {
    if (sample == pointed_)
        return;
    pointed_ = sample;
    update();
    SayChanged(*this);
}

std::optional<int> GraphView::PointedAfter(int key) const {
    const int last = static_cast<int>(samples_.size()) - 1;
    const auto moved = [&](int by) { return std::clamp(pointed_.value_or(0) + by, 0, last); };
    switch (key) {
    case Qt::Key_Left:
        return moved(-1);
    case Qt::Key_Right:
        return moved(pointed_ ? 1 : 0);
    case Qt::Key_PageUp:
        return moved(-samplesOfPage);
    case Qt::Key_PageDown:
        return moved(samplesOfPage);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return std::nullopt;
    }
}

// A single sample draws no line to point at.
void GraphView::keyPressEvent(QKeyEvent* event) {
    const std::optional<int> pointed = PointedAfter(event->key());
    if (event->key() == Qt::Key_Escape && pointed_)
        Point(std::nullopt);
    else if (pointed && samples_.size() > 1)
        Point(pointed);
    else
        QWidget::keyPressEvent(event);
}

void GraphView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void GraphView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}
