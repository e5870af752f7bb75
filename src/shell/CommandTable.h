#pragma once

#include <QString>
#include <vector>

/// How an entry of the command surface stands when the window is built.
enum class CommandStart {
    Shown,      ///< visible
    ShownLater, ///< invisible until a view, a search or the recent list brings it up
    Disabled,   ///< visible, disabled until something turns it on
    Hidden,     ///< built, but never visible: commands of the suite's other tools
};

/// One entry of a menu.
struct MenuEntry {
    const char* name;     ///< object name; empty for a separator without one
    const char* caption;  ///< "&" marks the mnemonic; empty for a separator
    const char* key = ""; ///< key sequence, or empty
    CommandStart start = CommandStart::Shown;
    bool checkable = false;
};

/// One menu with its entries, in order.
struct MenuTable {
    const char* name;
    const char* caption;
    bool popup; ///< not in the menu bar
    std::vector<MenuEntry> entries;
};

/// One button of Toolbar1.
struct ToolbarEntry {
    int index;       ///< 1 to 18, separators counted
    const char* key; ///< object name; empty for a separator
    const char* toolTip;
    CommandStart start = CommandStart::Shown;
    bool takesSelection = false; ///< a press takes gHdnFile from the browser first
    const char* plcCommand =
        ""; ///< entry whose handler a press runs, the button's own key if empty
    const char* plsCommand = ""; ///< the same for a set of a limit switch board, if it differs
};

/// The menus, in order, popups last.
const std::vector<MenuTable>& MenuTables();
/// The toolbar, in order.
const std::vector<ToolbarEntry>& ToolbarTable();

/// Name of the entry whose handler a press of the button runs.
QString ToolbarCommand(const ToolbarEntry& button, bool plsBoard);

/// "mnuFileList(2)" for ("mnuFileList", 2): the name of an element of an array of controls.
QString ElementName(const QString& array, int index);
