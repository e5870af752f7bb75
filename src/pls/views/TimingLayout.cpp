#include "controls/grid/Grid.h"
#include "pls/views/CycleStripView.h"
#include "pls/views/PanelRow.h"
#include "pls/views/TimingForm.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {
constexpr int panelCharacters = 15; // "Position: 4095" and a little room

// A line of a frame: label on the left, entry on the right, all entries of a frame in one column.
void AddEntry(QGridLayout& grid, int row, const EntryParts& parts) {
    grid.addWidget(parts.label, row, 0);
    grid.addWidget(parts.pair, row, 1, Qt::AlignRight);
}

QGridLayout* EntryGrid(QGroupBox* frame) {
    auto* grid = new QGridLayout(frame);
    grid->setColumnStretch(0, 1);
    grid->setVerticalSpacing(3);
    return grid;
}

template <class Controls>
QHBoxLayout* RowOf(const Controls& controls) {
    auto* row = new QHBoxLayout;
    for (auto* control : controls)
        row->addWidget(control);
    row->addStretch();
    return row;
}
} // namespace

void TimingForm::LayOut(QWidget& view) {
    LayOutSetpoints();
    LayOutChannel();
    LayOutChannelSetpoint();
    LayOutOffset();
    LayOutR6500Config();
    LayOutSpeedCompensation();
    LayOutStandardConfig();
    LayOutBrakeWear();
    LayOutSpeedWindow();

    auto* columns = new QHBoxLayout;
    columns->addWidget(fraTmg[2], 1);
    columns->addLayout(ChannelColumn());
    columns->addLayout(ConfigColumn());

    for (QLabel* panel : panels)
        sbrMachineTiming->Add(*panel, panelCharacters);
    auto* form = new QVBoxLayout(&view);
    form->addLayout(columns, 1);
    form->addWidget(sbrMachineTiming);
    SetTabOrder();
}

void TimingForm::LayOutSetpoints() {
    auto* row = new QHBoxLayout(fraTmg[2]);
    row->addWidget(fgPLSChannels, 1);
    row->addWidget(picCycle);
    const int digit = fgPLSChannels->fontMetrics().horizontalAdvance(u'0');
    fgPLSChannels->setMinimumSize(27 * digit, 8 * fgPLSChannels->fontMetrics().height());
}

void TimingForm::LayOutChannel() {
    auto* column = new QVBoxLayout(fraTmg[4]);
    column->addWidget(Timing(TimingEntryIndex::Channel).pair, 0, Qt::AlignRight);
    for (QPushButton* button : {cmdRecallChan, cmdClearChan, cmdClearAll})
        column->addWidget(button);
}

void TimingForm::LayOutChannelSetpoint() {
    QGridLayout* grid = EntryGrid(fraTmg[8]);
    int row = 0;
    for (const int index : {TimingEntryIndex::Setpoint, TimingEntryIndex::On, TimingEntryIndex::Off,
                            TimingEntryIndex::Start})
        AddEntry(*grid, row++, Timing(index));
    for (QPushButton* button : {cmdAddSetpoint, cmdAdjustSetpoint, cmdPulseTrain})
        grid->addWidget(button, row++, 0, 1, 2);
}

void TimingForm::LayOutOffset() {
    auto* row = new QHBoxLayout(fraTmg[3]);
    row->addWidget(cmdSetOffset, 1);
    row->addWidget(Timing(TimingEntryIndex::Offset).pair);
}

void TimingForm::LayOutR6500Config() {
    QGridLayout* grid = EntryGrid(fraTmg[0]);
    auto* options = new QGridLayout;
    for (int i = 0; i < 4; ++i)
        options->addWidget(optPlsChan[static_cast<std::size_t>(i)], i / 2, i % 2);
    grid->addLayout(options, 0, 0, 1, 2);
    AddEntry(*grid, 1, Config(PLSEntryIndex::Scale));
    AddEntry(*grid, 2, Config(PLSEntryIndex::Program));
}

void TimingForm::LayOutSpeedCompensation() {
    QGridLayout* grid = EntryGrid(fraTmg[1]);
    for (int i = PLSEntryIndex::FirstSpeedComp; i <= PLSEntryIndex::LastSpeedComp; ++i)
        AddEntry(*grid, i - PLSEntryIndex::FirstSpeedComp, Config(i));
}

void TimingForm::LayOutStandardConfig() {
    QGridLayout* grid = EntryGrid(fraTmg[5]);
    grid->addLayout(RowOf(optR6PlsChan), 0, 0, 1, 2);
    AddEntry(*grid, 1, Config(PLSEntryIndex::StandardScale));
    AddEntry(*grid, 2, Config(PLSEntryIndex::StrobePreset));
}

