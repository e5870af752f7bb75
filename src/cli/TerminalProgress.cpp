#include "cli/TerminalProgress.h"

#include "base/DoEvents.h"
#include "cli/Console.h"
#include <algorithm>
#include <utility>

namespace {
constexpr int percentWidth = 4;
}

TerminalProgress::TerminalProgress(Console& console, std::function<bool()> interrupted)
    : console_(console), interrupted_(std::move(interrupted)) {}

void TerminalProgress::ShowMessage(const QString& text) {
    message_ = text;
    Show();
}

void TerminalProgress::ShowSecondLine(const QString& text) {
    ShowMessage(text);
}

void TerminalProgress::SetRange(qint32 min, qint32 max) {
    min_ = min;
    max_ = max;
}

void TerminalProgress::SetValue(qint32 value) {
    value_ = value;
    Show();
}

void TerminalProgress::Yield() {
    DoEvents();
}

void TerminalProgress::Show() {
    const qint64 steps = std::max<qint64>(qint64(max_) - min_, 1);
    const qint64 percent = std::clamp<qint64>((qint64(value_) - min_) * 100 / steps, 0, 100);
    console_.ShowProgress(QString::number(percent).rightJustified(percentWidth) +
                          QLatin1String("% ") + message_);
}
