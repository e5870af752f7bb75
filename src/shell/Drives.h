#pragma once

#include <QString>
#include <QStringList>

/// What stands in the drive list: drives where there are letters, mount points elsewhere.
class Drives {
public:
    virtual ~Drives();
    /// Root folders ("/", "/media/stick", "C:/") in order, at least one.
    virtual QStringList List() const = 0;
    /// Whether files of the drive can be read now.
    virtual bool IsReady(const QString& drive) const = 0;
};

/// The drives of the machine: "/" and whatever holds a user's files; the system's own mounts
/// (memory, devices, boot) are left out.
class SystemDrives final : public Drives {
public:
    QStringList List() const override;
    bool IsReady(const QString& drive) const override;
};

/// The one of `drives` that `path` lies on: the longest root folder that it begins with; empty
/// when there is none.
QString DriveOfPath(const QStringList& drives, const QString& path);

/// What the user sees for a drive: its root folder with the platform's separators.
QString DriveLabel(const QString& drive);
