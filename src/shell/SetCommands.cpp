#include "shell/SetCommands.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "programset/DeleteProgramSet.h"
#include "programset/ProgramSet.h"
#include "programset/RenameProgramSet.h"
#include "session/Globals.h"
#include "shell/ModalViews.h"
#include "shell/ProgramBrowser.h"
#include "shell/ProgramCommands.h"
#include "shell/RecentMenu.h"

namespace {
constexpr qint16 newProgram = 0; // mode of frmNewFile
} // namespace

SetCommands::SetCommands(const SetFiles& context, ProgramCommands& programs, RecentMenu& recent,
                         const ModalViews& views)
    : context_(context), programs_(programs), recent_(recent), views_(views) {}

void SetCommands::mnuFileNew_Click() {
    gNewFileAccepted = false;
    views_.frmNewFile(newProgram);
    if (!gNewFileAccepted)
        return;
    recent_.UpdateRecentFile();
    context_.browser.dirDirList_Change();
    context_.browser.RefreshFileList(gHdnFile);
}

void SetCommands::DeleteProgram(bool BypassOpen) {
    const QString remembered = gHdnFile;
    bool ok = false;
    programs_.OpenProgramDialog(BypassOpen, true, ok);
    if (!ok)
        return;
    const int position = context_.browser.ListIndex();
    try {
        if (!DeleteChosenSet()) {
            gHdnFile = remembered;
            return;
        }
    } catch (const RunTimeError& error) {
        ShowErrorBox(context_.dialogs, error, deleteErrorTitle, MsgStyle::Critical);
    }
    SelectNextSet(position);
}

bool SetCommands::DeleteChosenSet() {
    const QString whole = context_.files.GetAbsolutePathName(gHdnFile);
    gCurrentFolder = context_.files.GetParentFolderName(whole);
    gCurrentFiles = context_.files.Files(gCurrentFolder);
    return DeleteProgramSet(gHdnFile, context_.dialogs, context_.operations);
}

// An error may have taken some of the files all the same, so the list is read again then too.
void SetCommands::SelectNextSet(int remembered) {
    context_.browser.dirDirList_Change();
    const int position = PositionAfterDelete(remembered, context_.browser.ListCount());
    if (position >= 0)
        context_.browser.SetListIndex(position);
    gHdnFile = context_.browser.SelectedProgramPath();
}

void SetCommands::RenameProgram(bool BypassOpen) {
    bool ok = false;
    programs_.OpenProgramDialog(BypassOpen, true, ok);
    if (!ok)
        return;
    try {
        RenameChosenSet();
    } catch (const RunTimeError& error) {
        ShowErrorBox(context_.dialogs, error, renameErrorTitle, MsgStyle::Critical);
        context_.browser.dirDirList_Change();
        context_.browser.RefreshFileList(gHdnFile);
    }
}

void SetCommands::RenameChosenSet() {
    const std::optional<QString> renamed =
        RenameProgramSet(gHdnFile, context_.dialogs, context_.operations);
    if (!renamed)
        return;
    gHdnFile = *renamed;
    context_.browser.dirDirList_Change();
    context_.browser.RefreshFileList(gHdnFile);
}
