#include "shell/ToolCommands.h"

#include "base/Clock.h"
#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/Siblings.h"
#include "link/RSComm.h"
#include "link/TargetBoards.h"
#include "programset/ProgramBoardIndex.h"
#include "session/CommMode.h"
#include "session/Globals.h"
#include "session/HeldProgram.h"
#include "shell/CommandSurface.h"
#include "shell/ModalViews.h"
#include "shell/ProgramBrowser.h"
#include "shell/ProgramCommands.h"

namespace {
// Requests to the suite's tools.
constexpr qint16 openForEditing = 0;
constexpr qint16 monitorOnline = 1;
constexpr qint16 configureSystem = 2;
constexpr qint16 compile = 3;
constexpr qint16 print = 4;
constexpr qint16 searchProgram = 6;

// Modes of frmViewResults.
constexpr qint16 compileErrors = 0;
constexpr qint16 searchResults = 1;

constexpr double searchStep = 0.1;       // seconds between looks for the results
constexpr qsizetype shortestProgram = 5; // "A.hdn"

// Controllers of either family have a search tool; limit switches have none.
bool CanBeSearched(qint16 board) {
    return (board >= 49 && board <= 54) || (board >= 56 && board <= 61) || board == 65 ||
           board == 66 || board == 68;
}
} // namespace

ToolCommands::ToolCommands(const ToolContext& context, std::function<void()> resultsFound)
    : context_(context), resultsFound_(std::move(resultsFound)) {}

void ToolCommands::mnuFileOpen_Click() {
    context_.programs.SpawnRequest(openForEditing, false);
    context_.browser.RefreshFileList(gHdnFile);
}

void ToolCommands::mnuFileCompile_Click() {
    context_.programs.SpawnRequest(compile, false);
}

void ToolCommands::mnuFilePrintProgram_Click() {
    context_.programs.SpawnRequest(print, false);
}

void ToolCommands::mnuEditSysConfig_Click() {
    context_.programs.SpawnRequest(configureSystem, false);
    context_.browser.RefreshFileList(context_.browser.SelectedProgramPath());
}

void ToolCommands::mnuEditVarDoc_Click() {
    bool ok = false;
    context_.programs.OpenProgramDialog(false, true, ok);
    if (!ok)
        return;
    if (IsPLSBoard(ProgramBoardIndex(gHdnFile)))
        context_.dialogs.MsgBox(QStringLiteral("Select FILE - OPEN to Edit PLS Documentation."),
                                MsgStyle::Information, QStringLiteral("PLS Target Board"));
    else if (context_.views.frmEditDoc)
        context_.views.frmEditDoc(gHdnFile);
}

void ToolCommands::mnuViewCompileErrors_Click() {
    bool ok = false;
    context_.programs.OpenProgramDialog(false, true, ok);
    if (!ok || gHdnFile.size() < shortestProgram)
        return;
    const QString path = OnDisk(ChangeExtension(gHdnFile, QStringLiteral("err")));
    if (context_.files.FileExists(path))
        context_.views.frmViewResults(compileErrors);
    else
        context_.dialogs.MsgBox(QStringLiteral("Error File Does Not Exist"), MsgStyle::Information,
                                QStringLiteral("View Errors"));
}

void ToolCommands::OpenButton() {
    const bool selected = context_.files.FileExists(gHdnFile);
    context_.programs.SpawnRequest(openForEditing, selected);
    if (!selected)
        context_.browser.RefreshFileList(context_.browser.SelectedProgramPath());
}

void ToolCommands::PrintButton() {
    switch (gPrintContext) {
    case PrintContext::StatusTable:
        return context_.surface.Run(QStringLiteral("mnuFilePrintStatusTable"));
    case PrintContext::Results:
        return context_.surface.Run(QStringLiteral("mnuFilePrintResults"));
    case PrintContext::Trending:
        return context_.surface.Run(QStringLiteral("mnuFilePrintTrendData"));
    default:
        context_.programs.SpawnRequest(print, true);
    }
}

void ToolCommands::GlobalSearch(bool BypassOpen, bool BypassInputBox) {
    bool canceled = false;
    context_.programs.SpawnRequest(searchProgram, BypassOpen, BypassInputBox, canceled);
    if (canceled || !CanBeSearched(ProgramBoardIndex(gHdnFile)))
        return;
    const QString program = gHdnFile; // the user may select another set during the wait
    const QString path = ChangeExtension(program, QStringLiteral("gbl"));
    if (!ResultsArrive(path)) {
        context_.dialogs.MsgBox(QStringLiteral("File Not Found ") + path, MsgStyle::Information,
                                QStringLiteral("XSearch"));
        return;
    }
    resultsFound_();
    const HeldProgram held(program);
    if (context_.views.frmViewResults)
        context_.views.frmViewResults(searchResults);
}

bool ToolCommands::ResultsArrive(const QString& path) {
    const double deadline = context_.clock.MonotonicSeconds() + searchTime;
    while (!context_.files.FileExists(OnDisk(path))) {
        if (context_.clock.MonotonicSeconds() >= deadline)
            return false;
        DoEvents();
        context_.clock.Wait(searchStep);
    }
    return true;
}

void ToolCommands::MonitorProgram(bool BypassOpen) {
    if (context_.link.OnlineMode())
        context_.mode.GoOffline();
    context_.programs.SpawnRequest(monitorOnline, BypassOpen);
}
