#include "base/Clock.h"
#include <gtest/gtest.h>

TEST(SystemClock, WaitLastsAtLeastItsTime) {
    SystemClock clock;
    const double start = clock.MonotonicSeconds();
    clock.Wait(0.02);
    EXPECT_GE(clock.MonotonicSeconds() - start, 0.02);
}

TEST(SystemClock, AWaitOfNothingReturns) {
    SystemClock clock;
    clock.Wait(0.0);
    clock.Wait(-1.0);
    SUCCEED();
}

TEST(SystemClock, MonotonicTimeNeverGoesBack) {
    SystemClock clock;
    double last = clock.MonotonicSeconds();
    for (int i = 0; i < 1000; ++i) {
        const double now = clock.MonotonicSeconds();
        ASSERT_GE(now, last);
        last = now;
    }
}

TEST(SystemClock, TheWallClockIsLocalTime) {
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime shown = SystemClock().WallClock();
    EXPECT_LE(before, shown);
    EXPECT_EQ(shown.timeSpec(), Qt::LocalTime);
}
