#include "link/PortSettings.h"

#include "base/ApplicationFolder.h"
#include "base/NumberReader.h"
#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include <algorithm>
#include <QDir>
#include <QFileInfo>

namespace {
int WithinPorts(qint64 port) {
    return static_cast<int>(
        std::clamp<qint64>(port, PortSettings::lowestPort, PortSettings::highestPort));
}

void MakeFolderOf(const QString& path) {
    if (!QDir().mkpath(QFileInfo(path).path()))
        throw RunTimeError(ErrorNumber::PathFileAccess);
}
} // namespace

PortSettings ReadPortSettings(const QString& path) {
    TextReader file(path);
    const qint64 port = WholeNumberValue(file.InputItem());
    const qint64 baud = WholeNumberValue(file.InputItem());
    PortSettings settings;
    settings.port = WithinPorts(port);
    settings.baud =
        baud == PortSettings::fastBaud ? PortSettings::fastBaud : PortSettings::slowBaud;
    return settings;
}

void WriteDefaultPortSettings(const QString& path) {
    MakeFolderOf(path);
    TextWriter file(path);
    file.PrintText(QStringLiteral("1,9600"));
    file.Close();
}

bool PortSettingsMissing(const QString& path) {
    const QFileInfo file(path);
    return !file.exists() || (file.isFile() && file.size() == 0);
}

PortSettings LoadPortSettings(const QString& path) {
    return PortSettingsMissing(path) ? PortSettings() : ReadPortSettings(path);
}

void SavePortSettings(const QString& path, const PortSettings& settings) {
    MakeFolderOf(path);
    TextWriter file(path);
    file.PrintText(QString::number(settings.port) + u',' + PrintedNumber(settings.baud));
    file.Close();
}

void WriteToolPortFiles(const ApplicationFolder& folder, int port) {
    for (const char* tools : {"TGT51", "TGT96", "LMT51"}) {
        if (!QFileInfo(folder.Path(QLatin1String(tools))).isDir())
            continue;
        TextWriter file(folder.Path(QLatin1String(tools) + QStringLiteral("/HALDEN.SFG")));
        file.PrintText(QString::number(port - 1));
        file.Close();
    }
}

int PortOfText(const QString& text) {
    return WithinPorts(WholeNumberValue(text));
}

bool IsPortText(const QString& text) {
    const double value = NumberValue(text);
    return IsNumeric(text) && value >= PortSettings::lowestPort &&
           value <= PortSettings::highestPort;
}
