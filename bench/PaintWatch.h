#pragma once

#include <functional>
#include <QEventLoop>
#include <QRegion>
#include <QWidget>

namespace bench {

/// Tells when a widget was painted and handed to the screen. The work of the window system behind
/// that is not seen.
class PaintWatch final : public QObject {
public:
    /// Called after each update of the window in which the widget was painted, with the part of it
    /// that was.
    using Painted = std::function<void(const QRegion&)>;

    PaintWatch(QWidget& widget, Painted painted);
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& widget_;
    Painted painted_;
    QRegion region_;
    bool updating_ = false;
};

/// Runs `action` and then the event loop until the widget was painted while `shown` is true of it.
/// Gives the seconds that took; raises std::runtime_error when it does not happen.
double SecondsUntilShown(QWidget& widget, const std::function<void()>& action,
                         const std::function<bool()>& shown);

} // namespace bench
