#include "cli/TerminalDialogs.h"

#include "base/RunTimeError.h"
#include "cli/Console.h"

namespace {
// Buttons of a message box, the low bits of its style.
namespace Buttons {
constexpr int mask = 7;
constexpr int okCancel = 1;
constexpr int yesNoCancel = 3;
constexpr int yesNo = 4;
constexpr int retryCancel = 5;
} // namespace Buttons

QString Lines(QString text) {
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
}

bool IsAnswer(const QString& typed, const char* word) {
    return !typed.isEmpty() && QString::fromLatin1(word).startsWith(typed.toLower());
}
} // namespace

QString OneLine(const QString& text) {
    return text.simplified();
}

bool TerminalDialogs::MayBeAnswered() const {
    return yes_ || console_.MayAsk();
}

bool TerminalDialogs::TakeReport(const QString& text) {
    if (reports_.isEmpty() || reports_.last() != text)
        return false;
    reports_.removeLast();
    return true;
}

int TerminalDialogs::MsgBox(const QString& text, int style, const QString& title) {
    const int buttons = style & Buttons::mask;
    console_.Err(title + QLatin1String(": ") + Lines(text));
    if (buttons == Buttons::yesNo || buttons == Buttons::yesNoCancel)
        return AnswerQuestion(buttons);
    reports_ += OneLine(text);
    if (buttons == Buttons::retryCancel)
        return AnswerRetry();
    return buttons == Buttons::okCancel ? MsgAnswer::Cancel : MsgAnswer::Ok;
}

int TerminalDialogs::AnswerQuestion(int buttons) {
    if (yes_)
        return MsgAnswer::Yes;
    if (console_.MayAsk() && IsAnswer(console_.Ask(QStringLiteral("[y/N]")), "yes"))
        return MsgAnswer::Yes;
    declined_ = true;
    return buttons == Buttons::yesNo ? MsgAnswer::No : MsgAnswer::Cancel;
}

// A retry that nobody asked for would go on for ever on a dead line.
int TerminalDialogs::AnswerRetry() {
    if (!console_.MayAsk())
        return MsgAnswer::Cancel;
    if (!IsAnswer(console_.Ask(QStringLiteral("[retry/Cancel]")), "retry"))
        return MsgAnswer::Cancel;
    reports_.removeLast(); // what helped is no failure
    return MsgAnswer::Retry;
}

QString TerminalDialogs::InputBox(const QString&, const QString&, const QString&) {
    return QString();
}

QString TerminalDialogs::ShowOpen(const FileDialogRequest&) {
    throw RunTimeError(ErrorNumber::DialogCancel);
}

QString TerminalDialogs::ShowSave(const FileDialogRequest&) {
    throw RunTimeError(ErrorNumber::DialogCancel);
}

PrinterChoice TerminalDialogs::ShowPrinter() {
    throw RunTimeError(ErrorNumber::DialogCancel);
}
