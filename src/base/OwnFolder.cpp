#include "base/OwnFolder.h"

#include <QCoreApplication>
#include <QStandardPaths>

ApplicationFolder FindOwnFolder() {
    const QString userFolder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
        QStringLiteral("/quentor");
    return ApplicationFolder::Locate(QCoreApplication::applicationDirPath(), userFolder,
                                     QStringLiteral(QUENTOR_INSTALLED_DEFAULTS));
}
