#include "controls/KeyedSplitter.h"
#include "help/GuidePages.h"
#include "help/views/frmHelp.h"
#include "help/views/GuideBrowser.h"
#include "help/views/HelpParts.h"
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

// How the help window is laid out and which keys it knows.

namespace {
constexpr int listsWidth = 270; // pixels at first
constexpr int pageWidth = 730;
constexpr int wordsWidth = 28; // average characters
constexpr int countWidth = 14;

QWidget* Labelled(const QString& caption, const char* name, QListWidget& list) {
    list.setObjectName(QString::fromLatin1(name));
    list.setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    auto* label = new QLabel(caption);
    label->setBuddy(&list);
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(label);
    layout->addWidget(&list);
    return pane;
}
} // namespace

QToolButton* frmHelp::Tool(const char* name, const QString& text, const QString& tip) {
    auto* button = new QToolButton;
    button->setObjectName(QString::fromLatin1(name));
    button->setText(text);
    button->setToolTip(tip);
    button->setEnabled(false);
    return button;
}

QBoxLayout* frmHelp::Tools() {
    cmdBack_ = Tool("cmdBack", tr("Back"), tr("Page before this one (Alt+Left)"));
    cmdForward_ = Tool("cmdForward", tr("Forward"), tr("Page left by Back (Alt+Right)"));
    cmdPreviousHit_ = Tool("cmdPreviousHit", tr("Previous"), tr("Previous place (Shift+Return)"));
    cmdNextHit_ = Tool("cmdNextHit", tr("Next"), tr("Next place (Return)"));
    txtSearch_ = new QLineEdit;
    txtSearch_->setObjectName(QStringLiteral("txtSearch"));
    txtSearch_->setAccessibleName(tr("Search in all pages"));
    txtSearch_->setPlaceholderText(tr("Search in all pages (Ctrl+F)"));
    txtSearch_->setClearButtonEnabled(true);
    for (auto* clear : txtSearch_->findChildren<QToolButton*>())
        clear->setAccessibleName(tr("Clear the search"));
    txtSearch_->setMinimumWidth(fontMetrics().averageCharWidth() * wordsWidth);
    lblHits_ = TextLabel("lblHits", QString());
    lblHits_->setMinimumWidth(fontMetrics().averageCharWidth() * countWidth);
    auto* tools = new QHBoxLayout;
    tools->addWidget(cmdBack_);
    tools->addWidget(cmdForward_);
    tools->addStretch(1);
    tools->addWidget(txtSearch_, 1);
    tools->addWidget(cmdPreviousHit_);
    tools->addWidget(cmdNextHit_);
    tools->addWidget(lblHits_);
    return tools;
}

QWidget* frmHelp::Lists() {
    lstContents_ = new QListWidget;
    lstHits_ = new QListWidget;
    lstHits_->setAlternatingRowColors(true);
    lstHits_->setTextElideMode(Qt::ElideRight);
    lstHits_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    foundPane_ = Labelled(tr("&Found:"), "lstHits", *lstHits_);
    foundPane_->hide();
    auto* lists = new KeyedSplitter(Qt::Vertical, tr("Divider between contents and places found"));
    lists->setChildrenCollapsible(false);
    lists->addWidget(Labelled(tr("&Contents:"), "lstContents", *lstContents_));
    lists->addWidget(foundPane_);
    return lists;
}

void frmHelp::BuildForm() {
    txtGuide_ = new GuideBrowser;
    txtGuide_->setObjectName(QStringLiteral("txtGuide"));
    txtGuide_->setAccessibleName(tr("Page of the guide"));
    auto* form = new QVBoxLayout(this);
    form->addLayout(Tools());
    auto* panes = new KeyedSplitter(Qt::Horizontal, tr("Divider between lists and page"));
    panes->setChildrenCollapsible(false);
    panes->addWidget(Lists());
    panes->addWidget(txtGuide_);
    panes->setStretchFactor(1, 1);
    panes->setSizes({listsWidth, pageWidth});
    form->addWidget(panes, 1);
    FillContents();
    ConnectParts();
    AddKeys();
}

void frmHelp::FillContents() {
    for (int page = 0; page < static_cast<int>(GuidePages().size()); ++page)
        lstContents_->addItem(GuideTitle(page));
}

void frmHelp::ConnectParts() {
    connect(cmdBack_, &QToolButton::clicked, txtGuide_, &QTextBrowser::backward);
    connect(cmdForward_, &QToolButton::clicked, txtGuide_, &QTextBrowser::forward);
    connect(txtGuide_, &QTextBrowser::backwardAvailable, cmdBack_, &QWidget::setEnabled);
    connect(txtGuide_, &QTextBrowser::forwardAvailable, cmdForward_, &QWidget::setEnabled);
    connect(txtGuide_, &GuideBrowser::PageChanged, this, &frmHelp::PageShown);
    connect(lstContents_, &QListWidget::currentRowChanged, txtGuide_, &GuideBrowser::ShowPage);
    connect(txtSearch_, &QLineEdit::textChanged, this, &frmHelp::Search);
    connect(lstHits_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            ShowHit(row);
    });
    connect(cmdNextHit_, &QToolButton::clicked, this, &frmHelp::NextHit);
    connect(cmdPreviousHit_, &QToolButton::clicked, this, &frmHelp::PreviousHit);
}

void frmHelp::AddKeys() {
    const auto key = [this](const QKeySequence& keys, QWidget* place, auto act) {
        auto* shortcut = new QShortcut(keys, place);
        connect(shortcut, &QShortcut::activated, this, act);
        return shortcut;
    };
    key(QKeySequence(Qt::ALT | Qt::Key_Left), this, [this] { txtGuide_->backward(); });
    key(QKeySequence(Qt::ALT | Qt::Key_Right), this, [this] { txtGuide_->forward(); });
    key(QKeySequence(Qt::CTRL | Qt::Key_F), this, [this] {
        txtSearch_->setFocus();
        txtSearch_->selectAll();
    });
    key(QKeySequence(Qt::Key_F8), this, [this] { FocusNextDivider(*this); });
    for (const int enter : {Qt::Key_Return, Qt::Key_Enter}) {
        key(QKeySequence(enter), txtSearch_, [this] { NextHit(); })->setContext(Qt::WidgetShortcut);
        key(QKeySequence(Qt::SHIFT | enter), txtSearch_, [this] {
            PreviousHit();
        })->setContext(Qt::WidgetShortcut);
    }
}
