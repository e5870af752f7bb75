#include "statustable/views/frmStatusTable.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "base/ViewLoop.h"
#include "controls/grid/Grid.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "session/Globals.h"
#include "statustable/AddressEntry.h"
#include "statustable/TableBoards.h"
#include "statustable/views/StatusTableHost.h"
#include "statustable/views/TableNames.h"
#include <algorithm>
#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>

StatusTableHost::~StatusTableHost() = default;

frmStatusTable::frmStatusTable(const Seams& seams, QWidget* parent)
    : QWidget(parent), seams_(seams), form_(*this, seams.alarms),
      editor_(*form_.fgStatus, seams.link, seams.dialogs, state_),
      loop_(*form_.fgStatus, seams.link, seams.mode, state_),
      document_(*form_.fgStatus, editor_, state_, seams.dialogs, seams.jobs, *this),
      statusCaption_(form_.fraStatus->title()), programCaption_(form_.fraProgram->title()) {
    setObjectName(QStringLiteral("frmStatusTable"));
    Connect();
    ShowEnabled();
    document_.NewStatusTable();
    form_.fgStatus->Model().SetFixedPitch(TableColumn::High);
    form_.fgStatus->Model().SetFixedPitch(TableColumn::Low);
    ShowChanged();
}

frmStatusTable::~frmStatusTable() {
    seams_.loops.Leave(loop_);
}

void frmStatusTable::Connect() {
    connect(form_.cmdNewTable, &QPushButton::clicked, this, &frmStatusTable::NewStatusTable);
    connect(form_.cmdOpenTable, &QPushButton::clicked, this, &frmStatusTable::OpenStatusTable);
    connect(form_.cmdSaveTable, &QPushButton::clicked, this, &frmStatusTable::SaveStatusTable);
    connect(form_.cmdSaveTableAs, &QPushButton::clicked, this, &frmStatusTable::SaveStatusTableAs);
    connect(form_.cmdSelectProgram, &QPushButton::clicked, this,
            &frmStatusTable::SelectStatusTableProgram);
    connect(form_.cboTargetBoard, &QComboBox::currentIndexChanged, this,
            &frmStatusTable::ClickTargetBoard);
    // The entry that is shown already counts too: "(none)" may stand for a board without an entry.
    connect(form_.cboTargetBoard, &QComboBox::activated, this, [this](int entry) {
        ClickTargetBoard(entry);
        FocusGrid();
    });
    connect(form_.chkViewNicNames, &QCheckBox::toggled, this, &frmStatusTable::ClickViewNicNames);
    connect(form_.chkViewDescriptions, &QCheckBox::toggled, this,
            &frmStatusTable::ClickViewDescriptions);
    connect(form_.chkViewOffline, &QCheckBox::toggled, this, &frmStatusTable::ClickViewOffline);
    connect(form_.chkAutoIncrement, &QCheckBox::toggled, this, [this](bool checked) {
        editor_.SetAutoIncrement(checked);
        FocusGrid();
    });
    connect(&editor_, &TableEditor::TableEdited, this, &frmStatusTable::ShowChanged);
    connect(&editor_, &TableEditor::GridLeft, this, [this] { form_.cmdDefault->setFocus(); });
    connect(&editor_, &TableEditor::PasteEnded, this, &frmStatusTable::ShowPasteOutcome);
    connect(form_.fgStatus, &Grid::Resized, this, &frmStatusTable::SizeGrid);
    connect(form_.fgStatus, &Grid::Scrolled, this, [this] { seams_.loops.Wake(); });
    connect(form_.fgStatus, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        seams_.host.PopUpTableMenu(form_.fgStatus->viewport()->mapToGlobal(at));
    });
}

void frmStatusTable::RegisterJobs(WaitJobs& jobs) {
    jobs.Register(WaitJob::ReadAddresses,
                  [this](JobProgress& progress) { ReadAddresses(*this, progress); });
    jobs.Register(WaitJob::ReadNames,
                  [this](JobProgress& progress) { ReadNames(*this, progress); });
    jobs.RegisterNamesShown([] {
        return gViewNicNames       ? NamesShown::NicNames
               : gViewDescriptions ? NamesShown::Descriptions
                                   : NamesShown::None;
    });
}

