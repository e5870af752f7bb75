#pragma once

#include "base/RunTimeError.h"
#include <QByteArray>
#include <QString>
#include <QStringList>

/// The seam for changes to the files of a program set, so that tests can let any of them fail.
/// Paths are taken as they stand on disk. Every operation is done whole or not at all, and raises
/// a RunTimeError that names the file.
class FileOperations {
public:
    virtual ~FileOperations();

    /// Copies a file over `to` if that exists; the copy keeps the date of the last change. Raises
    /// 53 if `from` does not exist, 70 if it cannot be read, is the same file as `to` or `to` is
    /// read-only, 76 if the folder of `to` does not exist, 75 if the file cannot be made there, 61
    /// if the disk is full, 57 if the device fails.
    virtual void Copy(const QString& from, const QString& to) = 0;
    /// Writes a file. Raises as WriteWholeFile.
    virtual void Write(const QString& path, const QByteArray& bytes) = 0;
    /// Gives a file another name on the same disk. Raises 53 if `from` does not exist, 58 if `to`
    /// does, 75 if the name cannot be changed.
    virtual void Move(const QString& from, const QString& to) = 0;
    /// Deletes a file without force. Raises 53 if it does not exist, 70 if it is read-only or
    /// cannot be deleted.
    virtual void Remove(const QString& path) = 0;
};

/// Changes files on disk.
class DiskFileOperations final : public FileOperations {
public:
    void Copy(const QString& from, const QString& to) override;
    void Write(const QString& path, const QByteArray& bytes) override;
    void Move(const QString& from, const QString& to) override;
    void Remove(const QString& path) override;
};

/// An error with its standing description and the path it is about.
RunTimeError FileError(int number, const QString& path);

/// Raises 70 if one of the files is read-only, before the first of them is touched.
void RefuseReadOnly(const QString& folder, const QStringList& names);
