#include "trending/TrendAcquisition.h"

#include "support/LinkUnderTest.h"
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <malloc.h>

namespace {
class RecordedDisplay final : public TrendDisplay {
public:
    void SampleAdded(bool rowRemoved) override {
        ++samples;
        removed += rowRemoved ? 1 : 0;
    }
    void RowsChanged() override { ++rowChanges; }
    void CounterChanged() override { ++counterChanges; }
    void TimerChanged() override { ++timerChanges; }

    int samples = 0;
    int removed = 0;
    int rowChanges = 0;
    int counterChanges = 0;
    int timerChanges = 0;
};

// Bytes; 0 where another allocator keeps the books, as under the address sanitizer, whose own look
// at leaks takes this one's place.
std::size_t HeapInUse() {
    const struct mallinfo2 books = mallinfo2();
    return books.uordblks + books.hblkhd;
}

class Acquisition : public testing::Test, protected LinkUnderTest {
protected:
    Acquisition() : trend(link, clock, display) {
        GoOnline();
        EnterReadMode();
        trend.SetAcquire(true);
    }
    void Watch(const QString& variable = QStringLiteral("B40")) {
        ASSERT_EQ(trend.Variable().Enter(variable), TrendVariable::Entered::Taken);
    }
    void Continuous() {
        trend.SelectOption(SampleOption::TimeInterval);
        trend.SelectInterval(TrendAcquisition::continuous);
    }
    void Interval(int entry) {
        trend.SelectOption(SampleOption::TimeInterval);
        trend.SelectInterval(entry);
    }
    ViewLoop::Step StepReading(int value) {
        AnswerRead(0, value);
        return trend.TakeStep();
    }
    void TickReading(int value, double at) {
        clock.AdvanceTo(at);
        AnswerRead(0, value);
        trend.TimerTick();
    }
    QStringList Column(int column, int rows) const {
        QStringList texts;
        for (int row = 1; row <= rows; ++row)
            texts += trend.Samples().Text(row, column);
        return texts;
    }

    RecordedDisplay display;
    TrendAcquisition trend;
};
} // namespace

TEST_F(Acquisition, ChangeOfStateAddsASampleOnlyWhenTheValueDiffers) {
    Watch();
    for (const int value : {5, 5, 6, 6, 5})
        EXPECT_EQ(StepReading(value), ViewLoop::Step::Worked);
    EXPECT_EQ(display.samples, 3);
    EXPECT_EQ(Column(2, 3), (QStringList{"5", "6", "5"}));
}

TEST_F(Acquisition, ContinuousAddsEachValue) {
    Watch();
    Continuous();
    for (const int value : {5, 5, 6})
        EXPECT_EQ(StepReading(value), ViewLoop::Step::Worked);
    EXPECT_EQ(Column(2, 3), (QStringList{"6", "5", "5"}));
    EXPECT_FALSE(trend.TimerEnabled());
}

TEST_F(Acquisition, NothingIsReadWithoutTheAcquireBoxOrOfflineOrInACommFailure) {
    Watch();
    Continuous();
    trend.SetAcquire(false);
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    trend.SetAcquire(true);
    link.SetCommError(true);
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    link.SetCommError(false);
    link.SetOnlineMode(false);
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    Interval(1);
    clock.AdvanceTo(clock.MonotonicSeconds() + 1.0);
    trend.TimerTick();
    EXPECT_TRUE(port.Sent().empty());
    EXPECT_EQ(display.samples, 0);
}

TEST_F(Acquisition, AnIntervalStopsTheLoopAndTheTimerSamples) {
    Watch();
    Interval(1);
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    EXPECT_TRUE(port.Sent().empty());
    TickReading(7, clock.MonotonicSeconds() + 0.1);
    EXPECT_EQ(Column(2, 1), (QStringList{"7"}));
}

TEST_F(Acquisition, TheIntervalsAreThoseOfTheList) {
    EXPECT_EQ(TrendAcquisition::IntervalNames(),
              (QStringList{"Continuous", "100 msec", "500 msec", "1 sec", "10 sec", "60 sec"}));
    const std::vector<int> milliseconds{100, 500, 1000, 10000, 60000};
    for (int entry = 1; entry <= 5; ++entry) {
        Interval(entry);
        EXPECT_EQ(trend.TimerMilliseconds(), milliseconds[entry - 1]);
    }
    Continuous();
    EXPECT_EQ(trend.TimerMilliseconds(), std::nullopt);
}

