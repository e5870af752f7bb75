#include "base/ViewLoop.h"

#include <algorithm>
#include <utility>

namespace {
int holds = 0;
} // namespace

ViewLoop::~ViewLoop() = default;

ViewLoopHold::ViewLoopHold() {
    ++holds;
}

ViewLoopHold::~ViewLoopHold() {
    --holds;
}

bool ViewLoopHold::AnyHeld() {
    return holds > 0;
}

ViewLoopRunner::ViewLoopRunner(ModalTest blockedByModal, QObject* parent)
    : QObject(parent), blockedByModal_(std::move(blockedByModal)) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ViewLoopRunner::Turn);
}

void ViewLoopRunner::Activate(ViewLoop& loop) {
    Leave(loop);
    loops_.push_back(&loop);
    Schedule(0);
}

void ViewLoopRunner::Leave(ViewLoop& loop) {
    loops_.erase(std::remove(loops_.begin(), loops_.end(), &loop), loops_.end());
    if (loops_.empty())
        timer_.stop();
}

void ViewLoopRunner::Wake() {
    if (!loops_.empty())
        Schedule(0);
}

ViewLoop* ViewLoopRunner::Current() const {
    return loops_.empty() ? nullptr : loops_.back();
}

// A step that opens a message box turns the event loop inside itself: inStep_ keeps it from being
// entered a second time.
void ViewLoopRunner::Turn() {
    ViewLoop* loop = Current();
    if (!loop)
        return;
    if (inStep_ || ViewLoopHold::AnyHeld() || blockedByModal_(*loop)) {
        Schedule(restTime);
        return;
    }
    inStep_ = true;
    const ViewLoop::Step step = loop->TakeStep();
    inStep_ = false;
    if (!loops_.empty())
        Schedule(step == ViewLoop::Step::Worked ? 0 : restTime);
}

void ViewLoopRunner::Schedule(int milliseconds) {
    timer_.start(milliseconds);
}
