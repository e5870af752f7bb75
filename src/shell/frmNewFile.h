#pragma once

#include "shell/SetFiles.h"
#include <QDialog>

class ApplicationFolder;
class DirectoryList;
class DriveBox;
class FileList;
class ProcessStart;
class QComboBox;
class QLineEdit;
class QPushButton;
class RunTimeError;

/// What a new program set is for.
namespace NewFileMode {
constexpr qint16 NewProgram = 0; ///< the tool that sets it up is started
constexpr qint16 Upload = 1;     ///< a name for a program about to be uploaded
} // namespace NewFileMode

/// Modal view that makes the .hdn file of a new program set: folder, name, board. Afterwards
/// gNewFileAccepted tells whether one was made, and gHdnFile is its path; in mode 1 the link is in
/// upload mode. Show it with exec().
class frmNewFile final : public QDialog {
    Q_OBJECT
public:
    /// `tools` starts the tools, `folder` holds them. Both must outlive the view.
    frmNewFile(const SetFiles& context, ProcessStart& tools, const ApplicationFolder& folder,
               QWidget* parent = nullptr);

    /// NewFileMode; to be called before exec().
    void SetNewFileMode(qint16 Action);

    /// cmdCancel, Escape and the close button.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildForm();
    QWidget* Places();
    QWidget* Files();
    void FormLoad();
    void drvNew_Change(const QString& root);
    void dirNew_Change();
    void filNew_Click();
    void cmdOk_Click();
    bool CreateSet();
    void StartTool();
    void BackToName();
    void Report(const RunTimeError& error);

    SetFiles context_;
    ProcessStart& tools_;
    const ApplicationFolder& folder_;
    qint16 mode_ = NewFileMode::NewProgram;

    DriveBox* drvNew_ = nullptr;
    DirectoryList* dirNew_ = nullptr;
    FileList* filNew_ = nullptr;
    QLineEdit* txtNew_ = nullptr;
    QComboBox* cboNew_ = nullptr;
    QPushButton* cmdOk_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};
