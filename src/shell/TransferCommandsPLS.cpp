#include "base/modUtility.h"
#include "base/TextFile.h"
#include "link/RSComm.h"
#include "session/CommMode.h"
#include "session/Globals.h"
#include "shell/ModalViews.h"
#include "shell/ProgramCommands.h"
#include "shell/TransferCommands.h"
#include <QScopeGuard>

// The transfers of limit switch boards.

namespace {
constexpr qint16 uploadChannels = 6; // jobs
constexpr qint16 downloadChannels = 7;

// Puts a text with a line end into a file as a whole.
void WriteTextFile(const QString& path, const QString& text) {
    TextWriter file(path);
    file.PrintText(text);
    file.Close();
}
} // namespace

void TransferCommands::mnuFileDownloadToPLS_Click() {
    bool ok = false;
    context_.programs.OpenProgramDialog(false, true, ok);
    if (ok)
        mnuFileListPopupDownloadToPLS_Click();
}

void TransferCommands::mnuFileUploadFromPLS_Click() {
    bool ok = false;
    context_.programs.OpenProgramDialog(false, true, ok);
    if (!ok)
        return;
    context_.link.SetInUploadMode(true);
    mnuFileListPopupUploadFromPLS_Click();
}

void TransferCommands::mnuFileListPopupDownloadToPLS_Click() {
    const QString message =
        QStringLiteral("You are about to download the PLS configuration           \r\n"
                       "and timing channel setpoints to the %1.\r\n\r\nDo you wish to continue?")
            .arg(BoardName());
    if (Confirmed(QStringLiteral("PLS Download"), message)) {
        context_.mode.GoOnline();
        if (!context_.link.CommError())
            context_.views.pls->RunWaitJob(downloadChannels);
    }
    if (!context_.link.CommError())
        ShowDownloadedChannels();
}

// The timing view shows what the board holds, so it is read back; also over what is left of files
// that could not be read, which the view would take for an edit of its own.
void TransferCommands::ShowDownloadedChannels() {
    const PLSRoute& pls = *context_.views.pls;
    if (!pls.timingVisible() || !pls.gFirstPassOnline())
        return;
    if (pls.ReadPLSFileData(gHdnFile))
        pls.RunWaitJob(uploadChannels);
    if (!context_.link.CommError())
        pls.DisplayPLSChannels();
}

// Only what was read in this call is saved: a refusal leaves the set's files alone, and so does an
// upload that never began because the port would not open.
void TransferCommands::mnuFileListPopupUploadFromPLS_Click() {
    const auto ended = qScopeGuard([this] { context_.link.SetInUploadMode(false); });
    const QString message =
        QStringLiteral("You are about to upload the PLS configuration           \r\n"
                       "and timing channel setpoints from the %1.\r\n\r\n"
                       "All data will be saved to file.\r\n\r\nDo you wish to continue?")
            .arg(BoardName());
    bool uploaded = false;
    if (Confirmed(QStringLiteral("PLS Upload"), message)) {
        context_.mode.GoOnline();
        if (!context_.link.CommError())
            uploaded = RunUpload();
    }
    if (uploaded && !context_.link.CommError())
        SavePLSFiles();
    context_.link.SetInUploadMode(false);
    RefreshBrowser();
}

// Files that could not be read leave a part of them behind, which the timing view must not take for
// an edit: it shows the board again.
bool TransferCommands::RunUpload() {
    const PLSRoute& pls = *context_.views.pls;
    if (pls.ReadPLSFileData(gHdnFile)) {
        pls.RunWaitJob(uploadChannels);
        return !pls.channelText().isEmpty();
    }
    if (pls.timingVisible() && pls.gFirstPassOnline())
        pls.DisplayPLSChannels();
    return false;
}

void TransferCommands::SavePLSFiles() {
    const PLSRoute& pls = *context_.views.pls;
    if (!context_.link.InUploadMode() && pls.timingVisible()) {
        pls.DisplayPLSChannels();
        pls.uploadComplete();
    }
    context_.link.SetInUploadMode(false);
    WriteTextFile(ChangeExtension(gHdnFile, QStringLiteral("PCF")), pls.configurationText());
    WriteTextFile(ChangeExtension(gHdnFile, QStringLiteral("CHL")), pls.channelText());
}
