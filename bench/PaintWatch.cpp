#include "bench/PaintWatch.h"

#include "base/Clock.h"
#include <QPaintEvent>
#include <QTimer>
#include <stdexcept>
#include <utility>

namespace bench {

namespace {
constexpr int longestWaitMs = 10000;
} // namespace

PaintWatch::PaintWatch(QWidget& widget, Painted painted)
    : widget_(widget), painted_(std::move(painted)) {
    widget_.installEventFilter(this);
    widget_.window()->installEventFilter(this);
}

// The window's update paints all widgets and hands the picture over: it is let through from here,
// so that its end is seen.
bool PaintWatch::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &widget_ && event->type() == QEvent::Paint)
        region_ += static_cast<QPaintEvent*>(event)->region();
    if (watched != widget_.window() || event->type() != QEvent::UpdateRequest || updating_)
        return false;
    updating_ = true;
    region_ = QRegion();
    watched->event(event);
    updating_ = false;
    if (!region_.isEmpty())
        painted_(region_);
    return true;
}

double SecondsUntilShown(QWidget& widget, const std::function<void()>& action,
                         const std::function<bool()>& shown) {
    const SystemClock clock;
    QEventLoop events;
    double end = 0;
    const PaintWatch watch(widget, [&](const QRegion&) {
        if (end != 0 || !shown())
            return;
        end = clock.MonotonicSeconds();
        events.quit();
    });
    QTimer::singleShot(longestWaitMs, &events, &QEventLoop::quit);
    const double start = clock.MonotonicSeconds();
    action();
    if (end == 0)
        events.exec();
    if (end == 0)
        throw std::runtime_error("nothing is painted");
    return end - start;
}

} // namespace bench
