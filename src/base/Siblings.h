#pragma once

#include <QString>

/// Files of the suite are known by names whose letter case never mattered; disks of other systems
/// tell "A.HEX" from "a.hex". This is the one place that bridges the two.

/// The path as it stands on disk: folder by folder, a part that exists under exactly this name is
/// taken as it is, else the first entry (in name order) whose name differs only in letter case.
/// Parts that do not exist under any case stay as given. Backslashes are taken as separators.
QString OnDisk(const QString& path);

/// OnDisk below a folder that is taken as it is: only the parts of `relative` are searched for.
QString OnDiskBelow(const QString& folder, const QString& relative);
