#include "base/ApplicationFolder.h"

#include "base/Siblings.h"
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <utility>

namespace {
// Copies what is missing; files that the user has changed stay.
void FillMissing(const QString& from, const QString& to) {
    QDirIterator source(from, QDir::Files, QDirIterator::Subdirectories);
    while (source.hasNext()) {
        const QString file = source.next();
        const QString target = OnDiskBelow(to, QDir(from).relativeFilePath(file));
        if (QFileInfo::exists(target))
            continue;
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(file, target);
        QFile::setPermissions(target, QFile::permissions(target) | QFileDevice::WriteOwner);
    }
}
} // namespace

ApplicationFolder::ApplicationFolder(QString root) : root_(std::move(root)) {}

ApplicationFolder ApplicationFolder::Locate(const QString& executableFolder,
                                            const QString& userFolder,
                                            const QString& installedDefaults) {
    if (QFileInfo(OnDiskBelow(executableFolder, QStringLiteral("support"))).isDir())
        return ApplicationFolder(executableFolder);
    QDir().mkpath(userFolder);
    FillMissing(installedDefaults, userFolder);
    return ApplicationFolder(userFolder);
}

QString ApplicationFolder::Path(const QString& relative) const {
    return OnDiskBelow(root_, relative);
}
