#include "base/Dialogs.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "jobs/JobProgress.h"
#include "link/RSComm.h"
#include "pls/PLSBoards.h"
#include "pls/PLSConfigTable.h"
#include "pls/PLSFileTexts.h"
#include "pls/PLSJobs.h"
#include "pls/PLSLayout.h"
#include "pls/RecallChannelSetpoints.h"
#include "programset/ProgramBoardIndex.h"
#include "session/Globals.h"
#include <algorithm>

namespace {
constexpr qint64 failedRead = -9999;

void ReportUploadFailed(Dialogs& dialogs, const RunTimeError& error) {
    const QString text = QStringLiteral("Unable to Upload Configuration and       \r\n"
                                        "Timing Channel Setpoints from PLS.\r\n\r\n");
    dialogs.MsgBox(text + ErrorReportText(error), MsgStyle::Exclamation,
                   QStringLiteral("PLS Recall"));
}

// What a board that was never set up may answer is brought within what the files can hold.
void LimitConfiguration(const PLSLayout& layout) {
    gPLS.Channels = std::max(gPLS.Channels, layout.channelCounts.front());
    if (!layout.r6500)
        return;
    const auto highest = [&layout](PLSField field) { return FindColumn(layout, field)->max; };
    gPLS.PLSProgram = std::min(gPLS.PLSProgram, highest({&PLSRecord::PLSProgram}));
    for (int channel = 0; channel < static_cast<int>(gPLS.SpeedComp.size()); ++channel) {
        qint16& compensation = gPLS.SpeedComp.at(static_cast<std::size_t>(channel));
        compensation = std::min(compensation, highest(SpeedCompField(channel)));
    }
}
} // namespace

void PLSJobs::UploadPLSChannels(JobProgress& progress) {
    try {
        Upload(progress);
    } catch (const RunTimeError& error) {
        link_.SetCommError(true);
        ReportUploadFailed(dialogs_, error);
    }
}

void PLSJobs::Upload(JobProgress& progress) {
    gPLSSnapshot = gPLS;
    if (!link_.OnlineMode())
        return;
    const qint16 board = UploadBoard();
    if (!ReadConfiguration(board))
        return;
    const PLSLayout& layout = PLSLayoutOf(board);
    gPLS.PCFText = BuildPCFText(gPLS, layout);
    gPLS.CHLText = CHLFirstLines(gPLS, layout);
    const int channels = ChannelPlacesInUse(gPLS);
    progress.SetRange(0, channels);
    progress.SetValue(0);
    for (qint16 channel = 0; channel < channels; ++channel) {
        UploadChannel(channel, board, progress);
        if (link_.CommError())
            return;
    }
    gPLS.CHLText += chlEndLine;
    gPLSSnapshot = gPLS;
}

qint16 PLSJobs::UploadBoard() const {
    if (!link_.InUploadMode() && timingBoard_)
        if (const std::optional<qint16> selected = timingBoard_())
            return *selected;
    return ProgramBoardIndex(gHdnFile);
}

// The record changes only when all of it was read.
bool PLSJobs::ReadConfiguration(qint16 board) {
    const PLSConfigTable table = link_.PLSConfigUpload();
    if (link_.CommError())
        return false;
    qint16 scaleFactor = 0;
    qint16 offset = 0;
    if (!ReadValue(&RSComm::PLSScaleFactor, scaleFactor) || !ReadValue(&RSComm::PLSOffset, offset))
        return false;
    ApplyPLSConfig(table, board);
    gPLS.ScaleFactor = scaleFactor;
    gPLS.Offset = offset;
    LimitConfiguration(PLSLayoutOf(board));
    return true;
}

// A value that did not come although the line answered again is a link failure too: nobody must
// save it.
bool PLSJobs::ReadValue(QString (RSComm::*read)(), qint16& value) {
    const qint64 number = WholeNumberValue((link_.*read)());
    if (number == failedRead)
        link_.SetCommError(true);
    if (link_.CommError())
        return false;
    value = ToInteger16(number);
    return true;
}

void PLSJobs::UploadChannel(qint16 channel, qint16 board, JobProgress& progress) {
    const PLSLayout& layout = PLSLayoutOf(board);
    const auto place = static_cast<std::size_t>(channel);
    progress.ShowMessage(QStringLiteral("Uploading Channel CH%1 Data, Please Standby ...")
                             .arg(ChannelName(channel)));
    progress.Yield();
    gPLS.CHLText += CHLHeaderLine(channel, gPLS.ChanHeader.at(place), layout);
    progress.SetValue(channel + 1);
    RecallChannelSetpoints(channel, link_, dialogs_, [&progress](const QString& caption) {
        progress.ShowSecondLine(caption);
        progress.Yield();
    });
    if (!link_.CommError())
        gPLS.CHLText += CHLSetpointLines(gPLS.Chan.at(place), layout);
}
