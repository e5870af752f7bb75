#pragma once

#include "base/Dialogs.h"

/// A user who agrees to every question, has one name to give and never tries again.
class AnsweredDialogs final : public Dialogs {
public:
    explicit AnsweredDialogs(QString name = QString()) : name_(std::move(name)) {}

    /// Text of the box that was shown last.
    const QString& LastText() const { return lastText_; }

    int MsgBox(const QString& text, int style, const QString&) override {
        lastText_ = text;
        constexpr int buttons = 7; // bits of a style that tell which buttons there are
        switch (style & buttons) {
        case 3:
        case 4:
            return MsgAnswer::Yes;
        case 0:
            return MsgAnswer::Ok;
        default:
            return MsgAnswer::Cancel;
        }
    }
    QString InputBox(const QString&, const QString&, const QString&) override { return name_; }
    QString ShowOpen(const FileDialogRequest&) override { return {}; }
    QString ShowSave(const FileDialogRequest&) override { return {}; }
    PrinterChoice ShowPrinter() override { return {}; }

private:
    QString name_;
    QString lastText_;
};
