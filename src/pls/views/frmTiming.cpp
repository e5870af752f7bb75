#include "pls/views/frmTiming.h"

#include "base/Dialogs.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "controls/entry/EntryUpDown.h"
#include "controls/grid/Grid.h"
#include "link/RSComm.h"
#include "programset/ProgramBoardIndex.h"
#include "session/Globals.h"
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

namespace {
QString TitleOfRefusal(int entry) {
    return QLatin1String(entry < plsEntryCount ? configEntryTitle : setpointEntryTitle);
}
} // namespace

frmTiming::frmTiming(const TimingSeams& seams, QWidget* parent)
    : QWidget(parent), seams_(seams), form_(*this),
      entries_(plsEntryCount + timingEntryCount, seams.dialogs, *form_.cmdDefault, TitleOfRefusal),
      screen_(*this, form_, state_, entries_), config_(seams, screen_),
      channels_(seams, screen_, config_), setpoints_(seams, screen_, channels_),
      offset_(seams, screen_, config_), reset_(seams, screen_, config_, channels_),
      gridEvents_(screen_, channels_, entries_, this), loop_(seams, screen_, config_, channels_) {
    setObjectName(QStringLiteral("frmTiming"));
    setWindowTitle(QStringLiteral("PLS Timing"));
    gPLS = PLSRecord();
    form_.ShowGridColours(palette());
    ConnectEntries();
    ConnectButtons();
    ConnectConfig();
    connect(form_.fgPLSChannels, &Grid::Resized, this, &frmTiming::Form_Resize);
    loop_.EnterOffline();
}

frmTiming::~frmTiming() {
    seams_.loops.Leave(loop_);
}

void frmTiming::ConnectEntries() {
    for (int i = 0; i < plsEntryCount; ++i)
        entries_.Add(i, *form_.Config(i).box, *form_.Config(i).upDown);
    for (int i = 0; i < timingEntryCount; ++i)
        entries_.Add(EntryOfTiming(i), *form_.Timing(i).box, *form_.Timing(i).upDown);
    connect(&entries_, &NumericEntries::Entered, this, &frmTiming::EntryEntered);
    connect(&entries_, &NumericEntries::Accepted, this, &frmTiming::EntryAccepted);
    connect(&entries_, &NumericEntries::Stepped, this, &frmTiming::EntryAccepted);
    connect(&entries_, &NumericEntries::Abandoned, this, &frmTiming::EntryAbandoned);
}

// A press that came with the leaving of a refused entry does not count, nor does one behind a
// handler that still talks to the board.
void frmTiming::ConnectButtons() {
    const auto forward = [this](QPushButton* button, auto& editor, auto handler) {
        connect(button, &QPushButton::clicked, this, [this, &editor, handler] {
            if (MayBegin())
                (editor.*handler)();
            seams_.loops.Wake();
        });
    };
    forward(form_.cmdAddSetpoint, setpoints_, &SetpointEditor::cmdAddSetpoint_Click);
    forward(form_.cmdAdjustSetpoint, setpoints_, &SetpointEditor::cmdAdjustSetpoint_Click);
    forward(form_.cmdPulseTrain, setpoints_, &SetpointEditor::cmdPulseTrain_Click);
    forward(form_.cmdRecallChan, setpoints_, &SetpointEditor::cmdRecallChan_Click);
    forward(form_.cmdClearChan, setpoints_, &SetpointEditor::cmdClearChan_Click);
    forward(form_.cmdClearAll, setpoints_, &SetpointEditor::cmdClearAll_Click);
    forward(form_.cmdSetOffset, offset_, &OffsetEditor::cmdSetOffset_Click);
    forward(form_.cmdResetPLSConfig, reset_, &ConfigReset::cmdResetPLSConfig_Click);
}

