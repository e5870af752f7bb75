#include "shell/Icons.h"

// Outside any namespace: resources of a static library must be brought in by name.
static void BringInIcons() {
    Q_INIT_RESOURCE(shell_icons);
}

QIcon ShellIcon(const QString& name) {
    static const bool broughtIn = (BringInIcons(), true);
    Q_UNUSED(broughtIn);
    return QIcon(QStringLiteral(":/shell/icons/%1.svg").arg(name));
}
