#pragma once

#include "base/Alarms.h"
#include <functional>
#include <memory>
#include <QObject>
#include <vector>

/// The running loop of a view, cut into steps: one row, one panel, one address. A step may read
/// the board; it never yields and never waits for the user.
class ViewLoop {
public:
    enum class Step {
        Worked, ///< something was done; give the next step at the next turn
        Rest,   ///< nothing to do just now; look again after the rest time
    };

    virtual ~ViewLoop();
    /// Does one step.
    virtual Step TakeStep() = 0;
};

/// Keeps view loops still as long as it lives: held by DoEvents, by jobs and transfers and by
/// message boxes. Holds may nest.
class ViewLoopHold {
public:
    /// What the loops wait for: work that has the line to itself, or a prompt, behind which the
    /// timers of views go on.
    enum class For { Work, Prompt };

    /// Holds from now on until it goes.
    explicit ViewLoopHold(For what = For::Work);
    ~ViewLoopHold();
    ViewLoopHold(const ViewLoopHold&) = delete;
    ViewLoopHold& operator=(const ViewLoopHold&) = delete;
    /// True while at least one hold lives.
    static bool AnyHeld();
    /// True while at least one hold for work lives.
    static bool AnyHeldForWork();

private:
    const For what_;
};

/// Gives steps, one per turn of the event loop, to the loop that was activated last and still
/// runs, and falls back to the one before it when that ends. No step is given while a hold lives
/// or while a modal window is up that is not the loop's own view.
class ViewLoopRunner : public QObject {
    Q_OBJECT
public:
    /// Milliseconds between looks at a loop that rests or is blocked.
    static constexpr int restTime = 100;

    /// Whether a modal window other than the view of the loop is up.
    using ModalTest = std::function<bool(const ViewLoop&)>;

    /// `alarms` time the turns; they must outlive the runner.
    explicit ViewLoopRunner(ModalTest blockedByModal, Alarms& alarms = Alarms::System());

    /// The loop gets the steps from now on, until another is activated or it leaves.
    void Activate(ViewLoop& loop);
    /// The loop gets no more steps; harmless if it has none. Must be called before it dies.
    void Leave(ViewLoop& loop);
    /// Something changed that a resting loop should see at once.
    void Wake();
    /// The loop that gets the steps now, or null.
    ViewLoop* Current() const;

private:
    void Turn();
    ViewLoop::Step StepOf(ViewLoop& loop);
    void Schedule(int milliseconds);

    ModalTest blockedByModal_;
    std::vector<ViewLoop*> loops_; // the last one is current
    std::unique_ptr<Alarm> nextTurn_;
    bool inStep_ = false;
    bool woken_ = false; // since the last step began
};
