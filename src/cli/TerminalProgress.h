#pragma once

#include "jobs/JobProgress.h"
#include <functional>

class Console;

/// The progress of a job as one line of the terminal: "  45% Uploaded  12 from B100".
class TerminalProgress final : public JobProgress {
public:
    /// `console` must outlive the object; `interrupted` tells whether the user has had enough.
    TerminalProgress(Console& console, std::function<bool()> interrupted);

    void ShowMessage(const QString& text) override;
    void ShowSecondLine(const QString& text) override;
    void SetRange(qint32 min, qint32 max) override;
    void SetValue(qint32 value) override;
    bool Cancelled() const override { return interrupted_(); }
    void ClearCancel() override {}
    void Yield() override;

private:
    void Show();

    Console& console_;
    std::function<bool()> interrupted_;
    QString message_;
    qint32 min_ = 0;
    qint32 max_ = 0;
    qint32 value_ = 0;
};
