#include "base/DoEvents.h"

#include "base/ViewLoop.h"
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QTimer>

namespace {
class CountedLoop final : public ViewLoop {
public:
    Step TakeStep() override {
        ++steps;
        return Step::Worked;
    }
    int steps = 0;
};
} // namespace

TEST(DoEvents, LetsWhatIsPendingRun) {
    bool ran = false;
    QTimer::singleShot(0, [&] { ran = true; });
    DoEvents();
    EXPECT_TRUE(ran);
}

TEST(DoEvents, GivesNoStepToAViewLoop) {
    CountedLoop loop;
    ViewLoopRunner runner([](const ViewLoop&) { return false; });
    runner.Activate(loop);
    for (int i = 0; i < 20; ++i)
        DoEvents();
    EXPECT_EQ(loop.steps, 0);
    EXPECT_FALSE(ViewLoopHold::AnyHeld());
}

TEST(DoEvents, HoldsTheLoopsWhileAHandlerRuns) {
    bool held = false;
    QTimer::singleShot(0, [&] { held = ViewLoopHold::AnyHeld(); });
    DoEvents();
    EXPECT_TRUE(held);
}
