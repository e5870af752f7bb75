#include "pls/views/OffsetEditor.h"

#include "base/Dialogs.h"
#include "link/RSComm.h"
#include "pls/SetpointTexts.h"
#include "pls/views/ConfigEditor.h"
#include "pls/views/TimingScreen.h"
#include "session/Globals.h"

OffsetEditor::OffsetEditor(const TimingSeams& seams, TimingScreen& screen, ConfigEditor& config)
    : seams_(seams), screen_(screen), config_(config), state_(screen.State()) {}

void OffsetEditor::cmdSetOffset_Click() {
    const auto value = static_cast<qint16>(screen_.TimingNumber(TimingEntryIndex::Offset));
    if (seams_.link.OnlineMode()) {
        if (!Confirmed()) {
            screen_.ShowTimingText(TimingEntryIndex::Offset, QStringLiteral("0"));
            return;
        }
        const BusyHandler busy(screen_);
        BeginSetOffset();
        if (!SetInBoard(value))
            return;
    }
    EndSetOffset();
}

bool OffsetEditor::Confirmed() {
    return seams_.dialogs.MsgBox(QLatin1String(SetpointTexts::setOffset),
                                 MsgStyle::YesNoCancelQuestion,
                                 QLatin1String(SetpointTexts::setOffsetTitle)) == MsgAnswer::Yes;
}

void OffsetEditor::BeginSetOffset() {
    state_.enablement.BeginSetOffset();
    screen_.ShowEnablement();
    screen_.ShowTimingText(TimingEntryIndex::Offset, QStringLiteral("-"));
}

bool OffsetEditor::SetInBoard(qint16 value) {
    const bool taken = seams_.link.SetPLSOffset(value);
    if (seams_.link.CommError() || !state_.running)
        return false;
    if (taken) {
        gPLS.Offset = value;
        return true;
    }
    seams_.dialogs.MsgBox(QLatin1String(SetpointTexts::offsetRefused), MsgStyle::Critical,
                          QLatin1String(SetpointTexts::offsetRefusedTitle));
    screen_.ShowTimingText(TimingEntryIndex::Offset, QStringLiteral("0"));
    return false;
}

// A machine that has begun to move meanwhile gets nothing back before it stands again.
void OffsetEditor::EndSetOffset() {
    if (!state_.motion.MachineStopped())
        return;
    screen_.EnableOffsetControls();
    config_.EnableConfigControls();
    screen_.EnableChannelControls();
}
