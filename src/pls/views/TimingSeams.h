#pragma once

#include <functional>
#include <QString>

class CommMode;
class Dialogs;
class JobRunner;
class RSComm;
class ViewLoopRunner;

/// What the timing view works with; all of it must outlive the view.
struct TimingSeams {
    RSComm& link;
    CommMode& mode;
    Dialogs& dialogs;
    ViewLoopRunner& loops;
    JobRunner& jobs;
    std::function<QString()> SelectedProgramPath; ///< .hdn file selected in the browser, or empty
};
