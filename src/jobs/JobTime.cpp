#include "jobs/JobTime.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double soonest = 1.0;              // seconds; before that the pace says nothing
constexpr double longestShown = 99 * 3600.0; // seconds

QString MinutesAndSeconds(double seconds) {
    const int whole = static_cast<int>(std::clamp(seconds, 0.0, longestShown));
    const int hours = whole / 3600;
    const QString text = QStringLiteral("%1:%2")
                             .arg(whole / 60 % 60, hours > 0 ? 2 : 1, 10, QLatin1Char('0'))
                             .arg(whole % 60, 2, 10, QLatin1Char('0'));
    return hours > 0 ? QString::number(hours) + u':' + text : text;
}
} // namespace

JobTime TimeOfJob(double start, double now, qint32 first, qint32 value, qint32 max) {
    const double passed = now - start;
    const double done = static_cast<double>(value) - first;
    const double ahead = static_cast<double>(max) - value;
    JobTime time;
    time.passed = MinutesAndSeconds(passed);
    if (passed >= soonest && done > 0 && ahead >= 0)
        time.remains = MinutesAndSeconds(std::ceil(passed / done * ahead));
    return time;
}

QString JobTimeText(const JobTime& time) {
    const QString passed = QStringLiteral("Time passed ") + time.passed;
    if (time.remains.isEmpty())
        return passed;
    return passed + QStringLiteral(", about ") + time.remains + QStringLiteral(" left");
}
