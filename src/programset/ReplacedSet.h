#pragma once

#include <QString>
#include <QStringList>

class FileOperations;
class RunTimeError;

/// The old set in the way of a new one. Its files step aside into a folder of their own beside
/// it, so that until the new set stands they can all come back.
class ReplacedSet {
public:
    /// Finds the files of the set in `folder`. Touches nothing.
    ReplacedSet(QString folder, const QString& baseName, FileOperations& files);

    /// Moves all files aside, or none: raises 70 if one is read-only, 75 if the folder cannot be
    /// made, and as FileOperations::Move.
    void StepAside();
    /// Moves the files back to where they were. Raises as FileOperations::Move with the name of
    /// the folder in which the rest are.
    void ComeBack();
    /// Deletes the files. Raises as FileOperations::Remove with the name of the folder in which
    /// the rest are.
    void Discard();

private:
    [[noreturn]] void RaiseWithPlace(const RunTimeError& cause) const;

    QString folder_;
    QString baseName_;
    FileOperations& files_;
    QStringList members_;
    QStringList aside_; // members that were moved
    QString asideFolder_;
};
