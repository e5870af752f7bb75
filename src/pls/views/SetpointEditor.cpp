#include "pls/views/SetpointEditor.h"

#include "base/Dialogs.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "link/RSComm.h"
#include "pls/SetpointRules.h"
#include "pls/SetpointTexts.h"
#include "pls/views/ChannelDisplay.h"
#include "pls/views/TimingScreen.h"
#include "session/Globals.h"

namespace {
SetpointList& SetpointsOf(qint16 channel) {
    return gPLS.Chan[static_cast<std::size_t>(channel)];
}
} // namespace

SetpointEditor::SetpointEditor(const TimingSeams& seams, TimingScreen& screen,
                               ChannelDisplay& channels)
    : seams_(seams), screen_(screen), channels_(channels), state_(screen.State()) {}

bool SetpointEditor::LinkFailed() const {
    return seams_.link.CommError() || !state_.running;
}

// What the board holds now, with one setpoint in the entries.
void SetpointEditor::ShowBoard(qint16 channel, int index) {
    channels_.DisplayPLSChannels();
    if (LinkFailed())
        return;
    screen_.EnableChannelControls();
    screen_.ShowSetpoint(ShowSetpoint(gPLS, channel, index));
}

void SetpointEditor::TellRefusedSetpoint(const char* title) {
    seams_.dialogs.MsgBox(SetpointTexts::UnableToProgramSetpoint(screen_.ChannelName()),
                          MsgStyle::Exclamation, QLatin1String(title));
}

void SetpointEditor::cmdAddSetpoint_Click() {
    const qint16 channel = screen_.Channel();
    const Setpoint candidate = screen_.TypedSetpoint();
    const auto refusal = RefusesAdd(SetpointsOf(channel), candidate, gPLS.ScaleFactor);
    if (refusal) {
        seams_.dialogs.MsgBox(refusal->text, MsgStyle::Information, refusal->title);
        return;
    }
    const BusyHandler busy(screen_);
    if (!seams_.link.OnlineMode() || AddToBoard(channel, candidate))
        ShowBoard(channel, 0);
}

bool SetpointEditor::AddToBoard(qint16 channel, Setpoint candidate) {
    const bool taken = seams_.link.SingleSetpoint(channel, candidate.on, candidate.off,
                                                  AddClearsChannel(SetpointsOf(channel)));
    if (LinkFailed())
        return false;
    if (!taken) {
        TellRefusedSetpoint(SetpointTexts::addTitle);
        return true;
    }
    screen_.DisableChannelControls();
    return channels_.RecallChannel(channel, false);
}

// The channel is cleared and written anew. Without a setpoint to replace it would be lost.
void SetpointEditor::cmdAdjustSetpoint_Click() {
    const qint16 channel = screen_.Channel();
    const int index = screen_.TimingNumber(TimingEntryIndex::Setpoint);
    const Setpoint candidate = screen_.TypedSetpoint();
    const SetpointList& setpoints = SetpointsOf(channel);
    const auto refusal = RefusesAdjust(setpoints, index, candidate, gPLS.ScaleFactor);
    if (refusal) {
        seams_.dialogs.MsgBox(refusal->text, MsgStyle::Information, refusal->title);
        return;
    }
    if (!HasSetpoint(setpoints, index))
        return;
    const BusyHandler busy(screen_);
    screen_.DisableChannelControls();
    if (!seams_.link.OnlineMode() || AdjustInBoard(channel, index, candidate))
        ShowBoard(channel, index);
}

bool SetpointEditor::AdjustInBoard(qint16 channel, int index, Setpoint candidate) {
    if (seams_.link.ClearPLSChan(channel)) {
        SetpointList& setpoints = SetpointsOf(channel);
        setpoints = AdjustedSetpoints(setpoints, index, candidate);
        if (!RewriteChannel(channel))
            return false;
    }
    return !LinkFailed() && channels_.RecallChannel(channel, true);
}

