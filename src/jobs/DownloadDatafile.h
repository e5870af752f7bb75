#pragma once

#include <QString>

class CommMode;
class DataTransfer;
class Dialogs;
class FileSystem;
class JobRunner;
class RSComm;

/// The command that writes the numbers of a text file into the board, one after another, from a
/// start address that the user types.
class DownloadDatafile {
public:
    /// `mode` takes the program online, `transfer` is the work of job 4 that `jobs` runs. All must
    /// outlive the object.
    DownloadDatafile(RSComm& link, CommMode& mode, Dialogs& dialogs, const FileSystem& files,
                     DataTransfer& transfer, JobRunner& jobs);

    /// Asks for the file and the address, goes online if need be and runs job 4. A file that
    /// cannot be read, or has more items than 32767, is reported by a box.
    void mnuFileDownloadFile_Click();

private:
    void AskAndDownload();
    QString AskFile();
    void AskStartAndRun();

    RSComm& link_;
    CommMode& mode_;
    Dialogs& dialogs_;
    const FileSystem& files_;
    DataTransfer& transfer_;
    JobRunner& jobs_;
    QString lastDatafile_; // of this session
};
