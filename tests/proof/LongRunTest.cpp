#include "app/WholeProgram.h"
#include "controls/grid/Grid.h"
#include "pls/views/frmTiming.h"
#include "support/PrintText.h"
#include "targetboard/BoardClock.h"
#include "trending/views/frmTrending.h"
#include <cmath>
#include <ctime>
#include <gtest/gtest.h>
#include <malloc.h>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

// Eight hours of the whole program at a board, in virtual time: the wall clock goes over midnight
// and over a change of summer time, and is set back by an hour once.

namespace {
// Seconds of virtual time between two looks at everything. The loops of the views have no pace of
// their own; the background update and the samples have 500 ms and 1 s.
#ifdef __SANITIZE_ADDRESS__
constexpr double look = 2.0;
#else
constexpr double look = 0.5;
#endif
constexpr double sampleInterval = std::max(1.0, look);
constexpr int minute = 60;          // seconds
constexpr int hour = 60 * minute;   // seconds
constexpr int runTime = 8 * hour;   // seconds
constexpr int warmUp = 10 * minute; // seconds: by then everything was used once
constexpr int turnOfView = 3 * minute;
constexpr int loopSteps = 6;  // of the active view's loop, at each look
constexpr int paintEvery = 5; // seconds of virtual time between turns of the event loop
constexpr std::size_t mostGrowth = 1024 * 1024; // bytes

constexpr int k2041 = 55; // a limit switch board

// Bytes; 0 where another allocator keeps the books, as under the address sanitizer, whose own look
// at leaks takes this one's place.
std::size_t HeapInUse() {
    const struct mallinfo2 books = mallinfo2();
    return books.uordblks + books.hblkhd;
}

int OpenHandles() {
    return int(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size());
}

/// Central European time, by rule, so that no time zone files are needed.
class SummerTimeZone {
public:
    SummerTimeZone() : before_(qgetenv("TZ")) { Set("CET-1CEST,M3.5.0,M10.5.0/3"); }
    ~SummerTimeZone() { Set(before_); }
    SummerTimeZone(const SummerTimeZone&) = delete;
    SummerTimeZone& operator=(const SummerTimeZone&) = delete;

private:
    static void Set(const QByteArray& zone) {
        if (zone.isEmpty())
            qunsetenv("TZ");
        else
            qputenv("TZ", zone);
        ::tzset();
    }
    QByteArray before_;
};

class LongRun : public WholeProgram {
protected:
    explicit LongRun(int boardModel = haldenboard::SimulatedBoard::DefaultModel)
        : WholeProgram(boardModel) {
        line_.KeepLog(false);
    }

