#include "trending/views/frmTrendingPrint.h"

#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "controls/ViewHelpers.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "reports/ReportPrinter.h"
#include "trending/TrendOutput.h"
#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {
QString Title() {
    return QStringLiteral("Print -Trending");
}
} // namespace

frmTrendingPrint::frmTrendingPrint(Dialogs& dialogs, ReportPrinter& printer, JobRunner& jobs,
                                   QWidget* parent)
    : QDialog(parent), dialogs_(dialogs), printer_(printer), jobs_(jobs),
      chkGraph_(new QCheckBox(QStringLiteral("Graph"))),
      chkTrendData_(new QCheckBox(QStringLiteral("Trend Data"))), lblPrinter_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmTrendingPrint"));
    setWindowTitle(Title());
    chkGraph_->setObjectName(QStringLiteral("chkGraph"));
    chkTrendData_->setObjectName(QStringLiteral("chkTrendData"));
    lblPrinter_->setObjectName(QStringLiteral("lblPrinter"));
    auto* frame = new QGroupBox(QStringLiteral("Print What"), this);
    auto* what = new QVBoxLayout(frame);
    what->addWidget(chkGraph_);
    what->addWidget(chkTrendData_);
    auto* commands = new QHBoxLayout;
    const auto command = [&](const char* name, const QString& caption, auto handler) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QString::fromLatin1(name));
        commands->addWidget(button);
        connect(button, &QPushButton::clicked, this, handler);
    };
    command("cmdOk", QStringLiteral("OK"), &frmTrendingPrint::ClickOk);
    command("cmdCancel", QStringLiteral("Cancel"), &QDialog::reject);
    command("cmdSetup", QStringLiteral("&Setup..."), &frmTrendingPrint::ChoosePrinter);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    layout->addWidget(lblPrinter_);
    layout->addLayout(commands);
    ShowPrinterName();
    CenterForm(*this);
}

void frmTrendingPrint::InitialilizePrint(const TrendSamples& samples, int samplesToGraph) {
    samples_ = &samples;
    samplesToGraph_ = samplesToGraph;
}

void frmTrendingPrint::ShowPrinterName() {
    lblPrinter_->setText(printer_.DeviceName());
}

void frmTrendingPrint::ClickOk() {
    const bool anything = chkTrendData_->isChecked() || chkGraph_->isChecked();
    if (anything && printer_.DeviceName().isEmpty() && !ChoosePrinter())
        return;
    try {
        if (chkTrendData_->isChecked())
            jobs_.RunWaitJob(WaitJob::PrintTrendData);
        if (chkGraph_->isChecked() && samples_)
            PrintGraph(printer_, *samples_, samplesToGraph_);
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, Title(), MsgStyle::Critical);
    }
    accept();
}

bool frmTrendingPrint::ChoosePrinter() {
    bool chosen = false;
    try {
        printer_.UsePrinter(dialogs_.ShowPrinter());
        chosen = true;
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, Title(), MsgStyle::Critical);
    }
    ShowPrinterName();
    return chosen;
}
