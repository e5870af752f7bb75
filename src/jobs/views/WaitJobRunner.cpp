#include "jobs/views/WaitJobRunner.h"

#include "base/RunTimeError.h"
#include "base/ViewLoop.h"
#include "jobs/views/frmWaitDisplay.h"
#include "session/Globals.h"
#include <QScopedValueRollback>

WaitJobRunner::WaitJobRunner(const WaitJobs& jobs, QTimer& backgroundUpdate, const Clock& clock,
                             QWidget* mainWindow, Alarms& alarms)
    : jobs_(jobs), backgroundUpdate_(backgroundUpdate), clock_(clock), mainWindow_(mainWindow),
      alarms_(alarms) {}

void WaitJobRunner::RunWaitJob(qint16 JobCode) {
    if (runs_)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    const QScopedValueRollback<bool> running(runs_, true);
    const ViewLoopHold hold;
    gWaitJob = JobCode;
    frmWaitDisplay view(JobCode, jobs_, backgroundUpdate_, clock_, alarms_, mainWindow_);
    view.RunJob();
}
