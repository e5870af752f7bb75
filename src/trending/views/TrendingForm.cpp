#include "trending/views/TrendingForm.h"

#include "controls/entry/EntryUpDown.h"
#include "controls/entry/NumericEntries.h"
#include "controls/grid/Grid.h"
#include "statustable/TableBoards.h"
#include "trending/TrendAcquisition.h"
#include "trending/views/GraphView.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace {
template <class Control>
Control* Make(QWidget& view, const char* name, const QString& caption) {
    auto* control = new Control(caption, &view);
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

QComboBox* MakeList(QWidget& view, const char* name, const QStringList& entries) {
    auto* list = new QComboBox(&view);
    list->setObjectName(QString::fromLatin1(name));
    list->addItems(entries);
    return list;
}

QLineEdit* MakeEntry(QWidget& view) {
    auto* entry = new QLineEdit(&view);
    entry->setObjectName(QStringLiteral("txtSamples"));
    entry->setFixedWidth(entry->fontMetrics().horizontalAdvance(QStringLiteral("0000000")));
    return entry;
}
// A number, the seconds of a day and a value of 32 bits with its sign, with room around them.
constexpr int charactersOfRow = 28;
} // namespace

TrendingForm::TrendingForm(QWidget& view, const modGraph& graph)
    : cboTargetBoard(MakeList(view, "cboTargetBoard", TableBoardNames())),
      cboAddress(MakeList(view, "cboAddress", {TrendVariable::none})),
      optChangeOfState(
          Make<QRadioButton>(view, "optOptions(0)", QStringLiteral("Change of State"))),
      optTimeInterval(Make<QRadioButton>(view, "optOptions(1)", QStringLiteral("Time Interval"))),
      cboOptions(MakeList(view, "cboOptions", TrendAcquisition::IntervalNames())),
      chkAcquire(Make<QCheckBox>(view, "chkAcquire", QStringLiteral("&Acquire Samples"))),
      cmdClear(Make<QPushButton>(view, "cmdClear", QStringLiteral("&Clear Samples"))),
      cmdReset(Make<QPushButton>(view, "cmdReset", QStringLiteral("&Reset Counter"))),
      lblSamples(Make<QLabel>(view, "lblSamples", QStringLiteral("0"))),
      fgTrend(new Grid(1, &view)),
      chkLiveData(Make<QCheckBox>(view, "chkLiveData", QStringLiteral("Graph &Live:"))),
      txtSamples(MakeEntry(view)), updSamples(new EntryUpDown(*txtSamples, &view)),
      cmdGraphData(Make<QPushButton>(view, "cmdGraphData", QStringLiteral("&Graph Data"))),
      picGraph(new GraphView(graph, &view)), cmdDefault(MakeDefaultButton(view)) {
    fgTrend->setObjectName(QStringLiteral("fgTrend"));
    updSamples->setObjectName(QStringLiteral("updSamples"));
    picGraph->setObjectName(QStringLiteral("picGraph"));
    cboAddress->setEditable(true);
    cboAddress->setInsertPolicy(QComboBox::NoInsert);
    cboAddress->setCompleter(nullptr);
    cboAddress->setAccessibleName(QStringLiteral("Variable"));
    cboAddress->lineEdit()->setAccessibleName(QStringLiteral("Variable"));
    cboOptions->setAccessibleName(QStringLiteral("Interval"));
    // On some platforms the name of a list is its choice; what has no label is described.
    cboOptions->setAccessibleDescription(QStringLiteral("Interval"));
    fgTrend->setAccessibleName(QStringLiteral("Trend samples"));
    const int digit = fgTrend->fontMetrics().horizontalAdvance(u'0');
    fgTrend->setMinimumWidth(charactersOfRow * digit +
                             fgTrend->verticalScrollBar()->sizeHint().width());
    txtSamples->setAccessibleName(QStringLiteral("Samples to graph"));
    optChangeOfState->setChecked(true);
    cboOptions->setEnabled(false);
    LayOut(view);
}

QLayout* TrendingForm::SampleFrame(QWidget& view) {
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Target &Board:"), cboTargetBoard);
    form->addRow(QStringLiteral("Var&iable:"), cboAddress);
    form->addRow(optChangeOfState);
    form->addRow(optTimeInterval, cboOptions);
    form->addRow(chkAcquire);
    form->addRow(QStringLiteral("Counter:"), lblSamples);
    auto* commands = new QHBoxLayout;
    commands->addWidget(cmdClear);
    commands->addWidget(cmdReset);
    auto* frame = new QGroupBox(QStringLiteral("Samples:"), &view);
    auto* column = new QVBoxLayout(frame);
    column->addLayout(form);
    column->addLayout(commands);
    column->addWidget(fgTrend, 1);
    auto* layout = new QVBoxLayout;
    layout->addWidget(frame);
    return layout;
}

QLayout* TrendingForm::GraphFrame(QWidget& view) {
    auto* commands = new QHBoxLayout;
    commands->addWidget(chkLiveData);
    commands->addWidget(new QLabel(QStringLiteral("Samples:"), &view));
    commands->addWidget(txtSamples);
    commands->addWidget(updSamples);
    commands->addWidget(cmdGraphData);
    commands->addStretch();
    commands->addWidget(cmdDefault);
    auto* frame = new QGroupBox(QStringLiteral("Graph:"), &view);
    auto* column = new QVBoxLayout(frame);
    column->addLayout(commands);
    column->addWidget(picGraph, 1);
    auto* layout = new QVBoxLayout;
    layout->addWidget(frame);
    return layout;
}

void TrendingForm::LayOut(QWidget& view) {
    auto* layout = new QHBoxLayout(&view);
    layout->addLayout(SampleFrame(view), 1);
    layout->addLayout(GraphFrame(view), 2);
}
