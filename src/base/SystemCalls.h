#pragma once

#include "base/Drives.h"
#include <QString>

class QFileDevice;
class QStorageInfo;

/// What the operating system is asked beyond what Qt offers, apart from serial ports (base/port):
/// the only other place that knows which system it runs on, or names its calls and its folders.

/// Takes what was written to an open file down to the disk itself. Returns false if any of it did
/// not get there. A file that is to replace another is flushed before it does: small contents
/// stay in memory until then, and a QSaveFile passes over what goes wrong in its own commit.
[[nodiscard]] bool FlushToDisk(QFileDevice& file);

/// Standard input leads to a terminal: a question can be answered.
bool InputIsTerminal();
/// Standard error leads to a terminal: what is shown there may be written over.
bool ErrorIsTerminal();

/// Kind of a mounted volume.
DriveType TypeOfVolume(const QStorageInfo& volume);
/// Kind of a volume as Linux describes it: by the name of its file system ("vfat"), its device
/// ("/dev/sdb1") and whether the kernel says that the device can be removed.
DriveType DriveTypeOf(const QByteArray& fileSystem, const QByteArray& device, bool isRemovable);
/// Whether users keep files on a volume of this device; mounts of the system's own workings have
/// other devices. True on systems whose volumes have letters.
bool IsDeviceOfUsers(const QByteArray& device);

/// Whether the system may give files a second name of eight characters and an extension.
bool SystemMakesShortNames();
/// Path of an existing file or folder with those names; the path itself if the volume or the
/// system has none.
QString SystemShortPath(const QString& path);
