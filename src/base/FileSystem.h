#pragma once

#include <QString>
#include <QStringList>

/// The file system helper behind gFSO: paths and existence, with the naming rules of the suite.
/// Paths are taken and given with the platform's own separator "/" inside the program; names are
/// found whatever their letter case on disk.
class FileSystem {
public:
    /// True for an existing plain file.
    bool FileExists(const QString& path) const;
    /// True for an existing folder.
    bool FolderExists(const QString& path) const;
    /// Absolute form of a path, "." and ".." resolved; a relative path is taken from the current
    /// directory. An empty path gives the current directory.
    QString GetAbsolutePathName(const QString& path) const;
    /// Folder of a path without a separator at its end, except for a root folder; empty when the
    /// path has none.
    QString GetParentFolderName(const QString& path) const;
    /// "A.hdn" of "/p/A.hdn".
    QString GetFileName(const QString& path) const;
    /// "A" of "/p/A.hdn"; of a name with several points all but the last piece.
    QString GetBaseName(const QString& path) const;
    /// "hdn" of "/p/A.hdn", without the point; empty when there is none.
    QString GetExtensionName(const QString& path) const;
    /// Folder and name joined with one separator.
    QString BuildPath(const QString& folder, const QString& name) const;
    /// Names of the plain files of a folder in name order; empty when it cannot be read.
    QStringList Files(const QString& folder) const;
    /// True for "/" and drive roots.
    bool IsRootFolder(const QString& folder) const;
};
