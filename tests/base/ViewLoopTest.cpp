#include "base/ViewLoop.h"

#include "base/DoEvents.h"
#include "base/RunTimeError.h"
#include "support/VirtualAlarms.h"
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <QCoreApplication>

namespace {
class CountedLoop final : public ViewLoop {
public:
    Step TakeStep() override {
        ++steps;
        if (onStep)
            onStep();
        return rests ? Step::Rest : Step::Worked;
    }
    int steps = 0;
    bool rests = false;
    std::function<void()> onStep;
};

class ViewLoops : public testing::Test {
protected:
    // Lets time pass until the test says so; false when that takes ten seconds of it.
    bool TurnUntil(const std::function<bool()>& done) {
        for (int passed = 0; !done() && passed < 10000; ++passed)
            alarms.Pass(1);
        return done();
    }

    bool blocked = false;
    CountedLoop first, second;
    VirtualClock clock;
    VirtualAlarms alarms{clock};
    ViewLoopRunner runner{[this](const ViewLoop&) { return blocked; }, alarms};
};
} // namespace

TEST_F(ViewLoops, TheLoopActivatedLastGetsTheSteps) {
    runner.Activate(first);
    runner.Activate(second);
    EXPECT_EQ(runner.Current(), &second);
    EXPECT_TRUE(TurnUntil([&] { return second.steps >= 5; }));
    EXPECT_EQ(first.steps, 0);
}

TEST_F(ViewLoops, ActivatedAgainALoopIsTheLastOne) {
    runner.Activate(first);
    runner.Activate(second);
    runner.Activate(first);
    EXPECT_TRUE(TurnUntil([&] { return first.steps >= 5; }));
    EXPECT_EQ(second.steps, 0);
}

TEST_F(ViewLoops, WhenItEndsTheOneBeforeItGetsTheSteps) {
    runner.Activate(first);
    runner.Activate(second);
    EXPECT_TRUE(TurnUntil([&] { return second.steps >= 1; }));
    runner.Leave(second);
    const int stepsOfSecond = second.steps;
    EXPECT_TRUE(TurnUntil([&] { return first.steps >= 5; }));
    EXPECT_EQ(second.steps, stepsOfSecond);
}

TEST_F(ViewLoops, ALoopMayLeaveInsideItsOwnStep) {
    runner.Activate(first);
    runner.Activate(second);
    second.onStep = [&] { runner.Leave(second); };
    EXPECT_TRUE(TurnUntil([&] { return first.steps >= 3; }));
    EXPECT_EQ(second.steps, 1);
}

TEST_F(ViewLoops, TheLastOneMayLeaveInsideItsOwnStep) {
    runner.Activate(first);
    first.onStep = [&] { runner.Leave(first); };
    EXPECT_TRUE(TurnUntil([&] { return first.steps >= 1; }));
    alarms.Pass(3 * ViewLoopRunner::restTime);
    EXPECT_EQ(first.steps, 1);
    EXPECT_EQ(runner.Current(), nullptr);
}

TEST_F(ViewLoops, LeavingWithoutHavingBeenActivatedIsHarmless) {
    runner.Leave(first);
    runner.Wake();
    EXPECT_EQ(runner.Current(), nullptr);
    alarms.Pass(3 * ViewLoopRunner::restTime);
    EXPECT_EQ(first.steps, 0);
}

TEST_F(ViewLoops, OneTurnOfTheEventLoopGivesOneStep) {
    ViewLoopRunner inRealTurns{[](const ViewLoop&) { return false; }};
    inRealTurns.Activate(first);
    int turns = 0;
    first.onStep = [&] { EXPECT_LE(first.steps, turns + 1); };
    while (first.steps < 10 && turns < 1000) {
        QCoreApplication::processEvents();
        ++turns;
    }
    EXPECT_EQ(first.steps, 10);
    EXPECT_GE(turns, 10);
}

TEST_F(ViewLoops, AHoldKeepsAllLoopsStillAndHoldsNest) {
    auto outer = std::make_unique<ViewLoopHold>();
    auto inner = std::make_unique<ViewLoopHold>();
    runner.Activate(first);
    alarms.Pass(3 * ViewLoopRunner::restTime);
    inner.reset();
    EXPECT_TRUE(ViewLoopHold::AnyHeld());
    alarms.Pass(3 * ViewLoopRunner::restTime);
    EXPECT_EQ(first.steps, 0);
    outer.reset();
    EXPECT_FALSE(ViewLoopHold::AnyHeld());
    EXPECT_TRUE(TurnUntil([&] { return first.steps >= 3; }));
}

TEST_F(ViewLoops, AModalWindowKeepsTheLoopStill) {
    blocked = true;
    runner.Activate(first);
    alarms.Pass(3 * ViewLoopRunner::restTime);
    EXPECT_EQ(first.steps, 0);
    blocked = false;
    EXPECT_TRUE(TurnUntil([&] { return first.steps >= 3; }));
}

TEST_F(ViewLoops, ALoopWithNothingToDoRests) {
    first.rests = true;
    runner.Activate(first);
    EXPECT_TRUE(TurnUntil([&] { return first.steps == 1; }));
    alarms.Pass(ViewLoopRunner::restTime - 1);
    EXPECT_EQ(first.steps, 1) << "it rests, and does not spin";
    alarms.Pass(1);
    EXPECT_EQ(first.steps, 2);
}

TEST_F(ViewLoops, WakeEndsARest) {
    first.rests = true;
    runner.Activate(first);
    EXPECT_TRUE(TurnUntil([&] { return first.steps == 1; }));
    runner.Wake();
    alarms.Pass(1);
    EXPECT_EQ(first.steps, 2);
}

TEST_F(ViewLoops, AWakeDuringAStepIsNotLostInTheRestAfterIt) {
    first.rests = true;
    first.onStep = [&] {
        if (first.steps == 1)
            runner.Wake();
    };
    runner.Activate(first);
    alarms.Pass(5);
    EXPECT_EQ(first.steps, 2);
}

TEST_F(ViewLoops, AStepThatTurnsTheEventLoopIsNotEnteredAgain) {
    int depth = 0;
    first.onStep = [&] {
        EXPECT_EQ(++depth, 1);
        alarms.Pass(3 * ViewLoopRunner::restTime);
        --depth;
    };
    runner.Activate(first);
    EXPECT_TRUE(TurnUntil([&] { return first.steps >= 2; }));
    EXPECT_EQ(depth, 0);
    runner.Leave(first);
}

TEST_F(ViewLoops, AnErrorInAStepDoesNotStillTheLoopsForGood) {
    first.onStep = [&] {
        if (first.steps == 1)
            throw RunTimeError(ErrorNumber::Overflow);
    };
    runner.Activate(first);
    EXPECT_THROW(alarms.Pass(1), RunTimeError);
    EXPECT_TRUE(TurnUntil([&] { return first.steps >= 3; }));
}

TEST_F(ViewLoops, APromptHoldsTheLoopsButIsNoWork) {
    auto prompt = std::make_unique<ViewLoopHold>(ViewLoopHold::For::Prompt);
    runner.Activate(first);
    alarms.Pass(3 * ViewLoopRunner::restTime);
    EXPECT_EQ(first.steps, 0);
    EXPECT_FALSE(ViewLoopHold::AnyHeldForWork());
    auto work = std::make_unique<ViewLoopHold>();
    prompt.reset();
    EXPECT_TRUE(ViewLoopHold::AnyHeldForWork());
    work.reset();
    EXPECT_FALSE(ViewLoopHold::AnyHeldForWork());
    EXPECT_TRUE(TurnUntil([&] { return first.steps >= 3; }));
}
