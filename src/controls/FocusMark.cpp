#include "controls/FocusMark.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFocusFrame>
#include <QPainter>
#include <QPushButton>

namespace {
// QFocusFrame keeps the place; its mask leaves the border alone to be painted.
class Frame final : public QFocusFrame {
public:
    Frame() { setAttribute(Qt::WA_TransparentForMouseEvents); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).fillRect(rect(), palette().color(QPalette::Highlight));
    }
};

bool NeedsMark(const QWidget& focus) {
    const auto* button = qobject_cast<const QPushButton*>(&focus);
    // A default button without a width is the hidden one of the views with entries.
    const bool byKeyboard = focus.window()->testAttribute(Qt::WA_KeyboardFocusChange);
    return byKeyboard && (qobject_cast<const QAbstractScrollArea*>(&focus) ||
                          (button && button->isDefault() && button->width() > 0));
}
} // namespace

FocusMark::FocusMark(QObject* parent) : QObject(parent) {
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focus) { Follow(focus); });
}

FocusMark::~FocusMark() {
    delete frame_;
}

void FocusMark::Follow(QWidget* focus) {
    const bool marks = focus && NeedsMark(*focus);
    if (marks && !frame_)
        frame_ = new Frame;
    if (frame_)
        frame_->setWidget(marks ? focus : nullptr);
}
