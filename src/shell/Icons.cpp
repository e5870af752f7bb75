#include "shell/Icons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

// Outside any namespace: resources of a static library must be brought in by name.
static void BringInIcons() {
    Q_INIT_RESOURCE(shell_icons);
}

QIcon ShellIcon(const QString& name) {
    static const bool broughtIn = (BringInIcons(), true);
    Q_UNUSED(broughtIn);
    return QIcon(QStringLiteral(":/shell/icons/%1.svg").arg(name));
}

namespace {
// The picture in one colour: what covers a pixel there covers it here.
QPixmap Tinted(QPixmap picture, const QColor& colour) {
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), colour);
    return picture;
}
} // namespace

QIcon ListIcon(const QString& name) {
    const QIcon drawn = ShellIcon(name);
    const QColor onHighlight = QGuiApplication::palette().color(QPalette::HighlightedText);
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        const QPixmap picture = drawn.pixmap(QSize(size, size), 1.0);
        icon.addPixmap(picture, QIcon::Normal);
        icon.addPixmap(Tinted(picture, onHighlight), QIcon::Selected);
    }
    return icon;
}
