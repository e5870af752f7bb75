#pragma once

#include "statustable/TableEnablement.h"
#include "statustable/TableJobs.h"
#include "statustable/views/StatusTableForm.h"
#include "statustable/views/TableDocument.h"
#include "statustable/views/TableEditor.h"
#include "statustable/views/TableLoop.h"
#include "statustable/views/TableState.h"
#include <QWidget>

class CommMode;
class Dialogs;
class JobRunner;
class RSComm;
class StatusTableHost;
class ViewLoopRunner;
class WaitJobs;

/// The view in which an engineer lists variables of a board and watches them: live while online,
/// out of the program set's data file while offline. A child of the main window, which tells it
/// when it becomes the active one.
class frmStatusTable final : public QWidget, private TableRows, private TableDocumentView {
    Q_OBJECT
public:
    /// What the view works with; all of it must outlive the view.
    struct Seams {
        RSComm& link;
        CommMode& mode;
        Dialogs& dialogs;
        ViewLoopRunner& loops;
        JobRunner& jobs;
        StatusTableHost& host;
        QString applicationFolder; ///< where the file dialogs start when no program is selected
        Alarms& alarms = Alarms::System(); ///< time the repaints of the grid
    };

    explicit frmStatusTable(const Seams& seams, QWidget* parent = nullptr);
    ~frmStatusTable() override;

    /// The jobs 1 and 2 work on this view.
    void RegisterJobs(WaitJobs& jobs);

    /// The view has become the main window's active child: its commands show, its loop runs.
    void Activate();
    /// Another child is active now. The loop goes on: the values stay live.
    void Deactivate();
    /// Whether the program may end: asks if anything would be lost.
    bool MayClose() { return document_.MayClose(); }

    // Commands, by button and menu. What fails is told to the user; nothing is raised.

    /// Empties the table, after the question whether to save it.
    void NewStatusTable();
    /// Asks whether to save, then for a table file, and shows it.
    void OpenStatusTable();
    /// Writes the table to its file; asks for one if it has none.
    void SaveStatusTable();
    /// Asks for a file and writes the table to it.
    void SaveStatusTableAs();
    /// Asks for a program set and takes board, names and offline data from it.
    void SelectStatusTableProgram();
    /// Asks for a printer and prints the table's report.
    void PrintStatusTable();
    /// Puts the selected cells on the clipboard: tabs between columns, CR LF between rows.
    void StatusTableCopyClip();

    /// Name of a variable of the kind that column 0 shows, empty where there is none.
    QString Nicname(const QString& address) const override;
    /// Path of the .hdn file whose names and data are shown, empty when none.
    const QString& ProgramPath() const { return hdnPath_; }
    Grid& StatusGrid() { return *form_.fgStatus; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    // TableRows, for the jobs.
    int Rows() const override;
    QString Text(int row, int column) const override;
    void SetText(int row, int column, const QString& text) override;
    void SetTopRow(int row) override;

    // TableDocumentView.
    void ShowTableTitle(const QString& title) override;
    void ShowTableBoard() override;
    QString NameHead() const override;
    void FillNames() override;
    void SizeGrid() override;

    // frmStatusTableProgram.cpp: the program set, its names and its data.
    QString AskProgramFile();
    void TakeProgram(const QString& path);
    void TakeProgramBoard(qint16 board);
    void TakeSiblings(const QString& path);
    void RefuseBoard(qint16 board);
    void ShowEnabled();
    void LoadNames();
    void ClickViewNicNames(bool checked);
    void ClickViewDescriptions(bool checked);
    void RefreshNames();
    void EmptyNames();
    void ClickViewOffline(bool checked);
    void LoadOfflineData();
    void GiveUpOfflineData();

    void Connect();
    void ClickTargetBoard(int entry);
    void Unload();
    void ShowChanged();
    void ShowPasteOutcome(int taken, int refused);
    void FocusGrid();
    QString StartFolder() const;

    Seams seams_;
    StatusTableForm form_;
    TableState state_;
    TableEditor editor_;
    TableLoop loop_;
    TableDocument document_;
    QString statusCaption_;
    QString programCaption_;
    TableProgramState program_;
    qint16 programBoard_ = 0;
    QString programName_;
    QString hdnPath_;
    QString namPath_;
    QString docPath_;
    QString ldtPath_;
};
