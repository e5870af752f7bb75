#include "shell/Drives.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

Drives::~Drives() = default;

namespace {
bool HoldsUserFiles(const QStorageInfo& volume) {
    const QString root = volume.rootPath();
    static const QStringList systemFolders = {QStringLiteral("/boot"),    QStringLiteral("/dev"),
                                              QStringLiteral("/proc"),    QStringLiteral("/run"),
                                              QStringLiteral("/snap"),    QStringLiteral("/sys"),
                                              QStringLiteral("/var/lib"), QStringLiteral("/etc")};
    if (root.startsWith(QStringLiteral("/run/media/")) || root == QStringLiteral("/"))
        return true;
    for (const QString& folder : systemFolders) {
        if (root == folder || root.startsWith(folder + u'/'))
            return false;
    }
    return QFileInfo(root).isDir();
}
} // namespace

QStringList SystemDrives::List() const {
    QStringList roots;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        if (HoldsUserFiles(volume) && !roots.contains(volume.rootPath()))
            roots << volume.rootPath();
    }
    if (roots.isEmpty())
        roots << QDir::rootPath();
    roots.sort();
    return roots;
}

bool SystemDrives::IsReady(const QString& drive) const {
    const QFileInfo root(drive);
    return root.isDir() && root.isReadable() && QStorageInfo(drive).isReady();
}

QString DriveOfPath(const QStringList& drives, const QString& path) {
    QString longest;
    for (const QString& drive : drives) {
        const bool within =
            path == drive || path.startsWith(drive.endsWith(u'/') ? drive : drive + u'/');
        if (within && drive.size() > longest.size())
            longest = drive;
    }
    return longest;
}

QString DriveLabel(const QString& drive) {
    return QDir::toNativeSeparators(drive);
}
