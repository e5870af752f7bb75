#include "shell/Icons.h"

// Outside any namespace: resources of a static library must be brought in by name.
static void BringInIcons() {
    Q_INIT_RESOURCE(shell_icons);
}

QIcon ShellIcon(const QString& name) {
    static const bool broughtIn = (BringInIcons(), true);
    Q_UNUSED(broughtIn);
    const QString file = QStringLiteral(":/shell/icons/%1.svg").arg(name);
    QIcon icon(file);
    icon.addFile(file, QSize(), QIcon::Selected); // not tinted in a selected row
    return icon;
}
