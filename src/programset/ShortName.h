#pragma once

#include <QString>
#include <QStringList>

/// The older tools of the suite open sets by names of up to eight characters only.

/// Most characters of a base name that stays as it is.
constexpr qsizetype longestShortName = 8;

/// The short form of a base name: itself up to eight characters; of a longer one the first six
/// letters and digits in upper case, "~" and the lowest number from 1 that makes a name which none
/// of `taken` is, letter case apart. From number 10 on letters make room for the digits, so that
/// eight characters are never exceeded.
QString ShortFormOf(const QString& baseName, const QStringList& taken);

/// Short base name for a new set in `folder`: that of the file system where it makes short names,
/// else ShortFormOf against the base names of all files of the folder.
QString ShortBaseName(const QString& folder, const QString& baseName);

/// The folder's path in the file system's short form, or as it is where there is none.
QString ShortFolderPath(const QString& folder);
