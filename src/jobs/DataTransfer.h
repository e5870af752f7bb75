#pragma once

#include <QString>
#include <QStringList>

class Dialogs;
class FileSystem;
class JobProgress;
class RSComm;
struct DatafileStart;

/// Job 4: data bytes between a file and the board's memory. Its input stands in gXferMode,
/// gXferBoard, gXferFile, gXferFrom and gXferTo.
///
/// Before each address the job yields and then looks for Cancel and for a communication failure;
/// on either it ends quietly. Nothing is taken back: a download that stops has changed the board
/// up to that address, an upload that stops leaves a line that ends there.
class DataTransfer {
public:
    /// `link` moves the bytes, `dialogs` shows what goes wrong, `files` finds the file whatever its
    /// letter case. All must outlive the object.
    DataTransfer(RSComm& link, Dialogs& dialogs, const FileSystem& files);

    /// Start address of the next datafile download, upper-case as "W100"; counts for one job.
    void SetupFileDownload(const QString& StartingAdd);
    /// Does the transfer. Reports a run-time failure with a box of its own; raises nothing.
    void TransferData(JobProgress& progress);

private:
    class Steps;
    void Download(Steps& steps) const;
    void Upload(Steps& steps) const;
    bool AppendUploaded(QStringList& pairs, qint32 address, Steps& steps) const;
    void DownloadDatafile(Steps& steps, const QString& startingAdd) const;
    void SendItems(Steps& steps, const DatafileStart& start) const;

    RSComm& link_;
    Dialogs& dialogs_;
    const FileSystem& files_;
    QString startingAdd_;
};
