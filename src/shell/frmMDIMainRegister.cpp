#include "shell/frmMain.h"
#include "shell/frmMDIMain.h"

// Which entry runs which command. An entry whose view is not there gets no handler, and is
// disabled by that.

namespace {
constexpr qint16 asLastShown = 2; // mode of frmViewResults
constexpr qint16 openForEditing = 0;
constexpr qint16 configureSystem = 2;
constexpr qint16 compile = 3;
constexpr qint16 print = 4;
} // namespace

void frmMDIMain::Handle(const char* name, CommandSurface::Handler handler) {
    surface_->Handle(QString::fromLatin1(name), std::move(handler));
}

void frmMDIMain::RegisterCommands() {
    surface_->SetButtonHandler(
        [this](const ToolbarEntry& button) { Toolbar1_ButtonClick(button); });
    Handle("mnuFileExit", [this] { mnuFileExit_Click(); });
    Handle("mnuViewOnline", [this] { mode_.GoOnline(); });
    Handle("mnuViewOffline", [this] { mode_.GoOffline(); });
    Handle("mnuFileDownloadProgram", [this] { programs_->DownloadProgram(false); });
    Handle("mnuFileListPopupDownloadProg", [this] { programs_->DownloadProgram(true); });
    Handle("mnuFileDelete", [this] { sets_->DeleteProgram(false); });
    Handle("mnuFileListPopupDelete", [this] { sets_->DeleteProgram(true); });
    Handle("mnuFileRename", [this] { sets_->RenameProgram(false); });
    Handle("mnuFileListPopupRename", [this] { sets_->RenameProgram(true); });
    RegisterTools();
}

// The commands of the suite's other tools: most of their entries are hidden.
void frmMDIMain::RegisterTools() {
    const auto spawn = [this](qint16 action) {
        return [this, action] { programs_->SpawnRequest(action, true); };
    };
    Handle("mnuFileOpen", [this] { tools_->mnuFileOpen_Click(); });
    Handle("mnuFileCompile", [this] { tools_->mnuFileCompile_Click(); });
    Handle("mnuFilePrintProgram", [this] { tools_->mnuFilePrintProgram_Click(); });
    Handle("mnuEditSysConfig", [this] { tools_->mnuEditSysConfig_Click(); });
    Handle("mnuEditVarDoc", [this] { tools_->mnuEditVarDoc_Click(); });
    Handle("mnuToolsSearch", [this] { tools_->GlobalSearch(false, false); });
    Handle("mnuToolsOnlineMon", [this] { tools_->MonitorProgram(false); });
    Handle("mnuFileListPopupOpen", spawn(openForEditing));
    Handle("mnuFileListPopupCompile", spawn(compile));
    Handle("mnuFileListPopupPrint", spawn(print));
    Handle("mnuFileListPopupSearch", [this] { tools_->GlobalSearch(true, false); });
    Handle("Open", [this] { tools_->OpenButton(); });
    Handle("Print", [this] { tools_->PrintButton(); });
    Handle("Search", [this] { tools_->GlobalSearch(true, false); });
    Handle("Monitor", [this] { tools_->MonitorProgram(true); });
    browser_->HandleNode(NodeAction::OpenSource,
                         [this](const QString&) { programs_->SpawnRequest(openForEditing, true); });
    browser_->HandleNode(NodeAction::OpenConfiguration, [this](const QString&) {
        programs_->SpawnRequest(configureSystem, true);
    });
}

void frmMDIMain::TakeViews() {
    if (views_.frmNewFile) {
        Handle("mnuFileNew", [this] { sets_->mnuFileNew_Click(); });
        Handle("mnuFileUploadProgram", [this] { transfers_->mnuFileUploadProgram_Click(); });
    }
    if (views_.frmCopyFile) {
        Handle("mnuFileSaveAs", [this] { views_.frmCopyFile(); });
        Handle("mnuFileListPopupSaveAs", [this] { views_.frmCopyFile(); });
    }
    if (views_.frmSetupComm)
        Handle("mnuEditCommPort", [this] { views_.frmSetupComm(); });
    if (views_.frmTargetBoard) {
        Handle("mnuViewTargetBoardStatus", [this] { tools_->ShowTargetBoard(false); });
        Handle("PLC", [this] { tools_->ShowTargetBoard(true); });
    }
    if (views_.frmAbout)
        Handle("mnuHelpAbout", [this] { views_.frmAbout(); });
    if (views_.helpTopics)
        Handle("mnuHelpTopics", [this] { views_.helpTopics(); });
    TakePLSRoute();
    TakeResultsView();
}

void frmMDIMain::TakePLSRoute() {
    if (!views_.pls)
        return;
    Handle("mnuFileDownloadToPLS", [this] { transfers_->mnuFileDownloadToPLS_Click(); });
    Handle("mnuFileUploadFromPLS", [this] { transfers_->mnuFileUploadFromPLS_Click(); });
    Handle("mnuFileListPopupDownloadToPLS",
           [this] { transfers_->mnuFileListPopupDownloadToPLS_Click(); });
    Handle("mnuFileListPopupUploadFromPLS",
           [this] { transfers_->mnuFileListPopupUploadFromPLS_Click(); });
}

void frmMDIMain::TakeResultsView() {
    if (!views_.frmViewResults)
        return;
    Handle("mnuViewCompileErrors", [this] { tools_->mnuViewCompileErrors_Click(); });
    Handle("mnuViewSearchResults", [this] { views_.frmViewResults(asLastShown); });
    browser_->HandleNode(NodeAction::ShowErrors,
                         [this](const QString&) { views_.frmViewResults(0); });
}
