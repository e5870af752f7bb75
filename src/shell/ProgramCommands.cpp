#include "shell/ProgramCommands.h"

#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "programset/ProgramBoardIndex.h"
#include "session/CommMode.h"
#include "session/Globals.h"
#include "shell/BackgroundTimer.h"
#include "shell/ModalViews.h"
#include "shell/ProgramBrowser.h"
#include "shell/ProgramFileDialog.h"
#include <QDir>

namespace {
constexpr qint16 dumpMode = 0;
} // namespace

ProgramCommands::ProgramCommands(RSComm& link, CommMode& mode, Dialogs& dialogs,
                                 const FileSystem& files, ProgramBrowser& browser,
                                 BackgroundTimer& timer, const ModalViews& views)
    : link_(link), mode_(mode), dialogs_(dialogs), files_(files), browser_(browser), timer_(timer),
      views_(views) {}

void ProgramCommands::OpenProgramDialog(bool BypassOpen, bool BypassInputBox, bool& ok) {
    try {
        QString file = gHdnFile;
        if (!BypassOpen) {
            file = AskProgram();
            if (BypassInputBox) {
                gHdnFile = file;
                ok = true;
                return;
            }
        }
        link_.SetTargetboardType(ProgramBoardIndex(file));
        gHdnFile = file;
        ok = true;
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("Open File"), MsgStyle::Critical);
    }
}

QString ProgramCommands::AskProgram() {
    const FileDialogRequest request =
        ProgramFileDialog(files_, browser_.SelectedProgramPath(), browser_.Folder());
    QDir::setCurrent(request.initDir);
    const QString file = dialogs_.ShowOpen(request);
    DoEvents();
    return file;
}

void ProgramCommands::DownloadProgram(bool BypassOpen) {
    try {
        bool ok = false;
        OpenProgramDialog(BypassOpen, false, ok);
        if (ok)
            DumpIfValid();
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("Download File"), MsgStyle::Critical);
    }
    RefreshAfterTransfer();
}

void ProgramCommands::DumpIfValid() {
    link_.DownloadFile(gHdnFile);
    if (!link_.ValidProgram() || link_.CommError())
        return;
    timer_.SetEnabled(false);
    views_.frmDownloadProg(dumpMode);
}

void ProgramCommands::RefreshAfterTransfer() {
    browser_.dirDirList_Change();
    browser_.RefreshFileList(gHdnFile);
    gHdnFile = browser_.SelectedProgramPath();
    mode_.RefreshCommMode();
    timer_.SetEnabled(true);
}

void ProgramCommands::SpawnRequest(qint16, bool, bool, bool&) {}

void ProgramCommands::SpawnRequest(qint16 Action, bool BypassOpen) {
    bool canceled = false;
    SpawnRequest(Action, BypassOpen, false, canceled);
}
