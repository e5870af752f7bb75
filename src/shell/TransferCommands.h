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
    /// Ask for a set, then do as the two below.
    void mnuFileDownloadToPLS_Click();
    void mnuFileUploadFromPLS_Click();
    /// Write configuration and channels of gHdnFile to its board, or read them from it.
    void mnuFileListPopupDownloadToPLS_Click();
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
