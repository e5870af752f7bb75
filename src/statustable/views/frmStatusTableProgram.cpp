// The part of the status table that takes names and offline data from a program set.

#include "base/CharacterSet.h"
#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "base/ViewLoop.h"
#include "controls/grid/Grid.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "session/Globals.h"
#include "statustable/AddressEntry.h"
#include "statustable/TableBoards.h"
#include "statustable/views/frmStatusTable.h"
#include "statustable/views/StatusTableHost.h"
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>

namespace {
constexpr int openFlags = 0x81004; // hide read-only, file must exist, explorer style
} // namespace

QString frmStatusTable::AskProgramFile() {
    FileDialogRequest request;
    request.flags = openFlags;
    request.filter = QStringLiteral("Halden Files(*.hdn)|*.hdn|");
    request.initDir = StartFolder();
    const QString selected = seams_.host.SelectedProgramPath();
    if (FileSystem().FileExists(selected))
        request.fileName = selected;
    try {
        return seams_.dialogs.ShowOpen(request);
    } catch (const RunTimeError& error) {
        ShowErrorBox(seams_.dialogs, error, QStringLiteral("Status Table Open"),
                     MsgStyle::Information);
        return QString();
    }
}

void frmStatusTable::SelectStatusTableProgram() {
    form_.fraProgram->setTitle(programCaption_);
    form_.chkViewNicNames->setChecked(false);
    form_.chkViewDescriptions->setChecked(false);
    form_.chkViewOffline->setChecked(false);
    const QString path = AskProgramFile();
    if (path.isEmpty()) {
        hdnPath_.clear();
        FocusGrid();
        return;
    }
    program_ = TableProgramState();
    ShowEnabled();
    TakeSiblings(path);
    try {
        TakeProgram(hdnPath_);
    } catch (const RunTimeError& error) {
        ShowErrorBox(seams_.dialogs, error, QStringLiteral("Status Table Open"),
                     MsgStyle::Information);
    }
}

void frmStatusTable::TakeSiblings(const QString& path) {
    programName_ = FileSystem().GetBaseName(path);
    hdnPath_ = ChangeExtension(path, QStringLiteral("hdn"));
    namPath_ = ChangeExtension(path, QStringLiteral("nam"));
    ldtPath_ = ChangeExtension(path, QStringLiteral("ldt"));
    docPath_ = ChangeExtension(path, QStringLiteral("doc"));
}

void frmStatusTable::TakeProgram(const QString& path) {
    const QString title = QStringLiteral("File Error");
    if (!FileSystem().FileExists(path)) {
        seams_.dialogs.MsgBox(
            QStringLiteral("Unable to Determine Target Board,\r\nFile Does Not Exist."),
            MsgStyle::Information, title);
        return;
    }
    TextReader reader(path);
    const QString item = reader.AtEnd() ? QString() : reader.InputItem();
    if (item.isEmpty()) {
        seams_.dialogs.MsgBox(QStringLiteral("Unable to Determine Target Board."),
                              MsgStyle::Information, title);
        return;
    }
    QString name = programName_;
    name.replace(u'&', QStringLiteral("&&"));
    form_.fraProgram->setTitle(programCaption_ + u' ' + name);
    TakeProgramBoard(CodeOfCharacter(item.front()));
}

void frmStatusTable::TakeProgramBoard(qint16 board) {
    programBoard_ = board;
    const auto entry = ListEntryOfBoard(board);
    if (!entry || *entry == 0)
        return RefuseBoard(board);
    form_.cboTargetBoard->setCurrentIndex(*entry);
    state_.tableBoard = board;
    program_.accepted = true;
    LoadNames();
    if (form_.chkViewNicNames->isChecked() || form_.chkViewDescriptions->isChecked())
        RefreshNames();
    else
        SizeGrid();
    if (form_.chkViewOffline->isChecked())
        ClickViewOffline(true);
    ShowChanged();
}

