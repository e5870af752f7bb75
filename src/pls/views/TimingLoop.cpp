#include "pls/views/TimingLoop.h"

#include "base/NumberReader.h"
#include "controls/grid/Grid.h"
#include "link/RSComm.h"
#include "pls/PLSConfigTable.h"
#include "pls/views/ChannelDisplay.h"
#include "pls/views/ConfigEditor.h"
#include "pls/views/TimingScreen.h"
#include "session/CommMode.h"
#include "session/Globals.h"
#include <QComboBox>
#include <utility>

namespace {
int Number(const QString& reading) {
    return static_cast<int>(WholeNumberValue(reading));
}
} // namespace

TimingLoop::TimingLoop(const TimingSeams& seams, TimingScreen& screen, ConfigEditor& config,
                       ChannelDisplay& channels)
    : seams_(seams), screen_(screen), config_(config), channels_(channels), form_(screen.Form()),
      state_(screen.State()) {}

ViewLoop::Step TimingLoop::TakeStep() {
    if (!state_.running || state_.busy || !screen_.IsVisible() || seams_.link.OperationRuns())
        return Step::Rest;
    if (seams_.link.CommError()) {
        seams_.link.SetOnlineMode(false);
        state_.gFirstPassOnline = false;
        seams_.mode.RefreshCommMode();
    }
    return seams_.link.OnlineMode() ? OnlineStep() : OfflineStep();
}

void TimingLoop::Stop() {
    state_.running = false;
    state_.gFirstPassOnline = false;
    state_.offlineShown = false;
    next_ = Reading::Speed;
}

ViewLoop::Step TimingLoop::OfflineStep() {
    next_ = Reading::Speed;
    if (!std::exchange(state_.offlineShown, true)) {
        EnterOffline();
        screen_.FocusDefault();
    }
    state_.gFirstPassOnline = false;
    return Step::Rest;
}

ViewLoop::Step TimingLoop::OnlineStep() {
    if (!state_.gFirstPassOnline) {
        next_ = Reading::Speed;
        EnterOnline();
        if (screen_.IsVisible() && state_.running)
            screen_.FocusDefault();
        state_.offlineShown = false;
        return Step::Worked;
    }
    switch (std::exchange(next_, Reading::Speed)) {
    case Reading::Speed:
        ReadSpeed();
        break;
    case Reading::Position:
        ReadPosition();
        break;
    case Reading::Offset:
        ReadOffset();
        break;
    }
    return Step::Worked;
}

// After a read: a box of the link may have been up, and behind it the view may have been closed.
bool TimingLoop::MayRead() const {
    return state_.running && seams_.link.OnlineMode() && !seams_.link.CommError();
}

// The first reading of 0 counts as a stop.
void TimingLoop::ClearMachine() {
    state_.motion.Clear();
}

// After a link failure on the way the next step takes the view offline.
void TimingLoop::EnterOnline() {
    state_.enablement.BeginOnline();
    screen_.ShowEnablement();
    state_.boardIndex = PLSBoardIndexAt(form_.cboTargetBoard->currentIndex());
    channels_.UploadChannels();
    if (!MayRead())
        return;
    ClearMachine();
    state_.enablement.FinishOnline();
    screen_.ShowEnablement();
    screen_.SetPositionMax(HighestPosition(gPLS.ScaleFactor));
    screen_.ShowTimingText(TimingEntryIndex::Setpoint, QStringLiteral("0"));
    form_.fgPLSChannels->SetCell(1, 1);
    if (screen_.IsVisible())
        form_.fgPLSChannels->setFocus();
    state_.gFirstPassOnline = true;
}

void TimingLoop::EnterOffline() {
    ClearMachine();
    state_.enablement.EnterOffline();
    screen_.ShowEnablement();
    screen_.ClearPanels();
    config_.ShowOffline();
    screen_.ClearTimingTexts();
    state_.gPLSUploadComplete = false;
    screen_.ShowCycle();
}

void TimingLoop::ReadSpeed() {
    const int rpm = Number(seams_.link.PLSRpm());
    if (!MayRead())
        return;
    form_.ShowPanel(MachinePanel::Speed, MachineTexts::Speed(rpm));
    state_.motion.SpeedRead(rpm);
    if (state_.motion.JustStopped())
        MachineStoppedNow();
    else if (state_.motion.JustStarted())
        MachineStartedNow();
    next_ = Reading::Position;
}

void TimingLoop::MachineStoppedNow() {
    config_.EnableConfigControls();
    screen_.EnableOffsetControls();
}

void TimingLoop::MachineStartedNow() {
    screen_.DisableConfigControls();
    screen_.DisableOffsetControls();
}

// The speed is read again: it tells whether a position is worth showing at this moment.
void TimingLoop::ReadPosition() {
    const int rpm = Number(seams_.link.PLSRpm());
    if (!MayRead())
        return;
    if (MachineTexts::ReadsPosition(rpm)) {
        const QString position = seams_.link.PLSPos();
        if (!MayRead())
            return;
        form_.ShowPanel(MachinePanel::Position, MachineTexts::Position(position));
        state_.position = Number(position);
    } else {
        form_.ShowPanel(MachinePanel::Position, QLatin1String(MachineTexts::fastPosition));
        state_.position.reset();
    }
    screen_.ShowCycle();
    next_ = Reading::Offset;
}

void TimingLoop::ReadOffset() {
    const QString offset = seams_.link.PLSOffset();
    if (!MayRead())
        return;
    form_.ShowPanel(MachinePanel::Offset, MachineTexts::Offset(offset));
    screen_.AfterTick(ConfigChanged());
}
