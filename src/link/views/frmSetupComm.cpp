#include "link/views/frmSetupComm.h"

#include "base/ApplicationFolder.h"
#include "base/Dialogs.h"
#include "base/MSComm.h"
#include "base/RunTimeError.h"
#include "base/SerialPorts.h"
#include "controls/entry/EntryUpDown.h"
#include "controls/entry/NumericEntries.h"
#include "controls/ValueLabel.h"
#include "controls/ViewHelpers.h"
#include "link/PortProbe.h"
#include "link/RSComm.h"
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

namespace {
constexpr std::size_t slowOption = 0;
constexpr std::size_t fastOption = 1;
constexpr int numberRole = Qt::UserRole;

QTreeWidgetItem* RowOf(const FoundPort& port) {
    const QString number =
        port.number ? QStringLiteral("COM%1").arg(*port.number) : QStringLiteral("\u2013");
    auto* row = new QTreeWidgetItem({number, port.device, port.description});
    row->setData(0, numberRole, port.number.value_or(0));
    if (!port.number) {
        row->setDisabled(true);
        const QString hint = QStringLiteral("No port number leads to this device. Make a link "
                                            "Support/ports/COMn to it.");
        for (int column = 0; column < 3; ++column)
            row->setToolTip(column, hint);
    }
    return row;
}
} // namespace

frmSetupComm::frmSetupComm(const SetupCommContext& context, QWidget* parent)
    : QDialog(parent), context_(context) {
    setObjectName(QStringLiteral("frmSetupComm"));
    setWindowTitle(QStringLiteral("Comm Port Settings"));
    setModal(true);
    BuildForm();
    FormLoad();
}

void frmSetupComm::FormLoad() {
    wasOnline_ = context_.link.OnlineMode();
    RefreshPorts();
    try {
        CurrentSettings();
    } catch (const RunTimeError& error) {
        Report(error, QStringLiteral("SetupComm CurrentSettings"));
    }
    txtCommPort_->setFocus();
    txtCommPort_->selectAll();
    CenterForm(*this);
}

// The defaults stand in the view before the file is read, in case it cannot be.
void frmSetupComm::CurrentSettings() {
    const auto show = [this](const PortSettings& settings) {
        updCommPort_->SetValue(settings.port);
        optPortSpeed_.at(settings.baud == PortSettings::fastBaud ? fastOption : slowOption)
            ->setChecked(true);
    };
    show(PortSettings());
    show(LoadPortSettings(context_.link.CommSettingsFile()));
}

void frmSetupComm::RefreshPorts() {
    lstPorts_->clear();
    for (const FoundPort& port : context_.ports.Found())
        lstPorts_->addTopLevelItem(RowOf(port));
    if (lstPorts_->topLevelItemCount() == 0) {
        auto* none = new QTreeWidgetItem({QString(), tr("No serial port was found.")});
        none->setDisabled(true);
        lstPorts_->addTopLevelItem(none);
    }
    ShowDevice();
}

void frmSetupComm::ShowDevice() {
    QString text;
    if (IsPortText(txtCommPort_->text())) {
        const PortBehind behind = context_.ports.Behind(PortOfText(txtCommPort_->text()));
        if (behind.device.isEmpty())
            text = tr("stands for no device");
        else
            text = behind.device + (behind.isThere ? tr(" - is there") : tr(" - is not there"));
    }
    lblDevice_->setText(text);
    ShowOutcome(QString());
}

void frmSetupComm::PortChosen(const QTreeWidgetItem* item) {
    const int number = item->data(0, numberRole).toInt();
    if (number != 0 && !entries_->Refuses())
        updCommPort_->SetValue(number);
}

PortSettings frmSetupComm::Chosen() const {
    PortSettings settings;
    settings.port = PortOfText(txtCommPort_->text());
    settings.baud =
        optPortSpeed_.at(fastOption)->isChecked() ? PortSettings::fastBaud : PortSettings::slowBaud;
    return settings;
}

void frmSetupComm::cmdSave_Click() {
    if (entries_->Refuses())
        return;
    try {
        Save();
    } catch (const RunTimeError& error) {
        Report(error, QStringLiteral("SetupComm"));
    }
}

void frmSetupComm::Save() {
    context_.link.CloseRSComm();
    const PortSettings settings = Chosen();
    SavePortSettings(context_.link.CommSettingsFile(), settings);
    WriteToolPortFiles(context_.folder, settings.port);
    if (!wasOnline_) {
        accept();
        return;
    }
    context_.link.OpenRSComm(context_.port);
    if (context_.link.OnlineMode())
        accept();
    else
        context_.link.SetOnlineMode(false);
}

// While the program is online the port belongs to the link: a test would break into its traffic.
// A port that a communication failure has left open is closed first.
void frmSetupComm::cmdTest_Click() {
    if (entries_->Refuses())
        return;
    if (context_.link.OnlineMode() || context_.link.OperationRuns()) {
        ShowOutcome(tr("The program is online and uses its port. Go offline to test a port."));
        return;
    }
    context_.link.CloseRSComm();
    const PortSettings settings = Chosen();
    ShowOutcome(tr("Testing COM%1 ...").arg(settings.port));
    cmdTest_->setEnabled(false);
    lblTest_->repaint();
    ShowOutcome(ProbeText(ProbePort(context_.port, context_.clock, settings), settings));
    cmdTest_->setEnabled(true);
    cmdTest_->setFocus();
}

void frmSetupComm::ShowOutcome(const QString& text) {
    lblTest_->Show(text);
}

void frmSetupComm::Report(const RunTimeError& error, const QString& title) {
    ShowErrorBox(context_.dialogs, error, title, MsgStyle::Critical);
}
