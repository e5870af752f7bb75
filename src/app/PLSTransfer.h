#pragma once

#include "pls/PLSJobs.h"
#include "shell/ModalViews.h"

class frmMDIMain;
class JobRunner;
class WaitJobs;
struct Platform;

/// What the transfers of limit switch boards ask of the timing view, and tell it. A function that
/// is empty stands for a view that is not there.
struct TimingView {
    std::function<bool()> visible;
    std::function<bool()> firstPassOnline;        ///< gFirstPassOnline
    std::function<void()> displayChannels;        ///< DisplayPLSChannels
    std::function<void()> uploadComplete;         ///< sets gPLSUploadComplete
    std::function<std::optional<qint16>()> board; ///< index of its own board selection
};

/// The jobs of limit switch boards, made and joined to the main window's commands.
class PLSTransfer {
public:
    /// All must outlive the object, and no job may run after it.
    PLSTransfer(const Platform& platform, RSComm& link, WaitJobs& jobs, JobRunner& runner,
                frmMDIMain& window);

    /// The timing view from now on.
    void JoinTimingView(const TimingView& timing) { timing_ = timing; }

private:
    PLSRoute Route(Dialogs& dialogs, JobRunner& runner);

    PLSJobs plsJobs_;
    TimingView timing_;
};
