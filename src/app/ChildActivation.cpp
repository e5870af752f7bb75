#include "app/ChildActivation.h"

#include "shell/MdiChildren.h"
#include <utility>

ChildActivation::ChildActivation(MdiChildren& children, QString view,
                                 std::function<void()> activated, std::function<void()> deactivated)
    : children_(children), view_(std::move(view)), activated_(std::move(activated)),
      deactivated_(std::move(deactivated)) {
    connect(&children_, &MdiChildren::ActiveChanged, this, &ChildActivation::Follow);
}

void ChildActivation::Follow() {
    const bool active = children_.View(view_) && children_.ActiveName() == view_;
    if (active == active_)
        return;
    active_ = active;
    if (active)
        activated_();
    else if (deactivated_)
        deactivated_();
}
