#pragma once

#include <functional>
#include <map>
#include <ostream>
#include <QByteArray>
#include <QString>
#include <vector>

/// One save of the program, with two contents that it can be given.
struct Save {
    const char* name;
    /// Saves content 0 or 1 into `folder`; raises what the save raises.
    std::function<void(const QString& folder, int content)> run;
};
void PrintTo(const Save& save, std::ostream* out);

/// Every save of the core that puts whole files in place of old ones.
std::vector<Save> AllSaves();

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