    void SetUp() override {
        WholeProgram::SetUp();
        // The test gives the ticks: by itself the timer would count real time.
        Find<QTimer>("tmrBackgroungUpdate")->setInterval(24 * hour * 1000);
    }
    double Elapsed() const { return clock_.MonotonicSeconds() - start_; }
    void Begin() {
        start_ = clock_.MonotonicSeconds();
        Tick();
    }
    /// Lets everything work until so many seconds have passed since Begin.
    void PassUntil(double end) {
        while (Elapsed() < end && !HasFailure()) {
            clock_.AdvanceTo(start_ + (std::floor(Elapsed() / look) + 1.0) * look);
            Tick();
            ++ticks_;
            Sample();
            for (int step = 0; step < loopSteps && application_->Loops().Current(); ++step)
                StepOfLoop();
            bytesSent_ += port_.Sent().size();
            port_.ForgetSent();
            if (Elapsed() >= nextPaint_)
                Paint();
            if (!clockSetBack_ && Elapsed() >= hour)
                SetClockBack();
            if (!warm_ && Elapsed() >= warmUp)
                TakeBooks();
        }
    }
    virtual void Sample() {}
    void StepOfLoop() {
        shownAt_ = clock_.WallClock();
        application_->Loops().Current()->TakeStep();
    }
    void Paint() {
        nextPaint_ = Elapsed() + paintEvery;
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void SetClockBack() {
        clockSetBack_ = true;
        clock_.SetWallClock(clock_.WallClock().addSecs(-hour));
    }
    void TakeBooks() {
        warm_ = true;
        heapAfterWarmUp_ = HeapInUse();
        handlesAfterWarmUp_ = OpenHandles();
    }
    void ExpectNothingGrew() {
        ASSERT_TRUE(warm_);
        EXPECT_LE(HeapInUse(), heapAfterWarmUp_ + mostGrowth);
        EXPECT_EQ(OpenHandles(), handlesAfterWarmUp_);
        // At each look a read by the background update and several by the loop, two bytes each.
        EXPECT_GE(bytesSent_, 4 * std::size_t(ticks_));
        RecordProperty("bytesSent", std::to_string(bytesSent_));
        RecordProperty("heapGrowth", std::to_string(qint64(HeapInUse() - heapAfterWarmUp_)));
    }
    /// The panels of date and time follow the wall clock, whatever was done to it.
    void ExpectPanelsShowWallClock() {
        auto* timer = Find<QTimer>("nextMinute");
        QTimerEvent event(timer->timerId());
        QCoreApplication::sendEvent(timer, &event);
        EXPECT_EQ(Panel(3), QLocale().toString(clock_.WallClock().date(), QLocale::ShortFormat));
    }

    SummerTimeZone zone_;
    int ticks_ = 0;
    QDateTime shownAt_; ///< when the last step of a loop began
    std::size_t bytesSent_ = 0;

private:
    double start_ = 0.0;
    double nextPaint_ = 0.0;
    bool clockSetBack_ = false;
    bool warm_ = false;
    std::size_t heapAfterWarmUp_ = 0;
    int handlesAfterWarmUp_ = 0;
};

/// The status table, the trend and, by turns, the target board view at a standard board.
class LongRunOfStandardBoard : public LongRun {
protected:
    static constexpr int tableAddress = 100;
    static constexpr int trendAddress = 101;
    static constexpr int networkAddress = 8180;

    void OpenViews() {
        SetFaultCode(0);
        Entry("mnuViewOnline")->trigger();
        Press("Status");
        TypeAddresses({u"b100"_qs, u"b101"_qs, u"w102"_qs, u"d104"_qs, u"f3"_qs});
        Press("Trend");
        trend_ = Window().findChild<frmTrending*>("frmTrending");
        ASSERT_NE(trend_, nullptr);
        trend_->findChild<QComboBox*>("cboTargetBoard")->setCurrentIndex(3);
        auto* address = trend_->findChild<QComboBox*>("cboAddress");
        address->setFocus();
        address->setEditText(u"B101"_qs);
        QTest::keyClick(address, Qt::Key_Return);
        trend_->findChild<QRadioButton*>("optOptions(1)")->setChecked(true);
        auto* interval = trend_->findChild<QComboBox*>("cboOptions");
        interval->setCurrentIndex(intervalOfOneSecond);
        Q_EMIT interval->activated(intervalOfOneSecond);
        trend_->findChild<QCheckBox*>("chkAcquire")->setChecked(true);
        trend_->findChild<QCheckBox*>("chkLiveData")->setChecked(true);
        for (QTimer* timer : trend_->findChildren<QTimer*>(Qt::FindDirectChildrenOnly))
            if (timer->isActive() && timer->interval() == 1000)
                trendTimer_ = timer;
        ASSERT_NE(trendTimer_, nullptr);
    }
    void Sample() override {
        QTimerEvent event(trendTimer_->timerId());
        QCoreApplication::sendEvent(trendTimer_, &event);
    }
    void NewValues() {
        value_ = (value_ + 1) % 100; // a network address has two digits
        Fill(tableAddress, 1, value_);
        Fill(trendAddress, 1, value_);
    }
    // The values that the board got last are the values shown.
    void TurnOfTable(double end) {
        Press("Status");
        NewValues();
        PassUntil(end);
        EXPECT_EQ(Cell(2, 2), QString::number(value_)) << Elapsed();
    }
    void TurnOfTrend(double end) {
        Press("Trend");
        NewValues();
        PassUntil(end);
        EXPECT_EQ(trend_->Acquisition().Samples().Text(1, 2), QString::number(value_));
    }
    void TurnOfTargetBoard(double end) {
        WhenUp("frmTargetBoard", [this, end](QWidget& view) {
            NewValues();
            Fill(networkAddress, 1, value_);
            PassUntil(end);
            // The clock page shows the computer's time, whatever was done to that.
            EXPECT_EQ(view.findChild<QLabel*>("lblCurrTime")->text(),
                      CurrTimeText(shownAt_.time()));
            EXPECT_EQ(view.findChild<QLineEdit*>("txtSetup(0)")->text().toInt(), value_);
            ClickButton(view, "cmdOk");
        });
        Press("PLC");
    }

