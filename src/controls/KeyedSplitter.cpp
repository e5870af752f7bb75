#include "controls/KeyedSplitter.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <utility>

namespace {
class Divider final : public QSplitterHandle {
public:
    Divider(Qt::Orientation orientation, QSplitter* parent)
        : QSplitterHandle(orientation, parent) {}

    /// Takes the focus; `before` gets it back.
    void Take(QWidget* before) {
        before_ = before;
        setFocus(Qt::ShortcutFocusReason);
    }
    QWidget* Before() const { return before_; }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return ||
            event->key() == Qt::Key_Enter)
            GoBack();
        else if (!MoveBy(event->key()))
            QSplitterHandle::keyPressEvent(event);
    }
    void focusInEvent(QFocusEvent* event) override {
        QSplitterHandle::focusInEvent(event);
        update();
    }
    void focusOutEvent(QFocusEvent* event) override {
        QSplitterHandle::focusOutEvent(event);
        update();
    }
    void paintEvent(QPaintEvent* event) override {
        if (hasFocus())
            QPainter(this).fillRect(rect(), palette().color(QPalette::Highlight));
        else
            QSplitterHandle::paintEvent(event);
    }

private:
    void GoBack() {
        if (before_)
            before_->setFocus(Qt::OtherFocusReason);
        else
            clearFocus();
    }

    bool MoveBy(int key) {
        const bool across = orientation() == Qt::Horizontal;
        const int place = across ? x() : y();
        const int end = across ? splitter()->width() : splitter()->height();
        if (key == Qt::Key_Home || key == Qt::Key_End)
            moveSplitter(key == Qt::Key_Home ? 0 : end);
        else if (key == (across ? Qt::Key_Left : Qt::Key_Up))
            moveSplitter(place - KeyedSplitter::step);
        else if (key == (across ? Qt::Key_Right : Qt::Key_Down))
            moveSplitter(place + KeyedSplitter::step);
        else
            return false;
        return true;
    }

    QPointer<QWidget> before_;
};

// Without a role of its own a divider would be an unknown thing to accessibility tools.
QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
    auto* divider = dynamic_cast<Divider*>(object);
    return divider ? new QAccessibleWidget(divider, QAccessible::Separator) : nullptr;
}

QList<Divider*> DividersIn(const QWidget& window) {
    QList<Divider*> dividers;
    for (const KeyedSplitter* splitter : window.findChildren<KeyedSplitter*>())
        for (int i = 1; i < splitter->count(); ++i) // the first pane has none before it
            if (splitter->handle(i)->isVisible())
                dividers.append(static_cast<Divider*>(splitter->handle(i)));
    return dividers;
}
} // namespace

KeyedSplitter::KeyedSplitter(Qt::Orientation orientation, QString dividerName, QWidget* parent)
    : QSplitter(orientation, parent), dividerName_(std::move(dividerName)) {
    static const bool known = (QAccessible::installFactory(&InterfaceOf), true);
    Q_UNUSED(known);
}

QSplitterHandle* KeyedSplitter::createHandle() {
    auto* divider = new Divider(orientation(), this);
    divider->setAccessibleName(dividerName_);
    return divider;
}

void FocusNextDivider(QWidget& window) {
    const QList<Divider*> dividers = DividersIn(window);
    if (dividers.isEmpty())
        return;
    QWidget* focus = QApplication::focusWidget();
    const qsizetype now = dividers.indexOf(focus);
    QWidget* before = now < 0 ? focus : dividers.at(now)->Before();
    dividers.at((now + 1) % dividers.size())->Take(before);
}
