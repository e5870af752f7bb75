#pragma once

#include <QString>
#include <QStringList>

class Dialogs;
class Grid;
class JobRunner;
class TableEditor;
struct TableFile;
struct TableState;

/// What the work on table files shows outside the grid.
class TableDocumentView {
public:
    virtual ~TableDocumentView();
    /// The text behind the design caption of the frame, empty for none.
    virtual void ShowTableTitle(const QString& title) = 0;
    /// The board of the table was set by a file: shows it in the list of boards.
    virtual void ShowTableBoard() = 0;
    /// Head of column 0 for the kind of names that is asked for.
    virtual QString NameHead() const = 0;
    /// Fills column 0 if a kind of names is asked for.
    virtual void FillNames() = 0;
    virtual void SizeGrid() = 0;
};

/// The table as a file: new, opened, saved. Whatever fails leaves table and file as they were.
class TableDocument {
public:
    /// All must outlive the object.
    TableDocument(Grid& grid, TableEditor& editor, TableState& state, Dialogs& dialogs,
                  JobRunner& jobs, TableDocumentView& view);

    /// Empties the table, after the question whether to save it.
    void NewStatusTable();
    /// Asks whether to save, asks for a file and shows it. The dialog starts at the last table, in
    /// `startFolder` before there was one. A file that fails is told; the table stays then.
    void OpenStatusTable(const QString& startFolder);
    /// Writes the table; asks for a file if it has none. True when it was written.
    bool SaveStatusTable();
    /// Asks for a file and writes the table to it. True when it was written; else the table keeps
    /// its old file and title.
    bool SaveStatusTableAs();
    /// Asks whether to save if an address differs from the file; MsgAnswer, 0 if none does.
    int SaveChangesResult();
    /// Asks whether to save if anything would be lost by closing the program; false when the user
    /// cancels or the table could not be saved.
    bool MayClose();
    /// Whether the table holds anything that its file does not.
    bool Changed() const;

private:
    bool QuestionAnswered(int answer);
    int AskToSave();
    void EmptyTable();
    void WriteHeads();
    bool ReadChosenFile(const QString& path, TableFile& table);
    void TakeFile(const QString& path, const TableFile& table);
    void FileError(const QString& text, int style);
    QStringList Column1() const;
    QString AskTableFile(const QString& startFolder);

    Grid& grid_;
    TableEditor& editor_;
    TableState& state_;
    Dialogs& dialogs_;
    JobRunner& jobs_;
    TableDocumentView& view_;
    QString tablePath_;
    bool untitled_ = true;
    bool tableStarted_ = false;
    bool skipQuestion_ = false;
    qint16 savedBoard_ = 0;
};
