#include "pls/views/TimingScreen.h"

#include "base/NumberReader.h"
#include "controls/entry/EntryUpDown.h"
#include "controls/entry/NumericEntries.h"
#include "controls/grid/Grid.h"
#include "link/RSComm.h"
#include "pls/views/CycleStripView.h"
#include "pls/views/PanelRow.h"
#include "session/Globals.h"
#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {
using Control = TimingControl;
using Family = TimingFamily;

constexpr int offsetFrame = 3;
constexpr int firstStandardFrame = 5;
constexpr int lastStandardFrame = 7;

bool IsOffsetOrConfig(int frame) {
    return frame == 0 || frame == 1 || frame == offsetFrame ||
           (frame >= firstStandardFrame && frame <= lastStandardFrame);
}

qint16 Held16(int value) {
    return static_cast<qint16>(std::clamp(value, -32768, 32767));
}
} // namespace

TimingScreen::TimingScreen(QWidget& view, TimingForm& form, TimingState& state,
                           NumericEntries& entries)
    : view_(view), form_(form), state_(state), entries_(entries) {}

// Entries first: one that the user is in is left in an orderly way before its frame goes off.
void TimingScreen::ShowEnablement() {
    ShowEntries();
    ShowFamilies();
    ShowControls();
    ShowFrames();
}

bool TimingScreen::IsBlocked(int frame) const {
    return state_.busy && IsOffsetOrConfig(frame);
}

// The focus never strays into the next control by itself.
void TimingScreen::Enable(QWidget& control, bool enabled) {
    if (control.isEnabledTo(control.parentWidget()) == enabled)
        return;
    QWidget* focused = view_.window()->focusWidget();
    if (!enabled && focused && (focused == &control || control.isAncestorOf(focused)))
        FocusDefault();
    control.setEnabled(enabled);
}

void TimingScreen::ShowEntries() {
    const TimingEnablement& enablement = state_.enablement;
    const auto show = [&](int entry, const EntryParts& parts, bool live) {
        if (parts.box->isEnabledTo(parts.pair) != live)
            entries_.SetEnabled(entry, live);
    };
    for (int i = 0; i < plsEntryCount; ++i)
        show(i, form_.Config(i),
             enablement.IsLive(Family::txtPLS_CFG, i) &&
                 !IsBlocked(FrameOf(Family::txtPLS_CFG, i)));
    for (int i = 0; i < timingEntryCount; ++i)
        show(EntryOfTiming(i), form_.Timing(i),
             enablement.IsLive(Family::txtTmg, i) && !IsBlocked(FrameOf(Family::txtTmg, i)));
}

void TimingScreen::ShowFamilies() {
    const TimingEnablement& enablement = state_.enablement;
    const auto show = [&](auto& controls, Family family) {
        for (int i = 0; i < static_cast<int>(controls.size()); ++i)
            Enable(*controls[static_cast<std::size_t>(i)], enablement.IsEnabled(family, i));
    };
    show(form_.optPlsChan, Family::optPlsChan);
    show(form_.optR6PlsChan, Family::optR6PlsChan);
    show(form_.lblBWComp, Family::lblBWComp);
    for (int i = 0; i < plsEntryCount; ++i)
        Enable(*form_.Config(i).label, enablement.IsEnabled(Family::lblPLS_CFG, i));
    for (int i = 0; i < timingEntryCount; ++i) {
        if (QLabel* label = form_.Timing(i).label)
            Enable(*label, enablement.IsEnabled(Family::lblTmg, SetpointEntry(i).label));
    }
}

void TimingScreen::ShowControls() {
    const std::pair<QWidget*, Control> controls[] = {
        {form_.cmdResetPLSConfig, Control::cmdResetPLSConfig},
        {form_.cmdSetOffset, Control::cmdSetOffset},
        {form_.cmdRecallChan, Control::cmdRecallChan},
        {form_.cmdClearChan, Control::cmdClearChan},
        {form_.cmdClearAll, Control::cmdClearAll},
        {form_.cmdAddSetpoint, Control::cmdAddSetpoint},
        {form_.cmdAdjustSetpoint, Control::cmdAdjustSetpoint},
        {form_.cmdPulseTrain, Control::cmdPulseTrain},
        {form_.chkR6BWComp, Control::chkR6BWComp},
        {form_.chkR6SpdWinEn, Control::chkR6SpdWinEn},
        {form_.fgPLSChannels, Control::fgPLSChannels},
        {form_.picCycle, Control::fgPLSChannels},
        {form_.sbrMachineTiming, Control::sbrMachineTiming},
        {form_.lblTargetBoard, Control::lblTargetBoard},
        {form_.cboTargetBoard, Control::cboTargetBoard}};
    for (const auto& [widget, control] : controls) {
        const bool blocked = state_.busy && control == Control::cmdResetPLSConfig;
        Enable(*widget, state_.enablement.IsEnabled(control) && !blocked);
    }
}

// What goes away goes first: both layouts together would make the window grow.
void TimingScreen::ShowFrames() {
    for (const bool shown : {false, true}) {
        for (int frame = 0; frame < static_cast<int>(form_.fraTmg.size()); ++frame) {
            if (state_.enablement.FrameVisible(frame) == shown)
                form_.fraTmg[static_cast<std::size_t>(frame)]->setVisible(shown);
        }
    }
    for (int frame = 0; frame < static_cast<int>(form_.fraTmg.size()); ++frame)
        Enable(*form_.fraTmg[static_cast<std::size_t>(frame)],
               state_.enablement.IsEnabled(Family::fraTmg, frame) && !IsBlocked(frame));
}

