#pragma once

#include "jobs/DataTransfer.h"
#include "jobs/DownloadDatafile.h"
#include "jobs/views/WaitJobRunner.h"
#include "jobs/WaitJobs.h"
#include "shell/DataTransferCommand.h"

class FileSystem;
class frmMDIMain;
struct Platform;

/// The job runner and the data transfers, made and joined to the main window's commands.
class TransferViews {
public:
    /// All must outlive the object.
    TransferViews(const Platform& platform, RSComm& link, FileSystem& files, frmMDIMain& window);

    /// Where views register the routines of their jobs.
    WaitJobs& Jobs() { return jobs_; }
    JobRunner& Runner() { return runner_; }

private:
    void RegisterCommands(frmMDIMain& window);

    WaitJobs jobs_;
    DataTransfer transfer_;
    WaitJobRunner runner_;
    DownloadDatafile datafile_;
    DataTransferCommand command_;
};
