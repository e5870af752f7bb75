#include "pls/views/ConfigEditor.h"

#include "base/NumberReader.h"
#include "controls/entry/EntryUpDown.h"
#include "link/RSComm.h"
#include "pls/ChannelEntry.h"
#include "pls/PLSConfigTable.h"
#include "pls/views/TimingScreen.h"
#include "session/Globals.h"
#include <optional>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>

namespace {
constexpr int smallestScale = 2;
constexpr int largestScale = 4096;

// What a command of the board read, or nothing when it failed: "-9999" is no reading. A number out
// of bounds counts if an earlier reading gave it too: then the board does hold it.
std::optional<qint16> Reading(const QString& text, int least, int most, qint16 known) {
    const qint64 number = WholeNumberValue(text);
    if (number != known && (number < least || number > most))
        return std::nullopt;
    return static_cast<qint16>(number);
}

// Checks option `chosen` of a group; -1 leaves none checked.
template <std::size_t count>
void Choose(const std::array<QRadioButton*, count>& options, int chosen) {
    QButtonGroup* group = options[0]->group();
    group->setExclusive(false);
    for (std::size_t i = 0; i < count; ++i)
        options[i]->setChecked(static_cast<int>(i) == chosen);
    group->setExclusive(true);
}

void Check(QCheckBox& box, bool checked) {
    const QSignalBlocker quiet(box);
    box.setChecked(checked);
}
} // namespace

ConfigEditor::ConfigEditor(const TimingSeams& seams, TimingScreen& screen)
    : link_(seams.link), screen_(screen), form_(screen.Form()), state_(screen.State()) {}

void ConfigEditor::ReadBoardConfig() {
    if (!link_.OnlineMode() || link_.CommError())
        return;
    const PLSConfigTable table = link_.PLSConfigUpload();
    if (link_.CommError() || !ReadNumbers())
        return;
    ApplyPLSConfig(table, PLSBoardIndexAt(form_.cboTargetBoard->currentIndex()));
    ShowConfig();
}

// A number that no board should have stays out of gPLS: it would be taken for an edit and sent
// back.
bool ConfigEditor::ReadNumbers() {
    const std::optional<qint16> scale =
        Reading(link_.PLSScaleFactor(), smallestScale, largestScale, gPLS.ScaleFactor);
    if (link_.CommError() || !scale)
        return false;
    gPLS.ScaleFactor = *scale;
    form_.ShowPanel(MachinePanel::Scale, MachineTexts::Scale(*scale));
    const std::optional<qint16> offset = Reading(link_.PLSOffset(), 0, largestScale, gPLS.Offset);
    if (link_.CommError() || !offset)
        return false;
    gPLS.Offset = *offset;
    return true;
}

void ConfigEditor::ShowConfig() {
    if (state_.IsR6500()) {
        state_.coupling = ShowR6500(gPLS);
        ShowCoupling();
        for (int i = PLSEntryIndex::FirstSpeedComp; i <= PLSEntryIndex::LastSpeedComp; ++i)
            ShowEntry(i);
    } else {
        ShowStandardConfig();
    }
    screen_.ShowTimingText(TimingEntryIndex::Offset, QStringLiteral("0"));
    for (const int index : {TimingEntryIndex::On, TimingEntryIndex::Off, TimingEntryIndex::Start})
        screen_.ShowTimingText(index, QStringLiteral("0"));
    screen_.SetPositionMax(HighestPosition(gPLS.ScaleFactor));
    screen_.ShowCycle();
}

// The channel entry goes as far as the option shown, whatever count the board gave.
void ConfigEditor::ShowStandardConfig() {
    ShowChoices();
    const int option = StandardOptionFor(gPLS.Channels);
    screen_.SetChannelMax(HighestChannelName(StandardChannelsOf(option)));
    SetWindowMax();
    for (int i = PLSEntryIndex::StandardScale; i < plsEntryCount; ++i)
        ShowEntry(i);
    ShowSwitches();
}

// Only while the check boxes are on themselves: they are off while the machine moves.
void ConfigEditor::ShowSwitches() {
    TimingEnablement& enablement = state_.enablement;
    if (enablement.IsEnabled(TimingControl::chkR6BWComp))
        enablement.BrakeWearClicked(IsSwitchedOn(gPLS, brakeWearSwitch), true);
    if (enablement.IsEnabled(TimingControl::chkR6SpdWinEn))
        enablement.SpeedWindowClicked(IsSwitchedOn(gPLS, speedWindowSwitch), true);
    screen_.ShowEnablement();
}

void ConfigEditor::ShowChoices() {
    if (state_.IsR6500()) {
        Choose(form_.optPlsChan, state_.coupling.option);
        return;
    }
    Choose(form_.optR6PlsChan, StandardOptionFor(gPLS.Channels));
    Check(*form_.chkR6BWComp, IsSwitchedOn(gPLS, brakeWearSwitch));
    Check(*form_.chkR6SpdWinEn, IsSwitchedOn(gPLS, speedWindowSwitch));
}

void ConfigEditor::SetWindowMax() {
    for (const int index :
         {PLSEntryIndex::StopLocation, PLSEntryIndex::WindowOn, PLSEntryIndex::WindowOff})
        form_.Config(index).upDown->SetRange(0, HighestPosition(gPLS.ScaleFactor));
}

void ConfigEditor::ShowEntry(int index) {
    form_.Config(index).box->setText(QString::number(ReadConfigEntry(gPLS, index)));
}

