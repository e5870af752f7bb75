#include "base/ViewLoop.h"

#include <algorithm>
#include <QScopedValueRollback>
#include <utility>

namespace {
int holds = 0;
int holdsForWork = 0;
} // namespace

ViewLoop::~ViewLoop() = default;

ViewLoopHold::ViewLoopHold(For what) : what_(what) {
    ++holds;
    holdsForWork += what_ == For::Work ? 1 : 0;
}

ViewLoopHold::~ViewLoopHold() {
    --holds;
    holdsForWork -= what_ == For::Work ? 1 : 0;
}

bool ViewLoopHold::AnyHeld() {
    return holds > 0;
}

bool ViewLoopHold::AnyHeldForWork() {
    return holdsForWork > 0;
}

ViewLoopRunner::ViewLoopRunner(ModalTest blockedByModal, Alarms& alarms)
    : blockedByModal_(std::move(blockedByModal)), nextTurn_(alarms.Make([this] { Turn(); })) {}

void ViewLoopRunner::Activate(ViewLoop& loop) {
    Leave(loop);
    loops_.push_back(&loop);
    Wake();
}

void ViewLoopRunner::Leave(ViewLoop& loop) {
    loops_.erase(std::remove(loops_.begin(), loops_.end(), &loop), loops_.end());
    if (loops_.empty())
        nextTurn_->Stop();
}

void ViewLoopRunner::Wake() {
    woken_ = true;
    if (!loops_.empty())
        Schedule(0);
}

ViewLoop* ViewLoopRunner::Current() const {
    return loops_.empty() ? nullptr : loops_.back();
}

// A step that opens a message box turns the event loop inside itself: inStep_ keeps it from being
// entered a second time. What wakes the loops during a step is not lost in the rest after it.
void ViewLoopRunner::Turn() {
    ViewLoop* loop = Current();
    if (!loop)
        return;
    if (inStep_ || ViewLoopHold::AnyHeld() || blockedByModal_(*loop)) {
        Schedule(restTime);
        return;
    }
    Schedule(restTime); // the next turn comes even if the step raises an error
    woken_ = false;
    const ViewLoop::Step step = StepOf(*loop);
    if (!loops_.empty())
        Schedule(step == ViewLoop::Step::Worked || woken_ ? 0 : restTime);
}

ViewLoop::Step ViewLoopRunner::StepOf(ViewLoop& loop) {
    const QScopedValueRollback<bool> running(inStep_, true);
    return loop.TakeStep();
}

void ViewLoopRunner::Schedule(int milliseconds) {
    nextTurn_->Set(milliseconds);
}
