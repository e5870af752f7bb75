#pragma once

#include "app/ChildActivation.h"
#include "app/PLSTransfer.h"
#include <QObject>
#include <QPointer>

class frmMDIMain;
class frmTiming;
class JobRunner;
class RSComm;
class ViewLoopRunner;
struct Platform;

/// The timing view of limit switch boards, made at its first use and joined to the main window: its
/// command, its activation, and what the transfers of these boards ask of it.
class TimingViews : public QObject {
    Q_OBJECT
public:
    /// All must outlive the object.
    TimingViews(const Platform& platform, RSComm& link, ViewLoopRunner& loops, JobRunner& runner,
                frmMDIMain& window);

    /// What the transfers ask of the view and tell it; one that was never shown says nothing.
    TimingView View();

private:
    QWidget* MakeView(const Platform& platform, RSComm& link, ViewLoopRunner& loops,
                      JobRunner& runner);
    void ShowTiming();

    frmMDIMain& window_;
    QPointer<frmTiming> view_;
    ChildActivation activation_;
};
