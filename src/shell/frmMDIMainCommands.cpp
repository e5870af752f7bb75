#include "link/RSComm.h"
#include "link/TargetBoards.h"
#include "programset/ProgramBoardIndex.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include "shell/frmMDIMain.h"
#include <QMenu>

// The handlers that the main window keeps itself, and the state of all entries.

namespace {
constexpr qint16 openForEditing = 0;
} // namespace

void frmMDIMain::mnuFileExit_Click() {
    gMDIQueryUnload = true;
    qint16 cancel = 0;
    Unload(cancel);
}

void frmMDIMain::mnuFileListPopupOpen_Click() {
    surface_->Run(QStringLiteral("mnuFileListPopupOpen"));
}

// The key means the set that is marked in the list, as the popup does: a command may have left
// another one in gHdnFile since.
void frmMDIMain::mnuFileListPopupDelete_Click() {
    gHdnFile = SelectedProgramPath();
    surface_->Run(QStringLiteral("mnuFileListPopupDelete"));
}

void frmMDIMain::filFileList_DblClick() {
    gHdnFile = SelectedProgramPath();
    programs_->SpawnRequest(openForEditing, true);
}

void frmMDIMain::Toolbar1_ButtonClick(const ToolbarEntry& button) {
    if (button.takesSelection)
        gHdnFile = SelectedProgramPath();
    const bool plsBoard = button.takesSelection && IsPLSBoard(ProgramBoardIndex(gHdnFile));
    const QString command = ToolbarCommand(button, plsBoard);
    const bool uploadsPLS = plsBoard && QString::fromLatin1(button.key) == QStringLiteral("Upload");
    if (uploadsPLS && surface_->Handled().contains(command))
        context_.link.SetInUploadMode(true);
    surface_->Run(command);
}

void frmMDIMain::sbrMain_PanelDblClick(int panel) {
    if (panel == StatusPanels::mode)
        mode_.Toggle();
}

void frmMDIMain::PopUpFileList(const QPoint& position) {
    gHdnFile = SelectedProgramPath();
    RefreshCommandState();
    surface_->Menu(QStringLiteral("mnuFileListPopup"))->popup(position);
}

void frmMDIMain::SetResultsFound(bool found) {
    resultsFound_ = found;
    RefreshCommandState();
}

void frmMDIMain::SetTableCanFind(bool can) {
    tableCanFind_ = can;
    RefreshCommandState();
}

ShellSituation frmMDIMain::Situation() const {
    ShellSituation situation;
    situation.activeView = children_->ActiveName();
    situation.online = context_.link.OnlineMode();
    situation.setSelected = browser_->HasSelection();
    situation.plsBoard = IsPLSBoard(context_.link.TargetboardType());
    situation.resultsFound = resultsFound_;
    situation.tableCanFind = tableCanFind_;
    situation.handled = surface_->Handled();
    if (recent_) {
        situation.recentListShown = recent_->List().SeparatorShown();
        for (int i = 0; i < recentCount; ++i)
            situation.recentShown[static_cast<std::size_t>(i)] = recent_->List().Shown(i);
    }
    return situation;
}

void frmMDIMain::RefreshCommandState() {
    surface_->Apply(CommandState(Situation()));
}
