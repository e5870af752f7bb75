#pragma once

#include "base/Dialogs.h"
#include <deque>
#include <functional>

namespace bench {

/// Nobody is there to answer a prompt: a box means that the measurement failed, but for those that
/// are part of the work measured and are named before it.
class BenchDialogs final : public Dialogs {
public:
    /// The next box must have this title; `meanwhile` runs, and it is answered with `answer`.
    void Expect(const QString& title, int answer, std::function<void()> meanwhile);
    /// The next question for a file to open is answered with this path.
    void ExpectOpen(const QString& path);
    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString ShowOpen(const FileDialogRequest& request) override;
    QString ShowSave(const FileDialogRequest& request) override;
    PrinterChoice ShowPrinter() override;

private:
    struct Expected {
        QString title;
        int answer;
        std::function<void()> meanwhile;
    };
    std::deque<Expected> expected_;
    std::deque<QString> files_;
};

} // namespace bench
