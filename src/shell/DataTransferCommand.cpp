#include "shell/DataTransferCommand.h"

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
#include "shell/ProgramCommands.h"
#include <utility>

TransferQuestion DataTransferQuestion(qint16 Action, const QString& setPath, qint16 board) {
    const QString set = FileSystem().GetBaseName(setPath);
    const QString name = TargetboardName(board);
    const QString text =
        Action == DataTransferCommand::download
            ? QStringLiteral("You are about to download data to the %1.      \r\n\r\n"
                             "File data will be written to memory.\r\n\r\n"
                             "Do you wish to continue?")
            : QStringLiteral("You are about to upload data from the %1.      \r\n\r\n"
                             "File data will be saved from memory.\r\n\r\n"
                             "Do you wish to continue?");
    const QString title = Action == DataTransferCommand::download
                              ? QStringLiteral("Data Download [%1]")
                              : QStringLiteral("Data Upload [%1]");
    return {title.arg(set), text.arg(name)};
}

DataTransferCommand::DataTransferCommand(ProgramCommands& programs, RSComm& link, CommMode& mode,
                                         Dialogs& dialogs, BackgroundTimer& timer,
                                         const ModalViews& views, std::function<void()> plsRoute)
    : programs_(programs), link_(link), mode_(mode), dialogs_(dialogs), timer_(timer),
      views_(views), plsRoute_(std::move(plsRoute)) {}

void DataTransferCommand::StartDataTransfer(qint16 Action, bool BypassOpen) {
    bool ok = false;
    programs_.OpenProgramDialog(BypassOpen, false, ok);
    if (ok) {
        try {
            TransferSelected(Action);
        } catch (const RunTimeError& error) {
            ShowErrorBox(dialogs_, error, QStringLiteral("TransferData"), MsgStyle::Critical);
        }
    }
    programs_.RefreshAfterTransfer();
}

void DataTransferCommand::TransferSelected(qint16 Action) {
    const qint16 board = ProgramBoardIndex(gHdnFile);
    timer_.SetEnabled(false);
    if (IsPLSBoard(board))
        plsRoute_();
    else
        AskAndTransfer(Action, board);
}

void DataTransferCommand::AskAndTransfer(qint16 Action, qint16 board) {
    const TransferQuestion question = DataTransferQuestion(Action, gHdnFile, board);
    if (dialogs_.MsgBox(question.text, MsgStyle::YesNoCancelInformation, question.title) !=
        MsgAnswer::Yes)
        return;
    mode_.GoOnline();
    if (link_.CommError())
        return;
    gXferMode = Action;
    gXferBoard = board;
    gXferFile = ChangeExtension(gHdnFile, QStringLiteral("ldt"));
    if (views_.frmDataXfr)
        views_.frmDataXfr();
}
