#pragma once

#include "base/ViewLoop.h"
#include "targetboard/TargetBoardModel.h"
#include <QDialog>

class ClockPage;
class FaultPage;
class IdentPage;
class NetworkPage;
class NumericEntries;
class QPushButton;
class QStackedWidget;
class QTabBar;

/// The target board interface: a modal view of one board with four pages, faults, ident, network
/// address and clock. Its loop goes on while it is up; those of the views behind it rest. It only
/// shows what the model says and forwards what the user does.
class frmTargetBoard final : public QDialog, public ViewLoop {
    Q_OBJECT
public:
    /// All must outlive the view. One view serves for the whole run.
    frmTargetBoard(RSComm& link, CommMode& mode, const Clock& clock, Dialogs& dialogs,
                   const ApplicationFolder& folder, ViewLoopRunner& loops,
                   QWidget* parent = nullptr);
    ~frmTargetBoard() override;

    /// Prepares the view for a program set, goes online and shows the board until the user closes
    /// the view. A set that cannot be read is reported by a box, and the view does not open.
    void InitializeForm(const QString& HdnFile);

    /// One step of the loop, given by the ViewLoopRunner.
    Step TakeStep() override;
    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void BuildForm(Dialogs& dialogs);
    void ConnectControls();
    void ConnectEntries();
    void ShowModel();
    void tabTargetBoard_Click(int index);
    void cmdOk_Click();
    void Forward(void (TargetBoardModel::*handler)());

    Dialogs& dialogs_;
    ViewLoopRunner& loops_;
    TargetBoardModel model_;

    QPushButton* cmdDefault_ = nullptr;
    NumericEntries* entries_ = nullptr;
    QTabBar* tabTargetBoard_ = nullptr;
    QStackedWidget* frames_ = nullptr;
    FaultPage* faultPage_ = nullptr;
    IdentPage* identPage_ = nullptr;
    NetworkPage* networkPage_ = nullptr;
    ClockPage* clockPage_ = nullptr;
    QPushButton* cmdGoOnline_ = nullptr;
    QPushButton* cmdOk_ = nullptr;
};
