#include "controls/entry/EntryUpDown.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
constexpr int arrowsWidth = 20; // pixels before scaling: the narrowest that is still easily hit

// An arrow that is held down repeats its click by a timer of its own, also when a step has brought
// up a message box, and the box takes the release of the mouse.
bool IsBehindModal(const QWidget& widget) {
    const QWidget* modal = QApplication::activeModalWidget();
    return modal && modal != widget.window();
}
} // namespace

EntryUpDown::EntryUpDown(QLineEdit& buddy, QWidget* parent) : QWidget(parent), buddy_(buddy) {
    auto* arrows = new QVBoxLayout(this);
    arrows->setContentsMargins(0, 0, 0, 0);
    arrows->setSpacing(0);
    arrows->addWidget(AddArrow(Qt::UpArrow, 1, QStringLiteral("up")));
    arrows->addWidget(AddArrow(Qt::DownArrow, -1, QStringLiteral("down")));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QToolButton* EntryUpDown::AddArrow(Qt::ArrowType type, int difference, const QString& name) {
    auto* arrow = new QToolButton(this);
    arrow->setObjectName(name);
    arrow->setArrowType(type);
    arrow->setAutoRepeat(true);
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    connect(arrow, &QToolButton::clicked, this, [this, arrow, difference] {
        if (IsBehindModal(*this))
            arrow->setDown(false);
        else
            Step(difference);
    });
    return arrow;
}

// The box has got its name by now, its own or its label's.
void EntryUpDown::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    QAccessibleInterface* box = QAccessible::queryAccessibleInterface(&buddy_);
    const QString name = box ? box->text(QAccessible::Name) : QString();
    setAccessibleName(tr("Arrows of %1").arg(name));
    findChild<QToolButton*>(QStringLiteral("up"))->setAccessibleName(tr("%1 one more").arg(name));
    findChild<QToolButton*>(QStringLiteral("down"))->setAccessibleName(tr("%1 one less").arg(name));
}

QSize EntryUpDown::sizeHint() const {
    return {arrowsWidth, buddy_.sizeHint().height()};
}

void EntryUpDown::SetValue(int value) {
    value_ = EntryRules::Stepped(QString::number(value), value, 0, range_);
    buddy_.setText(QString::number(value_));
}

void EntryUpDown::Step(int difference) {
    const QString before = buddy_.text();
    value_ = EntryRules::Stepped(before, value_, difference, range_);
    bool wasNumber = false;
    if (before.toInt(&wasNumber) == value_ && wasNumber)
        return; // at the end of the range already
    buddy_.setText(QString::number(value_));
    Q_EMIT Changed(value_);
}
