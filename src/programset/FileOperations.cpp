#include "programset/FileOperations.h"

#include "base/SystemCalls.h"
#include "base/TextFile.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

namespace {
constexpr qint64 pieceSize = 1024 * 1024; // bytes held in memory at a time

// The attribute of the file itself; a user who may write everywhere is no exception.
bool IsReadOnly(const QString& path) {
    return !QFile::permissions(path).testFlag(QFileDevice::WriteOwner);
}

void RefuseTarget(const QString& from, const QString& to) {
    const QFileInfo target(to);
    if (!target.dir().exists())
        throw FileError(ErrorNumber::PathNotFound, target.path());
    if (!target.exists())
        return;
    if (QFileInfo(from).canonicalFilePath() == target.canonicalFilePath() || IsReadOnly(to))
        throw FileError(ErrorNumber::PermissionDenied, to);
}

void OpenTarget(QSaveFile& target) {
    if (target.open(QIODevice::WriteOnly))
        return;
    const QString folder = QFileInfo(target.fileName()).path();
    const bool full = QFileInfo(folder).isWritable() && QStorageInfo(folder).bytesAvailable() == 0;
    throw FileError(full ? ErrorNumber::DiskFull : ErrorNumber::PathFileAccess, target.fileName());
}

void CopyBytes(QFile& source, QSaveFile& target) {
    while (!source.atEnd()) {
        const QByteArray piece = source.read(pieceSize);
        if (piece.isEmpty())
            throw FileError(ErrorNumber::DeviceIOError, source.fileName());
        if (target.write(piece) != piece.size())
            throw FileError(ErrorNumber::DiskFull, target.fileName());
    }
}

// A rename removes the old file next: the new one must have reached the disk by then.
void CommitToDisk(QSaveFile& target) {
    if (!FlushToDisk(target))
        throw FileError(ErrorNumber::DiskFull, target.fileName());
    if (!target.commit())
        throw FileError(ErrorNumber::PathFileAccess, target.fileName());
}
} // namespace

FileOperations::~FileOperations() = default;

void DiskFileOperations::Copy(const QString& from, const QString& to) {
    QFile source(from);
    if (!QFileInfo(from).isFile())
        throw FileError(ErrorNumber::FileNotFound, from);
    RefuseTarget(from, to);
    if (!source.open(QIODevice::ReadOnly))
        throw FileError(ErrorNumber::PermissionDenied, from);
    QSaveFile target(to);
    OpenTarget(target);
    CopyBytes(source, target);
    if (target.flush())
        target.setFileTime(QFileInfo(from).lastModified(), QFileDevice::FileModificationTime);
    CommitToDisk(target);
}

void DiskFileOperations::Write(const QString& path, const QByteArray& bytes) {
    WriteWholeFile(path, bytes);
}

void DiskFileOperations::Move(const QString& from, const QString& to) {
    if (!QFileInfo::exists(from))
        throw FileError(ErrorNumber::FileNotFound, from);
    if (QFileInfo::exists(to))
        throw FileError(ErrorNumber::FileAlreadyExists, to);
    if (!QDir().rename(from, to))
        throw FileError(ErrorNumber::PathFileAccess, from);
}

void DiskFileOperations::Remove(const QString& path) {
    if (!QFileInfo::exists(path))
        throw FileError(ErrorNumber::FileNotFound, path);
    if (IsReadOnly(path) || !QFile::remove(path))
        throw FileError(ErrorNumber::PermissionDenied, path);
}

RunTimeError FileError(int number, const QString& path) {
    return RunTimeError(number, ErrorDescription(number) + QStringLiteral(": ") + path);
}

void RefuseReadOnly(const QString& folder, const QStringList& names) {
    for (const QString& name : names) {
        const QString path = QDir(folder).filePath(name);
        if (QFileInfo::exists(path) && IsReadOnly(path))
            throw FileError(ErrorNumber::PermissionDenied, path);
    }
}
