#pragma once

#include "link/PortSettings.h"
#include <array>
#include <QDialog>

class ApplicationFolder;
class Clock;
class Dialogs;
class EntryUpDown;
class MSComm;
class NumericEntries;
class QBoxLayout;
class QLabel;
class ValueLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTreeWidget;
class QTreeWidgetItem;
class RSComm;
class RunTimeError;
class SerialPorts;

/// What the port settings work on. All must outlive the view.
struct SetupCommContext {
    RSComm& link;
    MSComm& port; ///< the one control of the main window
    Dialogs& dialogs;
    const Clock& clock;
    const SerialPorts& ports;
    const ApplicationFolder& folder;
};

/// Modal dialog in which the user picks the serial port and its speed. It shows which device a
/// number stands for and lists the ports of the computer; Test tells whether a board answers.
/// Show it with exec().
class frmSetupComm final : public QDialog {
    Q_OBJECT
public:
    explicit frmSetupComm(const SetupCommContext& context, QWidget* parent = nullptr);

    /// Lists the ports of the computer again.
    void RefreshPorts();

private:
    void BuildForm();
    QBoxLayout* PortEntry();
    QWidget* SpeedFrame();
    QWidget* PortList();
    QBoxLayout* TestRow();
    QBoxLayout* Buttons();
    void FormLoad();
    void CurrentSettings();
    void ShowDevice();
    void PortChosen(const QTreeWidgetItem* item);
    void cmdSave_Click();
    void cmdTest_Click();
    void Save();
    void ShowOutcome(const QString& text);
    PortSettings Chosen() const;
    void Report(const RunTimeError& error, const QString& title);

    SetupCommContext context_;
    bool wasOnline_ = false; // when the view was loaded

    QLineEdit* txtCommPort_ = nullptr;
    EntryUpDown* updCommPort_ = nullptr;
    NumericEntries* entries_ = nullptr;
    QLabel* lblDevice_ = nullptr;
    std::array<QRadioButton*, 2> optPortSpeed_{};
    QTreeWidget* lstPorts_ = nullptr;
    QPushButton* cmdTest_ = nullptr;
    ValueLabel* lblTest_ = nullptr;
    QPushButton* cmdSave_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};
