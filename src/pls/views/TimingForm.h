#pragma once

#include "pls/PLSEntries.h"
#include <array>
#include <QString>

class CycleStripView;
class EntryUpDown;
class Grid;
class PanelRow;
class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPalette;
class QPushButton;
class QRadioButton;
class QWidget;

/// The controls of one numeric entry.
struct EntryParts {
    QLabel* label = nullptr; ///< null where the frame tells what it is
    QLineEdit* box = nullptr;
    EntryUpDown* upDown = nullptr;
    QWidget* pair = nullptr; ///< box and arrows side by side
};

/// Panels of sbrMachineTiming.
namespace MachinePanel {
constexpr int Speed = 0;
constexpr int Position = 1;
constexpr int Offset = 2;
constexpr int Scale = 3;
constexpr int Count = 4;
} // namespace MachinePanel

/// The controls of the timing view, made and laid out in a widget that owns them: the grid and the
/// strip on the left, channel and offset in the middle, the configuration of the board's layout on
/// the right, the machine's words below.
struct TimingForm {
    /// Makes the controls as children of `view`, which has no layout yet.
    explicit TimingForm(QWidget& view);

    QLabel* lblTargetBoard;
    QComboBox* cboTargetBoard;
    std::array<QGroupBox*, 9> fraTmg{};
    std::array<EntryParts, plsEntryCount> config{};    ///< lblPLS_CFG, txtPLS_CFG, updPLS_CFG
    std::array<EntryParts, timingEntryCount> timing{}; ///< txtTmg, updTmg and their lblTmg
    std::array<QRadioButton*, 4> optPlsChan{};
    std::array<QRadioButton*, 2> optR6PlsChan{};
    std::array<QLabel*, 2> lblBWComp{};
    QCheckBox* chkR6BWComp;
    QCheckBox* chkR6SpdWinEn;
    Grid* fgPLSChannels;
    CycleStripView* picCycle;
    QPushButton* cmdRecallChan;
    QPushButton* cmdClearChan;
    QPushButton* cmdClearAll;
    QPushButton* cmdAddSetpoint;
    QPushButton* cmdAdjustSetpoint;
    QPushButton* cmdPulseTrain;
    QPushButton* cmdSetOffset;
    QPushButton* cmdResetPLSConfig;
    QLabel* lblSetpointRecall; ///< progress of a recall, hidden otherwise
    PanelRow* sbrMachineTiming;
    std::array<QLabel*, MachinePanel::Count> panels{};
    QPushButton* cmdDefault; ///< takes the focus when an entry is left; nothing to see

    // `index` as PLSEntryIndex and TimingEntryIndex tell.
    EntryParts& Config(int index) { return config[static_cast<std::size_t>(index)]; }
    EntryParts& Timing(int index) { return timing[static_cast<std::size_t>(index)]; }
    /// Sets the text of a panel, MachinePanel, if it is another one.
    void ShowPanel(int panel, const QString& text);
    /// The grid's texts in blue, or what is as good on a dark ground; grey while it is off.
    void ShowGridColours(const QPalette& palette);

private:
    // TimingForm.cpp: the controls.
    void MakeFrames(QWidget& view);
    void MakeConfigEntries();
    void MakeTimingEntries();
    void MakeOptions();
    void MakeButtons(QWidget& view);
    void MakeGrid();
    void MakePanels(QWidget& view);
    void NameForScreenReaders();

    // TimingLayout.cpp: where they stand.
    void LayOut(QWidget& view);
    void LayOutSetpoints();
    void LayOutChannel();
    void LayOutChannelSetpoint();
    void LayOutOffset();
    void LayOutR6500Config();
    void LayOutSpeedCompensation();
    void LayOutStandardConfig();
    void LayOutBrakeWear();
    void LayOutSpeedWindow();
    void SetTabOrder();
    QBoxLayout* ChannelColumn();
    QBoxLayout* ConfigColumn();
};
