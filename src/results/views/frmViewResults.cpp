#include "results/views/frmViewResults.h"

#include "base/Dialogs.h"
#include "base/DoEvents.h"
#include "base/FileSystem.h"
#include "base/RunTimeError.h"
#include "controls/entry/NumericEntries.h"
#include "reports/DrawingSurface.h"
#include "reports/ReportPrinter.h"
#include "results/ResultsPaper.h"
#include "results/ResultsText.h"
#include "session/Globals.h"
#include <QBoxLayout>
#include <QClipboard>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>

namespace {
constexpr int tabColumns = 8;
constexpr int usualColumns = 84;
constexpr int usualLines = 26;
constexpr qsizetype longestShownLine = 4000; // characters; the box lays a line out as one piece

QPushButton* Button(QWidget& view, const char* name, const QString& caption) {
    auto* button = new QPushButton(caption, &view);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

SurfaceFont PrintedFont(const QFont& font) {
    const QFontInfo info(font); // the font that is really shown
    return {info.family(), info.pointSizeF(), font.bold(), font.italic(), font.underline()};
}
} // namespace

ResultsHost::~ResultsHost() = default;

frmViewResults::frmViewResults(const Seams& seams, QWidget* parent)
    : QWidget(parent), seams_(seams), txtViewErrors_(new QPlainTextEdit(this)),
      cmdOk_(Button(*this, "cmdOk", QStringLiteral("&OK"))),
      cmdClear_(Button(*this, "cmdClear", QStringLiteral("&Clear"))),
      cmdDefault_(MakeDefaultButton(*this)) {
    setObjectName(QStringLiteral("frmViewResults"));
    BuildForm();
    connect(cmdOk_, &QPushButton::clicked, this, [this] { seams_.host.UnloadResults(); });
    connect(cmdClear_, &QPushButton::clicked, this, &frmViewResults::cmdClear_Click);
    txtViewErrors_->installEventFilter(this);
    txtViewErrors_->viewport()->installEventFilter(this);
}

void frmViewResults::BuildForm() {
    txtViewErrors_->setObjectName(QStringLiteral("txtViewErrors"));
    txtViewErrors_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    txtViewErrors_->setReadOnly(true);
    txtViewErrors_->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                            Qt::TextSelectableByKeyboard);
    txtViewErrors_->setUndoRedoEnabled(false);
    txtViewErrors_->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtViewErrors_->setTabChangesFocus(true);
    txtViewErrors_->setTabStopDistance(
        tabColumns * QFontMetricsF(txtViewErrors_->font()).horizontalAdvance(u' '));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk_);
    buttons->addWidget(cmdClear_);
    buttons->addWidget(cmdDefault_);
    auto* form = new QVBoxLayout(this);
    form->addWidget(txtViewErrors_, 1);
    form->addLayout(buttons);
}

// Room for a page of text as the tools write it.
QSize frmViewResults::sizeHint() const {
    const QFontMetrics metrics = txtViewErrors_->fontMetrics();
    return QWidget::sizeHint().expandedTo(
        {usualColumns * metrics.horizontalAdvance(u'0'), usualLines * metrics.lineSpacing()});
}

void frmViewResults::DisplayResults(qint16 Mode) {
    const QString hdnFile = gHdnFile; // the user may select another set during the yields
    const QString base = FileSystem().GetBaseName(hdnFile);
    ShowText(Mode, base, QString());
    try {
        const QString text =
            WithLongLinesParted(ResultsFor(Mode, hdnFile, seams_.clock), longestShownLine);
        ShowText(Mode, base, text);
        if (Mode == ResultsMode::NewSearch)
            gResultsShown = text;
    } catch (const RunTimeError& error) {
        ShowErrorBox(seams_.dialogs, error, QStringLiteral("DisplayResults"), MsgStyle::Critical);
    }
}

void frmViewResults::ShowText(qint16 mode, const QString& base, const QString& text) {
    const bool errors = mode == ResultsMode::CompileErrors;
    cmdClear_->setVisible(!errors);
    setWindowTitle(errors ? QStringLiteral("Compile Errors [%1]").arg(base)
                          : QStringLiteral("Search Results"));
    txtViewErrors_->setAccessibleName(errors ? QStringLiteral("Compile errors")
                                             : QStringLiteral("Search results"));
    txtViewErrors_->setPlainText(text);
}

void frmViewResults::PrintResults() {
    try {
        seams_.printer.UsePrinter(seams_.dialogs.ShowPrinter());
        DoEvents();
        PrintResultsText(seams_.printer, PrintedFont(txtViewErrors_->font()),
                         txtViewErrors_->toPlainText());
    } catch (const RunTimeError& error) {
        ShowErrorBox(seams_.dialogs, error, QStringLiteral("Print Results"), MsgStyle::Critical);
    }
}

void frmViewResults::Activate() {
    gPrintContext = PrintContext::Results;
    txtViewErrors_->setFocus();
}

// The view is made once and lives on hidden: what belonged to it while it was loaded goes here.
void frmViewResults::closeEvent(QCloseEvent* event) {
    txtViewErrors_->clear();
    selectedText_.clear();
    event->accept();
}

void frmViewResults::cmdClear_Click() {
    const int answer =
        seams_.dialogs.MsgBox(QStringLiteral("Do you wish to clear the contents of this page?"),
                              MsgStyle::YesNoQuestion, QStringLiteral("Clear Results"));
    if (answer != MsgAnswer::Yes)
        return;
    txtViewErrors_->clear();
    gResultsText.clear();
    gResultsShown.clear();
}

// An empty selection leaves the remembered text as it is.
void frmViewResults::RememberSelection() {
    const QString selected = txtViewErrors_->textCursor().selectedText();
    if (!selected.isEmpty())
        selectedText_ =
            QString(selected).replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
}

bool frmViewResults::TakeKey(const QKeyEvent& event) {
    if (!event.matches(QKeySequence::Copy))
        return false;
    RememberSelection(); // of a key that is still held down
    if (!selectedText_.isEmpty()) {
        QGuiApplication::clipboard()->clear();
        QGuiApplication::clipboard()->setText(selectedText_);
    }
    return true;
}

bool frmViewResults::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtViewErrors_ && event->type() == QEvent::KeyPress)
        return TakeKey(*static_cast<QKeyEvent*>(event));
    if (watched == txtViewErrors_ && event->type() == QEvent::KeyRelease)
        RememberSelection();
    if (watched == txtViewErrors_->viewport() && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        RememberSelection();
    return QWidget::eventFilter(watched, event);
}
