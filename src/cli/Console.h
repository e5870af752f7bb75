#pragma once

#include <QString>

/// The seam to the terminal or to whatever the standard streams lead to. Text from a board or a
/// file is hostile: an implementation shows no control characters of it.
class Console {
public:
    virtual ~Console();

    /// One result, which may be of several lines parted by LF, to standard output.
    virtual void Out(const QString& text) = 0;
    /// A message, likewise, to standard error.
    virtual void Err(const QString& text) = 0;
    /// How far the work has come: one line that replaces the one before. Only on a terminal.
    virtual void ShowProgress(const QString& line) = 0;
    /// Somebody sits at the terminal and can answer.
    virtual bool MayAsk() const = 0;
    /// Shows a prompt and gives the answer, one line without its end; empty at the end of input.
    virtual QString Ask(const QString& prompt) = 0;
};

/// `text` with a "?" for each control character but LF and the tab, by which texts of several lines
/// stand in columns.
QString WithoutControls(const QString& text);

/// The streams of the process. Results are UTF-8, messages in the user's own character set.
class StandardConsole final : public Console {
public:
    void Out(const QString& text) override;
    void Err(const QString& text) override;
    void ShowProgress(const QString& line) override;
    bool MayAsk() const override;
    QString Ask(const QString& prompt) override;

private:
    void WipeProgress();

    qsizetype progressLength_ = 0; // characters of the progress line that stands there
};
