#include "campaign/HostileRun.h"

#include "pls/PLSJobs.h"
#include "pls/RecallChannelSetpoints.h"
#include "session/Globals.h"
#include <array>

// What the user of a run does with a limit switch board, and what may change by it.

void HostileRun::DoSomethingWithLimitSwitch() {
    using Deed = void (HostileRun::*)();
    constexpr std::array<Deed, 10> deeds{
        &HostileRun::AskLimitSwitch,    &HostileRun::AskLimitSwitch,
        &HostileRun::ProgramChannel,    &HostileRun::ProgramChannel,
        &HostileRun::ProgramChannel,    &HostileRun::SetOffset,
        &HostileRun::SendConfiguration, &HostileRun::UploadLimitSwitch,
        &HostileRun::ClearLimitSwitch,  &HostileRun::DownloadLimitSwitch};
    (this->*deeds.at(static_cast<std::size_t>(Number(0, int(deeds.size()) - 1))))();
}

void HostileRun::AskLimitSwitch() {
    story_ += QStringLiteral("ask the limit switch");
    for (int questions = Number(1, 8); questions > 0; --questions) {
        link_.PLSRpm();
        link_.PLSPos();
        link_.PLSOffset();
        link_.PLSScaleFactor();
        if (Chance(0.3))
            link_.FaultCode();
        if (Chance(0.3))
            link_.PLSConfigUpload();
        const auto channel = static_cast<qint16>(Number(0, 15));
        if (Chance(0.5))
            link_.RecallChannel(channel);
        if (Chance(0.3))
            RecallChannelSetpoints(channel, link_, user_);
    }
}

void HostileRun::ProgramChannel() {
    for (int commands = Number(1, 5); commands > 0; --commands) {
        const auto channel = static_cast<qint16>(Number(0, 15));
        const auto on = static_cast<qint16>(Number(0, 359));
        const auto off = static_cast<qint16>(Number(0, 359));
        anyEdges_.set(static_cast<std::size_t>(channel));
        story_ += QStringLiteral("program channel %1").arg(channel);
        if (Chance(0.2))
            link_.ClearPLSChan(channel);
        else if (Chance(0.2))
            link_.PulseTrain(channel, 5, 4, on);
        else
            link_.SingleSetpoint(channel, on, off, Chance(0.5));
    }
}

void HostileRun::SetOffset() {
    story_ += QStringLiteral("set the offset");
    anyOffset_ = true;
    link_.SetPLSOffset(static_cast<qint16>(Number(0, 359)));
}

// A new scale factor clears all channels, and one that was cut short may be any.
void HostileRun::SendConfiguration() {
    story_ += QStringLiteral("send a configuration");
    anyConfiguration_ = true;
    std::array<qint16, 24> table{};
    for (qint16& value : table)
        value = static_cast<qint16>(Number(0, 255));
    table[18] = 16;
    link_.PLSConfigDownload(table, static_cast<qint16>(Number(2, 512)));
}

void HostileRun::UploadLimitSwitch() {
    story_ += QStringLiteral("job 6");
    gPLS = PLSRecord();
    gHdnFile = Path(QStringLiteral("L.hdn"));
    Write(QStringLiteral("L.hdn"), QByteArray(1, static_cast<char>(board_.Model().index)) + "\r\n");
    RandomProgress progress(random_);
    PLSJobs(link_, user_).UploadPLSChannels(progress);
    const bool cleanEnd = !link_.CommError() && link_.OnlineMode();
    if (cleanEnd && !gPLS.CHLText.endsWith(u'%'))
        Fail(QStringLiteral("an upload that ended well has no whole text"));
}

void HostileRun::DownloadLimitSwitch() {
    story_ += QStringLiteral("job 7");
    anyConfiguration_ = true;
    gPLS = PLSRecord();
    gHdnFile = Path(QStringLiteral("L.hdn"));
    Write(QStringLiteral("L.hdn"), QByteArray(1, static_cast<char>(board_.Model().index)) + "\r\n");
    RandomProgress progress(random_);
    PLSJobs(link_, user_).DownloadPLSChannels(progress);
}

void HostileRun::ClearLimitSwitch() {
    story_ += QStringLiteral("job 8");
    anyEdges_.set();
    gPLS = PLSRecord();
    gPLS.Channels = 16;
    gPLS.ScaleFactor = 360;
    RandomProgress progress(random_);
    PLSJobs(link_, user_).ClearPLSChannels(progress);
}
