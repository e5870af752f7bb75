#pragma once

#include "base/Dialogs.h"
#include "jobs/JobProgress.h"
#include <random>
#include <vector>

/// A user who answers each box with one of its buttons, by chance, and gives up in the end.
class RandomUser final : public Dialogs {
public:
    explicit RandomUser(std::mt19937& random) : random_(random) {}

    struct Box {
        QString text;
        QString title;
    };
    /// All boxes shown so far.
    const std::vector<Box>& Boxes() const { return boxes_; }

    int MsgBox(const QString& text, int style, const QString& title) override;
    QString InputBox(const QString& prompt, const QString& title, const QString& text) override;
    QString ShowOpen(const FileDialogRequest& request) override;
    QString ShowSave(const FileDialogRequest& request) override;
    PrinterChoice ShowPrinter() override;

private:
    bool Chance(double probability);

    std::mt19937& random_;
    std::vector<Box> boxes_;
    int retries_ = 0;
};

/// A busy view whose Cancel is pressed by chance, seldom.
class RandomProgress final : public JobProgress {
public:
    explicit RandomProgress(std::mt19937& random) : random_(random) {}

    void ShowMessage(const QString&) override {}
    void ShowSecondLine(const QString&) override {}
    void SetRange(qint32, qint32) override {}
    void SetValue(qint32) override {}
    bool Cancelled() const override { return cancelled_; }
    void ClearCancel() override { cancelled_ = false; }
    void Yield() override;

private:
    std::mt19937& random_;
    bool cancelled_ = false;
};
