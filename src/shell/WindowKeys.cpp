#include "shell/WindowKeys.h"

#include "controls/KeyedSplitter.h"
#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

namespace {
QList<QWidget*> LiveButtons(const QToolBar& toolbar) {
    QList<QWidget*> live;
    for (QAction* action : toolbar.actions()) {
        QWidget* button = toolbar.widgetForAction(action);
        if (qobject_cast<QToolButton*>(button) && button->isVisible() && button->isEnabled())
            live.append(button);
    }
    return live;
}
} // namespace

WindowKeys::WindowKeys(QMainWindow& window, QMdiArea& area, QToolBar& toolbar)
    : QObject(&window), window_(window), area_(area), toolbar_(toolbar) {
    for (QAction* action : toolbar_.actions())
        if (QWidget* button = toolbar_.widgetForAction(action))
            button->installEventFilter(this);
    AddKeys();
}

void WindowKeys::AddKeys() {
    const auto key = [this](const QKeySequence& keys, auto act) {
        connect(new QShortcut(keys, &window_), &QShortcut::activated, this, act);
    };
    key(QKeySequence(Qt::Key_F10), [this] { OpenMenuBar(); });
    key(QKeySequence(Qt::Key_F6), [this] { GoToToolbar(); });
    key(QKeySequence(Qt::Key_F8), [this] { FocusNextDivider(window_); });
    key(QKeySequence(Qt::CTRL | Qt::Key_F6), [this] { area_.activateNextSubWindow(); });
    key(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F6),
        [this] { area_.activatePreviousSubWindow(); });
    key(QKeySequence(Qt::ALT | Qt::Key_Minus), [this] { OpenWindowMenu(); });
}

void WindowKeys::OpenMenuBar() {
    QMenuBar& bar = *window_.menuBar();
    for (QAction* menu : bar.actions()) {
        if (menu->isVisible() && menu->isEnabled()) {
            bar.setActiveAction(menu);
            return;
        }
    }
}

void WindowKeys::GoToToolbar() {
    QWidget* focus = QApplication::focusWidget();
    if (focus && toolbar_.isAncestorOf(focus)) {
        LeaveToolbar();
        return;
    }
    const QList<QWidget*> live = LiveButtons(toolbar_);
    if (live.isEmpty())
        return;
    before_ = focus;
    live.first()->setFocus(Qt::TabFocusReason);
}

void WindowKeys::LeaveToolbar() {
    if (before_ && before_->isVisible())
        before_->setFocus(Qt::OtherFocusReason);
    else if (QMdiSubWindow* view = area_.activeSubWindow())
        view->setFocus(Qt::OtherFocusReason);
}

// The browser has no frame and no such menu.
void WindowKeys::OpenWindowMenu() {
    QMdiSubWindow* view = area_.activeSubWindow();
    if (view && !(view->windowFlags() & Qt::FramelessWindowHint))
        view->showSystemMenu();
}

bool WindowKeys::KeyInToolbar(QWidget& button, int key) {
    const QList<QWidget*> live = LiveButtons(toolbar_);
    const qsizetype place = live.indexOf(&button);
    const qsizetype count = live.size();
    switch (key) {
    case Qt::Key_Escape:
        LeaveToolbar();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        static_cast<QToolButton&>(button).click();
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (place >= 0)
            live[(place + (key == Qt::Key_Right ? 1 : count - 1)) % count]->setFocus(
                Qt::TabFocusReason);
        return true;
    default:
        return false;
    }
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
    auto* button = qobject_cast<QToolButton*>(watched);
    if (button && event->type() == QEvent::KeyPress)
        return KeyInToolbar(*button, static_cast<QKeyEvent*>(event)->key());
    return QObject::eventFilter(watched, event);
}
