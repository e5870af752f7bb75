#include "base/FileSystem.h"

#include "base/Siblings.h"
#include <QDir>
#include <QFileInfo>

bool FileSystem::FileExists(const QString& path) const {
    return !path.isEmpty() && QFileInfo(OnDisk(path)).isFile();
}

bool FileSystem::FolderExists(const QString& path) const {
    return !path.isEmpty() && QFileInfo(OnDisk(path)).isDir();
}

QString FileSystem::GetAbsolutePathName(const QString& path) const {
    if (path.isEmpty())
        return QDir::currentPath();
    return QDir::cleanPath(QDir::current().absoluteFilePath(QString(path).replace(u'\\', u'/')));
}

QString FileSystem::GetParentFolderName(const QString& path) const {
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash < 0)
        return QString();
    const QString parent = path.left(slash);
    return IsRootFolder(parent + u'/') ? parent + u'/' : parent;
}

QString FileSystem::GetFileName(const QString& path) const {
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QString FileSystem::GetBaseName(const QString& path) const {
    const QString name = GetFileName(path);
    const qsizetype point = name.lastIndexOf(u'.');
    return point < 0 ? name : name.left(point);
}

QString FileSystem::GetExtensionName(const QString& path) const {
    const QString name = GetFileName(path);
    const qsizetype point = name.lastIndexOf(u'.');
    return point < 0 ? QString() : name.mid(point + 1);
}

QString FileSystem::BuildPath(const QString& folder, const QString& name) const {
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QStringList FileSystem::Files(const QString& folder) const {
    return QDir(OnDisk(folder)).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

bool FileSystem::IsRootFolder(const QString& folder) const {
    return !folder.isEmpty() && QDir(folder).isRoot();
}