    frmTrending* trend_ = nullptr;
    QTimer* trendTimer_ = nullptr;
    int value_ = 0;

private:
    static constexpr int intervalOfOneSecond = 3;
};

class LongRunOfLimitSwitch : public LongRun {
protected:
    LongRunOfLimitSwitch() : LongRun(k2041) {}

    frmTiming& View() { return *Find<frmTiming>("frmTiming"); }
    void OpenView() {
        GoToSets();
        ClickSet(u"CAMS.hdn"_qs);
        Entry("mnuToolsPLSProgramming")->trigger();
        Entry("mnuViewOnline")->trigger();
        QElapsedTimer passed;
        passed.start();
        while (!View().gFirstPassOnline() && passed.elapsed() < 10000) {
            application_->Loops().Wake();
            QCoreApplication::processEvents();
        }
        ASSERT_TRUE(View().gFirstPassOnline());
    }
    QString SpeedShown() { return Find<QLabel>("sbrMachineTiming(1)")->text(); }
};
} // namespace

TEST_F(LongRunOfStandardBoard, EightHoursOverMidnightAndTheBeginOfSummerTime) {
    clock_.SetWallClock(QDateTime(QDate(2026, 3, 28), QTime(20, 0)));
    OpenViews();
    Begin();
    const int samplesBefore = trend_->Acquisition().Counter();
    for (double end = turnOfView; Elapsed() < runTime && !HasFailure();) {
        TurnOfTable(end);
        TurnOfTrend(end + turnOfView);
        TurnOfTargetBoard(end + 2 * turnOfView);
        end += 3 * turnOfView;
    }
    ExpectNothingGrew();
    EXPECT_TRUE(Link().OnlineMode());
    const double samples = trend_->Acquisition().Counter() - samplesBefore;
    EXPECT_NEAR(samples, Elapsed() / sampleInterval, 2.0);
    EXPECT_EQ(ticks_, std::lround(Elapsed() / look));
    ExpectPanelsShowWallClock();
    // Eight hours and some, less the hour set back, more the hour of summer time.
    EXPECT_EQ(clock_.WallClock().date(), QDate(2026, 3, 29));
    EXPECT_EQ(clock_.WallClock().time().hour(), 4);
}

TEST_F(LongRunOfLimitSwitch, EightHoursOverMidnightAndTheEndOfSummerTime) {
    clock_.SetWallClock(QDateTime(QDate(2026, 10, 24), QTime(22, 0)));
    OpenView();
    Begin();
    for (int rpm = 0, end = 2 * minute; end <= runTime && !HasFailure(); end += 2 * minute) {
        rpm = (rpm + 7) % 100;
        board_.SetSpeed(rpm);
        PassUntil(end);
        EXPECT_TRUE(SpeedShown().contains(QString::number(rpm))) << SpeedShown().toStdString();
    }
    ExpectNothingGrew();
    EXPECT_TRUE(Link().OnlineMode());
    EXPECT_TRUE(View().gFirstPassOnline());
    ExpectPanelsShowWallClock();
    EXPECT_EQ(clock_.WallClock().date(), QDate(2026, 10, 25));
    EXPECT_EQ(clock_.WallClock().time().hour(), 4);
}
