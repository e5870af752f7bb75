#pragma once

#include "app/ChildActivation.h"
#include "statustable/views/StatusTableHost.h"
#include <QObject>
#include <QPointer>

class frmMDIMain;
class frmStatusTable;
class JobRunner;
class ReportPrinter;
class RSComm;
class ViewLoopRunner;
class WaitJobs;
struct Platform;

/// The status table, made at its first use and joined to the main window: its menu, its activation
/// and the question about unsaved changes at the end.
class StatusTableViews : public QObject, private StatusTableHost {
    Q_OBJECT
public:
    /// All must outlive the object.
    StatusTableViews(const Platform& platform, RSComm& link, ViewLoopRunner& loops, WaitJobs& jobs,
                     JobRunner& runner, frmMDIMain& window);
    ~StatusTableViews() override;

    /// Puts the cells that are selected in the table on the clipboard.
    void CopyCells();

private:
    QWidget* MakeView(const Platform& platform, RSComm& link, ViewLoopRunner& loops, WaitJobs& jobs,
                      JobRunner& runner);
    void RegisterCommands();
    void RegisterPrinting(const Platform& platform, WaitJobs& jobs);
    bool MayClose();

    // StatusTableHost
    QString SelectedProgramPath() const override;
    void ShowTableCommands(bool shown) override;
    void HideTableMenus() override;
    void PopUpTableMenu(const QPoint& place) override;
    void UsePrinter(const PrinterChoice& choice) override;

    frmMDIMain& window_;
    ReportPrinter& printer_;
    QPointer<frmStatusTable> view_;
    ChildActivation activation_;
};
