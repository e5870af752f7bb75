#include "help/views/HelpParts.h"

#include "help/SystemReport.h"
#include <cmath>
#include <QApplication>
#include <QIcon>
#include <QLabel>
#include <QScreen>
#include <QStyle>

// Outside any namespace: resources of a static library must be brought in by name.
static void BringInPictures() {
    Q_INIT_RESOURCE(help_pictures);
}

QLabel* TextLabel(const char* name, const QString& text) {
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QLabel* LogoLabel(const char* name, int size, const QWidget& view) {
    static const bool broughtIn = (BringInPictures(), true);
    Q_UNUSED(broughtIn);
    auto* label = new QLabel;
    label->setObjectName(QString::fromLatin1(name));
    label->setPixmap(QIcon(QStringLiteral(":/help/Logo.svg"))
                         .pixmap(QSize(size, size), view.devicePixelRatioF()));
    label->setAccessibleName(QStringLiteral("Logo"));
    return label;
}

void EmphasiseLabel(QLabel& label, int percent, bool bold) {
    constexpr double whole = 100.0;
    QFont font = label.font();
    font.setPointSizeF(font.pointSizeF() * percent / whole);
    font.setBold(bold);
    label.setFont(font);
}

void AddWindowFacts(SystemFacts& facts) {
    constexpr double perCent = 100.0;
    facts.windowSystem = QGuiApplication::platformName() + QStringLiteral(", style ") +
                         QApplication::style()->objectName();
    for (const QScreen* screen : QGuiApplication::screens())
        facts.screens.append(QStringLiteral("%1 x %2 at %3 per cent")
                                 .arg(screen->size().width())
                                 .arg(screen->size().height())
                                 .arg(std::lround(screen->devicePixelRatio() * perCent)));
}
