#pragma once

#include "base/ViewLoop.h"
#include "trending/SamplePace.h"
#include "trending/TrendSamples.h"
#include "trending/TrendVariable.h"
#include <optional>

class Clock;
class RSComm;

/// When a sample is taken.
enum class SampleOption {
    ChangeOfState = 0, ///< the value differs from that of the sample before
    TimeInterval = 1,  ///< at an interval, or as fast as the link runs
};

/// Told what acquisition changes, so that the view follows.
class TrendDisplay {
public:
    virtual ~TrendDisplay();
    /// A sample stands in row 1; `rowRemoved` tells that row 258 went.
    virtual void SampleAdded(bool rowRemoved) = 0;
    /// All rows may be others: the grid was cleared or loaded.
    virtual void RowsChanged() = 0;
    virtual void CounterChanged() = 0;
    /// The moments of the timer are others now, or there are none: see TimerMilliseconds.
    virtual void TimerChanged() = 0;
};

/// Takes samples of one variable while the link is up, and never writes to the board. As a view
/// loop it samples "Change of State" and "Continuous"; the moments of the intervals come from the
/// view's timer. Sampling goes on after another view was activated, as far as the timer does it.
class TrendAcquisition final : public ViewLoop {
public:
    /// Highest number that the counter shows before it begins again at 0.
    static constexpr qint32 highestCount = 999'999'999;
    /// Entry of the interval list that means as fast as the link runs.
    static constexpr int continuous = 0;

    /// Everything must outlive the object.
    TrendAcquisition(RSComm& link, const Clock& clock, TrendDisplay& display);

    /// Names of the interval list: "Continuous", "100 msec" and so on.
    static QStringList IntervalNames();

    TrendVariable& Variable() { return variable_; }
    const TrendVariable& Variable() const { return variable_; }
    const TrendSamples& Samples() const { return samples_; }

    /// Whether samples are taken at all, while the link is online and without a failure.
    void SetAcquire(bool on) { acquire_ = on; }
    bool Acquire() const { return acquire_; }
    /// Interval mode applies the interval that is chosen; change of state stops the timer.
    void SelectOption(SampleOption option);
    SampleOption Option() const { return option_; }
    /// An entry of the interval list, 0 to 5. While Change of State is selected it is only kept.
    void SelectInterval(int listEntry);
    /// The entry chosen last, 0 to 5.
    int IntervalEntry() const { return intervalEntry_; }
    /// The timer runs: its moments sample, and the loop does not.
    bool TimerEnabled() const { return pace_.Running(); }
    /// Milliseconds until the timer should call TimerTick; none while it is disabled.
    std::optional<int> TimerMilliseconds() const;

    /// One look at the link: a read and perhaps a sample. Rests while the timer samples, while
    /// nothing may be sampled, and without a variable.
    Step TakeStep() override;
    /// The timer's tick: takes a sample if a moment of the interval has come and nobody else uses
    /// the link. Harmless when it comes early.
    void TimerTick();

    /// Empties the grid; the elapsed time begins again with the next sample, the counter stays.
    void Clear();
    /// Sets the counter to 0 and leaves the grid.
    void ResetCounter();
    /// Samples taken since the start or the last reset, 0 to highestCount.
    qint32 Counter() const { return counter_; }
    /// The counter as it is shown: "12,345".
    QString CounterText() const;
    /// The rows of a file in place of all others; the counter takes their number. The variable and
    /// the board are the caller's.
    void Load(const std::vector<TrendRow>& rows);

private:
    bool MaySample() const;
    std::optional<QString> ReadValue();
    void AddSample(const QString& value);
    QString ElapsedText();
    void SetCounter(qint32 count);
    void StartPace();

    RSComm& link_;
    const Clock& clock_;
    TrendDisplay& display_;
    TrendVariable variable_;
    TrendSamples samples_;
    SamplePace pace_;
    bool acquire_ = false;
    SampleOption option_ = SampleOption::ChangeOfState;
    int intervalEntry_ = continuous;
    qint32 counter_ = 0;
    std::optional<double> startTime_; // seconds since midnight of the first sample
    QString lastValue_;
};

/// Seconds from `start` to `now`, both since midnight, in hundredths with halves to the even one:
/// "12.34", "0.5", "7". An earlier `now` is of the day after, whose midnight costs a second.
QString ElapsedSeconds(double start, double now);

/// The sample counter after one more sample: 0 after highestCount.
qint32 CountAfter(qint32 count);
