#include "pls/views/CycleStripView.h"

#include "pls/CycleStrip.h"
#include <algorithm>
#include <cmath>
#include <QEvent>
#include <QPainter>

namespace {
constexpr int ticks = 4;          // quarters of the cycle
constexpr int tickLength = 4;     // pixels
constexpr int gap = 3;            // pixels between a tick and its number
constexpr int narrowestBar = 18;  // pixels
constexpr int shortestStrip = 90; // pixels
constexpr int leastSpan = 2;      // pixels: a span of one division can be seen

const QColor markerColour(0xd9, 0x48, 0x2b); // readable on light and on dark
} // namespace

CycleStripView::CycleStripView(QWidget* parent) : QWidget(parent), gatherTimer_(this) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setAccessibleName(tr("Machine cycle"));
    gatherTimer_.setSingleShot(true);
    connect(&gatherTimer_, &QTimer::timeout, this, &CycleStripView::PaintNow);
    clock_.start();
}

void CycleStripView::Show(const ShownCycle& cycle) {
    if (cycle == cycle_)
        return;
    cycle_ = cycle;
    Gather();
}

void CycleStripView::Gather() {
    if (gatherTimer_.isActive())
        return;
    const qint64 wait = lastPaint_ + repaintInterval - clock_.elapsed();
    if (wait <= 0)
        PaintNow();
    else
        gatherTimer_.start(static_cast<int>(wait));
}

void CycleStripView::PaintNow() {
    lastPaint_ = clock_.elapsed();
    update();
}

QString CycleStripView::InWords() const {
    return CycleInWords(cycle_.scaleFactor, cycle_.channelName, cycle_.setpoints, cycle_.position);
}

QSize CycleStripView::minimumSizeHint() const {
    const int number = fontMetrics().horizontalAdvance(QStringLiteral("4095"));
    return {narrowestBar + tickLength + gap + number + 2, shortestStrip};
}

QSize CycleStripView::sizeHint() const {
    return minimumSizeHint() + QSize(6, shortestStrip);
}

void CycleStripView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::PaletteChange)
        update();
}

// Below the channel's name, with half a number's height free at both ends.
QRect CycleStripView::Bar() const {
    const int line = fontMetrics().height();
    const int numbers =
        tickLength + gap + fontMetrics().horizontalAdvance(QStringLiteral("4095")) + 1;
    return rect().adjusted(0, line + line / 2 + 2, -numbers, -line / 2 - 2);
}

int CycleStripView::Y(double along) const {
    return Bar().top() + static_cast<int>(std::lround(along));
}

void CycleStripView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect bar = Bar();
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(0, 0, width(), fontMetrics().height()), Qt::AlignLeft | Qt::AlignTop,
                     cycle_.channelName);
    painter.fillRect(bar, palette().color(QPalette::Base));
    PaintSpans(painter);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(bar.adjusted(0, 0, -1, -1));
    PaintScale(painter);
    PaintMarker(painter);
}

void CycleStripView::PaintSpans(QPainter& painter) const {
    const QRect bar = Bar();
    const CycleStrip strip =
        LayOutCycle(cycle_.scaleFactor, cycle_.setpoints, std::nullopt, bar.height());
    const QColor colour = palette().color(isEnabled() ? QPalette::Highlight : QPalette::Text);
    for (const StripSpan& span : strip.spans) {
        const int top = Y(span.left);
        const int height = std::max(leastSpan, Y(span.right) - top);
        painter.fillRect(QRect(bar.left() + 2, top, bar.width() - 4, height) & bar, colour);
    }
}

void CycleStripView::PaintScale(QPainter& painter) const {
    if (cycle_.scaleFactor < 2)
        return;
    const QRect bar = Bar();
    const int line = fontMetrics().height();
    painter.setPen(palette().color(QPalette::WindowText));
    for (int i = 0; i <= ticks; ++i) {
        const int y = std::min(Y(double(bar.height()) * i / ticks), bar.bottom());
        painter.drawLine(bar.right() + 1, y, bar.right() + tickLength, y);
        const int division = i < ticks ? cycle_.scaleFactor * i / ticks : 0; // the cycle closes
        painter.drawText(QRect(bar.right() + tickLength + gap, y - line / 2, width(), line),
                         Qt::AlignLeft | Qt::AlignVCenter, QString::number(division));
    }
}

void CycleStripView::PaintMarker(QPainter& painter) const {
    const QRect bar = Bar();
    const CycleStrip strip =
        LayOutCycle(cycle_.scaleFactor, SetpointList(), cycle_.position, bar.height());
    if (!strip.marker || !isEnabled())
        return;
    const int y = Y(*strip.marker);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(markerColour, 2));
    painter.drawLine(bar.left(), y, bar.right(), y);
    painter.setPen(Qt::NoPen);
    painter.setBrush(markerColour);
    painter.drawPolygon(QPolygon(
        {QPoint(bar.left(), y - 5), QPoint(bar.left() + 8, y), QPoint(bar.left(), y + 5)}));
}
