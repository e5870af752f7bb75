#include "controls/entry/NumericEntries.h"

#include "base/Dialogs.h"
#include "controls/entry/EntryUpDown.h"
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <utility>

namespace {
const QFocusEvent& Focus(const QEvent& event) {
    return static_cast<const QFocusEvent&>(event);
}

bool IsByMouse(const QFocusEvent& event) {
    return event.reason() == Qt::MouseFocusReason;
}
} // namespace

bool IsWithinProgram(const QFocusEvent& event) {
    const Qt::FocusReason reason = event.reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

NumericEntries::NumericEntries(int count, Dialogs& dialogs, QWidget& cmdDefault, TitleOf titleOf,
                               QObject* parent)
    : QObject(parent), dialogs_(dialogs), cmdDefault_(cmdDefault), titleOf_(std::move(titleOf)),
      rules_(count), pairs_(static_cast<std::size_t>(count)) {}

void NumericEntries::Add(int index, QLineEdit& box, EntryUpDown& upDown) {
    At(index) = {&box, &upDown};
    box.installEventFilter(this);
    connect(&upDown, &EntryUpDown::Changed, this, [this, index] { UpDownChanged(index); });
}

// The focus goes to the hidden button: it must not stray into the next entry by itself.
void NumericEntries::SetEnabled(int index, bool enabled) {
    const Pair& pair = At(index);
    const bool hasFocus = pair.box->window()->focusWidget() == pair.box;
    const bool leaves = !enabled && (hasFocus || refused_ == index);
    if (leaves) {
        refused_.reset();
        LeaveForDefault();
    }
    pair.box->setEnabled(enabled);
    pair.upDown->setEnabled(enabled);
    if (leaves)
        Q_EMIT Abandoned(index);
}

bool NumericEntries::eventFilter(QObject* watched, QEvent* event) {
    const std::optional<int> index = IndexOf(watched);
    if (!index)
        return false;
    switch (event->type()) {
    case QEvent::FocusIn:
        if (IsWithinProgram(Focus(*event)))
            GotFocus(*index, IsByMouse(Focus(*event)));
        return false;
    case QEvent::FocusOut:
        if (IsWithinProgram(Focus(*event)))
            LostFocus(*index);
        return false;
    case QEvent::KeyPress:
        return KeyPressed(*index, static_cast<QKeyEvent*>(event)->key());
    default:
        return false;
    }
}

std::optional<int> NumericEntries::IndexOf(const QObject* object) const {
    for (std::size_t i = 0; i < pairs_.size(); ++i)
        if (pairs_[i].box == object)
            return static_cast<int>(i);
    return std::nullopt;
}

// The press that brought the focus places the cursor after it, so that a click selects later.
void NumericEntries::GotFocus(int index, bool byMouse) {
    if (refused_ && *refused_ != index)
        return; // on its way back to the entry that was refused
    QLineEdit* box = At(index).box;
    rules_.GotFocus(index, box->text());
    if (byMouse)
        QMetaObject::invokeMethod(box, &QLineEdit::selectAll, Qt::QueuedConnection);
    else
        box->selectAll();
    Q_EMIT Entered(index);
}

bool NumericEntries::KeyPressed(int index, int key) {
    if (key == Qt::Key_Escape) {
        EscapePressed(index);
        return true;
    }
    rules_.ForgetEscape();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    QApplication::postEvent(At(index).box,
                            new QKeyEvent(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier));
    return true;
}

void NumericEntries::EscapePressed(int index) {
    const EntryRules::Escape escape = rules_.EscapePressed(index);
    At(index).box->setText(escape.text);
    if (!escape.leaves) {
        At(index).box->selectAll();
        return;
    }
    LeaveForDefault();
    Q_EMIT Abandoned(index);
}

void NumericEntries::LeaveForDefault() {
    const QScopedValueRollback<bool> unchecked(leavesUnchecked_, true);
    cmdDefault_.setFocus();
}

// The box waits until the change of the focus is over: it would turn the event loop in its midst.
void NumericEntries::LostFocus(int index) {
    if (leavesUnchecked_ || refused_)
        return;
    rules_.ForgetEscape();
    const QString text = At(index).box->text();
    if (EntryRules::Accepts(text, At(index).upDown->Range())) {
        Q_EMIT Accepted(index, text);
        return;
    }
    refused_ = index;
    QMetaObject::invokeMethod(this, &NumericEntries::ShowRefusal, Qt::QueuedConnection);
}

void NumericEntries::ShowRefusal() {
    if (!refused_)
        return;
    const int index = *refused_;
    QLineEdit* box = At(index).box;
    if (box->window()->isVisible()) {
        dialogs_.MsgBox(EntryRules::Refusal(At(index).upDown->Range()), MsgStyle::Information,
                        titleOf_(index));
        box->setText(rules_.Remembered(index));
        if (box->isEnabled())
            box->setFocus();
        box->selectAll();
    }
    refused_.reset();
}

// The box of the up-down itself was stepped and needs no check; another one is left with what was
// typed there.
void NumericEntries::UpDownChanged(int index) {
    if (refused_)
        return;
    rules_.ForgetEscape();
    if (At(index).box->hasFocus())
        LeaveForDefault();
    else
        cmdDefault_.setFocus();
    Q_EMIT Stepped(index, At(index).box->text());
}

QPushButton* MakeDefaultButton(QWidget& view) {
    auto* button = new QPushButton(&view);
    button->setObjectName(QStringLiteral("cmdDefault"));
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(0, 0);
    button->setDefault(true);
    return button;
}
