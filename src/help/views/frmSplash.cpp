#include "help/views/frmSplash.h"

#include "base/VersionRecord.h"
#include "controls/ViewHelpers.h"
#include "help/views/HelpParts.h"
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace {
constexpr int logoSize = 96;     // pixels
constexpr int textWidth = 64;    // average characters of the widest line
constexpr int titleSize = 260;   // per cent of the ordinary text
constexpr int versionSize = 115; // per cent
constexpr int margin = 24;       // pixels
} // namespace

frmSplash::frmSplash(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmSplash"));
    setModal(true);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    BuildForm();
    FormLoad();
}

QVBoxLayout* frmSplash::Names() {
    lblCompanyProduct_ = TextLabel("lblCompanyProduct", QString());
    lblProductName_ = TextLabel("lblProductName", QString());
    EmphasiseLabel(*lblProductName_, titleSize, true);
    lblVersion_ = TextLabel("lblVersion", QString());
    EmphasiseLabel(*lblVersion_, versionSize, true);
    lblPlatform_ = TextLabel("lblPlatform", QString());
    auto* names = new QVBoxLayout;
    for (QLabel* label : {lblCompanyProduct_, lblProductName_, lblVersion_, lblPlatform_})
        names->addWidget(label);
    return names;
}

void frmSplash::BuildForm() {
    auto* fraSplash = new QFrame(this);
    fraSplash->setObjectName(QStringLiteral("fraSplash"));
    fraSplash->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* head = new QHBoxLayout;
    head->setSpacing(margin);
    head->addWidget(LogoLabel("imgLogo", logoSize, *this), 0, Qt::AlignTop);
    head->addLayout(Names(), 1);

    lblCompany_ = TextLabel("lblCompany", QString());
    lblCopyright_ = TextLabel("lblCopyright", QString());
    lblWarning_ = TextLabel("lblWarning", QString());
    lblWarning_->setWordWrap(true);
    lblWarning_->setMinimumWidth(fontMetrics().averageCharWidth() * textWidth);
    lblClickToContinue_ = TextLabel("lblClickToContinue", tr("Press a key or click to continue"));
    lblClickToContinue_->setAlignment(Qt::AlignRight);

    auto* inside = new QVBoxLayout(fraSplash);
    inside->setContentsMargins(margin, margin, margin, margin);
    inside->addLayout(head);
    inside->addSpacing(margin);
    for (QLabel* label : {lblCompany_, lblCopyright_, lblWarning_})
        inside->addWidget(label);
    inside->addSpacing(margin / 2);
    inside->addWidget(lblClickToContinue_);
    auto* outside = new QVBoxLayout(this);
    outside->setContentsMargins(0, 0, 0, 0);
    outside->addWidget(fraSplash);
}

void frmSplash::FormLoad() {
    const VersionRecord& record = ProgramVersion();
    setWindowTitle(record.title);
    lblProductName_->setText(record.title);
    lblCompanyProduct_->setText(record.product);
    lblPlatform_->setBuddy(this); // with a buddy "&&" is shown as one character
    lblPlatform_->setText(QStringLiteral("Windows2000, XP, Win7, 8 && 10"));
    lblVersion_->setText(record.VersionText());
    lblCopyright_->setText(record.copyright);
    lblCompany_->setText(record.company);
    lblWarning_->setText(record.licence + u'\n' + record.warning);
    CenterForm(*this);
}

void frmSplash::keyPressEvent(QKeyEvent*) {
    accept();
}

// Labels and frame take no clicks, so that one on any of them arrives here. The release ends the
// click: closing on the press would leave the release to the window below.
void frmSplash::mouseReleaseEvent(QMouseEvent*) {
    accept();
}
