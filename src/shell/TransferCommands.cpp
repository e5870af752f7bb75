#include "shell/TransferCommands.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "link/TargetBoards.h"
#include "programset/ProgramBoardIndex.h"
#include "session/CommMode.h"
#include "session/Globals.h"
#include "shell/BackgroundTimer.h"
#include "shell/ModalViews.h"
#include "shell/ProgramBrowser.h"
#include "shell/ProgramCommands.h"

namespace {
constexpr qint16 uploadMode = 1; // of frmNewFile and of frmDownloadProg

QString DataMessage(qint16 action, const QString& board) {
    const QString text =
        action == XferMode::Download
            ? QStringLiteral("You are about to download data to the %1.      \r\n\r\n"
                             "File data will be written to memory.\r\n\r\n"
                             "Do you wish to continue?")
            : QStringLiteral("You are about to upload data from the %1.      \r\n\r\n"
                             "File data will be saved from memory.\r\n\r\n"
                             "Do you wish to continue?");
    return text.arg(board);
}
} // namespace

TransferCommands::TransferCommands(const TransferContext& context) : context_(context) {}

// "what" stands before the name of the set in the title.
bool TransferCommands::Confirmed(const QString& what, const QString& message) {
    const QString title = QStringLiteral("%1 [%2]").arg(what, context_.files.GetBaseName(gHdnFile));
    return context_.dialogs.MsgBox(message, MsgStyle::YesNoCancelInformation, title) ==
           MsgAnswer::Yes;
}

QString TransferCommands::BoardName() const {
    return TargetboardName(ProgramBoardIndex(gHdnFile));
}

void TransferCommands::RefreshBrowser() {
    context_.browser.dirDirList_Change();
    context_.browser.RefreshFileList(gHdnFile);
    context_.mode.RefreshCommMode();
    gHdnFile = context_.browser.SelectedProgramPath();
}

void TransferCommands::mnuFileUploadProgram_Click() {
    try {
        context_.views.frmNewFile(uploadMode);
        if (context_.link.InUploadMode())
            UploadNamedProgram();
    } catch (const RunTimeError& error) {
        ShowErrorBox(context_.dialogs, error, QStringLiteral("Upload Program"), MsgStyle::Critical);
    }
    context_.link.SetInUploadMode(false);
}

void TransferCommands::UploadNamedProgram() {
    if (!IsPLSBoard(ProgramBoardIndex(gHdnFile)))
        UploadFromPLC();
    else if (context_.views.pls)
        mnuFileListPopupUploadFromPLS_Click();
    else
        RefreshBrowser();
}

void TransferCommands::UploadFromPLC() {
    const QString message = QStringLiteral("You are about to upload the PLC Program           \r\n"
                                           "from the %1.\r\n\r\nDo you wish to continue?")
                                .arg(BoardName());
    if (Confirmed(QStringLiteral("Program Upload"), message)) {
        context_.mode.GoOnline();
        context_.link.UploadFile(gHdnFile);
        context_.views.frmDownloadProg(uploadMode);
    }
    RefreshBrowser();
}

void TransferCommands::StartDataTransfer(qint16 Action, bool BypassOpen) {
    try {
        bool ok = false;
        context_.programs.OpenProgramDialog(BypassOpen, false, ok);
        if (ok)
            TransferChosenData(Action);
    } catch (const RunTimeError& error) {
        ShowErrorBox(context_.dialogs, error, QStringLiteral("TransferData"), MsgStyle::Critical);
    }
    context_.programs.RefreshAfterTransfer();
}

void TransferCommands::TransferChosenData(qint16 Action) {
    const qint16 board = ProgramBoardIndex(gHdnFile);
    context_.timer.SetEnabled(false);
    if (IsPLSBoard(board)) {
        if (context_.views.pls)
            mnuFileListPopupUploadFromPLS_Click();
        return;
    }
    const QString what = Action == XferMode::Download ? QStringLiteral("Data Download")
                                                      : QStringLiteral("Data Upload");
    if (!Confirmed(what, DataMessage(Action, TargetboardName(board))))
        return;
    context_.mode.GoOnline();
    if (context_.link.CommError())
        return;
    gXferMode = Action;
    gXferBoard = board;
    gXferFile = ChangeExtension(gHdnFile, QStringLiteral("ldt"));
    context_.views.frmDataXfr();
}
