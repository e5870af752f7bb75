#pragma once

#include <QString>

class CommMode;
class Dialogs;
class FileSystem;
class ProgramBrowser;
class ProgramCommands;
class RSComm;
struct ModalViews;

/// What the transfer commands work on. All must outlive them.
struct TransferContext {
    RSComm& link;
    CommMode& mode;
    Dialogs& dialogs;
    const FileSystem& files;
    ProgramBrowser& browser;
    ProgramCommands& programs;
    const ModalViews& views;
};

/// The commands that read a program from a board, or move limit switch settings:
/// which set they act on, what is asked, and the order of going online and refreshing the browser.
class TransferCommands {
public:
    explicit TransferCommands(const TransferContext& context);

    /// Asks for the name of a set, goes online and reads the board's program into it. Errors are
    /// shown, titled "Upload Program".
    void mnuFileUploadProgram_Click();
    /// Ask for a set, then do as the two below. A Cancel ends them.
    void mnuFileDownloadToPLS_Click();
    void mnuFileUploadFromPLS_Click();
    /// Asks, goes online and writes configuration and channels of gHdnFile to its board. A timing
    /// view that is online shows afterwards what the board holds. Raises as ProgramBoardIndex.
    void mnuFileListPopupDownloadToPLS_Click();
    /// Asks, goes online and reads configuration and channels of the board into the .PCF and .CHL
    /// files of gHdnFile; they stay as they are unless all of it was read. The link is out of
    /// upload mode afterwards. Raises as ProgramBoardIndex and as TextWriter.
    void mnuFileListPopupUploadFromPLS_Click();

private:
    bool Confirmed(const QString& what, const QString& message);
    QString BoardName() const;
    void UploadNamedProgram();
    void UploadFromPLC();
    void RefreshBrowser();
    void ShowDownloadedChannels();
    bool RunUpload();
    void SavePLSFiles();

    TransferContext context_;
};
