#include "cli/Console.h"

#include "base/SystemCalls.h"
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>

namespace {
constexpr qsizetype progressWidth = 78; // a line longer than the terminal could not be replaced

void Put(std::FILE* stream, const QByteArray& bytes) {
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}
} // namespace

Console::~Console() = default;

QString WithoutControls(const QString& text) {
    QString clean = text;
    std::replace_if(
        clean.begin(), clean.end(),
        [](QChar c) { return c != u'\n' && c != u'\t' && c.category() == QChar::Other_Control; },
        QChar(u'?'));
    return clean;
}

void StandardConsole::Out(const QString& text) {
    WipeProgress();
    Put(stdout, WithoutControls(text).toUtf8() + '\n');
}

void StandardConsole::Err(const QString& text) {
    WipeProgress();
    Put(stderr, WithoutControls(text).toLocal8Bit() + '\n');
}

void StandardConsole::ShowProgress(const QString& line) {
    if (!ErrorIsTerminal())
        return;
    const QString shown = WithoutControls(line).replace(u'\t', u' ').left(progressWidth);
    Put(stderr, '\r' + shown.leftJustified(progressLength_).toLocal8Bit());
    progressLength_ = shown.size();
}

bool StandardConsole::MayAsk() const {
    return InputIsTerminal();
}

QString StandardConsole::Ask(const QString& prompt) {
    WipeProgress();
    Put(stderr, WithoutControls(prompt).toLocal8Bit() + ' ');
    // While nothing but the answer is waited for an interruption ends the program at once.
    const auto noted = std::signal(SIGINT, SIG_DFL);
    std::string line;
    std::getline(std::cin, line);
    std::cin.clear();
    std::signal(SIGINT, noted);
    return QString::fromLocal8Bit(line.c_str()).trimmed();
}

void StandardConsole::WipeProgress() {
    if (progressLength_ > 0)
        Put(stderr, '\r' + QByteArray(progressLength_, ' ') + '\r');
    progressLength_ = 0;
}
