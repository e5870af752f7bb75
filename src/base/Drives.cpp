#include "base/Drives.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace {
bool IsOneOf(const QByteArray& word, std::initializer_list<const char*> words) {
    for (const char* known : words)
        if (word == known)
            return true;
    return false;
}

#ifdef Q_OS_WIN
DriveType TypeOfVolume(const QStorageInfo& volume) {
    switch (GetDriveTypeW(QDir::toNativeSeparators(volume.rootPath()).toStdWString().c_str())) {
    case DRIVE_REMOVABLE:
        return DriveType::Removable;
    case DRIVE_FIXED:
        return DriveType::Fixed;
    case DRIVE_REMOTE:
        return DriveType::Network;
    case DRIVE_CDROM:
        return DriveType::CDRom;
    case DRIVE_RAMDISK:
        return DriveType::RamDisk;
    default:
        return DriveType::Unknown;
    }
}
#else
bool HoldsOne(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll().trimmed() == "1";
}

// A partition has no such entry of its own: its disk, the folder above, has.
bool IsRemovable(const QByteArray& device) {
    const QString name =
        QFileInfo(QFileInfo(QString::fromLocal8Bit(device)).canonicalFilePath()).fileName();
    const QString node = QFileInfo(QStringLiteral("/sys/class/block/") + name).canonicalFilePath();
    if (name.isEmpty() || node.isEmpty())
        return false;
    return HoldsOne(node + QStringLiteral("/removable")) ||
           HoldsOne(QFileInfo(node).path() + QStringLiteral("/removable"));
}

DriveType TypeOfVolume(const QStorageInfo& volume) {
    return DriveTypeOf(volume.fileSystemType(), volume.device(), IsRemovable(volume.device()));
}
#endif

// Mounts of the system's own workings hold no user's files.
bool HoldsUsersFiles(const QStorageInfo& volume) {
    if (volume.isRoot())
        return true;
    if (!volume.isReady() || !QFileInfo(volume.rootPath()).isDir())
        return false;
    const QByteArray device = volume.device();
    const DriveType type = TypeOfVolume(volume);
    return type == DriveType::Network || !QDir::rootPath().startsWith(u'/') ||
           (device.startsWith("/dev/") && !device.startsWith("/dev/loop"));
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

DriveType DriveTypeOf(const QByteArray& fileSystem, const QByteArray& device, bool isRemovable) {
    if (IsOneOf(fileSystem, {"iso9660", "udf"}))
        return DriveType::CDRom;
    if (IsOneOf(fileSystem, {"nfs", "nfs4", "cifs", "smb3", "smbfs", "fuse.sshfs", "9p"}))
        return DriveType::Network;
    if (IsOneOf(fileSystem, {"tmpfs", "ramfs"}))
        return DriveType::RamDisk;
    if (isRemovable)
        return DriveType::Removable;
    return device.startsWith("/dev/") ? DriveType::Fixed : DriveType::Unknown;
}
