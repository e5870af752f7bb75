#pragma once

#include "app/ChildActivation.h"
#include "trending/views/frmTrending.h"
#include <QObject>
#include <QPointer>

class frmMDIMain;
class JobRunner;
class RSComm;
class ViewLoopRunner;
class WaitJobs;
struct Platform;

/// The trend view, made at its first use and joined to the main window: its popup, its printing and
/// the copy of its graph.
class TrendingViews : public QObject, private TrendingHost {
    Q_OBJECT
public:
    /// All must outlive the object.
    TrendingViews(const Platform& platform, RSComm& link, ViewLoopRunner& loops, WaitJobs& jobs,
                  JobRunner& runner, frmMDIMain& window);

    /// Puts the graph on the clipboard if the view is up.
    void CopyGraph();

private:
    QWidget* MakeView(const Platform& platform, RSComm& link, ViewLoopRunner& loops, WaitJobs& jobs,
                      JobRunner& runner);
    void RegisterCommands();

    // TrendingHost
    void ShowTrendCommands(bool shown) override;
    void PopUpTrendMenu(const QPoint& place) override;

    frmMDIMain& window_;
    QPointer<frmTrending> view_;
    ChildActivation activation_;
};