void frmStatusTable::RefuseBoard(qint16 board) {
    seams_.dialogs.MsgBox(RefusedBoardMessage(board), MsgStyle::Information,
                          QStringLiteral("Target Board Error"));
    form_.chkViewNicNames->setChecked(false);
    form_.chkViewDescriptions->setChecked(false);
    form_.chkViewOffline->setChecked(false);
    form_.cboTargetBoard->setCurrentIndex(0);
    ClickTargetBoard(0);
}

void frmStatusTable::ShowEnabled() {
    const TableEnablement enabled = EnabledControls(program_);
    form_.chkViewNicNames->setEnabled(enabled.viewNicNames);
    form_.chkViewDescriptions->setEnabled(enabled.viewDescriptions);
    form_.chkViewOffline->setEnabled(enabled.viewOffline);
}

void frmStatusTable::LoadNames() {
    const NameFilesFound found =
        LoadNicNames(state_.names, namPath_, docPath_, state_.tableBoard, seams_.dialogs);
    program_.nicNames = found.nicNames;
    program_.descriptions = found.descriptions;
    if (!found.nicNames)
        form_.chkViewNicNames->setChecked(false);
    if (!found.descriptions)
        form_.chkViewDescriptions->setChecked(false);
    ShowEnabled();
}

void frmStatusTable::ClickViewNicNames(bool checked) {
    gViewNicNames = false;
    if (!checked)
        return EmptyNames();
    form_.chkViewDescriptions->setChecked(false);
    RefreshNames();
}

void frmStatusTable::ClickViewDescriptions(bool checked) {
    gViewDescriptions = false;
    if (!checked)
        return EmptyNames();
    form_.chkViewNicNames->setChecked(false);
    RefreshNames();
}

void frmStatusTable::EmptyNames() {
    SizeGrid();
    SetText(1, TableColumn::Name, NameHead());
    for (int row = firstDataRow; row < Rows() - 1; ++row)
        SetText(row, TableColumn::Name, QString());
    FocusGrid();
}

QString frmStatusTable::NameHead() const {
    if (form_.chkViewNicNames->isChecked())
        return QStringLiteral("NicNames");
    return form_.chkViewDescriptions->isChecked() ? QStringLiteral("Descriptions")
                                                  : QStringLiteral(" ");
}

void frmStatusTable::RefreshNames() {
    gViewNicNames = form_.chkViewNicNames->isChecked();
    gViewDescriptions = !gViewNicNames && form_.chkViewDescriptions->isChecked();
    const bool any = gViewNicNames || gViewDescriptions;
    SetText(1, TableColumn::Name, any ? NameHead() : QString());
    seams_.jobs.RunWaitJob(WaitJob::ReadNames);
    FocusGrid();
    SizeGrid();
}

void frmStatusTable::FillNames() {
    if (form_.chkViewNicNames->isChecked() || form_.chkViewDescriptions->isChecked())
        seams_.jobs.RunWaitJob(WaitJob::ReadNames);
}

void frmStatusTable::ClickViewOffline(bool checked) {
    state_.offlineLoaded = false;
    if (checked) {
        try {
            LoadOfflineData();
        } catch (const RunTimeError& error) {
            seams_.dialogs.MsgBox(OfflineDataFailureText(error), MsgStyle::Critical,
                                  QStringLiteral("Status Table"));
            GiveUpOfflineData();
        }
    }
    FocusGrid();
    seams_.loops.Wake();
}

void frmStatusTable::LoadOfflineData() {
    const QString title = QStringLiteral("File Open Error");
    switch (ReadOfflineData(ldtPath_, programBoard_, state_.offlineData)) {
    case OfflineDataState::Missing:
        seams_.dialogs.MsgBox(QStringLiteral("Unable to Open Data File,\r\nFile Does Not Exist."),
                              MsgStyle::Information, title);
        return GiveUpOfflineData();
    case OfflineDataState::Empty:
        seams_.dialogs.MsgBox(QStringLiteral("Unable to Open Data File."), MsgStyle::Information,
                              title);
        return;
    case OfflineDataState::Loaded:
        state_.offlineLoaded = true;
        state_.restart = true;
    }
}

void frmStatusTable::GiveUpOfflineData() {
    program_.dataFailed = true;
    form_.chkViewOffline->setChecked(false);
    ShowEnabled();
}
