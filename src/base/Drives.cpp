#include "base/Drives.h"

#include "base/SystemCalls.h"
#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

namespace {
// Mounts of the system's own workings hold no user's files.
bool HoldsUsersFiles(const QStorageInfo& volume) {
    if (volume.isRoot())
        return true;
    if (!volume.isReady() || !QFileInfo(volume.rootPath()).isDir())
        return false;
    return TypeOfVolume(volume) == DriveType::Network || IsDeviceOfUsers(volume.device());
}

QString NearestExisting(QString path) {
    while (!QFileInfo::exists(path)) {
        const QString parent = QFileInfo(path).path();
        if (parent == path)
            break;
        path = parent;
    }
    return path;
}
} // namespace

Drives::~Drives() = default;

QStringList SystemDrives::Roots() const {
    QStringList roots;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes())
        if (HoldsUsersFiles(volume) && !roots.contains(volume.rootPath()))
            roots.append(volume.rootPath());
    roots.sort();
    return roots;
}

QString SystemDrives::RootOf(const QString& path) const {
    const QString whole = QDir::cleanPath(QDir::current().absoluteFilePath(path));
    const QString root = QStorageInfo(NearestExisting(whole)).rootPath();
    return root.isEmpty() ? whole.left(whole.indexOf(u'/') + 1) : root;
}

Drive SystemDrives::At(const QString& root) const {
    const QStorageInfo volume(root);
    Drive drive;
    drive.root = root;
    drive.letter = root.size() > 1 && root[1] == u':' ? root.left(1) : root;
    drive.isReady = volume.isValid() && volume.isReady() && volume.rootPath() == root;
    if (!drive.isReady)
        return drive;
    drive.type = TypeOfVolume(volume);
    drive.availableSpace = volume.bytesAvailable();
    return drive;
}
