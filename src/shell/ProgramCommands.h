#pragma once

#include <QString>

class BackgroundTimer;
class CommMode;
class Dialogs;
class FileSystem;
class ProgramBrowser;
class RSComm;
struct ModalViews;

/// The commands on a program set that menu, popup and toolbar share.
class ProgramCommands {
public:
    /// All must outlive the object.
    ProgramCommands(RSComm& link, CommMode& mode, Dialogs& dialogs, const FileSystem& files,
                    ProgramBrowser& browser, BackgroundTimer& timer, const ModalViews& views);

    /// The file selection of all commands: asks for a set unless `BypassOpen`, which takes
    /// gHdnFile, and sets gHdnFile. With `BypassInputBox` and without `BypassOpen` it ends there;
    /// otherwise the link is told the set's board. `ok` tells whether there is a set; a Cancel
    /// leaves it False. Errors are shown, titled "Open File".
    void OpenProgramDialog(bool BypassOpen, bool BypassInputBox, bool& ok);

    /// Sends a set's image into the board under frmDownloadProg, if the set is valid. Always ends
    /// with RefreshAfterTransfer. Errors are shown, titled "Download File".
    void DownloadProgram(bool BypassOpen);

    /// The same end for every transfer command: the browser is redrawn, gHdnFile is taken from
    /// its selection, the mode is shown again and the background update runs.
    void RefreshAfterTransfer();

    /// The request to one of the suite's other tools (0 open, 1 monitor, 2 configuration,
    /// 3 compile, 4 print, 6 search). These tools are not started from here: nothing happens and
    /// `Canceled` stays as it is.
    void SpawnRequest(qint16 Action, bool BypassOpen, bool BypassInputBox, bool& Canceled);
    /// The same for callers that have no use for `Canceled`.
    void SpawnRequest(qint16 Action, bool BypassOpen);

private:
    QString AskProgram();
    void DumpIfValid();

    RSComm& link_;
    CommMode& mode_;
    Dialogs& dialogs_;
    const FileSystem& files_;
    ProgramBrowser& browser_;
    BackgroundTimer& timer_;
    const ModalViews& views_;
};
