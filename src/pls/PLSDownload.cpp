#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "jobs/JobProgress.h"
#include "jobs/WaitJobs.h"
#include "link/RSComm.h"
#include "pls/PLSConfigTable.h"
#include "pls/PLSJobs.h"
#include "pls/PLSLayout.h"
#include "pls/ReadPLSFileData.h"
#include "pls/RecallChannelSetpoints.h"
#include "programset/ProgramBoardIndex.h"
#include "session/Globals.h"

PLSJobs::PLSJobs(RSComm& link, Dialogs& dialogs) : link_(link), dialogs_(dialogs) {}

void PLSJobs::Register(WaitJobs& jobs) {
    jobs.Register(WaitJob::UploadPLSChannels,
                  [this](JobProgress& progress) { UploadPLSChannels(progress); });
    jobs.Register(WaitJob::DownloadPLSChannels,
                  [this](JobProgress& progress) { DownloadPLSChannels(progress); });
    jobs.Register(WaitJob::ClearPLSChannels,
                  [this](JobProgress& progress) { ClearPLSChannels(progress); });
}

void PLSJobs::SetTimingBoard(std::function<std::optional<qint16>()> timingBoard) {
    timingBoard_ = std::move(timingBoard);
}

QString ChannelName(qint16 channel) {
    return QString::number(RSComm::Dec2Octal(channel));
}

void PLSJobs::DownloadPLSChannels(JobProgress& progress) {
    try {
        Download(progress);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("PLS Channel Write"), MsgStyle::Exclamation);
    }
}

// What could not be read is not sent: a blank record would clear the board.
void PLSJobs::Download(JobProgress& progress) {
    if (!ReadPLSFileData(gHdnFile, dialogs_)) {
        ReportFailedConfiguration();
        return;
    }
    if (!SendConfiguration())
        return;
    const int channels = ChannelPlacesInUse(gPLS);
    progress.SetRange(0, channels);
    progress.SetValue(0);
    for (qint16 channel = 0; channel < channels; ++channel) {
        progress.ShowMessage(QStringLiteral("Downloading Channel CH%1 Data, Please Standby ...")
                                 .arg(ChannelName(channel)));
        progress.SetValue(channel + 1);
        DownloadChannel(channel, progress);
        if (link_.CommError())
            return;
    }
    gPLSSnapshot = gPLS;
}

bool PLSJobs::SendConfiguration() {
    const bool sent =
        link_.PLSConfigDownload(BuildPLSConfigArray(ProgramBoardIndex(gHdnFile)), gPLS.ScaleFactor);
    if (link_.CommError())
        return false;
    if (!sent) {
        ReportFailedConfiguration();
        gPLSSnapshot = gPLS;
    }
    return sent;
}

void PLSJobs::ReportFailedConfiguration() {
    dialogs_.MsgBox(QStringLiteral("Unable to Successfully Download the PLS Configuration"),
                    MsgStyle::Exclamation, QStringLiteral("PLS Config Download"));
}

// The first setpoint takes those before out of the board.
void PLSJobs::DownloadChannel(qint16 channel, JobProgress& progress) {
    const SetpointList setpoints = gPLS.Chan.at(static_cast<std::size_t>(channel));
    for (qsizetype index = 0; index < setpoints.size(); ++index) {
        progress.ShowSecondLine(QStringLiteral("Programming CH%1 Setpoint: %2")
                                    .arg(ChannelName(channel), QString::number(index)));
        progress.Yield();
        const Setpoint& setpoint = setpoints[index];
        const bool clears = setpoint.IsPlaceholder();
        const bool taken =
            clears ? link_.ClearPLSChan(channel)
                   : link_.SingleSetpoint(channel, setpoint.on, setpoint.off, index == 0);
        if (link_.CommError())
            return;
        if (!taken)
            ReportFailedSetpoint(channel);
        if (clears)
            return;
    }
}

void PLSJobs::ReportFailedSetpoint(qint16 channel) {
    dialogs_.MsgBox(QStringLiteral("Unable to Successfully Program Setpoint for Channel CH%1.")
                        .arg(ChannelName(channel)),
                    MsgStyle::Exclamation, QStringLiteral("PLS Channel Download"));
}

void PLSJobs::ClearPLSChannels(JobProgress& progress) {
    const int channels = ChannelPlacesInUse(gPLS);
    progress.SetRange(0, channels);
    progress.SetValue(0);
    for (qint16 channel = 0; channel < channels; ++channel) {
        progress.ShowMessage(QStringLiteral("Clearing Channel CH%1 Data, Please Standby ...")
                                 .arg(ChannelName(channel)));
        progress.SetValue(channel + 1);
        progress.Yield();
        const bool cleared = link_.ClearPLSChan(channel);
        if (link_.CommError())
            return;
        if (!cleared) {
            dialogs_.MsgBox(QStringLiteral("Unable to Clear Channel"), MsgStyle::Information,
                            QStringLiteral("Clear Channel"));
            return;
        }
        RecallChannelSetpoints(channel, link_, dialogs_);
    }
}
