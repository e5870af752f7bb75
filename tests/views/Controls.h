#pragma once

#include <QString>
#include <QWidgetList>
#include <string>

class QWidget;

/// What a user of the mouse can work in a view, and what the keyboard reaches.
namespace Controls {

/// Class and name of a control, for the messages of a test.
std::string NameOf(const QWidget* control);

/// The controls that are live in `view` and take a click, a wheel or a drag: buttons, entries,
/// lists, grids, tabs, texts that can be marked, surfaces that follow the mouse. Left out are the
/// arrows beside a number, whose work typing does, scroll bars, which follow the list that they
/// belong to, and dividers between lists.
QWidgetList ForMouse(QWidget& view);

/// The controls that the key reaches one after the other, from the one that has the focus until one
/// comes again; the first is the one that has the focus now.
QWidgetList Walk(Qt::Key key = Qt::Key_Tab);

/// Options of which one is chosen: those that the arrow keys reach from `option`.
QWidgetList OptionsBeside(QWidget& option);

} // namespace Controls
