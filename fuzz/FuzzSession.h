#pragma once

#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/Dialogs.h"
#include "FuzzTarget.h"
#include "link/RSComm.h"
#include "support/VirtualClock.h"

/// Bytes of an input that are taken one after the other, by whoever needs one next.
class FuzzScript {
public:
    explicit FuzzScript(FuzzInput input) : left_(input) {}

    bool Ended() const { return left_.empty(); }
    /// The next byte; 0 behind the end.
    std::uint8_t Next();

private:
    FuzzInput left_;
};

/// Prompts answered by the script, by Cancel or No where it has ended or there is none. More than
/// `mostBoxes` prompts are more than anybody would answer: something asks without end.
class FuzzDialogs final : public Dialogs {
public:
    explicit FuzzDialogs(FuzzScript* script = nullptr, int mostBoxes = 1000)
        : script_(script), left_(mostBoxes) {}

    /// What the next input box and the next file dialog are answered with.
    void AnswerInput(const QString& text) { input_ = text; }
    void AnswerOpen(const QString& path) { open_ = path; }

    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString ShowOpen(const FileDialogRequest& request) override;
    QString ShowSave(const FileDialogRequest& request) override;
    PrinterChoice ShowPrinter() override;

private:
    void CountPrompt();

    FuzzScript* script_;
    int left_;
    QString input_;
    QString open_;
};

/// A link without a port, for the readers that stand in it.
struct FuzzLink {
    FuzzDialogs dialogs;
    VirtualClock clock;
    NoBusyDisplay busy;
    ApplicationFolder folder;
    RSComm link;

    explicit FuzzLink(FuzzScript* script = nullptr, int mostBoxes = 1000);
};
