#pragma once

#include <QString>
#include <vector>

class QWidget;

/// One text that a view shows or speaks.
struct ShownText {
    QString control; ///< object name, with "(n)" behind it for the nth button of a toolbar or tab
                     ///< of a strip; "*" for a control without a name
    QString kind;    ///< "title", "caption", "tooltip", "head", "entry", "key", "hint", "spoken"
    QString text;
};

/// All texts of a view, in the order of its controls: the title of its window, labels, buttons,
/// frames, tabs, menus with their keys, heads of grids and lists, entries of combo boxes, tool
/// tips, hints in empty entries, and what a screen reader is told beyond its tool tip. Other views
/// that stand inside this one, what a user types and empty texts are left out. The toolkit's own
/// parts are too.
std::vector<ShownText> TextsOf(const QWidget& view);