TEST_F(Acquisition, ChangeOfStateStopsTheTimerAndTimeIntervalAppliesItsChoiceAgain) {
    Interval(3);
    trend.SelectOption(SampleOption::ChangeOfState);
    EXPECT_FALSE(trend.TimerEnabled());
    trend.SelectInterval(2);
    EXPECT_FALSE(trend.TimerEnabled());
    trend.SelectOption(SampleOption::TimeInterval);
    EXPECT_EQ(trend.TimerMilliseconds(), 500);
}

TEST_F(Acquisition, WithAnEmptyAddressListNothingIsReadAndIntervalsAddRowsWithAnEmptyDataCell) {
    Continuous();
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    Interval(1);
    clock.AdvanceTo(clock.MonotonicSeconds() + 0.1);
    trend.TimerTick();
    EXPECT_EQ(display.samples, 2);
    EXPECT_EQ(Column(2, 2), (QStringList{"", ""}));
    EXPECT_NE(trend.Samples().Text(1, 1), "");
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(Acquisition, WithAnEmptyAddressListChangeOfStateAddsARowOnlyIfTheEmptyValueDiffers) {
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    EXPECT_EQ(display.samples, 0);
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(Acquisition, AFailedReadAddsItsZeroAndStopsTheSampling) {
    Watch();
    Continuous();
    StepReading(9);
    port.Silence();
    ExpectAlert(NoReplyAlert(), MsgAnswer::Cancel);
    trend.TakeStep();
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(Column(2, 2), (QStringList{"0", "9"}));
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    EXPECT_EQ(display.samples, 2);
}

TEST_F(Acquisition, TheTimerKeepsOffTheLineWhileTheLinkShowsABox) {
    Watch();
    Interval(1);
    port.Silence();
    ExpectAlert(NoReplyAlert(), MsgAnswer::Cancel, [this] {
        const auto sent = port.Sent().size();
        clock.AdvanceTo(clock.MonotonicSeconds() + 0.2);
        trend.TimerTick();
        EXPECT_EQ(port.Sent().size(), sent);
    });
    link.RSRead(QStringLiteral("B41"));
    EXPECT_EQ(display.samples, 0);
}

// Behind this box no communication failure stands in the way.
TEST_F(Acquisition, TheTimerKeepsOffTheLineWhileTheLinkAsksAboutAMode) {
    Watch();
    Interval(1);
    for (int i = 0; i < 4; ++i)
        port.Reply(0x00, 0.5);
    ExpectAlert(NoModeAlert(), MsgAnswer::Cancel, [this] {
        const auto sent = port.Sent().size();
        clock.AdvanceTo(clock.MonotonicSeconds() + 0.2);
        trend.TimerTick();
        EXPECT_EQ(port.Sent().size(), sent);
    });
    link.PLSOffset();
    EXPECT_EQ(display.samples, 0);
}

// It is a variable by its range, but its last bytes lie beyond the memory of any board. An error
// that got out of here would end the program.
TEST_F(Acquisition, AVariableThatReachesBeyondTheMemoryGivesNoSample) {
    Watch(QStringLiteral("D65534"));
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    Continuous();
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    Interval(1);
    clock.AdvanceTo(clock.MonotonicSeconds() + 0.2);
    trend.TimerTick();
    EXPECT_EQ(display.samples, 0);
    EXPECT_TRUE(port.Sent().empty());
    Watch();
    TickReading(7, clock.MonotonicSeconds() + 0.2);
    EXPECT_EQ(display.samples, 1) << "the next variable is sampled";
}

TEST_F(Acquisition, TheTimerKeepsOffTheLineWhileAJobRuns) {
    Watch();
    Interval(1);
    clock.AdvanceTo(clock.MonotonicSeconds() + 0.1);
    const ViewLoopHold job;
    trend.TimerTick();
    EXPECT_TRUE(port.Sent().empty());
    EXPECT_EQ(display.samples, 0);
}

TEST_F(Acquisition, SamplesOf100MsecStayOnTheirGridHoweverLateTheTimerComes) {
    Watch();
    const double start = clock.MonotonicSeconds();
    Interval(1);
    double worst = 0.0;
    for (int i = 1; i <= 1000; ++i) {
        // The timer is up to 3 ms late, in whole milliseconds as it was asked for.
        const double late = 0.001 * (i % 4);
        const double due = clock.MonotonicSeconds() + trend.TimerMilliseconds().value() / 1000.0;
        TickReading(i % 256, due + late);
        ASSERT_EQ(display.samples, i);
        worst = std::max(worst, std::abs(due + late - (start + 0.1 * i)));
    }
    EXPECT_LT(worst, 0.005);
}

// Every read of the day goes through the link; what was answered and sent is not kept.
TEST_F(Acquisition, ADayOfSamplesEvery100MsecLeaksNothingAndStaysOnItsGrid) {
    constexpr int day = 24 * 60 * 60 * 10;
    Watch();
    const double start = clock.MonotonicSeconds();
    Interval(1);
    std::size_t heapAfterAMinute = 0;
    for (int i = 1; i <= day; ++i) {
        TickReading(i % 256, start + 0.1 * i + 0.0001);
        port.ForgetSent();
        if (i == 600)
            heapAfterAMinute = HeapInUse();
    }
    EXPECT_EQ(display.samples, day);
    EXPECT_EQ(trend.Samples().Rows(), 258);
    EXPECT_LE(HeapInUse(), heapAfterAMinute + 16 * 1024);
}

TEST_F(Acquisition, AMomentMissedIsLeftOutAndTheGridStays) {
    Watch();
    const double start = clock.MonotonicSeconds();
    Interval(1);
    TickReading(1, start + 0.35);
    EXPECT_EQ(display.samples, 1);
    EXPECT_NEAR(clock.MonotonicSeconds() + trend.TimerMilliseconds().value() / 1000.0, start + 0.4,
                0.0011);
}

TEST_F(Acquisition, ATimerThatComesEarlyTakesNoSample) {
    Watch();
    Interval(1);
    clock.AdvanceTo(clock.MonotonicSeconds() + 0.05);
    trend.TimerTick();
    EXPECT_EQ(display.samples, 0);
}

TEST_F(Acquisition, AStartAt86000AndASampleAt100Is499Seconds) {
    EXPECT_EQ(ElapsedSeconds(86000, 100), "499");
    Watch();
    Continuous();
    clock.SetWallClock(QDateTime(QDate(2026, 3, 9), QTime(23, 53, 20)));
    StepReading(1);
    clock.SetWallClock(QDateTime(QDate(2026, 3, 10), QTime(0, 1, 40)));
    StepReading(2);
    // A read of two exchanges takes 2 ms of the line.
    EXPECT_EQ(Column(1, 2), (QStringList{"499", "0"}));
}

TEST(ElapsedSeconds, AreHundredthsRoundedHalfToEven) {
    EXPECT_EQ(ElapsedSeconds(0, 0.125), "0.12");
    EXPECT_EQ(ElapsedSeconds(0, 0.375), "0.38");
    EXPECT_EQ(ElapsedSeconds(100, 112.5), "12.5");
    EXPECT_EQ(ElapsedSeconds(0, 86399.994), "86399.99");
    EXPECT_EQ(ElapsedSeconds(50, 50), "0");
}

TEST_F(Acquisition, The258thSampleDropsTheOldestRowAndTheCounterGoesOn) {
    Watch();
    Continuous();
    for (int i = 1; i <= 258; ++i)
        StepReading(i % 256);
    EXPECT_EQ(trend.Samples().Rows(), 258);
    EXPECT_EQ(trend.Samples().Text(257, 2), "2");
    EXPECT_EQ(trend.Counter(), 258);
}

TEST_F(Acquisition, ClearKeepsTheCounterAndBeginsTheTimeAgain) {
    Watch();
    Continuous();
    StepReading(1);
    clock.Wait(5.0);
    StepReading(2);
    EXPECT_EQ(trend.Samples().Text(1, 1), "5");
    trend.Clear();
    EXPECT_EQ(trend.Samples().Rows(), 12);
    EXPECT_EQ(trend.Counter(), 2);
    StepReading(3);
    EXPECT_EQ(trend.Samples().Text(1, 1), "0");
    EXPECT_EQ(trend.Counter(), 3);
}

TEST_F(Acquisition, ResetCounterKeepsTheGrid) {
    Watch();
    Continuous();
    StepReading(1);
    trend.ResetCounter();
    EXPECT_EQ(trend.CounterText(), "0");
    EXPECT_EQ(trend.Samples().Text(1, 2), "1");
}

TEST_F(Acquisition, OpenedRowsSetTheCounterToTheirNumber) {
    trend.Load(std::vector<TrendRow>(1234, TrendRow{"1", "2"}));
    EXPECT_EQ(trend.CounterText(), "1,234");
    EXPECT_EQ(trend.Samples().Rows(), 1235);
}

TEST_F(Acquisition, TheTimerGoesOnWhileABoxThatIsNotOfTheLinkIsUp) {
    Watch();
    Interval(1);
    const ViewLoopHold box(ViewLoopHold::For::Prompt);
    TickReading(7, clock.MonotonicSeconds() + 0.1);
    EXPECT_EQ(Column(2, 1), (QStringList{"7"}));
}

TEST_F(Acquisition, ACommFailureWhileTheTimerSamplesAddsItsZeroAndKeepsTheRows) {
    Watch();
    Interval(1);
    TickReading(9, clock.MonotonicSeconds() + 0.1);
    port.Silence();
    ExpectAlert(NoReplyAlert(), MsgAnswer::Cancel);
    clock.AdvanceTo(clock.MonotonicSeconds() + 0.1);
    trend.TimerTick();
    EXPECT_EQ(Column(2, 2), (QStringList{"0", "9"}));
    const auto sent = port.Sent().size();
    clock.AdvanceTo(clock.MonotonicSeconds() + 0.1);
    trend.TimerTick();
    EXPECT_EQ(port.Sent().size(), sent);
    EXPECT_EQ(Column(2, 2), (QStringList{"0", "9"}));
}

TEST_F(Acquisition, SamplingGoesOnWithItsRowsAndItsTimeWhenTheLinkIsOnlineAgain) {
    Watch();
    Continuous();
    StepReading(1);
    link.SetOnlineMode(false);
    clock.Wait(30.0);
    EXPECT_EQ(trend.TakeStep(), ViewLoop::Step::Rest);
    link.SetOnlineMode(true);
    StepReading(2);
    EXPECT_EQ(Column(2, 2), (QStringList{"2", "1"}));
    EXPECT_EQ(Column(1, 2), (QStringList{"30", "0"}));
}

TEST_F(Acquisition, AClockSetBackCountsAsMidnightAndLeavesTheIntervalAlone) {
    Watch();
    clock.SetWallClock(QDateTime(QDate(2026, 3, 9), QTime(12, 0)));
    Interval(3);
    TickReading(1, clock.MonotonicSeconds() + 1.0);
    clock.SetWallClock(QDateTime(QDate(2026, 3, 9), QTime(11, 0)));
    EXPECT_NEAR(trend.TimerMilliseconds().value(), 1000, 5);
    TickReading(2, clock.MonotonicSeconds() + 1.0);
    EXPECT_EQ(display.samples, 2);
    // Seconds of a day of 86399, an hour back and two intervals on.
    EXPECT_NEAR(trend.Samples().Text(1, 1).toDouble(), 86399 - 3600, 0.1);
    EXPECT_EQ(trend.Samples().Text(2, 1), "0");
}

TEST(SampleCounter, WrapsTo0Above999999999) {
    EXPECT_EQ(CountAfter(0), 1);
    EXPECT_EQ(CountAfter(999'999'998), 999'999'999);
    EXPECT_EQ(CountAfter(999'999'999), 0);
}

TEST_F(Acquisition, ChangeOfStateComparesWithTheLastSampleAlsoAfterAClear) {
    Watch();
    StepReading(5);
    trend.Clear();
    StepReading(5);
    EXPECT_EQ(trend.Samples().Text(1, 2), "");
    StepReading(6);
    EXPECT_EQ(trend.Samples().Text(1, 2), "6");
}
