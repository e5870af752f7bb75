#include "jobs/WaitJobs.h"

#include "session/Globals.h"
#include <utility>

namespace {
const QString plainMessage = QStringLiteral("Please Standby ...");

WaitJobFace Cancellable(const QString& message) {
    WaitJobFace face;
    face.message = message;
    return face;
}

WaitJobFace NamesFace(NamesShown names) {
    switch (names) {
    case NamesShown::NicNames:
        return Cancellable(QStringLiteral("Refreshing NicNames, Please Standby ..."));
    case NamesShown::Descriptions:
        return Cancellable(QStringLiteral("Refreshing Descriptions, Please Standby ..."));
    case NamesShown::None:
        break;
    }
    WaitJobFace face = Cancellable(plainMessage);
    face.centred = false;
    return face;
}

WaitJobFace TransferFace(qint16 xferMode) {
    switch (xferMode) {
    case XferMode::Download:
        return Cancellable(QStringLiteral("Downloading Target Board Data, Please Standby ..."));
    case XferMode::Upload:
        return Cancellable(QStringLiteral("Uploading Target Board Data, Please Standby ..."));
    case XferMode::Datafile:
        return Cancellable(QStringLiteral("Downloading Datafile, Please Standby ..."));
    default:
        return Cancellable(plainMessage);
    }
}

WaitJobFace PrintingFace(const QString& message) {
    WaitJobFace face;
    face.message = message;
    face.cancelEnabled = false;
    face.barShown = false;
    face.messageLowered = true;
    return face;
}

WaitJobFace PLSFace(const QString& message, bool secondLineShown) {
    WaitJobFace face;
    face.message = message;
    face.cancelEnabled = false;
    face.secondLineShown = secondLineShown;
    return face;
}
} // namespace

WaitJobFace FaceOfWaitJob(qint16 code, qint16 xferMode, NamesShown names) {
    switch (code) {
    case WaitJob::ReadAddresses:
        return Cancellable(QStringLiteral("Reading Variables, Please Standby ..."));
    case WaitJob::ReadNames:
        return NamesFace(names);
    case WaitJob::PrintStatusTable:
        return PrintingFace(QStringLiteral("Printing Status Table, Please Standby ..."));
    case WaitJob::TransferData:
        return TransferFace(xferMode);
    case WaitJob::PrintTrendData:
        return PrintingFace(QStringLiteral("Printing Trend Data, Please Standby ..."));
    case WaitJob::UploadPLSChannels:
        return PLSFace(QStringLiteral("Uploading PLS Configuration, Please Standby ..."), true);
    case WaitJob::DownloadPLSChannels:
        return PLSFace(QStringLiteral("Downloading PLS Configuration, Please Standby ..."), true);
    case WaitJob::ClearPLSChannels:
        return PLSFace(QStringLiteral("Clearing PLS Channel Setpoints, Please Standby ..."), false);
    default:
        return Cancellable(plainMessage);
    }
}

void WaitJobs::Register(qint16 code, Routine routine) {
    routines_[code] = std::move(routine);
}

void WaitJobs::RegisterNamesShown(std::function<NamesShown()> namesShown) {
    namesShown_ = std::move(namesShown);
}

WaitJobFace WaitJobs::Face(qint16 code) const {
    return FaceOfWaitJob(code, gXferMode, namesShown_ ? namesShown_() : NamesShown::None);
}

void WaitJobs::Run(qint16 code, JobProgress& progress) const {
    const auto found = routines_.find(code);
    if (found != routines_.end())
        found->second(progress);
}
