#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// Copies of files of a program set in a folder of their own, for work that may end before its end:
/// the set itself changes only when all of it is there.
class StagedSet {
public:
    /// Takes copies of the files of the set `hdnFile` with these extensions; a file that does not
    /// exist is left out. Raises 75 if a copy cannot be made.
    StagedSet(const QString& hdnFile, const QStringList& extensions);

    /// Path of the copy with this extension, whether it exists or not.
    QString Path(const QString& extension) const;
    /// Puts those of the copies that exist into the set, each as a whole. Raises as WriteWholeFile.
    void Keep(const QStringList& extensions) const;

private:
    const QString hdnFile_;
    QTemporaryDir folder_;
};
