#include "Controls.h"

#include "controls/entry/EntryUpDown.h"
#include "controls/grid/Grid.h"
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>
#include <QTextBrowser>
#include <QTextEdit>

namespace {
constexpr int mostSteps = 200;
constexpr int smallest = 2; // pixels: a button that only holds the focus is no larger

template <class Parent>
bool IsInside(const QWidget* control, const QWidget& view) {
    for (const QWidget* parent = control->parentWidget(); parent && parent != &view;
         parent = parent->parentWidget())
        if (qobject_cast<const Parent*>(parent))
            return true;
    return false;
}

bool IsPart(const QWidget* control, const QWidget& view) {
    return qobject_cast<const QHeaderView*>(control) || IsInside<EntryUpDown>(control, view) ||
           IsInside<QLineEdit>(control, view) || IsInside<QComboBox>(control, view) ||
           IsInside<QTabBar>(control, view) || IsInside<QAbstractItemView>(control, view);
}

bool IsControl(const QWidget* control) {
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return !label->text().isEmpty() && // the text of a box is copied as a whole
               label->objectName() != QLatin1String("qt_msgbox_label") &&
               label->textInteractionFlags() & Qt::TextSelectableByMouse;
    return qobject_cast<const QAbstractButton*>(control) ||
           qobject_cast<const QLineEdit*>(control) || qobject_cast<const QComboBox*>(control) ||
           qobject_cast<const QTabBar*>(control) ||
           qobject_cast<const QAbstractItemView*>(control) ||
           qobject_cast<const QPlainTextEdit*>(control) ||
           qobject_cast<const QTextEdit*>(control) ||
           control->contextMenuPolicy() == Qt::CustomContextMenu;
}
} // namespace

namespace Controls {

std::string NameOf(const QWidget* control) {
    return control ? std::string(control->metaObject()->className()) + ' ' +
                         control->objectName().toStdString()
                   : "nothing";
}

QWidgetList ForMouse(QWidget& view) {
    QWidgetList controls;
    const auto all = view.findChildren<QWidget*>();
    for (QWidget* control : all) {
        const bool seen = control->isVisible() && control->isEnabled() &&
                          control->window() == view.window() && control->width() > smallest;
        if (seen && IsControl(control) && !IsPart(control, view))
            controls.append(control);
    }
    return controls;
}

QWidgetList Walk(Qt::Key key) {
    QWidgetList walk;
    for (int step = 0; step < mostSteps; ++step) {
        QWidget* focus = QApplication::focusWidget();
        const bool stays = !walk.isEmpty() && focus == walk.last(); // from link to link
        if (!focus || (walk.contains(focus) && !stays))
            break;
        if (!stays)
            walk.append(focus);
        QTest::keyClick(focus, key);
        QCoreApplication::processEvents();
    }
    return walk;
}

QWidgetList OptionsBeside(QWidget& option) {
    QWidgetList reached{&option};
    for (qsizetype i = 0; i < reached.size(); ++i) {
        for (const Qt::Key arrow : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right}) {
            reached[i]->setFocus();
            QTest::keyClick(reached[i], arrow);
            QWidget* focus = QApplication::focusWidget();
            if (focus && !reached.contains(focus))
                reached.append(focus);
        }
    }
    return reached;
}

} // namespace Controls
