#pragma once

#include "base/Dialogs.h"
#include <deque>
#include <functional>
#include <optional>
#include <vector>

/// One message box as it was shown.
struct ShownBox {
    QString text;
    int style = 0;
    QString title;
};

/// Prompts answered from a script. A prompt that was not expected fails the test at once, and so
/// does an expected one that never came (checked when the object dies).
class ScriptedDialogs final : public Dialogs {
public:
    ~ScriptedDialogs() override;

    /// The next message box must have this text, style and title; it is answered with `answer`.
    /// `meanwhile` runs while the box is up, for what happens behind it.
    void ExpectBox(const QString& text, int style, const QString& title, int answer,
                   std::function<void()> meanwhile = {});
    /// The next message box may have any text, but must have this title.
    void ExpectBoxTitled(const QString& title, int answer);
    /// The next input box must have this prompt, title and default.
    void ExpectInput(const QString& prompt, const QString& title, const QString& defaultText,
                     const QString& answer);
    /// The next open or save dialog is answered with this path; an empty path is Cancel.
    void ExpectOpen(const QString& path);
    void ExpectSave(const QString& path);
    void ExpectPrinter(const PrinterChoice& choice);
    void ExpectPrinterCancelled();

    /// All message boxes shown so far, in order.
    const std::vector<ShownBox>& Boxes() const { return boxes_; }
    /// Requests of the file dialogs shown so far, in order.
    const std::vector<FileDialogRequest>& FileRequests() const { return fileRequests_; }

    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString ShowOpen(const FileDialogRequest& request) override;
    QString ShowSave(const FileDialogRequest& request) override;
    PrinterChoice ShowPrinter() override;

private:
    struct ExpectedBox {
        ShownBox box;
        bool anyText = false;
        int answer = 0;
        std::function<void()> meanwhile;
    };
    struct ExpectedInput {
        QString prompt, title, defaultText, answer;
    };
    QString TakePath(std::deque<QString>& paths, const char* what,
                     const FileDialogRequest& request);

    std::deque<ExpectedBox> expectedBoxes_;
    std::deque<ExpectedInput> expectedInputs_;
    std::deque<QString> expectedOpens_;
    std::deque<QString> expectedSaves_;
    std::deque<std::optional<PrinterChoice>> expectedPrinters_; // none is Cancel
    std::vector<ShownBox> boxes_;
    std::vector<FileDialogRequest> fileRequests_;
};
