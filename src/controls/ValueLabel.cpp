#include "controls/ValueLabel.h"

#include <QFocusEvent>
#include <utility>

ValueLabel::ValueLabel(QString caption, QWidget* parent)
    : QLabel(parent), caption_(std::move(caption)) {
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Show(QString());
}

void ValueLabel::Show(const QString& value) {
    if (text() != value)
        setText(value);
    if (!caption_.isEmpty()) // else the text itself is said
        setAccessibleName(caption_ + u' ' + value);
    setFocusPolicy(value.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
}

void ValueLabel::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        setSelection(0, static_cast<int>(text().size()));
}

void ValueLabel::focusOutEvent(QFocusEvent* event) {
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        setSelection(0, 0);
    QLabel::focusOutEvent(event);
}
