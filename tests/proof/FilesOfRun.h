#pragma once

#include <functional>
#include <map>
#include <QByteArray>
#include <QString>

/// Names, folders on the way included, and bytes of all files below a folder, hidden ones too.
using Files = std::map<QString, QByteArray>;
Files FilesBelow(const QString& folder);
/// Makes these files below the folder.
void MakeFiles(const QString& folder, const Files& files);

/// Template for a temporary folder in memory where the system has one: the flushes to disk, which
/// the tests count, then take no time.
QString FastFolder();

/// Runs `work` in a process of its own, which may be killed, and waits for its end. Returns
/// whether the process came to its end by itself; fails the test if it ended by an exception
/// other than a RunTimeError.
bool RunsToItsEnd(const std::function<void()>& work);
