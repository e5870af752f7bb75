#include "controls/QtDialogs.h"

#include "base/RunTimeError.h"
#include "base/ViewLoop.h"
#include "controls/MessageBoxStyle.h"
#include <QAbstractPrintDialog>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QPrintDialog>
#include <QPrinter>

namespace {
QWidget* ParentWindow() {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

void SelectFile(QFileDialog& dialog, const FileDialogRequest& request) {
    dialog.setDirectory(request.initDir.isEmpty() ? QDir::currentPath() : request.initDir);
    const QFileInfo file(request.fileName.trimmed());
    if (file.fileName().isEmpty())
        return;
    if (file.isAbsolute())
        dialog.setDirectory(file.absolutePath());
    dialog.selectFile(file.fileName());
}

void SelectFilter(QFileDialog& dialog, const FileDialogRequest& request) {
    const QStringList filters = NameFilters(request.filter);
    if (filters.isEmpty())
        return;
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(request.filterIndex - 1, filters.first()));
}

QString ChosenFile(QFileDialog& dialog, const FileDialogRequest& request) {
    const ViewLoopHold hold(ViewLoopHold::For::Prompt);
    if (!request.title.isEmpty())
        dialog.setWindowTitle(request.title);
    SelectFilter(dialog, request);
    SelectFile(dialog, request);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        throw RunTimeError(ErrorNumber::DialogCancel);
    return dialog.selectedFiles().first();
}
} // namespace

QString SavedSuffix(const QString& filter) {
    const QString pattern = filter.section(u'|', 1, 1);
    const QString suffix = pattern.startsWith(QStringLiteral("*.")) ? pattern.mid(2) : QString();
    return suffix.contains(u'*') || suffix.contains(u';') ? QString() : suffix;
}

QStringList NameFilters(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList result;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(u';', Qt::SkipEmptyParts)) {
            patterns << pattern.toLower() << pattern.toUpper();
        }
        patterns.removeDuplicates();
        const qsizetype bracket = parts[i].indexOf(u'(');
        const QString label = (bracket < 0 ? parts[i] : parts[i].left(bracket)).trimmed();
        result << label + QStringLiteral(" (") + patterns.join(u' ') + u')';
    }
    return result;
}

int QtDialogs::MsgBox(const QString& text, int style, const QString& title) {
    const ViewLoopHold hold(ViewLoopHold::For::Prompt);
    const MessageBoxStyle parts = StyleOfNumber(style);
    QMessageBox box(ParentWindow());
    const bool columns = text.contains(u'\t');
    box.setTextFormat(columns ? Qt::RichText : Qt::PlainText); // a file name may look like markup
    box.setText(columns ? TabsAsColumns(text) : WithLineFeeds(text));
    box.setWindowTitle(title);
    box.setIcon(parts.icon);
    for (const QMessageBox::StandardButton button : parts.buttons)
        box.addButton(button);
    box.setDefaultButton(parts.defaultButton);
    return AnswerOfButton(static_cast<QMessageBox::StandardButton>(box.exec()));
}

QString QtDialogs::InputBox(const QString& prompt, const QString& title,
                            const QString& defaultText) {
    const ViewLoopHold hold(ViewLoopHold::For::Prompt);
    bool accepted = false;
    const QString answer = QInputDialog::getText(ParentWindow(), title, WithLineFeeds(prompt),
                                                 QLineEdit::Normal, defaultText, &accepted);
    return accepted ? answer : QString();
}

QString QtDialogs::ShowOpen(const FileDialogRequest& request) {
    QFileDialog dialog(ParentWindow());
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    const bool mustExist = (request.flags & DialogFlag::FileMustExist) != 0;
    dialog.setFileMode(mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    return ChosenFile(dialog, request);
}

QString QtDialogs::ShowSave(const FileDialogRequest& request) {
    QFileDialog dialog(ParentWindow());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    const bool asks = (request.flags & DialogFlag::OverwritePrompt) != 0;
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !asks);
    dialog.setDefaultSuffix(SavedSuffix(request.filter));
    return ChosenFile(dialog, request);
}

// Where there is no printer the print dialog offers the PDF file alone.
PrinterChoice QtDialogs::ShowPrinter() {
    const ViewLoopHold hold(ViewLoopHold::For::Prompt);
    QPrinter printer;
    QPrintDialog dialog(&printer, ParentWindow());
    dialog.setOption(QAbstractPrintDialog::PrintToFile, true);
    if (dialog.exec() != QDialog::Accepted)
        throw RunTimeError(ErrorNumber::DialogCancel);
    PrinterChoice choice;
    choice.printerName = printer.printerName();
    choice.outputFile = printer.outputFileName();
    if (!choice.outputFile.isEmpty())
        choice.printerName.clear();
    choice.copies = printer.copyCount();
    return choice;
}