void frmStatusTable::Activate() {
    if (!form_.chkViewDescriptions->isChecked())
        gViewDescriptions = false;
    if (!form_.chkViewNicNames->isChecked())
        gViewNicNames = false;
    seams_.host.ShowTableCommands(true);
    gPrintContext = PrintContext::StatusTable;
    state_.active = true;
    seams_.loops.Activate(loop_);
}

void frmStatusTable::Deactivate() {
    seams_.host.ShowTableCommands(false);
}

void frmStatusTable::Unload() {
    state_.active = false;
    seams_.loops.Leave(loop_);
    seams_.host.HideTableMenus();
}

void frmStatusTable::closeEvent(QCloseEvent* event) {
    Unload();
    event->accept();
}

void frmStatusTable::FocusGrid() {
    if (state_.active)
        form_.fgStatus->setFocus();
}

QString frmStatusTable::StartFolder() const {
    const QString selected = seams_.host.SelectedProgramPath();
    return selected.isEmpty() ? seams_.applicationFolder
                              : FileSystem().GetParentFolderName(selected);
}

void frmStatusTable::NewStatusTable() {
    document_.NewStatusTable();
    ShowChanged();
}

void frmStatusTable::OpenStatusTable() {
    document_.OpenStatusTable(StartFolder());
    ShowChanged();
}

void frmStatusTable::SaveStatusTable() {
    document_.SaveStatusTable();
    ShowChanged();
}

void frmStatusTable::SaveStatusTableAs() {
    document_.SaveStatusTableAs();
    ShowChanged();
}

void frmStatusTable::PrintStatusTable() {
    try {
        seams_.host.UsePrinter(seams_.dialogs.ShowPrinter());
        seams_.jobs.RunWaitJob(WaitJob::PrintStatusTable);
    } catch (const RunTimeError& error) {
        ShowErrorBox(seams_.dialogs, error, QStringLiteral("Status Table"), MsgStyle::Critical);
    }
    FocusGrid();
}

void frmStatusTable::StatusTableCopyClip() {
    QGuiApplication::clipboard()->setText(form_.fgStatus->Clip());
}

void frmStatusTable::ClickTargetBoard(int entry) {
    state_.tableBoard = BoardOfListEntry(entry);
    ShowChanged();
}

int frmStatusTable::Rows() const {
    return form_.fgStatus->Rows();
}

QString frmStatusTable::Text(int row, int column) const {
    return form_.fgStatus->TextMatrix(row, column);
}

void frmStatusTable::SetText(int row, int column, const QString& text) {
    form_.fgStatus->SetTextMatrix(row, column, text);
}

void frmStatusTable::SetTopRow(int row) {
    form_.fgStatus->SetTopRow(row);
}

QString frmStatusTable::Nicname(const QString& address) const {
    return ShownName(state_.names, address);
}

// "&" in a file name is no mark of a mnemonic.
void frmStatusTable::ShowTableTitle(const QString& title) {
    QString shown = title;
    shown.replace(u'&', QStringLiteral("&&"));
    form_.fraStatus->setTitle(title.isEmpty() ? statusCaption_ : statusCaption_ + u' ' + shown);
    setWindowTitle(title.isEmpty() ? QStringLiteral("Status Table[*]")
                                   : QStringLiteral("Status Table - %1[*]").arg(title));
}

void frmStatusTable::ShowTableBoard() {
    const qint16 board = state_.tableBoard;
    form_.cboTargetBoard->setCurrentIndex(ListEntryOfBoard(board).value_or(0));
    state_.tableBoard = board; // a board without an entry keeps its index
}

void frmStatusTable::ShowChanged() {
    setWindowModified(document_.Changed());
}

void frmStatusTable::ShowPasteOutcome(int taken, int refused) {
    form_.lblPaste->setText(
        QStringLiteral("%1 addresses pasted; %2 are no variables of this board and were left out.")
            .arg(taken)
            .arg(refused));
    form_.lblPaste->setVisible(refused > 0);
}

void frmStatusTable::SizeGrid() {
    const QFontMetrics metrics = form_.fgStatus->fontMetrics();
    const int digit = metrics.horizontalAdvance(u'0');
    const int least = 11 * digit; // "655359999" and a margin
    // The column of the names gives way first, so that all fit into the smallest main window.
    const int beside = form_.fgStatus->viewport()->width() - 5 * least;
    const int leastName = std::clamp(beside, 15 * digit, 2 * least);
    form_.fgStatus->ShareWidth({4, 2, 2, 2, 2, 2}, {leastName, least, least, least, least, least});
}
