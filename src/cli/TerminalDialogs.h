#pragma once

#include "base/Dialogs.h"
#include <QStringList>

class Console;

/// Prompts of the core on a terminal. What only informs goes to standard error. A question is
/// answered Yes by --yes, else by the user; a choice between Retry and Cancel by the user alone.
/// Where nobody can answer, both get their Cancel: nothing is done that nobody asked for.
class TerminalDialogs final : public Dialogs {
public:
    /// `console` must outlive the object; `yes` answers all questions Yes.
    TerminalDialogs(Console& console, bool yes) : console_(console), yes_(yes) {}

    /// A question would get an answer.
    bool MayBeAnswered() const;
    /// A question was answered otherwise than Yes.
    bool Declined() const { return declined_; }
    /// All that was told so far, in one line; empty when there was nothing to tell.
    QString Report() const { return reports_.join(u' '); }
    /// True if this was told last; it is no longer part of the report then.
    bool TakeReport(const QString& text);

    int MsgBox(const QString& text, int style, const QString& title) override;
    /// A terminal has none of these: Cancel.
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString ShowOpen(const FileDialogRequest& request) override;
    QString ShowSave(const FileDialogRequest& request) override;
    PrinterChoice ShowPrinter() override;

private:
    int AnswerQuestion(int buttons);
    int AnswerRetry();

    Console& console_;
    const bool yes_;
    bool declined_ = false;
    QStringList reports_; // each in one line; questions of Yes and No are none
};

/// The lines of a box as one line: line ends and runs of blanks become one blank.
QString OneLine(const QString& text);
