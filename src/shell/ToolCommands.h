#pragma once

#include <functional>
#include <QString>

class Clock;
class CommandSurface;
class CommMode;
class Dialogs;
class FileSystem;
class ProgramBrowser;
class ProgramCommands;
class RSComm;
struct ModalViews;

/// What the commands of the suite's tools and of the small views work on. All must outlive them.
struct ToolContext {
    RSComm& link;
    CommMode& mode;
    Dialogs& dialogs;
    Clock& clock;
    const FileSystem& files;
    ProgramBrowser& browser;
    ProgramCommands& programs;
    CommandSurface& surface;
    const ModalViews& views;
};

/// The commands that lead to the suite's other tools, most of them hidden, and those that open a
/// view on a program set.
class ToolCommands {
public:
    /// Seconds for which the results of a search are waited for.
    static constexpr double searchTime = 100.0;

    /// `resultsFound` is called when a search has left results to view.
    ToolCommands(const ToolContext& context, std::function<void()> resultsFound);

    void mnuFileOpen_Click();
    void mnuFileCompile_Click();
    void mnuFilePrintProgram_Click();
    void mnuEditSysConfig_Click();
    void mnuEditVarDoc_Click();
    void mnuViewCompileErrors_Click();
    /// The view of one board, on a set that is asked for unless `BypassOpen`.
    void ShowTargetBoard(bool BypassOpen);
    /// Toolbar button 3: gHdnFile was taken from the selection already.
    void OpenButton();
    /// Toolbar button 4: prints what gPrintContext names.
    void PrintButton();

    /// Asks for a search and shows what it has found, once its results file is there.
    void GlobalSearch(bool BypassOpen, bool BypassInputBox);
    /// Frees the port for the monitor and asks for it.
    void MonitorProgram(bool BypassOpen);

private:
    bool ResultsArrive(const QString& path);

    ToolContext context_;
    std::function<void()> resultsFound_;
};