void frmTiming::ConnectConfig() {
    const auto forward = [this](auto* control, auto handler, auto value) {
        connect(control, &QAbstractButton::clicked, this, [this, handler, value](bool checked) {
            if (!MayBegin())
                return config_.ShowChoices();
            if constexpr (std::is_same_v<decltype(value), int>)
                (config_.*handler)(value);
            else
                (config_.*handler)(checked);
        });
    };
    for (int i = 0; i < static_cast<int>(form_.optPlsChan.size()); ++i)
        forward(form_.optPlsChan[static_cast<std::size_t>(i)], &ConfigEditor::optPlsChan_Click, i);
    for (int i = 0; i < static_cast<int>(form_.optR6PlsChan.size()); ++i)
        forward(form_.optR6PlsChan[static_cast<std::size_t>(i)], &ConfigEditor::optR6PlsChan_Click,
                i);
    forward(form_.chkR6BWComp, &ConfigEditor::chkR6BWComp_Click, nullptr);
    forward(form_.chkR6SpdWinEn, &ConfigEditor::chkR6SpdWinEn_Click, nullptr);
    connect(form_.cboTargetBoard, &QComboBox::currentIndexChanged, this,
            [this](int position) { config_.cboTargetBoard_Click(position); });
}

void frmTiming::Activate() {
    const bool begins = !state_.running;
    if (begins)
        Begin();
    SelectBoardOf(state_.boardIndex);
    gridEvents_.ClearEscape();
    state_.running = true;
    if (!state_.busy && !seams_.link.OperationRuns())
        DisplayPLSChannels();
    if (!seams_.link.OnlineMode())
        screen_.ClearTimingTexts();
    seams_.loops.Activate(loop_);
}

void frmTiming::Begin() {
    state_.gFirstPassOnline = false;
    state_.offlineShown = false;
    state_.gPLSUploadComplete = false;
    gPLS = PLSRecord();
    loop_.EnterOffline();
    try {
        state_.boardIndex = ProgramBoardIndex(seams_.SelectedProgramPath());
    } catch (const RunTimeError& error) {
        state_.boardIndex = PLSBoardIndex::R6500;
        ShowErrorBox(seams_.dialogs, error, QStringLiteral("PLS Timing"), MsgStyle::Critical);
    }
}

// Every index that is no limit switch board's stands for the R6500.
void frmTiming::SelectBoardOf(qint16 boardIndex) {
    const int position = PLSBoardPosition(boardIndex);
    const QSignalBlocker quiet(form_.cboTargetBoard);
    form_.cboTargetBoard->setCurrentIndex(position >= 0 ? position
                                                        : PLSBoardPosition(PLSBoardIndex::R6500));
    config_.cboTargetBoard_Click(form_.cboTargetBoard->currentIndex());
}

void frmTiming::DisplayPLSChannels() {
    channels_.DisplayPLSChannels();
}

void frmTiming::Form_Resize() {
    const int least = form_.fgPLSChannels->fontMetrics().horizontalAdvance(QStringLiteral("00000"));
    form_.fgPLSChannels->ShareWidth({1, 1, 1}, {least, least, least});
}

// The loop ends before the window goes, so that nothing is sent on the way.
void frmTiming::closeEvent(QCloseEvent* event) {
    loop_.Stop();
    seams_.loops.Leave(loop_);
    event->accept();
}

void frmTiming::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        form_.ShowGridColours(palette());
}

// A setpoint entry that was empty begins with 0.
void frmTiming::EntryEntered(int entry) {
    gridEvents_.ClearEscape();
    QLineEdit* box =
        entry < plsEntryCount ? form_.Config(entry).box : form_.Timing(entry - plsEntryCount).box;
    entered_ = box->text();
    const QString number = QString::number(WholeNumberValue(entered_));
    if (entry >= plsEntryCount && entered_ != number) {
        box->setText(number);
        box->selectAll();
    }
}

void frmTiming::EntryAccepted(int entry, const QString& text) {
    gridEvents_.ClearEscape();
    const int value = static_cast<int>(WholeNumberValue(text));
    if (entry < plsEntryCount)
        config_.EntryAccepted(entry, value);
    else if (entry == EntryOfTiming(TimingEntryIndex::Channel))
        setpoints_.ChannelEntered(value);
    else if (entry == EntryOfTiming(TimingEntryIndex::Setpoint))
        setpoints_.SetpointEntered(value);
    seams_.loops.Wake();
}

// Also when the entry was switched off under the user's hands.
void frmTiming::EntryAbandoned(int entry) {
    if (entry < plsEntryCount)
        config_.EntryAbandoned(entry);
    else
        screen_.ShowTimingText(entry - plsEntryCount, entered_);
}
