#pragma once

#include "FuzzTarget.h"
#include <QString>
#include <string_view>

/// Folder of this process for the files of its targets: in memory where the system has such a
/// folder. Gone at the end of the process.
QString FuzzFolder();

/// A file of fixed content in the folder.
/// @return its path
QString MakeFuzzFile(const QString& name, std::string_view content);

/// A file whose content is the input of the run. It stays open, so that a run costs two calls.
class FuzzFile {
public:
    explicit FuzzFile(const QString& name);
    FuzzFile(const FuzzFile&) = delete;
    FuzzFile& operator=(const FuzzFile&) = delete;
    ~FuzzFile();

    const QString& Path() const { return path_; }
    /// Makes the input the whole content of the file.
    void Put(FuzzInput input) const;
    /// Another name for the same file, in the same folder.
    void AlsoAs(const QString& name) const;

private:
    QString path_;
    int file_;
};
