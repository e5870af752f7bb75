#include "app/TrendingViews.h"

#include "app/Application.h"
#include "app/ViewCommands.h"
#include <QMenu>

namespace {
QString ViewName() {
    return QStringLiteral("frmTrending");
}
} // namespace

TrendingViews::TrendingViews(const Platform& platform, RSComm& link, ViewLoopRunner& loops,
                             WaitJobs& jobs, JobRunner& runner, frmMDIMain& window)
    : window_(window), activation_(
                           window.Children(), ViewName(),
                           [this] {
                               if (view_)
                                   view_->Activate();
                           },
                           [this] {
                               if (view_)
                                   view_->Deactivate();
                           }) {
    window_.Children().Register(ViewName(), [this, platform, &link, &loops, &jobs, &runner] {
        return MakeView(platform, link, loops, jobs, runner);
    });
    RegisterCommands();
}

QWidget* TrendingViews::MakeView(const Platform& platform, RSComm& link, ViewLoopRunner& loops,
                                 WaitJobs& jobs, JobRunner& runner) {
    view_ = new frmTrending(
        {link, platform.clock, platform.dialogs, loops, runner, platform.printer, *this});
    view_->RegisterJobs(jobs);
    return view_;
}

void TrendingViews::RegisterCommands() {
    CommandSurface& commands = window_.Commands();
    commands.Handle(QStringLiteral("mnuToolsTrending"),
                    [this] { window_.Children().Show(ViewName()); });
    const ViewCommands entries(commands, view_);
    entries.Handle("mnuFilePrintTrendData", &frmTrending::PrintTrendData);
    entries.Handle("mnuTrendingPopupOpen", &frmTrending::OpenTrendData);
    entries.Handle("mnuTrendingPopupSave", &frmTrending::SaveTendData);
    entries.Handle("mnuTrendingPopupCopy", &frmTrending::CopyGraph);
    entries.Handle("mnuTrendingPopupPrint", &frmTrending::PrintTrendData);
    entries.Handle("mnuTrendingPopupExport", &frmTrending::ExportCsv);
}

void TrendingViews::CopyGraph() {
    if (view_ && window_.Children().IsVisible(ViewName()))
        view_->CopyGraph();
}

// Which entries show follows from the view that is active.
void TrendingViews::ShowTrendCommands(bool) {
    window_.RefreshCommandState();
}

void TrendingViews::PopUpTrendMenu(const QPoint& place) {
    window_.Commands().Menu(QStringLiteral("mnuTrendingPopup"))->popup(place);
}
