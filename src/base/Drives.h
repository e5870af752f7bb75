#pragma once

#include <QString>
#include <QStringList>

/// Kinds of drives by the numbers that the suite knows them by.
enum class DriveType { Unknown = 0, Removable = 1, Fixed = 2, Network = 3, CDRom = 4, RamDisk = 5 };

/// A drive as it was a moment ago: a volume with a letter, or a mount point where there are no
/// letters.
struct Drive {
    QString root;   ///< "C:/", "/", "/media/stick"
    QString letter; ///< what users call it: "C", or the mount point
    DriveType type = DriveType::Unknown;
    bool isReady = false;
    qint64 availableSpace = 0; ///< bytes that a user may still write
};

/// The seam for drives: kinds, readiness and space.
class Drives {
public:
    virtual ~Drives();

    /// Roots of the drives that hold users' files, in name order.
    virtual QStringList Roots() const = 0;
    /// Root of the drive that a path is on; the path need not exist.
    virtual QString RootOf(const QString& path) const = 0;
    /// The drive with this root as it is now; not ready if nothing is mounted there.
    virtual Drive At(const QString& root) const = 0;
};

/// The drives of the machine.
class SystemDrives final : public Drives {
public:
    QStringList Roots() const override;
    QString RootOf(const QString& path) const override;
    Drive At(const QString& root) const override;
};
