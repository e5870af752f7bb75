#include "statustable/views/TableDocument.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "controls/grid/Grid.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "session/Globals.h"
#include "statustable/AddressEntry.h"
#include "statustable/TableFile.h"
#include "statustable/views/TableEditor.h"
#include "statustable/views/TableState.h"
#include <utility>

namespace {
constexpr int newTableRows = 60;
constexpr int saveFlags = 0x80006; // hide read-only, overwrite prompt, explorer style
constexpr int openFlags = 0x81004; // hide read-only, file must exist, explorer style
const QString tableFilter = QStringLiteral("Status Table Files(*.tbl)|*.tbl|");
} // namespace

TableDocumentView::~TableDocumentView() = default;

TableDocument::TableDocument(Grid& grid, TableEditor& editor, TableState& state, Dialogs& dialogs,
                             JobRunner& jobs, TableDocumentView& view)
    : grid_(grid), editor_(editor), state_(state), dialogs_(dialogs), jobs_(jobs), view_(view) {}

// Column 1 from the first data row to the append row.
QStringList TableDocument::Column1() const {
    QStringList addresses;
    addresses.reserve(grid_.Rows());
    for (int row = firstDataRow; row < grid_.Rows(); ++row)
        addresses += grid_.TextMatrix(row, TableColumn::Address);
    return addresses;
}

int TableDocument::AskToSave() {
    return dialogs_.MsgBox(QStringLiteral("Save Changes to File?"), MsgStyle::YesNoCancelQuestion,
                           QStringLiteral("Status Table"));
}

int TableDocument::SaveChangesResult() {
    return AddressesChanged(Column1(), gTableAddresses) ? AskToSave() : 0;
}

// Whether to go on after the question. A save that was wanted and failed or was cancelled stops
// what would lose the table.
bool TableDocument::QuestionAnswered(int answer) {
    if (answer == MsgAnswer::Cancel)
        return false;
    return answer != MsgAnswer::Yes || SaveStatusTable();
}

bool TableDocument::Changed() const {
    const bool boardChanged = !untitled_ && state_.tableBoard != savedBoard_;
    return boardChanged || UnsavedWork(Column1(), gTableAddresses);
}

bool TableDocument::MayClose() {
    editor_.CommitPending();
    return !Changed() || QuestionAnswered(AskToSave());
}

void TableDocument::NewStatusTable() {
    if (tableStarted_ && !skipQuestion_ && !QuestionAnswered(SaveChangesResult()))
        return;
    tableStarted_ = true;
    untitled_ = true;
    skipQuestion_ = false;
    gTableTitle.clear();
    view_.ShowTableTitle(QString());
    EmptyTable();
}

void TableDocument::EmptyTable() {
    state_.restart = true;
    editor_.Reset();
    grid_.Clear();
    grid_.SetCols(TableColumn::count);
    grid_.SetRows(newTableRows);
    grid_.SetFormatString(QStringLiteral("^|<|^|^|>|>"));
    WriteHeads();
    grid_.SetTextMatrix(grid_.Rows() - 1, TableColumn::Name, QStringLiteral("*"));
    view_.SizeGrid();
    grid_.SetCell(firstDataRow, TableColumn::Address);
    if (state_.active)
        grid_.setFocus();
    gTableAddresses = QStringList();
    gTableAddresses.resize(newTableRows - firstDataRow);
}

void TableDocument::WriteHeads() {
    const QString bits = QStringLiteral("76543210");
    grid_.SetTextMatrix(0, TableColumn::High, QStringLiteral("BIN High"));
    grid_.SetTextMatrix(0, TableColumn::Low, QStringLiteral("BIN Low"));
    grid_.SetTextMatrix(1, TableColumn::Name, view_.NameHead());
    grid_.SetTextMatrix(1, TableColumn::Address, QStringLiteral("Address"));
    grid_.SetTextMatrix(1, TableColumn::Decimal, QStringLiteral("Decimal"));
    grid_.SetTextMatrix(1, TableColumn::Hexadecimal, QStringLiteral("HEX"));
    grid_.SetTextMatrix(1, TableColumn::High, bits);
    grid_.SetTextMatrix(1, TableColumn::Low, bits);
}

