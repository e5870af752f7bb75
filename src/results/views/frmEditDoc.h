#pragma once

#include "results/VariableDoc.h"
#include <QDialog>

class Dialogs;
class Grid;

/// Lists every documented variable of a program: its address, its NicName and its description. The
/// suite's editor writes them; here they are only read.
class frmEditDoc final : public QDialog {
    Q_OBJECT
public:
    /// `dialogs` must outlive the view.
    explicit frmEditDoc(Dialogs& dialogs, QWidget* parent = nullptr);

    /// The program whose variables are shown: its full name without extension. The caller then
    /// shows the view, which reads the files .nam and .doc each time it is shown.
    void InitializeVar(const QString& path);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildForm();
    void Form_Activate();
    void SetUpGrid();
    void SizeGrid();
    void DisplayData();
    int ReadFiles(VariableDoc& doc) const;
    void ShowRows(const std::vector<VariableDoc::Row>& rows);

    Dialogs& dialogs_;
    QString namPath_;
    QString docPath_;
    Grid* fgEditDoc_;
};
