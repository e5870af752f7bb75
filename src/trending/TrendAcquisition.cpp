#include "trending/TrendAcquisition.h"

#include "base/Clock.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include <array>
#include <QLocale>

namespace {
struct Interval {
    const char16_t* name;
    double seconds; // 0 for none
};

constexpr std::array<Interval, 6> intervals{{{u"Continuous", 0.0},
                                             {u"100 msec", 0.1},
                                             {u"500 msec", 0.5},
                                             {u"1 sec", 1.0},
                                             {u"10 sec", 10.0},
                                             {u"60 sec", 60.0}}};

double SecondsSinceMidnight(const Clock& clock) {
    return clock.WallClock().time().msecsSinceStartOfDay() / 1000.0;
}
} // namespace

TrendDisplay::~TrendDisplay() = default;

QString ElapsedSeconds(double start, double now) {
    constexpr double lastSecondOfDay = 86399.0;
    const double elapsed = now < start ? lastSecondOfDay - start + now : now - start;
    return QString::number(RoundToWhole(elapsed * 100.0) / 100.0, 'g', 10);
}

qint32 CountAfter(qint32 count) {
    return count >= TrendAcquisition::highestCount ? 0 : count + 1;
}

TrendAcquisition::TrendAcquisition(RSComm& link, const Clock& clock, TrendDisplay& display)
    : link_(link), clock_(clock), display_(display) {}

QStringList TrendAcquisition::IntervalNames() {
    QStringList names;
    for (const Interval& interval : intervals)
        names += QString::fromUtf16(interval.name);
    return names;
}

void TrendAcquisition::SelectOption(SampleOption option) {
    option_ = option;
    StartPace();
}

void TrendAcquisition::SelectInterval(int listEntry) {
    const bool listed = listEntry >= 0 && listEntry < static_cast<int>(intervals.size());
    intervalEntry_ = listed ? listEntry : continuous;
    StartPace();
}

void TrendAcquisition::StartPace() {
    const double seconds = intervals[intervalEntry_].seconds;
    if (option_ == SampleOption::TimeInterval && seconds > 0.0)
        pace_.Start(clock_.MonotonicSeconds(), seconds);
    else
        pace_.Stop();
    display_.TimerChanged();
}

std::optional<int> TrendAcquisition::TimerMilliseconds() const {
    if (!TimerEnabled())
        return std::nullopt;
    return pace_.MillisecondsLeft(clock_.MonotonicSeconds());
}

bool TrendAcquisition::MaySample() const {
    return acquire_ && link_.OnlineMode() && !link_.CommError();
}

ViewLoop::Step TrendAcquisition::TakeStep() {
    if (!MaySample() || TimerEnabled())
        return Step::Rest;
    const std::optional<QString> value = ReadValue();
    if (!value)
        return Step::Rest;
    if (option_ == SampleOption::TimeInterval) {
        AddSample(*value);
    } else if (value->compare(lastValue_, Qt::CaseInsensitive) != 0) {
        AddSample(*value);
        lastValue_ = *value;
    }
    // Without a variable nothing is read, and there is no link to keep the pace.
    return variable_.Known() ? Step::Worked : Step::Rest;
}

void TrendAcquisition::TimerTick() {
    const double now = clock_.MonotonicSeconds();
    if (!pace_.Due(now))
        return;
    pace_.Served(now);
    // A box of the link or a job may be up; the exchange that it belongs to must not be broken.
    // Any other box, that of a fault of the board above all, must not cost samples.
    if (MaySample() && !link_.OperationRuns() && !ViewLoopHold::AnyHeldForWork())
        if (const std::optional<QString> value = ReadValue())
            AddSample(*value);
    if (TimerEnabled() && pace_.Due(clock_.MonotonicSeconds()))
        pace_.Served(clock_.MonotonicSeconds()); // passed during the read
}

// The check of variables lets some pass that reach beyond the memory of any board, as "D65534"
// does: they have no value.
std::optional<QString> TrendAcquisition::ReadValue() {
    if (!variable_.Known())
        return QString();
    try {
        return link_.RSRead(variable_.Address());
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

QString TrendAcquisition::ElapsedText() {
    const double now = SecondsSinceMidnight(clock_);
    if (!startTime_)
        startTime_ = now;
    return ElapsedSeconds(*startTime_, now);
}

void TrendAcquisition::AddSample(const QString& value) {
    const QString elapsed = ElapsedText();
    SetCounter(CountAfter(counter_));
    display_.SampleAdded(samples_.Add({elapsed, value}));
}

void TrendAcquisition::SetCounter(qint32 count) {
    counter_ = count;
    display_.CounterChanged();
}

QString TrendAcquisition::CounterText() const {
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(counter_);
}

void TrendAcquisition::Clear() {
    samples_.Clear();
    startTime_.reset();
    display_.RowsChanged();
}

void TrendAcquisition::ResetCounter() {
    SetCounter(0);
}

void TrendAcquisition::Load(const std::vector<TrendRow>& rows) {
    Clear();
    samples_.Load(rows);
    if (!rows.empty())
        SetCounter(static_cast<qint32>(rows.size()));
    display_.RowsChanged();
}
