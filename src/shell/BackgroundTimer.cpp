#include "shell/BackgroundTimer.h"

#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "session/BackgroundUpdate.h"
#include <QScopedValueRollback>

BackgroundTimer::BackgroundTimer(BackgroundUpdate& update, Dialogs& dialogs, QObject* parent)
    : QObject(parent), update_(update), dialogs_(dialogs), timer_(new QTimer(this)) {
    timer_->setObjectName(QStringLiteral("tmrBackgroungUpdate"));
    timer_->setInterval(BackgroundUpdate::interval);
    connect(timer_, &QTimer::timeout, this, &BackgroundTimer::Tick);
}

void BackgroundTimer::SetEnabled(bool enabled) {
    if (enabled)
        timer_->start();
    else
        timer_->stop();
}

// An error is shown once, not twice a second, until a tick succeeds or fails otherwise.
void BackgroundTimer::Tick() {
    if (reporting_)
        return;
    try {
        update_.Tick();
        reported_.clear();
    } catch (const RunTimeError& error) {
        if (reported_ == error.Description())
            return;
        reported_ = error.Description();
        const QScopedValueRollback<bool> reporting(reporting_, true);
        ShowErrorBox(dialogs_, error, QStringLiteral("Quentor"), MsgStyle::Critical);
    }
}
