#pragma once

class EntryUpDown;
class GraphView;
class Grid;
class modGraph;
class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

/// The controls of the trend view, made and laid out in a widget that owns them.
struct TrendingForm {
    TrendingForm(QWidget& view, const modGraph& graph);

    QComboBox* cboTargetBoard;
    QComboBox* cboAddress;
    QRadioButton* optChangeOfState; ///< optOptions, index 0
    QRadioButton* optTimeInterval;  ///< optOptions, index 1
    QComboBox* cboOptions;
    QCheckBox* chkAcquire;
    QPushButton* cmdClear;
    QPushButton* cmdReset;
    QLabel* lblSamples;
    Grid* fgTrend;
    QCheckBox* chkLiveData;
    QLineEdit* txtSamples;
    EntryUpDown* updSamples;
    QPushButton* cmdGraphData;
    GraphView* picGraph;
    QPushButton* cmdDefault; ///< takes the focus after entries

private:
    void LayOut(QWidget& view);
    QLayout* SampleFrame(QWidget& view);
    QLayout* GraphFrame(QWidget& view);
};
