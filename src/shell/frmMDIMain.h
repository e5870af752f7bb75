#pragma once

#include "session/BackgroundUpdate.h"
#include "session/CommMode.h"
#include "shell/BackgroundTimer.h"
#include "shell/CommandSurface.h"
#include "shell/MdiChildren.h"
#include "shell/ModalViews.h"
#include "shell/ProgramCommands.h"
#include "shell/RecentMenu.h"
#include "shell/SetCommands.h"
#include "shell/ShellContext.h"
#include "shell/StatusPanels.h"
#include "shell/ToolCommands.h"
#include "shell/TransferCommands.h"
#include <QMainWindow>
#include <set>

class frmMain;
class QMdiArea;

/// The main window: menus, toolbar, status bar and the views inside it. It owns what lives for the
/// whole run: the mode of the link, the background update, the commands and the recent list.
class frmMDIMain : public QMainWindow, public ModeDisplay, public ShellView {
    Q_OBJECT
public:
    /// Builds the window and its commands without showing it. All in `context` must outlive it.
    explicit frmMDIMain(const ShellContext& context);
    ~frmMDIMain() override;

    /// True once a close was asked for; the unload handler refuses to proceed without it.
    bool gMDIQueryUnload = false;

    /// Start-up: shows the window and brings everything up in order. An error stops it where it is
    /// and is shown, titled "App Activate"; the window stays.
    void Load();
    /// Shut-down: closes the link, writes the recent list, ends the program. Not 0 in `Cancel`,
    /// on entry or on return, means that the window stays. It also stays while an operation of the
    /// link is on the stack.
    void Unload(qint16& Cancel);

    QString SelectedProgramPath() const override;
    QString ActiveChildName() const override;
    bool IsViewVisible(const QString& name) const override;
    void ShowSystemMessage(const QString& text) override;
    void ShowMode(bool online) override;

    /// A view outside the main window (frmTargetBoard) has come up or gone.
    void SetModalViewVisible(const QString& name, bool visible);
    /// Whether a search has left results: shows mnuViewSearchResults, enables the button "View".
    void SetResultsFound(bool found);
    /// Whether the status table can start a search: enables mnuStatusTableItem(2).
    void SetTableCanFind(bool can);

    // What the window is made of, for those that join their views to it. All live as long as it.
    CommandSurface& Commands() { return *surface_; }
    MdiChildren& Children() { return *children_; }
    frmMain& Browser() { return *browser_; }
    CommMode& Mode() { return mode_; }
    BackgroundTimer& Timer() { return *timer_; }
    ProgramCommands& Programs() { return *programs_; }
    RecentMenu& Recent() { return *recent_; }
    TransferCommands& Transfers() { return *transfers_; }
    ToolCommands& Tools() { return *tools_; }
    StatusPanels& Panels() { return *panels_; }
    /// Views that commands open; to be filled in before Load.
    ModalViews& Views() { return views_; }
    /// Gives the entries of the views that are there their commands; Load does it first of all.
    void TakeViews();

    /// Puts the state of all entries right after something they depend on has changed.
    void RefreshCommandState();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // frmMDIMain.cpp
    void MakeCommands();
    void StartUp();
    void TakeGlobals();
    void ReleaseGlobals();

    // frmMDIMainForm.cpp
    void BuildForm();
    void ConnectBrowser();
    void SizeToScreen();

    // frmMDIMainRegister.cpp
    void Handle(const char* name, CommandSurface::Handler handler);
    void RegisterCommands();
    void RegisterTools();
    void TakePLSRoute();
    void TakeResultsView();

    // frmMDIMainCommands.cpp
    void mnuFileExit_Click();
    void mnuFileListPopupOpen_Click();
    void mnuFileListPopupDelete_Click();
    void filFileList_DblClick();
    void Toolbar1_ButtonClick(const ToolbarEntry& button);
    void sbrMain_PanelDblClick(int panel);
    void MDIForm_Resize();
    void PopUpFileList(const QPoint& position);
    ShellSituation Situation() const;

    ShellContext context_;
    CommMode mode_;
    BackgroundUpdate update_;
    ModalViews views_;

    QMdiArea* area_ = nullptr;
    StatusPanels* panels_ = nullptr;
    CommandSurface* surface_ = nullptr;
    MdiChildren* children_ = nullptr;
    frmMain* browser_ = nullptr;
    BackgroundTimer* timer_ = nullptr;
    std::unique_ptr<ProgramCommands> programs_;
    std::unique_ptr<RecentMenu> recent_;
    std::unique_ptr<SetCommands> sets_;
    std::unique_ptr<TransferCommands> transfers_;
    std::unique_ptr<ToolCommands> tools_;

    std::set<QString> modalViews_;
    bool resultsFound_ = false;
    bool tableCanFind_ = false;
    bool unloaded_ = false;
};
