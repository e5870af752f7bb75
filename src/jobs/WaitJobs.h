#pragma once

#include <functional>
#include <map>
#include <QString>

class JobProgress;

/// Codes of the jobs.
namespace WaitJob {
constexpr qint16 ReadAddresses = 1;       ///< addresses of an opened status table into its grid
constexpr qint16 ReadNames = 2;           ///< names into the grid's first column
constexpr qint16 PrintStatusTable = 3;    ///< report of the status table
constexpr qint16 TransferData = 4;        ///< data or a datafile to the board, data from it
constexpr qint16 PrintTrendData = 5;      ///< report of the trend
constexpr qint16 UploadPLSChannels = 6;   ///< configuration and channels from a limit switch board
constexpr qint16 DownloadPLSChannels = 7; ///< configuration and channels to it
constexpr qint16 ClearPLSChannels = 8;    ///< all its channels
} // namespace WaitJob

/// What the first column of the status table shows; NicNames win where both are asked for.
enum class NamesShown { None, NicNames, Descriptions };

/// How the busy view looks when a job starts.
struct WaitJobFace {
    QString message;              ///< first text of lblWaitDisplay
    bool cancelEnabled = true;    ///< the job looks for a Cancel
    bool barShown = true;         ///< the job tells how far it is
    bool secondLineShown = false; ///< lblSetpointRecall: setpoints within a channel
    bool messageLowered = false;  ///< the message stands at half the height of its frame
    bool centred = true;          ///< the view is moved to the middle of the main window
};

/// The face of a job. The message of job 4 depends on the transfer mode (XferMode), that of job 2
/// on the kind of names. A code outside 1 to 8 has a neutral message.
WaitJobFace FaceOfWaitJob(qint16 code, qint16 xferMode, NamesShown names);

/// The jobs by code. Whoever owns what a job works on registers its routine: the data transfer,
/// the status table, the trend, the limit switch view. A code without a routine does nothing.
class WaitJobs {
public:
    using Routine = std::function<void(JobProgress&)>;

    /// The routine of a code from now on. What it refers to must outlive this object.
    void Register(qint16 code, Routine routine);
    /// Who tells the kind of names that job 2 fills in; without one it is None.
    void RegisterNamesShown(std::function<NamesShown()> namesShown);

    /// The face that the job has if it starts now.
    WaitJobFace Face(qint16 code) const;
    /// Runs the routine of the code; what it raises passes to the caller.
    void Run(qint16 code, JobProgress& progress) const;

private:
    std::map<qint16, Routine> routines_;
    std::function<NamesShown()> namesShown_;
};
