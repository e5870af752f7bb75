#pragma once

#include <functional>
#include <ostream>
#include <QString>
#include <vector>

/// One save of the program, with two contents that it can be given.
struct Save {
    const char* name;
    /// Saves content 0 or 1 into `folder`; raises what the save raises.
    std::function<void(const QString& folder, int content)> run;
};

/// A save on a disk with unnamed temporary files or with named ones only.
struct SaveOnDisk {
    Save save;
    bool namedTemporaries;
};

/// Every save of the core that puts whole files in place of old ones.
std::vector<Save> AllSaves();
/// These on both kinds of disk.
std::vector<SaveOnDisk> AllSavesOnDisks();
std::string NameOf(const SaveOnDisk& save);
void PrintTo(const SaveOnDisk& save, std::ostream* out);
