#pragma once

#include <functional>
#include <optional>
#include <QString>

class Dialogs;
class JobProgress;
class RSComm;
class WaitJobs;

/// Jobs 6 to 8: a limit switch board as a whole, between the board and gPLS. A link failure ends
/// each of them quietly with CommError set; what had been done by then stays done.
class PLSJobs {
public:
    /// Both must outlive the object.
    PLSJobs(RSComm& link, Dialogs& dialogs);

    /// Makes the three known. None of them may run after the object has ended.
    void Register(WaitJobs& jobs);
    /// Who tells the board that the timing view has selected, if it has one. Without it the board
    /// is always that of the program set.
    void SetTimingBoard(std::function<std::optional<qint16>()> timingBoard);

    /// Job 6: reads configuration and channels of the board into gPLS and builds the texts of its
    /// two files there. The labels of the channels come from gPLS.ChanHeader. gPLSSnapshot is what
    /// gPLS was before, and a copy of it once all is read. Does nothing while offline. What the
    /// board answers out of all bounds is reported in a box and sets CommError.
    void UploadPLSChannels(JobProgress& progress);
    /// Job 7: fills gPLS from the two files of gHdnFile and sends it to the board. Files that
    /// cannot be read send nothing, as do sets of other boards. A setpoint that the board did not
    /// take is reported, and the job goes on; channels that the file does not name are left alone.
    void DownloadPLSChannels(JobProgress& progress);
    /// Job 8: clears every channel of the board and reads it back into gPLS. Stops at a channel
    /// that cannot be cleared.
    void ClearPLSChannels(JobProgress& progress);

private:
    // PLSUpload.cpp
    void Upload(JobProgress& progress);
    qint16 UploadBoard() const;
    bool ReadConfiguration(qint16 board);
    bool ReadValue(QString (RSComm::*read)(), qint16& value);
    void UploadChannel(qint16 channel, qint16 board, JobProgress& progress);

    // PLSDownload.cpp
    void Download(JobProgress& progress);
    bool SendConfiguration();
    void ReportFailedConfiguration();
    void DownloadChannel(qint16 channel, JobProgress& progress);
    void ReportFailedSetpoint(qint16 channel);

    RSComm& link_;
    Dialogs& dialogs_;
    std::function<std::optional<qint16>()> timingBoard_;
};

/// Octal name of a channel, 0 to 63, as the jobs show it: "0" to "77".
QString ChannelName(qint16 channel);
