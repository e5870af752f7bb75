#include "statustable/views/StatusTableForm.h"

#include "controls/grid/Grid.h"
#include "controls/WrappingRow.h"
#include "statustable/AddressEntry.h"
#include "statustable/TableBoards.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {
template <class Control>
Control* Make(QWidget& view, const char* name, const QString& caption) {
    auto* control = new Control(caption, &view);
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

QHBoxLayout* RowOf(std::initializer_list<QWidget*> controls) {
    auto* row = new QHBoxLayout;
    for (QWidget* control : controls)
        row->addWidget(control);
    return row;
}
} // namespace

StatusTableForm::StatusTableForm(QWidget& view, Alarms& alarms)
    : fraProgram(Make<QGroupBox>(view, "fraProgram", QStringLiteral("Program:"))),
      cmdSelectProgram(
          Make<QPushButton>(view, "cmdSelectProgram", QStringLiteral("Select &Program..."))),
      cboTargetBoard(new QComboBox(&view)),
      chkViewNicNames(Make<QCheckBox>(view, "chkViewNicNames", QStringLiteral("View &NicNames"))),
      chkViewDescriptions(
          Make<QCheckBox>(view, "chkViewDescriptions", QStringLiteral("View &Descriptions"))),
      chkViewOffline(Make<QCheckBox>(view, "chkViewOffline", QStringLiteral("View Offline Data"))),
      fraStatus(Make<QGroupBox>(view, "fraStatus", QStringLiteral("&Status Table:"))),
      fgStatus(new Grid(firstDataRow, &view, alarms)),
      lblPaste(Make<QLabel>(view, "lblPaste", QString())),
      cmdNewTable(Make<QPushButton>(view, "cmdNewTable", QStringLiteral("Ne&w"))),
      cmdOpenTable(Make<QPushButton>(view, "cmdOpenTable", QStringLiteral("&Open..."))),
      cmdSaveTable(Make<QPushButton>(view, "cmdSaveTable", QStringLiteral("S&ave"))),
      cmdSaveTableAs(Make<QPushButton>(view, "cmdSaveTableAs", QStringLiteral("Save As..."))),
      chkAutoIncrement(
          Make<QCheckBox>(view, "chkAutoIncrement", QStringLiteral("Auto &Increment"))),
      cmdDefault(Make<QPushButton>(view, "cmdDefault", QString())) {
    fgStatus->setObjectName(QStringLiteral("fgStatus"));
    cboTargetBoard->setObjectName(QStringLiteral("cboTargetBoard"));
    cboTargetBoard->addItems(TableBoardNames());
    cmdDefault->setFixedSize(1, 1);
    cmdDefault->setFlat(true);
    cmdDefault->setFocusPolicy(Qt::ClickFocus);
    lblPaste->hide();
    LayOut(view);
    NameForScreenReaders();
}

void StatusTableForm::LayOut(QWidget& view) {
    auto* lblTargetBoard = new QLabel(QStringLiteral("Target &Board:"), &view);
    lblTargetBoard->setBuddy(cboTargetBoard);
    auto* program = new WrappingRow;
    program->addWidget(cmdSelectProgram);
    program->AddTogether({lblTargetBoard, cboTargetBoard});
    for (QWidget* box : {chkViewNicNames, chkViewDescriptions, chkViewOffline})
        program->addWidget(box);
    fraProgram->setLayout(program);

    QHBoxLayout* commands =
        RowOf({cmdNewTable, cmdOpenTable, cmdSaveTable, cmdSaveTableAs, chkAutoIncrement});
    commands->addStretch();
    commands->addWidget(cmdDefault);
    auto* status = new QVBoxLayout;
    status->addWidget(fgStatus, 1);
    status->addWidget(lblPaste);
    status->addLayout(commands);
    fraStatus->setLayout(status);

    auto* layout = new QVBoxLayout(&view);
    layout->addWidget(fraProgram);
    layout->addWidget(fraStatus, 1);
}

void StatusTableForm::NameForScreenReaders() {
    fgStatus->setAccessibleName(QStringLiteral("Status table"));
    fgStatus->setAccessibleDescription(
        QStringLiteral("Type a variable into Address, or a new value into Decimal or HEX, and "
                       "press Return."));
    cboTargetBoard->setAccessibleName(QStringLiteral("Target board"));
    chkAutoIncrement->setToolTip(
        QStringLiteral("Return on an address fills the next row with the next variable."));
    cmdDefault->setAccessibleName(QStringLiteral("Outside the table"));
}
