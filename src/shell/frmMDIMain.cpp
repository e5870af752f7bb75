#include "shell/frmMDIMain.h"

#include "base/ApplicationFolder.h"
#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/Drives.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include <QCloseEvent>
#include <QDir>

frmMDIMain::frmMDIMain(const ShellContext& context)
    : context_(context), mode_(context_.link, context_.port, *this),
      update_(context_.link, mode_, context_.dialogs, *this) {
    BuildForm();
    programs_ = std::make_unique<ProgramCommands>(context_.link, mode_, context_.dialogs,
                                                  context_.files, *browser_, *timer_, views_);
    recent_ = std::make_unique<RecentMenu>(RecentList::FileIn(context_.folder), *surface_,
                                           context_.files, *browser_, *programs_);
    MakeCommands();
    RegisterCommands();
    ConnectBrowser();
    RefreshCommandState();
}

// Nobody may look at the views any more while their area goes.
frmMDIMain::~frmMDIMain() {
    delete children_;
}

void frmMDIMain::MakeCommands() {
    const SetFiles setFiles{context_.link,           context_.dialogs, context_.files,
                            context_.fileOperations, context_.drives,  *browser_};
    sets_ = std::make_unique<SetCommands>(setFiles, *programs_, *recent_, views_);
    transfers_ = std::make_unique<TransferCommands>(TransferContext{
        context_.link, mode_, context_.dialogs, context_.files, *browser_, *programs_, views_});
    tools_ = std::make_unique<ToolCommands>(ToolContext{context_.link, mode_, context_.dialogs,
                                                        context_.clock, context_.files, *browser_,
                                                        *programs_, *surface_, views_},
                                            [this] { SetResultsFound(true); });
}

void frmMDIMain::Load() {
    TakeViews();
    try {
        StartUp();
    } catch (const RunTimeError& error) {
        ShowErrorBox(context_.dialogs, error, QStringLiteral("App Activate"), MsgStyle::Critical);
    }
}

// The order matters: the recent list names the set that the browser opens on, and no tick may meet
// a window that is not built yet.
void frmMDIMain::StartUp() {
    SizeToScreen();
    QDir::setCurrent(context_.folder.Root());
    TakeGlobals();
    recent_->Load();
    children_->SetBrowser(*browser_);
    browser_->Form_Load();
    RefreshCommandState();
    timer_->SetEnabled(true);
    children_->Show(QStringLiteral("frmStatusTable"));
    if (views_.frmSplash)
        views_.frmSplash();
    DoEvents();
}

void frmMDIMain::TakeGlobals() {
    gCommControl = &context_.port;
    gRSComm = &context_.link;
    gFSO = &context_.files;
    gCurrentFolder = QDir::currentPath();
    gCurrentDrive = context_.drives.RootOf(gCurrentFolder);
}

void frmMDIMain::ReleaseGlobals() {
    gCommControl = nullptr;
    gRSComm = nullptr;
    gFSO = nullptr;
    gCurrentFolder.clear();
    gCurrentDrive.clear();
}

void frmMDIMain::Unload(qint16& Cancel) {
    if (!gMDIQueryUnload || context_.link.OperationRuns())
        Cancel = 1;
    if (Cancel == 0 && !unloaded_ && views_.mayClose && !views_.mayClose())
        Cancel = 1;
    if (Cancel != 0 || unloaded_)
        return;
    unloaded_ = true;
    timer_->SetEnabled(false);
    context_.link.CloseRSComm();
    try {
        recent_->Save();
    } catch (const RunTimeError&) {
        // The list is a convenience: the program ends all the same.
    }
    browser_->hide();
    ReleaseGlobals();
    context_.endProgram();
}

void frmMDIMain::closeEvent(QCloseEvent* event) {
    gMDIQueryUnload = true;
    qint16 cancel = 0;
    Unload(cancel);
    event->setAccepted(cancel == 0);
}

void frmMDIMain::MDIForm_Resize() {
    if (browser_->gFormLoaded)
        children_->ResizeAll();
}

// The clock may have been set while another program was in front.
void frmMDIMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && panels_ && isActiveWindow())
        panels_->ShowDateAndTime();
}

QString frmMDIMain::SelectedProgramPath() const {
    return browser_->SelectedProgramPath();
}

QString frmMDIMain::ActiveChildName() const {
    return children_->ActiveName();
}

bool frmMDIMain::IsViewVisible(const QString& name) const {
    return modalViews_.count(name) > 0 || children_->IsVisible(name);
}

void frmMDIMain::ShowSystemMessage(const QString& text) {
    panels_->SetText(StatusPanels::systemMessage, text);
}

void frmMDIMain::ShowMode(bool online) {
    panels_->ShowMode(online);
    RefreshCommandState();
}

void frmMDIMain::SetModalViewVisible(const QString& name, bool visible) {
    if (visible)
        modalViews_.insert(name);
    else
        modalViews_.erase(name);
}
