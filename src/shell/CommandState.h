#pragma once

#include "shell/CommandTable.h"
#include <array>
#include <QSet>
#include <QString>

/// Number of entries of the recent list.
constexpr int recentCount = 4;

/// What the command surface depends on.
struct ShellSituation {
    QString activeView;           ///< name of the active child of the main window, or empty
    bool online = false;          ///< OnlineMode of the link
    bool setSelected = false;     ///< a program set is selected in the browser
    bool plsBoard = false;        ///< TargetboardType is a limit switch board
    bool recentListShown = false; ///< the recent list was read or written once
    std::array<bool, recentCount> recentShown{};
    bool resultsFound = false; ///< a search has left results to view
    bool tableCanFind = false; ///< the status table can start a search
    QSet<QString> handled;     ///< entries that have a handler in this build
};

/// How one entry stands.
struct EntryState {
    bool visible = true;
    bool enabled = true;
    bool checked = false;
    bool operator==(const EntryState&) const = default;
};

/// Which entries of menus, popups and toolbar are visible, enabled and checked in a situation.
/// An entry without a handler is disabled, so that no entry is ever dead.
class CommandState {
public:
    explicit CommandState(ShellSituation situation) : situation_(std::move(situation)) {}

    /// State of a whole menu: the status table's own shows only while that view is active.
    EntryState Menu(const MenuTable& menu) const;
    /// State of an entry of a menu or popup, separators included.
    EntryState Entry(const MenuEntry& entry) const;
    /// State of a toolbar button. It is enabled if the entry that a press would run for the
    /// selected set has a handler.
    EntryState Button(const ToolbarEntry& button) const;

private:
    bool IsVisible(const QString& name, CommandStart start) const;
    bool IsAllowed(const QString& name) const;
    bool IsPopupEntryAllowed(const QString& name) const;

    ShellSituation situation_;
};
