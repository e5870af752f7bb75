#include "app/StatusTableViews.h"

#include "app/Application.h"
#include "app/ViewCommands.h"
#include "base/ApplicationFolder.h"
#include "controls/grid/Grid.h"
#include "jobs/WaitJobs.h"
#include "reports/modReport.h"
#include "reports/ReportPrinter.h"
#include "session/Globals.h"
#include "statustable/views/frmStatusTable.h"
#include <QMenu>

namespace {
QString ViewName() {
    return QStringLiteral("frmStatusTable");
}

class StatusReportGrid final : public ReportGrid {
public:
    explicit StatusReportGrid(const Grid& grid) : grid_(grid) {}
    int Rows() const override { return grid_.Rows(); }
    int Columns() const override { return grid_.Cols(); }
    QString Text(int row, int column) const override { return grid_.TextMatrix(row, column); }

private:
    const Grid& grid_;
};
} // namespace

StatusTableViews::StatusTableViews(const Platform& platform, RSComm& link, ViewLoopRunner& loops,
                                   WaitJobs& jobs, JobRunner& runner, frmMDIMain& window)
    : window_(window), printer_(platform.printer), activation_(
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
    window_.Views().mayClose = [this] { return MayClose(); };
    RegisterCommands();
    RegisterPrinting(platform, jobs);
}

StatusTableViews::~StatusTableViews() {
    window_.Views().mayClose = nullptr;
}

QWidget* StatusTableViews::MakeView(const Platform& platform, RSComm& link, ViewLoopRunner& loops,
                                    WaitJobs& jobs, JobRunner& runner) {
    view_ = new frmStatusTable(
        {link, window_.Mode(), platform.dialogs, loops, runner, *this, platform.folder.Root()});
    view_->RegisterJobs(jobs);
    return view_;
}

void StatusTableViews::RegisterCommands() {
    CommandSurface& commands = window_.Commands();
    commands.Handle(QStringLiteral("mnuToolsStatusTable"), [this] {
        window_.Children().Show(ViewName());
        if (view_)
            view_->StatusGrid().setFocus();
    });
    const ViewCommands entries(commands, view_);
    entries.Handle("mnuStatusTableItem(0)", &frmStatusTable::StatusTableCopyClip);
    entries.Handle("mnuStatusTableItem(4)", &frmStatusTable::SelectStatusTableProgram);
    entries.Handle("mnuStatusTableItem(6)", &frmStatusTable::OpenStatusTable);
    entries.Handle("mnuStatusTableItem(7)", &frmStatusTable::NewStatusTable);
    entries.Handle("mnuStatusTableItem(9)", &frmStatusTable::SaveStatusTable);
    entries.Handle("mnuStatusTableItem(10)", &frmStatusTable::SaveStatusTableAs);
    entries.Handle("mnuFilePrintStatusTable", &frmStatusTable::PrintStatusTable);
}

void StatusTableViews::RegisterPrinting(const Platform& platform, WaitJobs& jobs) {
    jobs.Register(WaitJob::PrintStatusTable, [this, &clock = platform.clock](JobProgress&) {
        if (view_)
            PrintReport(printer_, StatusReportGrid(view_->StatusGrid()), clock, gTableTitle,
                        ReportKind::StatusTable);
    });
}

void StatusTableViews::CopyCells() {
    if (view_)
        view_->StatusTableCopyClip();
}

bool StatusTableViews::MayClose() {
    return !view_ || view_->MayClose();
}

QString StatusTableViews::SelectedProgramPath() const {
    return window_.SelectedProgramPath();
}

// Which entries show follows from the view that is active.
void StatusTableViews::ShowTableCommands(bool) {
    window_.RefreshCommandState();
}

void StatusTableViews::HideTableMenus() {
    window_.RefreshCommandState();
}

void StatusTableViews::PopUpTableMenu(const QPoint& place) {
    window_.Commands().Menu(QStringLiteral("mnuStatusTable"))->popup(place);
}

void StatusTableViews::UsePrinter(const PrinterChoice& choice) {
    printer_.UsePrinter(choice);
}
