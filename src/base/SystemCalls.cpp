#include "base/SystemCalls.h"

#include <cstdio>
#include <initializer_list>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#ifdef Q_OS_WIN
#include <io.h>
#include <qt_windows.h>
#else
#include <unistd.h>
#endif

namespace {
bool IsOneOf(const QByteArray& word, std::initializer_list<const char*> words) {
    for (const char* known : words)
        if (word == known)
            return true;
    return false;
}

bool IsTerminal(std::FILE* stream) {
#ifdef Q_OS_WIN
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}
} // namespace

bool FlushToDisk(QFileDevice& file) {
    if (!file.flush())
        return false;
#ifdef Q_OS_WIN
    return true; // nothing of Qt leads to the handle that the system would have to be given
#else
    return ::fsync(file.handle()) == 0;
#endif
}

bool InputIsTerminal() {
    return IsTerminal(stdin);
}

bool ErrorIsTerminal() {
    return IsTerminal(stderr);
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

bool IsDeviceOfUsers(const QByteArray& /*device*/) {
    return true;
}

bool SystemMakesShortNames() {
    return true;
}

QString SystemShortPath(const QString& path) {
    constexpr std::size_t longestPath = 32768; // characters, of the system's long paths
    const std::wstring wide = QDir::toNativeSeparators(path).toStdWString();
    std::wstring shortPath(longestPath, L'\0');
    const DWORD length =
        GetShortPathNameW(wide.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size()));
    if (length == 0 || length >= shortPath.size())
        return path;
    shortPath.resize(length);
    return QDir::fromNativeSeparators(QString::fromStdWString(shortPath));
}
#else
namespace {
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
} // namespace

DriveType TypeOfVolume(const QStorageInfo& volume) {
    return DriveTypeOf(volume.fileSystemType(), volume.device(), IsRemovable(volume.device()));
}

bool IsDeviceOfUsers(const QByteArray& device) {
    return device.startsWith("/dev/") && !device.startsWith("/dev/loop");
}

bool SystemMakesShortNames() {
    return false;
}

QString SystemShortPath(const QString& path) {
    return path;
}
#endif
