#include "controls/entry/EntryRules.h"

#include "base/NumberReader.h"
#include <algorithm>

namespace {
bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool IsPlainWholeNumber(const QString& text) {
    const QString number = text.trimmed();
    const auto digits = QStringView(number).mid(number.startsWith(u'-') ? 1 : 0);
    return !digits.isEmpty() && std::all_of(digits.begin(), digits.end(), IsDigit);
}
} // namespace

EntryRules::EntryRules(int count) : remembered_(static_cast<std::size_t>(count), 0) {}

bool EntryRules::Accepts(const QString& text, EntryRange range) {
    if (!IsPlainWholeNumber(text))
        return false;
    const double value = NumberValue(text);
    return value >= range.min && value <= range.max;
}

QString EntryRules::Refusal(EntryRange range) {
    return QStringLiteral("Only a Number Between ") + QString::number(range.min) +
           QStringLiteral(" and ") + QString::number(range.max) + QStringLiteral(" can be Entered");
}

int EntryRules::Stepped(const QString& text, int last, int difference, EntryRange range) {
    const int high = std::max(range.min, range.max);
    const auto held = [&](qint64 value) {
        return static_cast<int>(std::clamp<qint64>(value, range.min, high));
    };
    const int from = held(IsNumeric(text) ? WholeNumberValue(text) : last);
    return held(qint64(from) + difference);
}

void EntryRules::GotFocus(int index, const QString& text) {
    escapePressed_ = false;
    remembered_[static_cast<std::size_t>(index)] = WholeNumberValue(text);
}

EntryRules::Escape EntryRules::EscapePressed(int index) {
    const bool second = escapePressed_;
    escapePressed_ = !second;
    return {Remembered(index), second};
}

QString EntryRules::Remembered(int index) const {
    return QString::number(remembered_[static_cast<std::size_t>(index)]);
}
