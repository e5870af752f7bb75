#pragma once

class ApplicationFolder;
class frmMDIMain;
class RSComm;
class ViewLoopRunner;
struct Platform;

/// The modal view of one board, joined to the main window's commands.
class TargetBoardViews {
public:
    /// All must outlive the object.
    TargetBoardViews(const Platform& platform, RSComm& link, ViewLoopRunner& loops,
                     frmMDIMain& window);

private:
    /// Selects the set unless `BypassOpen` and shows its board until the user closes the view.
    void ShowTargetBoard(bool BypassOpen);
    void ShowView();

    const Platform& platform_;
    RSComm& link_;
    ViewLoopRunner& loops_;
    frmMDIMain& window_;
};
