#pragma once

class Alarms;
class Grid;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QWidget;

/// The controls of the status table, made and laid out in a widget that owns them.
struct StatusTableForm {
    StatusTableForm(QWidget& view, Alarms& alarms);

    QGroupBox* fraProgram;
    QPushButton* cmdSelectProgram;
    QComboBox* cboTargetBoard;
    QCheckBox* chkViewNicNames;
    QCheckBox* chkViewDescriptions;
    QCheckBox* chkViewOffline;
    QGroupBox* fraStatus;
    Grid* fgStatus;
    QLabel* lblPaste; ///< what the last paste left out, hidden while there is nothing to say
    QPushButton* cmdNewTable;
    QPushButton* cmdOpenTable;
    QPushButton* cmdSaveTable;
    QPushButton* cmdSaveTableAs;
    QCheckBox* chkAutoIncrement;
    QPushButton* cmdDefault; ///< takes the focus when the grid is left by Esc; nothing to see

private:
    void LayOut(QWidget& view);
    void NameForScreenReaders();
};
