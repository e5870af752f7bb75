#include "help/views/frmSysInfo.h"

#include "controls/ViewHelpers.h"
#include "help/views/HelpParts.h"
#include <algorithm>
#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {
constexpr int shortestLine = 60; // characters
constexpr int longestLine = 90;
constexpr int fewestLines = 14;
constexpr int mostLines = 26;
} // namespace

frmSysInfo::frmSysInfo(const QString& report, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmSysInfo"));
    setWindowTitle(tr("System Information"));
    setModal(true);
    BuildForm(report);
    SizeToReport();
    CenterForm(*this);
}

void frmSysInfo::BuildForm(const QString& report) {
    txtReport_ = new QPlainTextEdit(report);
    txtReport_->setObjectName(QStringLiteral("txtReport"));
    txtReport_->setAccessibleName(tr("System information"));
    txtReport_->setReadOnly(true);
    txtReport_->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtReport_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    lblCopied_ = TextLabel("lblCopied", QString());
    cmdCopy_ = new QPushButton(tr("&Copy"));
    cmdCopy_->setObjectName(QStringLiteral("cmdCopy"));
    cmdCopy_->setAutoDefault(false);
    connect(cmdCopy_, &QPushButton::clicked, this, &frmSysInfo::cmdCopy_Click);
    cmdOk_ = new QPushButton(tr("OK"));
    cmdOk_->setObjectName(QStringLiteral("cmdOk"));
    cmdOk_->setDefault(true);
    connect(cmdOk_, &QPushButton::clicked, this, &QDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(lblCopied_, 1);
    buttons->addWidget(cmdCopy_);
    buttons->addWidget(cmdOk_);
    auto* form = new QVBoxLayout(this);
    form->addWidget(txtReport_, 1);
    form->addLayout(buttons);
    cmdCopy_->setFocus();
}

// As big as the report, within reason: a list of thirty ports is scrolled.
void frmSysInfo::SizeToReport() {
    const QStringList lines = txtReport_->toPlainText().split(u'\n');
    qsizetype longest = shortestLine;
    for (const QString& line : lines)
        longest = std::max(longest, line.size());
    const QFontMetrics metrics = txtReport_->fontMetrics();
    const int columns = std::min(static_cast<int>(longest), longestLine) + 2;
    const int rows = std::clamp(static_cast<int>(lines.size()), fewestLines, mostLines) + 2;
    const int bar = txtReport_->verticalScrollBar()->sizeHint().width();
    txtReport_->setMinimumSize(metrics.horizontalAdvance(u'0') * columns + bar,
                               metrics.lineSpacing() * rows);
}

void frmSysInfo::cmdCopy_Click() {
    QApplication::clipboard()->setText(txtReport_->toPlainText());
    lblCopied_->setText(tr("Copied to the clipboard."));
}
