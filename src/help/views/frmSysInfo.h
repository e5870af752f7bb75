#pragma once

#include <QDialog>

class QLabel;
class QPlainTextEdit;
class QPushButton;

/// Modal view of what the program knows of the system, for a support desk. The Copy button puts
/// all of it on the clipboard. Show it with exec().
class frmSysInfo final : public QDialog {
    Q_OBJECT
public:
    /// `report` is shown as it stands, lines parted by LF.
    explicit frmSysInfo(const QString& report, QWidget* parent = nullptr);

private:
    void BuildForm(const QString& report);
    void SizeToReport();
    void cmdCopy_Click();

    QPlainTextEdit* txtReport_ = nullptr;
    QLabel* lblCopied_ = nullptr;
    QPushButton* cmdCopy_ = nullptr;
    QPushButton* cmdOk_ = nullptr;
};
