#pragma once

#include "jobs/TransferRange.h"
#include <array>
#include <optional>
#include <QDialog>

class Dialogs;
class EntryUpDown;
class FileSystem;
class JobRunner;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

/// Modal dialog in which the user chooses what of the board's data is moved: the standard range
/// or one of his own. OK runs job 4. It reads gXferMode, gXferBoard and gHdnFile when it is made
/// and leaves the range in gXferFrom and gXferTo. Show it with exec().
class frmDataXfr final : public QDialog {
    Q_OBJECT
public:
    /// `dialogs` shows the refusals, `files` tells whether the set exists, `jobs` runs the
    /// transfer. All must outlive the dialog.
    frmDataXfr(Dialogs& dialogs, const FileSystem& files, JobRunner& jobs,
               QWidget* parent = nullptr);

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildForm();
    void AddOptions(QVBoxLayout& form);
    void AddEntries(QVBoxLayout& form);
    void AddButtons(QVBoxLayout& form);
    std::optional<int> EntryOf(const QObject* object) const;
    bool TakesKey(int entry, const QKeyEvent& event);
    void optRange_Click(int index);
    void txtRange_GotFocus(int index, Qt::FocusReason reason);
    void txtRange_LostFocus(int index);
    void CheckLeftEntry();
    bool AcceptEntry(int index);
    void cmdOk_Click();
    RangeChoice Choice() const;

    Dialogs& dialogs_;
    JobRunner& jobs_;
    const AddressRange standard_;

    std::array<QRadioButton*, 2> optRange_{};
    std::array<QLabel*, 2> lblRange_{};
    std::array<QLineEdit*, 2> txtRange_{};
    std::array<EntryUpDown*, 2> updRange_{};
    QPushButton* cmdOk_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;

    std::optional<int> leftEntry_; // an entry that was left and not looked at yet
};
