#pragma once

#include <QtGlobal>

/// The one entrance to long work, for commands and views that know nothing of the busy view.
class JobRunner {
public:
    virtual ~JobRunner();
    /// Runs one job and returns when it has ended. Its input stands in globals beforehand, its
    /// result stands in globals, views and the link's CommError afterwards. Must not be called
    /// from within a job: raises InvalidProcedureCall (5) then. What the job itself raises passes
    /// to the caller.
    virtual void RunWaitJob(qint16 JobCode) = 0;
};
