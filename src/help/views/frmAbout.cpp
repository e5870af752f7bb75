#include "help/views/frmAbout.h"

#include "base/VersionRecord.h"
#include "controls/ValueLabel.h"
#include "controls/ViewHelpers.h"
#include "help/RevisionDate.h"
#include "help/views/HelpParts.h"
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int logoSize = 64;   // pixels
constexpr int textWidth = 62;  // average characters
constexpr int titleSize = 180; // per cent of the ordinary text
constexpr int spacing = 16;    // pixels
} // namespace

frmAbout::frmAbout(AboutContext context, QWidget* parent)
    : QDialog(parent), context_(std::move(context)) {
    setObjectName(QStringLiteral("frmAbout"));
    setModal(true);
    BuildForm();
    FormLoad();
}

QVBoxLayout* frmAbout::Texts() {
    lblTitle_ = TextLabel("lblTitle", QString());
    EmphasiseLabel(*lblTitle_, titleSize, true);
    lblVersion_ = TextLabel("lblVersion", QString());
    lblRevisionDate_ = TextLabel("lblRevisionDate", QString());
    lblDescription_ = new ValueLabel;
    lblDescription_->setObjectName(QStringLiteral("lblDescription"));
    lblTechSupport_ = new ValueLabel;
    lblTechSupport_->setObjectName(QStringLiteral("lblTechSupport"));
    auto* texts = new QVBoxLayout;
    for (QLabel* label : {lblTitle_, lblVersion_, lblRevisionDate_})
        texts->addWidget(label);
    for (ValueLabel* label : {lblDescription_, lblTechSupport_}) {
        label->setWordWrap(true);
        label->setMinimumWidth(fontMetrics().averageCharWidth() * textWidth);
        texts->addSpacing(spacing / 2);
        texts->addWidget(label);
    }
    texts->addStretch();
    return texts;
}

QHBoxLayout* frmAbout::Buttons() {
    cmdSysInfo_ = new QPushButton(tr("&System Info..."));
    cmdSysInfo_->setObjectName(QStringLiteral("cmdSysInfo"));
    cmdSysInfo_->setAutoDefault(false);
    connect(cmdSysInfo_, &QPushButton::clicked, this, [this] { context_.startSysInfo(*this); });
    cmdOk_ = new QPushButton(tr("OK"));
    cmdOk_->setObjectName(QStringLiteral("cmdOk"));
    cmdOk_->setDefault(true);
    connect(cmdOk_, &QPushButton::clicked, this, &QDialog::accept);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdSysInfo_);
    buttons->addWidget(cmdOk_);
    return buttons;
}

void frmAbout::BuildForm() {
    auto* body = new QHBoxLayout;
    body->setSpacing(spacing);
    body->addWidget(LogoLabel("imgLogo", logoSize, *this), 0, Qt::AlignTop);
    body->addLayout(Texts(), 1);
    auto* form = new QVBoxLayout(this);
    form->setContentsMargins(spacing, spacing, spacing, spacing);
    form->setSpacing(spacing);
    form->addLayout(body);
    form->addLayout(Buttons());
    cmdOk_->setFocus();
}

void frmAbout::FormLoad() {
    const VersionRecord& record = ProgramVersion();
    setWindowTitle(QStringLiteral("About ") + record.title);
    lblTitle_->setText(record.title);
    lblVersion_->setText(record.VersionText());
    lblRevisionDate_->setText(RevisionText(context_.revised));
    lblDescription_->Show(record.description + u'\n' + record.copyright + u'\n' + record.licence +
                          QStringLiteral("\n\n") + record.warning);
    lblTechSupport_->Show(QStringLiteral("Technical Support:\n") + record.technicalHelp);
    CenterForm(*this);
}