// The ranges before the texts, which they hold.
void ConfigEditor::ShowCoupling() {
    const R6500Coupling& coupling = state_.coupling;
    ShowChoices();
    form_.Config(PLSEntryIndex::Scale).upDown->SetRange(smallestScale, coupling.scaleMax);
    form_.Config(PLSEntryIndex::Program).upDown->SetRange(0, coupling.programMax);
    form_.Config(PLSEntryIndex::Scale).box->setText(QString::number(coupling.scale));
    form_.Config(PLSEntryIndex::Program).box->setText(QString::number(coupling.program));
    screen_.SetChannelMax(coupling.channelMax);
    screen_.SetPositionMax(coupling.positionMax);
    if (std::exchange(state_.coupling.channelEntryToZero, false))
        ChannelEntryToZero();
}

// The fields may be newer than what was shown last, as when a reading failed behind an upload.
void ConfigEditor::ChangeCoupling(R6500Coupling (*change)(R6500Coupling, int), int value) {
    state_.coupling = change(WithFieldsOf(gPLS, state_.coupling), value);
    StoreCoupling(state_.coupling, gPLS);
    state_.enablement.FitChannelOptions(state_.coupling.optionEnabled);
    ShowCoupling();
    screen_.ShowEnablement();
    screen_.ShowCycle();
}

void ConfigEditor::ChannelEntryToZero() {
    form_.Timing(TimingEntryIndex::Channel).upDown->SetValue(0);
    screen_.ShowSetpoint(ShowSetpoint(gPLS, 0, 0));
}

void ConfigEditor::EnableConfigControls() {
    state_.enablement.EnableConfigControls(form_.chkR6BWComp->isChecked(),
                                           form_.chkR6SpdWinEn->isChecked());
    if (state_.IsR6500())
        state_.enablement.FitChannelOptions(OptionsForScale(gPLS.ScaleFactor));
    screen_.ShowEnablement();
}

// The option is chosen, not only shown: the next reset sends the number of channels on the screen.
void ConfigEditor::ShowRefusedConfig() {
    if (state_.IsR6500())
        optPlsChan_Click(0);
    for (int i = PLSEntryIndex::Scale; i <= PLSEntryIndex::LastSpeedComp; ++i)
        form_.Config(i).box->setText(QStringLiteral("---"));
}

void ConfigEditor::ShowOffline() {
    for (int i = 0; i < plsEntryCount; ++i)
        form_.Config(i).box->setText(QStringLiteral("-"));
    Choose(form_.optPlsChan, -1);
    Choose(form_.optR6PlsChan, -1);
}

void ConfigEditor::EntryAccepted(int index, int value) {
    state_.enablement.EntryStored();
    switch (index) {
    case PLSEntryIndex::Scale:
        ChangeCoupling(&ScaleStored, value);
        break;
    case PLSEntryIndex::Program:
        ChangeCoupling(&ProgramStored, value);
        break;
    case PLSEntryIndex::StandardScale:
        StandardScaleStored(value);
        break;
    default:
        StoreConfigEntry(gPLS, index, static_cast<qint16>(value));
        ShowEntry(index);
    }
    screen_.ShowEnablement();
}

void ConfigEditor::StandardScaleStored(int scale) {
    StorePositions(ScaleStored(PositionsOf(gPLS), scale), gPLS);
    screen_.SetPositionMax(HighestPosition(scale));
    SetWindowMax();
    for (const int index : {PLSEntryIndex::StandardScale, PLSEntryIndex::StopLocation,
                            PLSEntryIndex::WindowOn, PLSEntryIndex::WindowOff})
        ShowEntry(index);
    screen_.ShowCycle();
}

void ConfigEditor::EntryAbandoned(int index) {
    if (IsR6500Entry(index) == state_.IsR6500() && gPLS.ScaleFactor > 0)
        ShowEntry(index);
}

// Only offline: while the view is online the list is off.
void ConfigEditor::cboTargetBoard_Click(int position) {
    state_.boardIndex = PLSBoardIndexAt(position);
    state_.enablement.SelectBoard(state_.boardIndex, state_.gFirstPassOnline);
    screen_.ShowEnablement();
}

void ConfigEditor::optPlsChan_Click(int option) {
    ChangeCoupling(&PLSChanClicked, option);
}

void ConfigEditor::optR6PlsChan_Click(int option) {
    gPLS.Channels = static_cast<qint16>(StandardChannelsOf(option));
    screen_.SetChannelMax(HighestChannelName(gPLS.Channels));
    ChannelEntryToZero();
}

void ConfigEditor::chkR6BWComp_Click(bool checked) {
    state_.enablement.BrakeWearClicked(checked, state_.gFirstPassOnline);
    SwitchClickedTo(brakeWearSwitch, checked);
}

void ConfigEditor::chkR6SpdWinEn_Click(bool checked) {
    state_.enablement.SpeedWindowClicked(checked, state_.gFirstPassOnline);
    SwitchClickedTo(speedWindowSwitch, checked);
}

void ConfigEditor::SwitchClickedTo(const OptionSwitch& option, bool checked) {
    if (!state_.gFirstPassOnline)
        return;
    SwitchClicked(gPLS, option, checked, true);
    screen_.ShowEnablement();
    for (int i = option.firstEntry; i <= option.lastEntry; ++i)
        ShowEntry(i);
}
