#pragma once

#include "shell/CommandSurface.h"
#include <QPointer>
#include <QString>

/// Joins entries of the menus to operations of a view that is made on its first use and can be
/// closed: without the view an entry does nothing.
template <typename View>
class ViewCommands {
public:
    /// Both must outlive the main window's entries; `view` is looked at when an entry is used.
    ViewCommands(CommandSurface& commands, const QPointer<View>& view)
        : commands_(commands), view_(view) {}

    /// Lets the entry of this name ("mnuFilePrintTrendData") run the operation.
    void Handle(const char* entry, void (View::*operation)()) const {
        commands_.Handle(QLatin1String(entry), [&view = view_, operation] {
            if (view)
                (view->*operation)();
        });
    }

private:
    CommandSurface& commands_;
    const QPointer<View>& view_;
};
