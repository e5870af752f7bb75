#include "jobs/DownloadDatafile.h"

#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "jobs/DataTransfer.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "link/RSComm.h"
#include "session/CommMode.h"
#include "session/Globals.h"

namespace {
constexpr qsizetype shortestStart = 3; // characters; "B" or "W" alone ask for nothing
constexpr int openFlags = 0x81004;     // file must exist, no read-only box, explorer style

// Stops as soon as the count leaves 16 bits, however long the file is.
qint16 CountItems(const QString& path) {
    TextReader reader(path);
    qint16 count = 0;
    while (!reader.AtEnd()) {
        reader.InputItem();
        count = ToInteger16(count + 1);
    }
    return count;
}
} // namespace

DownloadDatafile::DownloadDatafile(RSComm& link, CommMode& mode, Dialogs& dialogs,
                                   const FileSystem& files, DataTransfer& transfer, JobRunner& jobs)
    : link_(link), mode_(mode), dialogs_(dialogs), files_(files), transfer_(transfer), jobs_(jobs) {
}

void DownloadDatafile::mnuFileDownloadFile_Click() {
    try {
        AskAndDownload();
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("Download Data File"), MsgStyle::Critical);
    }
}

void DownloadDatafile::AskAndDownload() {
    lastDatafile_ = AskFile();
    if (!files_.FileExists(lastDatafile_))
        return;
    const qint16 count = CountItems(lastDatafile_);
    gXferMode = XferMode::Datafile;
    gXferFile = lastDatafile_;
    gXferFrom = 0;
    gXferTo = count;
    AskStartAndRun();
}

QString DownloadDatafile::AskFile() {
    const bool again = files_.FileExists(lastDatafile_);
    FileDialogRequest request;
    request.flags = openFlags;
    request.filter = QStringLiteral("Text Files(*.txt)|*.txt|");
    request.fileName = again ? lastDatafile_ : QString();
    request.initDir = files_.GetParentFolderName(again ? lastDatafile_ : gHdnFile);
    const QString chosen = dialogs_.ShowOpen(request);
    DoEvents();
    DoEvents();
    return chosen;
}

void DownloadDatafile::AskStartAndRun() {
    const QString start = dialogs_
                              .InputBox(QStringLiteral("Please Enter Starting Address."),
                                        QStringLiteral("Datafile Download"))
                              .toUpper();
    if (start.size() < shortestStart)
        return;
    if (!link_.OnlineMode())
        mode_.GoOnline();
    transfer_.SetupFileDownload(start);
    jobs_.RunWaitJob(WaitJob::TransferData);
}