void TableDocument::FileError(const QString& text, int style) {
    dialogs_.MsgBox(text, style, QStringLiteral("File Error"));
}

QString TableDocument::AskTableFile(const QString& startFolder) {
    FileDialogRequest request;
    request.flags = openFlags;
    request.filter = tableFilter;
    request.initDir = startFolder;
    if (FileSystem().FileExists(tablePath_)) {
        request.fileName = tablePath_;
        request.initDir = FileSystem().GetParentFolderName(tablePath_);
    }
    try {
        return dialogs_.ShowOpen(request);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("Status Table Open"), MsgStyle::Information);
        return QString();
    }
}

void TableDocument::OpenStatusTable(const QString& startFolder) {
    editor_.CommitPending();
    if (!QuestionAnswered(SaveChangesResult()))
        return;
    const QString path = AskTableFile(startFolder);
    if (path.isEmpty()) {
        view_.ShowTableTitle(gTableTitle);
        return;
    }
    try {
        TableFile table;
        if (ReadChosenFile(path, table))
            TakeFile(path, table);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("OpenStatusTable"), MsgStyle::Information);
    }
}

bool TableDocument::ReadChosenFile(const QString& path, TableFile& table) {
    switch (ReadTableFile(path, table)) {
    case TableFileState::Missing:
        FileError(QStringLiteral("Status Table File is Empty,\r\nFile Does Not Exist."),
                  MsgStyle::Information);
        return false;
    case TableFileState::Empty:
        FileError(QStringLiteral("Status Table File is Empty."), MsgStyle::Information);
        return false;
    case TableFileState::Read:
        break;
    }
    if (table.limitReached)
        FileError(QStringLiteral("Maximum Row Limit Reached."), MsgStyle::Exclamation);
    return true;
}

void TableDocument::TakeFile(const QString& path, const TableFile& table) {
    skipQuestion_ = true;
    NewStatusTable();
    untitled_ = false;
    tablePath_ = path;
    gTableTitle = TableTitle(path);
    state_.tableBoard = savedBoard_ = table.board;
    view_.ShowTableBoard();
    // One empty entry stands for the append row and one behind it.
    gTableAddresses = table.addresses + QStringList{QString(), QString()};
    grid_.SetTextMatrix(grid_.Rows() - 1, TableColumn::Name, QString());
    grid_.SetRows(firstDataRow + static_cast<int>(table.addresses.size()) + 1);
    jobs_.RunWaitJob(WaitJob::ReadAddresses);
    grid_.SetTextMatrix(grid_.Rows() - 1, TableColumn::Name, QStringLiteral("*"));
    view_.FillNames();
    view_.ShowTableTitle(gTableTitle);
}

bool TableDocument::SaveStatusTable() {
    editor_.CommitPending();
    if (untitled_)
        return SaveStatusTableAs();
    const QStringList addresses = Column1();
    try {
        WriteTableFile(tablePath_, state_.tableBoard, addresses.mid(0, addresses.size() - 1));
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("SaveStatusTable"), MsgStyle::Information);
        return false;
    }
    gTableAddresses = addresses;
    savedBoard_ = state_.tableBoard;
    view_.ShowTableTitle(gTableTitle);
    return true;
}

bool TableDocument::SaveStatusTableAs() {
    FileDialogRequest request;
    request.flags = saveFlags;
    request.filter = tableFilter;
    request.fileName = SaveDialogName(tablePath_, untitled_);
    QString chosen;
    try {
        chosen = dialogs_.ShowSave(request);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("Save As"), MsgStyle::Information);
        return false;
    }
    const bool wasUntitled = std::exchange(untitled_, false);
    const QString oldPath = std::exchange(tablePath_, chosen);
    const QString oldTitle = std::exchange(gTableTitle, TableTitle(chosen));
    if (SaveStatusTable())
        return true;
    untitled_ = wasUntitled;
    tablePath_ = oldPath;
    gTableTitle = oldTitle;
    return false;
}
