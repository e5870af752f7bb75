#pragma once

#include "programset/CopyProgramSet.h"
#include "shell/SetFiles.h"
#include <QDialog>

struct FileDialogRequest;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

/// Modal view that copies a whole program set to another folder, name or disk. It is idle, and
/// Cancel closes it, or copying, and Cancel stops before the next file. Show it with exec().
class frmCopyFile final : public QDialog {
    Q_OBJECT
public:
    /// Opens on the set that is selected in the browser. All in `context` must outlive the view.
    explicit frmCopyFile(const SetFiles& context, QWidget* parent = nullptr);

    /// cmdCancel, Escape and the close button.
    void reject() override;

private:
    /// One end of the copy: the folder and the name of a .hdn file.
    struct End {
        QLabel* folder = nullptr;
        QLineEdit* name = nullptr;
        QPushButton* browse = nullptr;
    };
    /// How the controls of one end are called.
    struct EndNames {
        QString caption, label, text, button, buttonCaption;
    };

    void BuildForm();
    QPushButton* Button(const QString& name, const QString& caption);
    End AddEnd(QGridLayout& grid, const EndNames& names);
    void FormLoad();
    void cmdBrowseSource_Click();
    void cmdDestination_Click();
    void cmdCopy_Click();
    void CopyFiles(CopyProgramSet& copy);
    void ShowCopying();
    void ShowIdle();
    void RefreshBrowser();
    void Show(const End& end, const QString& path);
    FileDialogRequest DialogFrom(const QString& path) const;
    CopyProgramSet::Request Filled() const;

    SetFiles context_;
    bool stopped_ = true; // idle, or the user has asked the running copy to stop
    bool copying_ = false;
    QString lastSource_;
    QString lastDestination_;

    End source_;
    End destination_;
    QLabel* lblCopyStatus_ = nullptr;
    QPushButton* cmdCopy_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};
