#include "help/views/frmHelp.h"

#include "controls/ViewHelpers.h"
#include "help/GuidePages.h"
#include "help/views/GuideBrowser.h"
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QSignalBlocker>
#include <QToolButton>

namespace {
constexpr QSize wantedSize(1000, 680); // pixels
constexpr double shareOfScreen = 0.95;
const QColor markGround(0xff, 0xe0, 0x8a);
} // namespace

frmHelp::frmHelp() {
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(QStringLiteral("Quentor Help"));
    for (int page = 0; page < static_cast<int>(GuidePages().size()); ++page)
        texts_.append(GuideBrowser::PlainText(page));
    BuildForm();
    resize(wantedSize.boundedTo(screen()->availableSize() * shareOfScreen));
    CenterForm(*this);
}

void frmHelp::ShowView(const QString& view) {
    txtGuide_->ShowPage(GuidePageOfView(view));
    showNormal();
    raise();
    activateWindow();
}

void frmHelp::PageShown() {
    const QSignalBlocker quiet(lstContents_);
    lstContents_->setCurrentRow(txtGuide_->Page());
    MarkHits();
}

void frmHelp::Search() {
    hits_ = FindInGuide(texts_, txtSearch_->text());
    hit_ = -1;
    lstHits_->clear();
    for (const GuideHit& hit : hits_) {
        auto* row = new QListWidgetItem(GuideTitle(hit.page) + u'\n' + hit.excerpt, lstHits_);
        row->setToolTip(hit.excerpt);
    }
    foundPane_->setVisible(!hits_.empty());
    cmdNextHit_->setEnabled(!hits_.empty());
    cmdPreviousHit_->setEnabled(!hits_.empty());
    MarkHits();
    ShowCount();
}

// The words are marked all over the page; the one gone to is selected and in sight.
void frmHelp::ShowHit(int hit) {
    hit_ = hit;
    const GuideHit& found = hits_[static_cast<std::size_t>(hit)];
    txtGuide_->ShowPage(found.page);
    QTextCursor cursor(txtGuide_->document());
    cursor.setPosition(found.position);
    cursor.setPosition(found.position + found.length, QTextCursor::KeepAnchor);
    txtGuide_->setTextCursor(cursor);
    txtGuide_->ensureCursorVisible();
    const QSignalBlocker quiet(lstHits_);
    lstHits_->setCurrentRow(hit);
    ShowCount();
}

void frmHelp::NextHit() {
    const int count = static_cast<int>(hits_.size());
    if (count > 0)
        ShowHit(hit_ < 0 ? FirstHitFrom(hits_, txtGuide_->Page()) : (hit_ + 1) % count);
}

void frmHelp::PreviousHit() {
    const int count = static_cast<int>(hits_.size());
    if (count == 0)
        return;
    const int from = hit_ < 0 ? FirstHitFrom(hits_, txtGuide_->Page()) : hit_;
    ShowHit((from + count - 1) % count);
}

void frmHelp::MarkHits() {
    QList<QTextEdit::ExtraSelection> marks;
    for (const GuideHit& hit : hits_) {
        if (hit.page != txtGuide_->Page())
            continue;
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(txtGuide_->document());
        mark.cursor.setPosition(hit.position);
        mark.cursor.setPosition(hit.position + hit.length, QTextCursor::KeepAnchor);
        mark.format.setBackground(markGround);
        mark.format.setForeground(Qt::black);
        marks.append(mark);
    }
    txtGuide_->setExtraSelections(marks);
}

void frmHelp::ShowCount() {
    QString text;
    if (hits_.empty() && !txtSearch_->text().trimmed().isEmpty())
        text = tr("Nothing found");
    else if (!hits_.empty() && hit_ < 0)
        text = tr("%1 found").arg(hits_.size());
    else if (!hits_.empty())
        text = tr("%1 of %2").arg(hit_ + 1).arg(hits_.size());
    lblHits_->setText(text);
    lblHits_->setAccessibleName(text);
}

// Escape first takes the search away, then the window.
void frmHelp::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(event);
    if (txtSearch_->text().isEmpty())
        close();
    else
        txtSearch_->clear();
}
