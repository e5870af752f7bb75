#pragma once

#include <functional>
#include <QObject>
#include <QString>

class MdiChildren;

/// Follows whether one view is the active child of the main window.
class ChildActivation : public QObject {
    Q_OBJECT
public:
    /// `activated` is called when the view has become the active child, `deactivated` when another
    /// has taken its place or it was closed. `children` must outlive the object.
    ChildActivation(MdiChildren& children, QString view, std::function<void()> activated,
                    std::function<void()> deactivated = {});

private:
    void Follow();

    MdiChildren& children_;
    const QString view_;
    const std::function<void()> activated_;
    const std::function<void()> deactivated_;
    bool active_ = false;
};
