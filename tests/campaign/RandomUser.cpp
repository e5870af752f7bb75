#include "campaign/RandomUser.h"

#include "base/RunTimeError.h"

namespace {
constexpr int buttonsOfStyle = 7; // bits of a style that tell the buttons
constexpr int retryCancel = 5;
constexpr int yesNoCancel = 3;
constexpr int yesNo = 4;
constexpr int mostRetries = 12; // then even a patient user presses Cancel
} // namespace

bool RandomUser::Chance(double probability) {
    return std::uniform_real_distribution<>(0.0, 1.0)(random_) < probability;
}

int RandomUser::MsgBox(const QString& text, int style, const QString& title) {
    boxes_.push_back({text, title});
    switch (style & buttonsOfStyle) {
    case retryCancel:
        return ++retries_ <= mostRetries && Chance(0.6) ? MsgAnswer::Retry : MsgAnswer::Cancel;
    case yesNoCancel:
    case yesNo:
        return Chance(0.95) ? MsgAnswer::Yes : MsgAnswer::No;
    default:
        return MsgAnswer::Ok;
    }
}

QString RandomUser::InputBox(const QString&, const QString&, const QString&) {
    return QString();
}

QString RandomUser::ShowOpen(const FileDialogRequest&) {
    throw RunTimeError(ErrorNumber::DialogCancel);
}

QString RandomUser::ShowSave(const FileDialogRequest&) {
    throw RunTimeError(ErrorNumber::DialogCancel);
}

PrinterChoice RandomUser::ShowPrinter() {
    throw RunTimeError(ErrorNumber::DialogCancel);
}

void RandomProgress::Yield() {
    constexpr int yieldsOfACancel = 2000;
    if (random_() % yieldsOfACancel == 0)
        cancelled_ = true;
}
