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

    /// Requests to the editor, the compiler, the printing tool and the configuration tool, which
    /// start nothing; the first and the last select the set in use in the browser again.
    void mnuFileOpen_Click();
    void mnuFileCompile_Click();
    void mnuFilePrintProgram_Click();
    void mnuEditSysConfig_Click();
    /// Asks for a set and shows its documented variables; a set of a limit switch board is
    /// refused with a box. Raises as ProgramBoardIndex.
    void mnuEditVarDoc_Click();
    /// Asks for a set and shows the text that the compiler has left beside it; a box tells if
    /// there is none.
    void mnuViewCompileErrors_Click();
    /// Toolbar button 3: gHdnFile was taken from the selection already.
    void OpenButton();
    /// Toolbar button 4: prints what gPrintContext names.
    void PrintButton();

    /// Asks for a search of gHdnFile and shows what it has found, once the .GBL file is there; a
    /// box tells if it does not come within searchTime. Events run meanwhile. A set of a board
    /// without a program ends it at once. Raises as ProgramBoardIndex.
    void GlobalSearch(bool BypassOpen, bool BypassInputBox);
    /// Frees the port for the monitor by going offline, and asks for it.
    void MonitorProgram(bool BypassOpen);

private:
    bool ResultsArrive(const QString& path);

    ToolContext context_;
    std::function<void()> resultsFound_;
};
