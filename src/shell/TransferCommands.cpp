#include "shell/TransferCommands.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "link/TargetBoards.h"
#include "programset/ProgramBoardIndex.h"
#include "session/CommMode.h"
#include "session/Globals.h"
#include "shell/ModalViews.h"
#include "shell/ProgramBrowser.h"
#include "shell/ProgramCommands.h"
#include <QScopeGuard>

namespace {
constexpr qint16 uploadMode = 1; // of frmNewFile and of frmDownloadProg
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
    const auto ended = qScopeGuard([this] { context_.link.SetInUploadMode(false); });
    try {
        context_.views.frmNewFile(uploadMode);
        if (context_.link.InUploadMode())
            UploadNamedProgram();
    } catch (const RunTimeError& error) {
        ShowErrorBox(context_.dialogs, error, QStringLiteral("Upload Program"), MsgStyle::Critical);
        RefreshBrowser(); // the set that was named stands on the disk already
    }
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
