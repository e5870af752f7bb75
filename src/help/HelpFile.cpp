#include "help/HelpFile.h"

#include "base/ApplicationFolder.h"
#include "base/FileSystem.h"
#include "base/ProcessStart.h"
#include <QDir>
#include <QSysInfo>

namespace {
constexpr int normalWindow = 1;
} // namespace

QString HelpFilePath(const ApplicationFolder& folder) {
    return folder.Path(QStringLiteral("Help/Halden2000.hlp"));
}

QString ViewerCommand(const QString& kernelType, const QString& path) {
    QString viewer = QStringLiteral("xdg-open");
    if (kernelType == QLatin1String("winnt"))
        viewer = QStringLiteral("explorer");
    else if (kernelType == QLatin1String("darwin"))
        viewer = QStringLiteral("open");
    return viewer + u' ' + CommandWord(QDir::toNativeSeparators(path));
}

bool OpenHelpFile(const ApplicationFolder& folder, ProcessStart& tools) {
    const QString path = HelpFilePath(folder);
    if (!FileSystem().FileExists(path))
        return false;
    tools.Shell(ViewerCommand(QSysInfo::kernelType(), path), normalWindow);
    return true;
}
