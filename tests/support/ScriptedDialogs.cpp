#include "support/ScriptedDialogs.h"

#include "base/RunTimeError.h"
#include <gtest/gtest.h>

namespace {
// A loop that goes on for as long as a box is answered Retry would never end on an unexpected
// box: Cancel ends every loop.
constexpr int answerToUnexpected = MsgAnswer::Cancel;
} // namespace

ScriptedDialogs::~ScriptedDialogs() {
    for (const ExpectedBox& expected : expectedBoxes_)
        ADD_FAILURE() << "this message box never came: " << expected.box.title.toStdString() << ": "
                      << expected.box.text.toStdString();
    for (const ExpectedInput& expected : expectedInputs_)
        ADD_FAILURE() << "this input box never came: " << expected.prompt.toStdString();
    EXPECT_TRUE(expectedOpens_.empty()) << "an open dialog never came";
    EXPECT_TRUE(expectedSaves_.empty()) << "a save dialog never came";
    EXPECT_TRUE(expectedPrinters_.empty()) << "a print dialog never came";
}

void ScriptedDialogs::ExpectBox(const QString& text, int style, const QString& title, int answer,
                                std::function<void()> meanwhile) {
    expectedBoxes_.push_back({{text, style, title}, false, answer, std::move(meanwhile)});
}

void ScriptedDialogs::ExpectBoxTitled(const QString& title, int answer) {
    expectedBoxes_.push_back({{QString(), 0, title}, true, answer, {}});
}

void ScriptedDialogs::ExpectInput(const QString& prompt, const QString& title,
                                  const QString& defaultText, const QString& answer) {
    expectedInputs_.push_back({prompt, title, defaultText, answer});
}

void ScriptedDialogs::ExpectOpen(const QString& path) {
    expectedOpens_.push_back(path);
}

void ScriptedDialogs::ExpectSave(const QString& path) {
    expectedSaves_.push_back(path);
}

void ScriptedDialogs::ExpectPrinter(const PrinterChoice& choice) {
    expectedPrinters_.push_back(choice);
}

void ScriptedDialogs::ExpectPrinterCancelled() {
    expectedPrinters_.push_back(std::nullopt);
}

int ScriptedDialogs::MsgBox(const QString& text, int style, const QString& title) {
    boxes_.push_back({text, style, title});
    if (expectedBoxes_.empty()) {
        ADD_FAILURE() << "unexpected message box [" << title.toStdString() << "] style " << style
                      << ": " << text.toStdString();
        return answerToUnexpected;
    }
    const ExpectedBox expected = expectedBoxes_.front();
    expectedBoxes_.pop_front();
    EXPECT_EQ(title.toStdString(), expected.box.title.toStdString());
    if (!expected.anyText) {
        EXPECT_EQ(text.toStdString(), expected.box.text.toStdString());
        EXPECT_EQ(style, expected.box.style) << text.toStdString();
    }
    if (expected.meanwhile)
        expected.meanwhile();
    return expected.answer;
}

QString ScriptedDialogs::InputBox(const QString& prompt, const QString& title,
                                  const QString& defaultText) {
    if (expectedInputs_.empty()) {
        ADD_FAILURE() << "unexpected input box [" << title.toStdString()
                      << "]: " << prompt.toStdString();
        return QString();
    }
    const ExpectedInput expected = expectedInputs_.front();
    expectedInputs_.pop_front();
    EXPECT_EQ(prompt.toStdString(), expected.prompt.toStdString());
    EXPECT_EQ(title.toStdString(), expected.title.toStdString());
    EXPECT_EQ(defaultText.toStdString(), expected.defaultText.toStdString());
    return expected.answer;
}

QString ScriptedDialogs::TakePath(std::deque<QString>& paths, const char* what,
                                  const FileDialogRequest& request) {
    fileRequests_.push_back(request);
    if (paths.empty()) {
        ADD_FAILURE() << "unexpected " << what << " dialog for " << request.fileName.toStdString();
        throw RunTimeError(ErrorNumber::DialogCancel);
    }
    const QString path = paths.front();
    paths.pop_front();
    if (path.isEmpty())
        throw RunTimeError(ErrorNumber::DialogCancel);
    return path;
}

QString ScriptedDialogs::ShowOpen(const FileDialogRequest& request) {
    return TakePath(expectedOpens_, "open", request);
}

QString ScriptedDialogs::ShowSave(const FileDialogRequest& request) {
    return TakePath(expectedSaves_, "save", request);
}

PrinterChoice ScriptedDialogs::ShowPrinter() {
    if (expectedPrinters_.empty()) {
        ADD_FAILURE() << "unexpected print dialog";
        throw RunTimeError(ErrorNumber::DialogCancel);
    }
    const std::optional<PrinterChoice> choice = expectedPrinters_.front();
    expectedPrinters_.pop_front();
    if (!choice)
        throw RunTimeError(ErrorNumber::DialogCancel);
    return *choice;
}
