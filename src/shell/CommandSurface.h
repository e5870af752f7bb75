#pragma once

#include "shell/CommandState.h"
#include <functional>
#include <map>
#include <QObject>

class Dialogs;
class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

/// Menus, popups and toolbar of the main window as actions, built from the command table. Views
/// register what their entries do; an entry without a handler is disabled.
class CommandSurface : public QObject {
    Q_OBJECT
public:
    using Handler = std::function<void()>;
    using ButtonHandler = std::function<void(const ToolbarEntry&)>;

    /// Builds menu bar, popups and Toolbar1 into `window`.
    CommandSurface(QMainWindow& window, Dialogs& dialogs);

    /// Sets what the entry of this name does ("mnuViewOnline"), or the toolbar button of this key
    /// where it runs no menu entry ("Upload"). Replaces an earlier handler.
    void Handle(const QString& name, Handler handler);
    /// Runs the handler of the entry whatever its state; nothing happens without one. A run-time
    /// error that the handler lets through is shown in an error box titled "Quentor".
    void Run(const QString& name);
    /// Sets what a press of a toolbar button does.
    void SetButtonHandler(ButtonHandler handler) { buttonHandler_ = std::move(handler); }

    /// Names of the entries that have a handler.
    QSet<QString> Handled() const;
    /// The action of a menu entry or a toolbar button; null for an unknown name.
    QAction* Action(const QString& name) const;
    QToolBar& Toolbar() const { return *toolbar_; }
    /// A menu or popup; null for an unknown name.
    QMenu* Menu(const QString& name) const;
    /// Puts the state onto all entries.
    void Apply(const CommandState& state);

Q_SIGNALS:
    /// A handler was registered: the state must be applied again.
    void HandlersChanged();

private:
    void BuildMenu(QMainWindow& window, const MenuTable& table);
    void AddEntry(QMenu& menu, const MenuEntry& entry);
    void BuildToolbar(QMainWindow& window);
    void AddButton(QToolBar& toolbar, const ToolbarEntry& entry);
    void HideIdleSeparators();
    void Guarded(const Handler& handler);

    Dialogs& dialogs_;
    std::map<QString, QMenu*> menus_;
    std::map<QString, QAction*> actions_;
    std::map<QString, Handler> handlers_;
    QToolBar* toolbar_ = nullptr;
    ButtonHandler buttonHandler_;
};
