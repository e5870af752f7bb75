#include "shell/MdiChildren.h"

#include "shell/frmMain.h"
#include <QEvent>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace {
constexpr int cascadeStep = 26; // pixels from one view to the next that opens
} // namespace

MdiChildren::MdiChildren(QMdiArea& area) : QObject(&area), area_(area) {
    connect(&area_, &QMdiArea::subWindowActivated, this, &MdiChildren::Activated);
    area_.viewport()->installEventFilter(this);
}

void MdiChildren::SetBrowser(frmMain& browser) {
    browser_ = &browser;
    browserFrame_ = area_.addSubWindow(&browser, Qt::FramelessWindowHint);
    browserFrame_->setWindowTitle(browser.accessibleName()); // heard, not seen
    browserFrame_->installEventFilter(this);
    browserFrame_->setGeometry(area_.viewport()->rect());
    browser.show();
}

void MdiChildren::Register(const QString& name, Factory factory) {
    factories_[name] = std::move(factory);
}

void MdiChildren::Show(const QString& name) {
    if (!Knows(name))
        return;
    if (!Frame(name))
        Add(name);
    QMdiSubWindow* frame = Frame(name);
    frame->widget()->show();
    if (frame->isMinimized())
        frame->showNormal();
    else
        frame->show();
    area_.setActiveSubWindow(frame);
}

void MdiChildren::Hide(const QString& name) {
    if (QMdiSubWindow* frame = Frame(name))
        frame->close();
}

void MdiChildren::Add(const QString& name) {
    QMdiSubWindow* frame = area_.addSubWindow(factories_.at(name)());
    frame->setAttribute(Qt::WA_DeleteOnClose, false); // a view lives on hidden
    frame->installEventFilter(this);
    const int cascaded = static_cast<int>(children_.size());
    Place(children_[name] = {frame, cascaded, QRect()});
}

// Into the area that the browser's lists leave free; over them only where it is too small.
void MdiChildren::Place(Child& child) {
    QMdiSubWindow& frame = *child.frame;
    const QRect whole = area_.viewport()->rect();
    QRect free = whole;
    if (browser_ && browserFrame_) {
        const QRect area = browser_->FreeArea();
        free = QRect(browser_->mapTo(area_.viewport(), area.topLeft()), area.size());
    }
    const QSize wanted = frame.sizeHint().expandedTo(frame.minimumSizeHint());
    const int step = cascadeStep * child.cascaded;
    QSize size(qMax(wanted.width(), free.width() - step),
               qMax(wanted.height(), free.height() - step));
    size = size.boundedTo(whole.size());
    const int x = qMin(free.left() + step, whole.width() - size.width());
    const int y = qMin(free.top() + step, whole.height() - size.height());
    frame.setGeometry(QRect(QPoint(qMax(0, x), qMax(0, y)), size));
    child.place = frame.geometry();
}

// A larger main window gives its room to the views, but to none that the user has moved or sized.
void MdiChildren::PlaceAgain() {
    for (auto& [name, child] : children_) {
        const QMdiSubWindow* frame = child.frame;
        const bool ours = frame && !frame->isMaximized() && !frame->isMinimized() &&
                          frame->geometry() == child.place;
        if (ours)
            Place(child);
    }
}

QMdiSubWindow* MdiChildren::Frame(const QString& name) const {
    const auto found = children_.find(name);
    return found == children_.end() ? nullptr : found->second.frame.data();
}

QWidget* MdiChildren::View(const QString& name) const {
    const QMdiSubWindow* frame = Frame(name);
    return frame ? frame->widget() : nullptr;
}

bool MdiChildren::IsVisible(const QString& name) const {
    const QMdiSubWindow* frame = Frame(name);
    return frame && frame->isVisible();
}

QString MdiChildren::ActiveName() const {
    return active_ && active_->widget() ? active_->widget()->objectName() : QString();
}

ChildView* MdiChildren::Handlers(const QMdiSubWindow* frame) {
    return frame ? dynamic_cast<ChildView*>(frame->widget()) : nullptr;
}

// The area reports no active view while another window is in front: the last one stays.
void MdiChildren::Activated(QMdiSubWindow* frame) {
    if (!frame || frame == active_)
        return;
    if (ChildView* before = Handlers(active_))
        before->Form_Deactivate();
    active_ = frame;
    if (ChildView* now = Handlers(frame))
        now->Form_Activate();
    Q_EMIT ActiveChanged();
}

void MdiChildren::ResizeAll() {
    if (browser_)
        browser_->Form_Resize();
    for (const auto& [name, child] : children_) {
        ChildView* view = Handlers(child.frame);
        if (view && child.frame->isVisible())
            view->Form_Resize();
    }
}

// The area brings every view that becomes active to the front: the browser goes back at once.
void MdiChildren::KeepBrowserLowest() {
    for (QObject* child : area_.viewport()->children()) { // the lowest is the first
        if (qobject_cast<QMdiSubWindow*>(child)) {
            if (child != browserFrame_)
                browserFrame_->lower();
            return;
        }
    }
}

// When the active view is hidden the one that was active before it takes its place.
void MdiChildren::ActivateNext() {
    const QList<QMdiSubWindow*> history = area_.subWindowList(QMdiArea::ActivationHistoryOrder);
    for (auto frame = history.rbegin(); frame != history.rend(); ++frame) {
        if (*frame != active_ && (*frame)->isVisible()) {
            area_.setActiveSubWindow(*frame);
            return;
        }
    }
}

bool MdiChildren::eventFilter(QObject* watched, QEvent* event) {
    if (watched == area_.viewport() && event->type() == QEvent::Resize) {
        Q_EMIT AreaResized();
        PlaceAgain();
    }
    if (watched == browserFrame_ && event->type() == QEvent::Close) {
        event->ignore(); // the browser stays
        return true;
    }
    if (watched == browserFrame_ && event->type() == QEvent::ZOrderChange)
        KeepBrowserLowest();
    if (watched == active_ && watched != browserFrame_ && event->type() == QEvent::Hide)
        ActivateNext();
    return QObject::eventFilter(watched, event);
}