// False when the link failed; a setpoint that the board does not take ends the rewrite only.
bool SetpointEditor::RewriteChannel(qint16 channel) {
    for (const Setpoint setpoint : SetpointList(SetpointsOf(channel))) {
        const bool taken = seams_.link.SingleSetpoint(channel, setpoint.on, setpoint.off, false);
        if (LinkFailed())
            return false;
        if (!taken) {
            TellRefusedSetpoint(SetpointTexts::adjustEqualTitle);
            break;
        }
    }
    return true;
}

void SetpointEditor::cmdPulseTrain_Click() {
    const BusyHandler busy(screen_);
    const qint16 channel = screen_.Channel();
    const Setpoint divisions = screen_.TypedSetpoint();
    const auto start = static_cast<qint16>(screen_.TimingNumber(TimingEntryIndex::Start));
    screen_.DisableChannelControls();
    if (seams_.link.OnlineMode()) {
        const bool taken = seams_.link.PulseTrain(channel, divisions.on, divisions.off, start);
        if (LinkFailed())
            return;
        if (taken && !channels_.RecallChannel(channel, true))
            return;
        if (!taken)
            seams_.dialogs.MsgBox(SetpointTexts::UnableToProgramPulseTrain(screen_.ChannelName()),
                                  MsgStyle::Exclamation,
                                  QLatin1String(SetpointTexts::pulseTrainTitle));
    }
    channels_.DisplayPLSChannels();
    if (!LinkFailed())
        screen_.EnableChannelControls();
}

void SetpointEditor::cmdRecallChan_Click() {
    const BusyHandler busy(screen_);
    const qint16 channel = screen_.Channel();
    screen_.DisableChannelControls();
    if (channels_.RecallChannel(channel, true))
        ShowBoard(channel, 0);
}

void SetpointEditor::cmdClearChan_Click() {
    const qint16 channel = screen_.Channel();
    const int answer = seams_.dialogs.MsgBox(
        SetpointTexts::ClearChannelQuestion(screen_.ChannelName()), MsgStyle::YesNoCancelQuestion,
        QLatin1String(SetpointTexts::clearChannelTitle));
    if (answer != MsgAnswer::Yes)
        return;
    const BusyHandler busy(screen_);
    if (!ClearInBoard(channel))
        return;
    channels_.DisplayPLSChannels();
    if (!LinkFailed())
        screen_.ShowSetpoint(ShowSetpoint(gPLS, channel, 0));
}

// False when the link failed.
bool SetpointEditor::ClearInBoard(qint16 channel) {
    while (seams_.link.OnlineMode()) {
        const bool cleared = seams_.link.ClearPLSChan(channel);
        if (LinkFailed())
            return false;
        if (cleared)
            return channels_.RecallChannel(channel, false);
        const int answer = seams_.dialogs.MsgBox(QLatin1String(SetpointTexts::unableToClear),
                                                 MsgStyle::RetryCancelQuestion,
                                                 QLatin1String(SetpointTexts::clearChannelTitle));
        if (answer != MsgAnswer::Retry)
            break;
    }
    return true;
}

void SetpointEditor::cmdClearAll_Click() {
    const int answer =
        seams_.dialogs.MsgBox(QLatin1String(SetpointTexts::clearAll), MsgStyle::YesNoCancelQuestion,
                              QLatin1String(SetpointTexts::clearAllTitle));
    if (answer != MsgAnswer::Yes)
        return;
    const BusyHandler busy(screen_);
    if (seams_.link.OnlineMode())
        seams_.jobs.RunWaitJob(WaitJob::ClearPLSChannels);
    channels_.DisplayPLSChannels();
}

void SetpointEditor::ChannelEntered(int name) {
    const ::ChannelEntered entered = ValidateChannelEntry(gPLS, name);
    screen_.ShowTimingText(TimingEntryIndex::Channel, QString::number(entered.name));
    screen_.ShowTimingText(TimingEntryIndex::Setpoint, QStringLiteral("0"));
    screen_.ShowEnds(entered.shown);
}

void SetpointEditor::SetpointEntered(int index) {
    screen_.ShowEnds(ShowSetpoint(gPLS, screen_.Channel(), index));
}
