#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "jobs/WaitJobs.h"
#include "reports/ReportPrinter.h"
#include "trending/TrendOutput.h"
#include "trending/views/frmTrending.h"
#include "trending/views/frmTrendingPrint.h"
#include "trending/views/GraphView.h"
#include <functional>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QImage>

namespace {
FileDialogRequest RequestFor(const QString& title, const QString& path, int flags) {
    FileDialogRequest request;
    request.title = title;
    request.filter = QStringLiteral("Trend Data(*.tdt)|*.tdt|");
    request.fileName = path;
    request.flags = flags;
    return request;
}

// Errors are told under the title of the dialog; its Cancel is silent.
void Report(Dialogs& dialogs, const QString& title, const std::function<void()>& operation) {
    try {
        operation();
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs, error, title, MsgStyle::Critical);
    }
}
} // namespace

void frmTrending::RegisterJobs(WaitJobs& jobs) {
    jobs.Register(WaitJob::PrintTrendData, [this](JobProgress&) {
        PrintReport(seams_.printer, TrendReportGrid(acquisition_.Samples()), seams_.clock,
                    FileName(), ReportKind::Trend);
    });
}

QString frmTrending::FileName() const {
    return lastPath_.isEmpty() ? QString() : FileSystem().GetFileName(lastPath_);
}

void frmTrending::OpenTrendData() {
    const QString title = QStringLiteral("Trend Sample Open");
    Report(seams_.dialogs, title, [&] {
        Open(seams_.dialogs.ShowOpen(RequestFor(title, lastPath_, DialogFlag::FileMustExist)));
    });
}

void frmTrending::Open(const QString& path) {
    TrendFile trend;
    if (ReadTrendFile(path, trend) == TrendFileState::Empty)
        return;
    lastPath_ = path;
    acquisition_.Load(trend.rows);
    form_.cboTargetBoard->setCurrentIndex(trend.boardListEntry);
    form_.cboAddress->setEditText(trend.address);
    EnterAddress();
}

void frmTrending::SaveTendData() {
    const QString title = QStringLiteral("Trend Sample Save");
    Report(seams_.dialogs, title, [&] {
        const QString path =
            seams_.dialogs.ShowSave(RequestFor(title, lastPath_, DialogFlag::OverwritePrompt));
        const auto& rows = acquisition_.Samples().DataRows();
        WriteTrendFile(path, {form_.cboAddress->currentText(),
                              form_.cboTargetBoard->currentIndex(),
                              {rows.begin(), rows.end()}});
        lastPath_ = path;
    });
}

void frmTrending::ExportCsv() {
    const QString title = QStringLiteral("Export CSV");
    Report(seams_.dialogs, title, [&] {
        FileDialogRequest request = RequestFor(title, QString(), DialogFlag::OverwritePrompt);
        request.filter = QStringLiteral("Comma Separated Values(*.csv)|*.csv|");
        ExportTrendCsv(seams_.dialogs.ShowSave(request), acquisition_.Samples());
    });
}

void frmTrending::PrintTrendData() {
    frmTrendingPrint dialog(seams_.dialogs, seams_.printer, seams_.jobs, this);
    dialog.InitialilizePrint(acquisition_.Samples(), samplesToGraph_);
    dialog.exec();
}

void frmTrending::CopyGraph() {
    QGuiApplication::clipboard()->setImage(form_.picGraph->Image());
}
