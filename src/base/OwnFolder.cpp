#include "base/OwnFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

ApplicationFolder FindOwnFolder() {
    const QString userFolder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
        QStringLiteral("/quentor");
    const QString executables = QCoreApplication::applicationDirPath();
    return ApplicationFolder::Locate(
        executables, userFolder,
        QDir(executables).absoluteFilePath(QStringLiteral(QUENTOR_INSTALLED_DEFAULTS)));
}