// The two ends of the window stand side by side under their heads.
void TimingForm::LayOutBrakeWear() {
    QGridLayout* grid = EntryGrid(fraTmg[6]);
    grid->addWidget(chkR6BWComp, 0, 0, 1, 4);
    int row = 1;
    for (const int index :
         {PLSEntryIndex::StopLocation, PLSEntryIndex::StopError, PLSEntryIndex::SignalWidth}) {
        grid->addWidget(Config(index).label, row, 0);
        grid->addWidget(Config(index).pair, row++, 3);
    }
    const EntryParts& on = Config(PLSEntryIndex::WindowOn);
    const EntryParts& off = Config(PLSEntryIndex::WindowOff);
    grid->addWidget(lblBWComp[0], row, 1, Qt::AlignHCenter | Qt::AlignBottom);
    grid->addWidget(lblBWComp[1], row++, 3, Qt::AlignHCenter | Qt::AlignBottom);
    grid->addWidget(on.label, row, 0);
    grid->addWidget(on.pair, row, 1);
    grid->addWidget(off.label, row, 2);
    grid->addWidget(off.pair, row, 3);
}

void TimingForm::LayOutSpeedWindow() {
    QGridLayout* grid = EntryGrid(fraTmg[7]);
    grid->addWidget(chkR6SpdWinEn, 0, 0, 1, 2);
    AddEntry(*grid, 1, Config(PLSEntryIndex::LowThreshold));
    AddEntry(*grid, 2, Config(PLSEntryIndex::HighThreshold));
}

// The place of the progress is kept while it is hidden, so that nothing jumps.
QBoxLayout* TimingForm::ChannelColumn() {
    auto* column = new QVBoxLayout;
    for (const std::size_t frame : {std::size_t(4), std::size_t(8), std::size_t(3)})
        column->addWidget(fraTmg[frame]);
    QSizePolicy policy = lblSetpointRecall->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    lblSetpointRecall->setSizePolicy(policy);
    lblSetpointRecall->setMinimumWidth(lblSetpointRecall->fontMetrics().horizontalAdvance(
        QStringLiteral("Recalling CH77 Setpoint: 2048")));
    column->addWidget(lblSetpointRecall);
    column->addStretch();
    return column;
}

QBoxLayout* TimingForm::ConfigColumn() {
    auto* board = new QHBoxLayout;
    board->addWidget(lblTargetBoard);
    board->addWidget(cboTargetBoard, 1);
    auto* column = new QVBoxLayout;
    column->addLayout(board);
    for (const std::size_t frame :
         {std::size_t(0), std::size_t(1), std::size_t(5), std::size_t(6), std::size_t(7)})
        column->addWidget(fraTmg[frame]);
    column->addWidget(cmdResetPLSConfig);
    column->addStretch();
    return column;
}

// Down the columns. Enter in the offset goes on to its button.
void TimingForm::SetTabOrder() {
    QWidget* last = fgPLSChannels;
    const auto next = [&last](QWidget* control) {
        QWidget::setTabOrder(last, control);
        last = control;
    };
    next(Timing(TimingEntryIndex::Channel).box);
    for (QWidget* button : {cmdRecallChan, cmdClearChan, cmdClearAll})
        next(button);
    for (const int index : {TimingEntryIndex::Setpoint, TimingEntryIndex::On, TimingEntryIndex::Off,
                            TimingEntryIndex::Start})
        next(Timing(index).box);
    for (QWidget* button : {cmdAddSetpoint, cmdAdjustSetpoint, cmdPulseTrain})
        next(button);
    next(Timing(TimingEntryIndex::Offset).box);
    next(cmdSetOffset);
    next(cboTargetBoard);
    for (QRadioButton* option : optPlsChan)
        next(option);
    for (int i = PLSEntryIndex::Scale; i <= PLSEntryIndex::LastSpeedComp; ++i)
        next(Config(i).box);
    for (QRadioButton* option : optR6PlsChan)
        next(option);
    next(Config(PLSEntryIndex::StandardScale).box);
    next(Config(PLSEntryIndex::StrobePreset).box);
    next(chkR6BWComp);
    for (int i = PLSEntryIndex::StopLocation; i <= PLSEntryIndex::WindowOff; ++i)
        next(Config(i).box);
    next(chkR6SpdWinEn);
    next(Config(PLSEntryIndex::LowThreshold).box);
    next(Config(PLSEntryIndex::HighThreshold).box);
    next(cmdResetPLSConfig);
}
