#include "link/views/frmDownloadProg.h"

#include "base/DoEvents.h"
#include "base/ViewLoop.h"
#include "controls/ViewHelpers.h"
#include "link/RSComm.h"
#include "link/TransferProgress.h"
#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace {
// Wide enough for the longest progress text, so that the view does not change its size.
QString WidestText() {
    return QStringLiteral("Reading From Program Address: 00000H");
}
} // namespace

frmDownloadProg::frmDownloadProg(RSComm& link, QWidget* parent) : QDialog(parent), link_(link) {
    setObjectName(QStringLiteral("frmDownloadProg"));
    setModal(true);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    BuildForm();
    timer1_.setObjectName(QStringLiteral("Timer1"));
    timer1_.setInterval(progressInterval);
    connect(&timer1_, &QTimer::timeout, this, &frmDownloadProg::Timer1_Timer);
}

void frmDownloadProg::BuildForm() {
    auto* fraWaitDisplay = new QFrame(this);
    fraWaitDisplay->setObjectName(QStringLiteral("fraWaitDisplay"));
    fraWaitDisplay->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    fraWaitDisplay->setAccessibleName(tr("Program transfer"));

    lblWaitDisplay_ = new QLabel(fraWaitDisplay);
    lblWaitDisplay_->setObjectName(QStringLiteral("lblWaitDisplay"));
    lblWaitDisplay_->setTextFormat(Qt::PlainText);
    lblWaitDisplay_->setAlignment(Qt::AlignCenter);
    lblWaitDisplay_->setMinimumWidth(
        lblWaitDisplay_->fontMetrics().horizontalAdvance(WidestText()));

    auto* inside = new QVBoxLayout(fraWaitDisplay);
    inside->setContentsMargins(24, 24, 24, 24);
    inside->addWidget(lblWaitDisplay_);
    auto* outside = new QVBoxLayout(this);
    outside->setSizeConstraint(QLayout::SetFixedSize);
    outside->addWidget(fraWaitDisplay);
}

void frmDownloadProg::SetTransferMode(qint16 Mode) {
    mode_ = Mode;
}

// The first showing loads the view; the transfer starts from the event loop, when it is on screen.
void frmDownloadProg::showEvent(QShowEvent* event) {
    if (!loaded_)
        FormLoad();
    QDialog::showEvent(event);
}

void frmDownloadProg::FormLoad() {
    loaded_ = true;
    setWindowTitle(mode_ == TransferMode::Upload ? tr("Program Upload") : tr("Program Download"));
    SetText(TransferTextAtStart(mode_));
    CenterForm(*this);
    timer1_.stop();
    QMetaObject::invokeMethod(this, &frmDownloadProg::RunTransfer, Qt::QueuedConnection);
}

void frmDownloadProg::RunTransfer() {
    const ViewLoopHold hold;
    DoEvents();
    timer1_.start();
    if (mode_ == TransferMode::Dump)
        link_.DumpProgram();
    else if (mode_ == TransferMode::Upload)
        link_.UploadProgram();
    timer1_.stop();
    mode_ = TransferMode::Dump;
    loaded_ = false;
    done(QDialog::Accepted);
    DoEvents();
}

void frmDownloadProg::Timer1_Timer() {
    TransferProgress progress;
    progress.inProgramMode = link_.InProgramMode();
    progress.writingIdent = link_.WritingIdent();
    progress.inUploadMode = link_.InUploadMode();
    progress.readingIdent = link_.ReadingIdent();
    progress.address = link_.CurrentProgramAdd();
    SetText(TransferText(mode_, progress, lblWaitDisplay_->text()));
}

void frmDownloadProg::SetText(const QString& text) {
    lblWaitDisplay_->setText(text);
    lblWaitDisplay_->setAccessibleName(text);
}

void frmDownloadProg::reject() {
    if (!loaded_)
        QDialog::reject();
}

void frmDownloadProg::closeEvent(QCloseEvent* event) {
    if (loaded_)
        event->ignore();
    else
        QDialog::closeEvent(event);
}
