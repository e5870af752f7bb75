#include "jobs/views/frmWaitDisplay.h"

#include "base/Clock.h"
#include "base/DoEvents.h"
#include "controls/ViewHelpers.h"
#include "jobs/JobTime.h"
#include "jobs/WaitJobs.h"
#include <algorithm>
#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr int margin = 20;  // pixels around what stands in the frame
constexpr int spacing = 10; // pixels between

// Wide enough for the longest message, so that the view does not change its size.
QString WidestText() {
    return QStringLiteral("Clearing PLS Channel Setpoints, Please Standby ...MM");
}
} // namespace

frmWaitDisplay::frmWaitDisplay(qint16 jobCode, const WaitJobs& jobs, QTimer& backgroundUpdate,
                               const Clock& clock, Alarms& alarms, QWidget* parent)
    : QDialog(parent), jobCode_(jobCode), jobs_(jobs), backgroundUpdate_(backgroundUpdate),
      clock_(clock), nextRepaint_(alarms.Make([this] { RepaintFromNowOn(); })) {
    setObjectName(QStringLiteral("frmWaitDisplay"));
    setWindowTitle(QStringLiteral("Quentor"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setModal(true);
    BuildForm();
    connect(cmdCancel_, &QPushButton::clicked, this, [this] { cancelled_ = true; });
    Load(jobs_.Face(jobCode_));
}

frmWaitDisplay::~frmWaitDisplay() = default;

void frmWaitDisplay::BuildForm() {
    fraWaitDisplay_ = new QFrame(this);
    fraWaitDisplay_->setObjectName(QStringLiteral("fraWaitDisplay"));
    fraWaitDisplay_->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto* inside = new QVBoxLayout(fraWaitDisplay_);
    inside->setContentsMargins(margin, margin, margin, margin);
    inside->setSpacing(spacing);
    FillFrame(*inside);

    auto* outside = new QVBoxLayout(this);
    outside->setSizeConstraint(QLayout::SetFixedSize);
    outside->addWidget(fraWaitDisplay_);
}

void frmWaitDisplay::FillFrame(QVBoxLayout& inside) {
    aboveMessage_ = new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
    lblWaitDisplay_ = AddLabel(QStringLiteral("lblWaitDisplay"));
    lblWaitDisplay_->setMinimumWidth(fontMetrics().horizontalAdvance(WidestText()));
    lblSetpointRecall_ = AddLabel(QStringLiteral("lblSetpointRecall"));
    lblSetpointRecall_->hide();
    pbrWaitDisplay_ = new QProgressBar(fraWaitDisplay_);
    pbrWaitDisplay_->setObjectName(QStringLiteral("pbrWaitDisplay"));
    pbrWaitDisplay_->setAccessibleName(tr("Progress"));
    pbrWaitDisplay_->setTextVisible(false);
    lblJobTime_ = AddLabel(QStringLiteral("lblJobTime"));
    cmdCancel_ = new QPushButton(tr("Cancel"), fraWaitDisplay_);
    cmdCancel_->setObjectName(QStringLiteral("cmdCancel"));

    inside.addItem(aboveMessage_);
    inside.addWidget(lblWaitDisplay_);
    inside.addWidget(lblSetpointRecall_);
    inside.addWidget(pbrWaitDisplay_);
    inside.addWidget(lblJobTime_);
    inside.addWidget(cmdCancel_, 0, Qt::AlignHCenter);
}

QLabel* frmWaitDisplay::AddLabel(const QString& name) {
    auto* label = new QLabel(fraWaitDisplay_);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    // A new text must not set the whole view to laying itself out again.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return label;
}

void frmWaitDisplay::Load(const WaitJobFace& face) {
    cancelled_ = false;
    message_ = face.message;
    cmdCancel_->setEnabled(face.cancelEnabled);
    pbrWaitDisplay_->setVisible(face.barShown);
    lblSetpointRecall_->setVisible(face.secondLineShown);
    startedAt_ = clock_.MonotonicSeconds();
    Repaint();
    if (face.messageLowered)
        LowerMessage();
    if (face.centred)
        CenterForm(*this);
}

// The top of the message comes to half the height of the frame.
void frmWaitDisplay::LowerMessage() {
    const int without = fraWaitDisplay_->sizeHint().height();
    const int above = margin + fraWaitDisplay_->frameWidth();
    const int space = std::max(0, without - 2 * above);
    aboveMessage_->changeSize(0, space, QSizePolicy::Minimum, QSizePolicy::Fixed);
    fraWaitDisplay_->layout()->invalidate();
}

void frmWaitDisplay::RunJob() {
    show();
    const auto hideAtTheEnd = qScopeGuard([this] { hide(); });
    Activate();
}

void frmWaitDisplay::Activate() {
    backgroundUpdate_.stop();
    const auto goOnAtTheEnd = qScopeGuard([this] { backgroundUpdate_.start(); });
    startedAt_ = clock_.MonotonicSeconds();
    nextRepaint_->Set(repaintInterval);
    DoEvents();
    jobs_.Run(jobCode_, *this);
}

void frmWaitDisplay::SetRange(qint32 min, qint32 max) {
    min_ = min;
    max_ = std::max(min, max);
}

void frmWaitDisplay::SetValue(qint32 value) {
    if (!firstValue_)
        firstValue_ = value;
    value_ = value;
}

void frmWaitDisplay::Yield() {
    DoEvents();
}

// Each of these does nothing when it is told what it shows already.
void frmWaitDisplay::Repaint() {
    lblWaitDisplay_->setText(message_);
    lblSetpointRecall_->setText(secondLine_);
    pbrWaitDisplay_->setRange(min_, std::max(min_ + 1, max_));
    pbrWaitDisplay_->setValue(std::clamp(value_, min_, max_));
    lblJobTime_->setText(JobTimeText(TimeOfJob(startedAt_, clock_.MonotonicSeconds(),
                                               firstValue_.value_or(value_), value_, max_)));
}

void frmWaitDisplay::RepaintFromNowOn() {
    nextRepaint_->Set(repaintInterval);
    Repaint();
}

// Escape is a Cancel; the view itself stays until the job has ended.
void frmWaitDisplay::reject() {
    cmdCancel_->click();
}

void frmWaitDisplay::closeEvent(QCloseEvent* event) {
    cmdCancel_->click();
    event->ignore();
}
