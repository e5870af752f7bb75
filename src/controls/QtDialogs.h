#pragma once

#include "base/Dialogs.h"
#include <QStringList>

/// Prompts as windows of the desktop. Every prompt keeps the view loops still while it is up and
/// stands over the window that is active.
class QtDialogs final : public Dialogs {
public:
    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString ShowOpen(const FileDialogRequest& request) override;
    QString ShowSave(const FileDialogRequest& request) override;
    PrinterChoice ShowPrinter() override;
};

/// The name filters of a file dialog from "label|pattern|label|pattern|": each is the label
/// without a pattern of its own, then the patterns in both letter cases in brackets. Patterns are
/// parted by semicolons: "Halden Files(*.hdn)|*.hdn|" gives "Halden Files (*.hdn *.HDN)".
QStringList NameFilters(const QString& filter);

/// What is added to a name without a suffix when a file is saved, so that the same filter shows it
/// again: "tdt" of "Trend Data(*.tdt)|*.tdt|". Empty where the first pattern is no single suffix.
QString SavedSuffix(const QString& filter);
