#include "tour/TourScreen.h"

#include <optional>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSize>

namespace {
constexpr QSize smallScreen(1280, 800);
constexpr int logicalDpi = 96; // dots per inch at 100 per cent

std::optional<QSize> WantedScreen(const QStringList& arguments) {
    static const QRegularExpression size(QStringLiteral("^--screen=(\\d{3,4})x(\\d{3,4})$"));
    for (const QString& argument : arguments) {
        if (!argument.startsWith(QLatin1String("--screen")))
            continue;
        const QRegularExpressionMatch match = size.match(argument);
        if (!match.hasMatch())
            return std::nullopt;
        return QSize(match.captured(1).toInt(), match.captured(2).toInt());
    }
    return smallScreen;
}

double Scale() {
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble();
    return scale > 0 ? scale : 1;
}

QByteArray Description(const QSize& pixels) {
    const QJsonObject screen{{QStringLiteral("name"), QStringLiteral("tour")},
                             {QStringLiteral("x"), 0},
                             {QStringLiteral("y"), 0},
                             {QStringLiteral("width"), pixels.width()},
                             {QStringLiteral("height"), pixels.height()},
                             {QStringLiteral("logicalDpi"), logicalDpi},
                             {QStringLiteral("logicalBaseDpi"), logicalDpi},
                             {QStringLiteral("dpr"), 1}};
    return QJsonDocument(QJsonObject{{QStringLiteral("synchronousWindowSystemEvents"), false},
                                     {QStringLiteral("windowFrameMargins"), false},
                                     {QStringLiteral("screens"), QJsonArray{screen}}})
        .toJson();
}
} // namespace

bool ChooseTourScreen(const QStringList& arguments, const QString& folder) {
    const std::optional<QSize> wanted = WantedScreen(arguments);
    if (!wanted)
        return false;
    if (qgetenv("QT_QPA_PLATFORM") != "offscreen")
        return true;
    const QString path = QDir(folder).absoluteFilePath(QStringLiteral("screen.json"));
    QFile file(path);
    if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly) ||
        file.write(Description(*wanted * Scale())) < 0)
        return false;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(path));
    return true;
}