void TimingScreen::DisableOffsetControls() {
    state_.enablement.DisableOffsetControls();
    ShowEnablement();
    ShowTimingText(TimingEntryIndex::Offset, QStringLiteral("-"));
}

void TimingScreen::EnableOffsetControls() {
    state_.enablement.EnableOffsetControls();
    ShowEnablement();
    ShowTimingText(TimingEntryIndex::Offset, QStringLiteral("0"));
}

void TimingScreen::DisableChannelControls() {
    state_.enablement.DisableChannelControls();
    ShowEnablement();
}

void TimingScreen::EnableChannelControls() {
    state_.enablement.EnableChannelControls();
    ShowEnablement();
}

void TimingScreen::DisableConfigControls() {
    state_.enablement.DisableConfigControls();
    ShowEnablement();
}

// Once a turn of the loop: nothing is to be done as long as nothing changes.
void TimingScreen::AfterTick(bool configChanged) {
    TimingEnablement& enablement = state_.enablement;
    const TimingEnablement before = enablement;
    enablement.AfterTick(state_.motion.MachineStopped(), configChanged);
    if (before == enablement)
        return;
    ShowEnablement();
    const bool live = enablement.IsEnabled(Family::txtTmg, TimingEntryIndex::Offset);
    if (live != before.IsEnabled(Family::txtTmg, TimingEntryIndex::Offset))
        ShowTimingText(TimingEntryIndex::Offset, live ? QStringLiteral("0") : QStringLiteral("-"));
}

void TimingScreen::ShowSetpoint(const ShownSetpoint& shown) {
    ShowTimingText(TimingEntryIndex::Channel,
                   QString::number(RSComm::Dec2Octal(Held16(shown.channel))));
    ShowTimingText(TimingEntryIndex::Setpoint, QString::number(shown.index));
    ShowEnds(shown);
}

void TimingScreen::ShowEnds(const ShownSetpoint& shown) {
    form_.Timing(TimingEntryIndex::Setpoint).upDown->SetRange(0, shown.lastIndex);
    const auto text = [&](qint16 Setpoint::*end) {
        return shown.setpoint ? QString::number((*shown.setpoint).*end) : QString();
    };
    ShowTimingText(TimingEntryIndex::On, text(&Setpoint::on));
    ShowTimingText(TimingEntryIndex::Off, text(&Setpoint::off));
    ShowCycle();
}

void TimingScreen::ShowTimingText(int index, const QString& text) {
    QLineEdit* box = form_.Timing(index).box;
    if (box->text() != text)
        box->setText(text);
}

void TimingScreen::ClearTimingTexts() {
    for (int i = 0; i < timingEntryCount; ++i)
        ShowTimingText(i, QStringLiteral("-"));
}

void TimingScreen::SetPositionMax(int max) {
    for (int i = 0; i < timingEntryCount; ++i) {
        if (SetpointEntry(i).isPosition)
            form_.Timing(i).upDown->SetRange(0, max);
    }
}

void TimingScreen::SetChannelMax(int name) {
    form_.Timing(TimingEntryIndex::Channel).upDown->SetRange(0, name);
}

void TimingScreen::ClearPanels() {
    form_.ShowPanel(MachinePanel::Speed, QLatin1String(MachineTexts::noSpeed));
    form_.ShowPanel(MachinePanel::Position, QLatin1String(MachineTexts::noPosition));
    form_.ShowPanel(MachinePanel::Offset, QLatin1String(MachineTexts::noOffset));
    form_.ShowPanel(MachinePanel::Scale, QLatin1String(MachineTexts::noScale));
    state_.position.reset();
}

int TimingScreen::TimingNumber(int index) const {
    const qint64 number = WholeNumberValue(form_.Timing(index).box->text());
    return static_cast<int>(std::clamp<qint64>(number, -32768, 32767));
}

qint16 TimingScreen::Channel() const {
    const int channel = RSComm::Octal2Dec(Held16(ChannelName()));
    return channel >= 0 && channel < plsChannelPlaces ? static_cast<qint16>(channel) : qint16(0);
}

Setpoint TimingScreen::TypedSetpoint() const {
    return {Held16(TimingNumber(TimingEntryIndex::Off)),
            Held16(TimingNumber(TimingEntryIndex::On))};
}

// Nothing is asked of the board for it.
void TimingScreen::ShowCycle() {
    const qint16 channel = Channel();
    ShownCycle cycle;
    cycle.scaleFactor = gPLS.ScaleFactor;
    if (gPLS.ScaleFactor > 0)
        cycle.channelName = QStringLiteral("CH%1").arg(RSComm::Dec2Octal(channel));
    cycle.setpoints = gPLS.Chan[static_cast<std::size_t>(channel)];
    cycle.position = state_.position;
    form_.picCycle->Show(cycle);
}

void TimingScreen::FocusDefault() {
    form_.cmdDefault->setFocus();
}

bool TimingScreen::IsVisible() const {
    return view_.isVisible();
}

BusyHandler::BusyHandler(TimingScreen& screen)
    : screen_(screen), focused_(screen.Form().cmdDefault->window()->focusWidget()) {
    screen_.State().busy = true;
    screen_.ShowEnablement();
}

BusyHandler::~BusyHandler() {
    screen_.State().busy = false;
    screen_.ShowEnablement();
    QWidget* cmdDefault = screen_.Form().cmdDefault;
    const bool strayed = cmdDefault->window()->focusWidget() == cmdDefault;
    if (strayed && focused_ && focused_->isEnabled() && screen_.IsVisible())
        focused_->setFocus();
}
