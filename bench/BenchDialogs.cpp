#include "bench/BenchDialogs.h"

#include <stdexcept>
#include <utility>

namespace bench {

namespace {
[[noreturn]] void Unexpected(const QString& title, const QString& text) {
    throw std::runtime_error("unexpected prompt [" + title.toStdString() + "] " +
                             text.toStdString());
}

template <class Value>
Value TakeFirst(std::deque<Value>& values) {
    Value first = std::move(values.front());
    values.pop_front();
    return first;
}
} // namespace

void BenchDialogs::Expect(const QString& title, int answer, std::function<void()> meanwhile) {
    expected_.push_back({title, answer, std::move(meanwhile)});
}

void BenchDialogs::ExpectOpen(const QString& path) {
    files_.push_back(path);
}

int BenchDialogs::MsgBox(const QString& text, int, const QString& title) {
    if (expected_.empty() || title != expected_.front().title)
        Unexpected(title, text);
    const Expected expected = TakeFirst(expected_);
    expected.meanwhile();
    return expected.answer;
}

QString BenchDialogs::InputBox(const QString& prompt, const QString& title, const QString&) {
    Unexpected(title, prompt);
}

QString BenchDialogs::ShowOpen(const FileDialogRequest& request) {
    if (files_.empty())
        Unexpected(request.title, request.fileName);
    return TakeFirst(files_);
}

QString BenchDialogs::ShowSave(const FileDialogRequest& request) {
    Unexpected(request.title, request.fileName);
}

PrinterChoice BenchDialogs::ShowPrinter() {
    Unexpected(QStringLiteral("printer"), QString());
}

} // namespace bench
