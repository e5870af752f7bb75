#pragma once

#include "base/Alarms.h"
#include "jobs/JobRunner.h"

class Clock;
class QTimer;
class QWidget;
class WaitJobs;

/// Runs jobs under the busy view. View loops are held and the background update stands still for
/// the time of a job, so that its traffic has the line to itself.
class WaitJobRunner final : public JobRunner {
public:
    /// `backgroundUpdate` is the timer of the background update; the busy view stands over
    /// `mainWindow` and is repainted by `alarms`. All must outlive the object.
    WaitJobRunner(const WaitJobs& jobs, QTimer& backgroundUpdate, const Clock& clock,
                  QWidget* mainWindow, Alarms& alarms = Alarms::System());

    void RunWaitJob(qint16 JobCode) override;

private:
    const WaitJobs& jobs_;
    QTimer& backgroundUpdate_;
    const Clock& clock_;
    QWidget* mainWindow_;
    Alarms& alarms_;
    bool runs_ = false;
};
