#include "shell/CommandSurface.h"

#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "shell/Icons.h"
#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace {
constexpr int toolbarIconSize = 24; // pixels at 100 per cent

// The caption without its mnemonic and what follows it, for accessibility tools.
QString PlainCaption(const QString& caption) {
    return QString(caption).remove(u'&').remove(QStringLiteral("...")).simplified();
}
} // namespace

CommandSurface::CommandSurface(QMainWindow& window, Dialogs& dialogs)
    : QObject(&window), dialogs_(dialogs) {
    for (const MenuTable& table : MenuTables())
        BuildMenu(window, table);
    BuildToolbar(window);
}

void CommandSurface::BuildMenu(QMainWindow& window, const MenuTable& table) {
    const QString name = QString::fromLatin1(table.name);
    auto* menu = new QMenu(QString::fromLatin1(table.caption), &window);
    menu->setObjectName(name);
    if (!table.popup)
        window.menuBar()->addMenu(menu);
    for (const MenuEntry& entry : table.entries)
        AddEntry(*menu, entry);
    menus_[name] = menu;
}

void CommandSurface::AddEntry(QMenu& menu, const MenuEntry& entry) {
    const QString name = QString::fromLatin1(entry.name);
    const QString caption = QString::fromLatin1(entry.caption);
    auto* action = new QAction(caption, &menu);
    action->setObjectName(name);
    action->setSeparator(caption.isEmpty());
    action->setCheckable(entry.checkable);
    action->setShortcut(QKeySequence(QString::fromLatin1(entry.key)));
    menu.addAction(action);
    if (name.isEmpty())
        return;
    actions_[name] = action;
    connect(action, &QAction::triggered, this, [this, name] { Run(name); });
}

void CommandSurface::BuildToolbar(QMainWindow& window) {
    toolbar_ = new QToolBar(QStringLiteral("Toolbar"), &window);
    toolbar_->setObjectName(QStringLiteral("Toolbar1"));
    toolbar_->setMovable(false);
    toolbar_->setIconSize(QSize(toolbarIconSize, toolbarIconSize));
    for (const ToolbarEntry& entry : ToolbarTable())
        AddButton(*toolbar_, entry);
    window.addToolBar(toolbar_);
}

void CommandSurface::AddButton(QToolBar& toolbar, const ToolbarEntry& entry) {
    const QString key = QString::fromLatin1(entry.key);
    if (key.isEmpty()) {
        toolbar.addSeparator();
        return;
    }
    const QString toolTip = QString::fromLatin1(entry.toolTip);
    auto* action = new QAction(ShellIcon(key), PlainCaption(toolTip), &toolbar);
    action->setObjectName(key);
    action->setToolTip(toolTip);
    toolbar.addAction(action);
    actions_[key] = action;
    auto* button = qobject_cast<QToolButton*>(toolbar.widgetForAction(action));
    button->setObjectName(key);
    button->setAccessibleName(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    connect(action, &QAction::triggered, this, [this, &entry] {
        if (buttonHandler_)
            Guarded([this, &entry] { buttonHandler_(entry); });
    });
}

void CommandSurface::Handle(const QString& name, Handler handler) {
    handlers_[name] = std::move(handler);
    Q_EMIT HandlersChanged();
}

void CommandSurface::Run(const QString& name) {
    const auto found = handlers_.find(name);
    if (found != handlers_.end())
        Guarded(found->second);
}

void CommandSurface::Guarded(const Handler& handler) {
    try {
        handler();
    } catch (const RunTimeError& error) {
        ShowErrorBox(dialogs_, error, QStringLiteral("Quentor"), MsgStyle::Critical);
    }
}

QSet<QString> CommandSurface::Handled() const {
    QSet<QString> names;
    for (const auto& [name, handler] : handlers_)
        names.insert(name);
    return names;
}

QAction* CommandSurface::Action(const QString& name) const {
    const auto found = actions_.find(name);
    return found == actions_.end() ? nullptr : found->second;
}

QMenu* CommandSurface::Menu(const QString& name) const {
    const auto found = menus_.find(name);
    return found == menus_.end() ? nullptr : found->second;
}

void CommandSurface::Apply(const CommandState& state) {
    const auto put = [](QAction& action, const EntryState& entry) {
        action.setVisible(entry.visible);
        action.setEnabled(entry.enabled);
        if (action.isCheckable())
            action.setChecked(entry.checked);
    };
    for (const MenuTable& table : MenuTables()) {
        Menu(QString::fromLatin1(table.name))->menuAction()->setVisible(state.Menu(table).visible);
        for (const MenuEntry& entry : table.entries) {
            if (QAction* action = Action(QString::fromLatin1(entry.name)))
                put(*action, state.Entry(entry));
        }
    }
    for (const ToolbarEntry& button : ToolbarTable()) {
        if (QAction* action = Action(QString::fromLatin1(button.key)))
            put(*action, state.Button(button));
    }
    HideIdleSeparators();
}

// A separator shows only between visible buttons.
void CommandSurface::HideIdleSeparators() {
    QAction* pending = nullptr;
    bool buttonBefore = false;
    for (QAction* action : toolbar_->actions()) {
        if (action->isSeparator()) {
            action->setVisible(false);
            pending = action;
        } else if (action->isVisible()) {
            if (pending && buttonBefore)
                pending->setVisible(true);
            pending = nullptr;
            buttonBefore = true;
        }
    }
}
