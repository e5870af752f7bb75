#include "FuzzSession.h"

#include "FuzzFile.h"

std::uint8_t FuzzScript::Next() {
    if (left_.empty())
        return 0;
    const std::uint8_t byte = left_.front();
    left_ = left_.subspan(1);
    return byte;
}

void FuzzDialogs::CountPrompt() {
    Require(left_-- > 0, "prompts come to an end");
}

int FuzzDialogs::MsgBox(const QString&, int style, const QString&) {
    CountPrompt();
    const bool agrees = script_ && !script_->Ended() && script_->Next() % 2 == 0;
    switch (style % 16) { // the buttons
    case 0:
        return MsgAnswer::Ok;
    case 5:
        return agrees ? MsgAnswer::Retry : MsgAnswer::Cancel;
    default:
        return agrees ? MsgAnswer::Yes : MsgAnswer::No;
    }
}

QString FuzzDialogs::InputBox(const QString&, const QString&, const QString&) {
    CountPrompt();
    return input_;
}

QString FuzzDialogs::ShowOpen(const FileDialogRequest&) {
    CountPrompt();
    if (open_.isEmpty())
        throw RunTimeError(ErrorNumber::DialogCancel);
    return open_;
}

QString FuzzDialogs::ShowSave(const FileDialogRequest&) {
    CountPrompt();
    throw RunTimeError(ErrorNumber::DialogCancel);
}

PrinterChoice FuzzDialogs::ShowPrinter() {
    CountPrompt();
    throw RunTimeError(ErrorNumber::DialogCancel);
}

FuzzLink::FuzzLink(FuzzScript* script, int mostBoxes)
    : dialogs(script, mostBoxes), folder(FuzzFolder()), link(dialogs, clock, busy, folder) {}
