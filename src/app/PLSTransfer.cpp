#include "app/PLSTransfer.h"

#include "app/Application.h"
#include "jobs/JobRunner.h"
#include "pls/ReadPLSFileData.h"
#include "session/Globals.h"

PLSTransfer::PLSTransfer(const Platform& platform, RSComm& link, WaitJobs& jobs, JobRunner& runner,
                         frmMDIMain& window)
    : plsJobs_(link, platform.dialogs) {
    plsJobs_.SetTimingBoard(
        [this] { return timing_.board ? timing_.board() : std::optional<qint16>(); });
    plsJobs_.Register(jobs);
    window.Views().pls = Route(platform.dialogs, runner);
}

PLSRoute PLSTransfer::Route(Dialogs& dialogs, JobRunner& runner) {
    PLSRoute route;
    route.RunWaitJob = [&runner](qint16 JobCode) { runner.RunWaitJob(JobCode); };
    route.ReadPLSFileData = [&dialogs](const QString& hdnFile) {
        return ReadPLSFileData(hdnFile, dialogs);
    };
    route.timingVisible = [this] { return timing_.visible && timing_.visible(); };
    route.gFirstPassOnline = [this] {
        return timing_.firstPassOnline && timing_.firstPassOnline();
    };
    route.DisplayPLSChannels = [this] {
        if (timing_.displayChannels)
            timing_.displayChannels();
    };
    route.uploadComplete = [this] {
        if (timing_.uploadComplete)
            timing_.uploadComplete();
    };
    route.configurationText = [] { return gPLS.PCFText; };
    route.channelText = [] { return gPLS.CHLText; };
    return route;
}
