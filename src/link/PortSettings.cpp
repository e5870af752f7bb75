#include "link/PortSettings.h"

#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include <algorithm>
#include <QDir>
#include <QFileInfo>

PortSettings ReadPortSettings(const QString& path) {
    TextReader file(path);
    const qint64 port = WholeNumberValue(file.InputItem());
    const qint64 baud = WholeNumberValue(file.InputItem());
    PortSettings settings;
    settings.port = static_cast<int>(
        std::clamp<qint64>(port, PortSettings::lowestPort, PortSettings::highestPort));
    settings.baud =
        baud == PortSettings::fastBaud ? PortSettings::fastBaud : PortSettings::slowBaud;
    return settings;
}

void WriteDefaultPortSettings(const QString& path) {
    const QString folder = QFileInfo(path).path();
    if (!QDir().mkpath(folder))
        throw RunTimeError(ErrorNumber::PathFileAccess);
    TextWriter file(path);
    file.PrintText(QStringLiteral("1,9600"));
    file.Close();
}

bool PortSettingsMissing(const QString& path) {
    const QFileInfo file(path);
    return !file.exists() || (file.isFile() && file.size() == 0);
}
