#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

class BackgroundUpdate;
class Dialogs;

/// tmrBackgroungUpdate: drives the background update twice a second while it is enabled. It is off
/// until the window is up and while a transfer runs. An error that a tick raises is shown in a box
/// titled "Quentor", once until a tick succeeds or fails otherwise.
class BackgroundTimer : public QObject {
    Q_OBJECT
public:
    /// All must outlive the object.
    BackgroundTimer(BackgroundUpdate& update, Dialogs& dialogs, QObject* parent);

    /// Starts the ticks, the first one half a second from now, or stops them.
    void SetEnabled(bool enabled);
    bool Enabled() const { return timer_->isActive(); }
    /// The timer itself, for the job runner, which stops it for the time of a job.
    QTimer& Timer() { return *timer_; }

private:
    void Tick();

    BackgroundUpdate& update_;
    Dialogs& dialogs_;
    QTimer* timer_;
    QString reported_; // description of the error that was shown last
    bool reporting_ = false;
};
