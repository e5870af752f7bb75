#include "targetboard/BoardClock.h"

#include "targetboard/SetupEntries.h"

namespace {
QString TwoDigits(int value) {
    return LastTwoCharacters(QString::number(value));
}
} // namespace

std::array<BoardWrite, 3> TimeWrites(QTime time) {
    return {{{QStringLiteral("B43012"), QString::number(time.hour())},
             {QStringLiteral("B43010"), QString::number(time.minute())},
             {QStringLiteral("B43008"), QString::number(time.second())}}};
}

std::array<BoardWrite, 3> DateWrites(QDate date) {
    return {{{QStringLiteral("B43016"), QString::number(date.month())},
             {QStringLiteral("B43015"), QString::number(date.day())},
             {QStringLiteral("B43017"), QString::number(date.year() % 100)}}};
}

QString CurrTimeText(QTime time) {
    return TwoDigits(time.hour()) + QStringLiteral(" : ") + TwoDigits(time.minute()) +
           QStringLiteral(" : ") + TwoDigits(time.second());
}

QString CurrDateText(QDate date) {
    return TwoDigits(date.month()) + QStringLiteral(" - ") + TwoDigits(date.day()) +
           QStringLiteral(" - ") + QString::number(date.year());
}
