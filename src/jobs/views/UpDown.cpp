#include "jobs/views/UpDown.h"

#include "base/NumberReader.h"
#include <algorithm>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

UpDown::UpDown(QLineEdit& buddy, QWidget* parent) : QWidget(parent), buddy_(buddy) {
    auto* arrows = new QVBoxLayout(this);
    arrows->setContentsMargins(0, 0, 0, 0);
    arrows->setSpacing(0);
    arrows->addWidget(AddArrow(Qt::UpArrow, 1, QStringLiteral("up")));
    arrows->addWidget(AddArrow(Qt::DownArrow, -1, QStringLiteral("down")));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    buddy_.installEventFilter(this);
}

QToolButton* UpDown::AddArrow(Qt::ArrowType type, int difference, const QString& name) {
    auto* arrow = new QToolButton(this);
    arrow->setObjectName(name);
    arrow->setAccessibleName(difference > 0 ? tr("One more") : tr("One less"));
    arrow->setArrowType(type);
    arrow->setAutoRepeat(true);
    arrow->setFocusPolicy(Qt::NoFocus); // the box keeps the focus, so that nothing is left
    arrow->setFixedSize(20, std::max(12, buddy_.sizeHint().height() / 2));
    connect(arrow, &QToolButton::clicked, this, [this, difference] { Step(difference); });
    return arrow;
}

void UpDown::SetValue(int value) {
    value_ = std::clamp(value, min_, std::max(min_, max_));
    buddy_.setText(QString::number(value_));
}

void UpDown::Step(int difference) {
    const QString text = buddy_.text();
    const double low = min_;
    const double high = std::max(min_, max_);
    const double from = IsNumeric(text) ? std::clamp(NumberValue(text), low, high) : value_;
    SetValue(RoundToWhole(from) + difference);
}

bool UpDown::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && isEnabled()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            Step(key == Qt::Key_Up ? 1 : -1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
