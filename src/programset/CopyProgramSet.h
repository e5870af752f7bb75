#pragma once

#include <optional>
#include <QString>
#include <QStringList>

class Dialogs;
class Drives;
enum class DriveType;
class FileOperations;

/// Copies a whole program set to another folder or disk, one file at a time: between two files
/// the view yields and may stop.
///
///     if (copy.Begin(request))
///         while (copy.MoreFiles()) { yield; if stopped, break; show StatusText; CopyNextFile }
class CopyProgramSet {
public:
    /// Title of the error box and of most boxes of a copy.
    inline static const QString errorTitle = QStringLiteral("Copy File");

    /// What the user filled in.
    struct Request {
        QString sourceFolder;
        QString sourceName; ///< file name of the set's .hdn file
        QString destinationFolder;
        QString destinationName; ///< ".hdn" is appended where it is missing
    };

    CopyProgramSet(Dialogs& dialogs, FileOperations& files, const Drives& drives);

    /// Checks the request and asks what has to be asked: a lost source, a long name, a set in the
    /// way. Returns false if nothing is to be copied. Copies nothing yet. Raises 52 for a
    /// destination name that no file can have.
    bool Begin(const Request& request);
    /// Whether a file is left to copy; false too once the copy was aborted or the disk is full.
    bool MoreFiles() const;
    /// "Copying:  " and the name of the next file; only while MoreFiles is true.
    QString StatusText() const;
    /// Copies the next file when its disk has room for its bytes, and asks for another disk if not;
    /// only while MoreFiles is true.
    /// Raises as FileOperations::Copy, but a disk that fills up during the copy counts as full.
    void CopyNextFile();
    /// Path of the .hdn file of the copy, in the folder and under the base name of the last file
    /// that was written; nothing if none was or the user aborted.
    std::optional<QString> Destination() const;

private:
    enum class Room { Enough, Aborted, DiskIsFull };

    bool UserReplaces(const QString& name);
    Room AwaitRoom(qint64 size);
    Room AnswerFullDisk(DriveType type);
    bool UserRetries(const QString& text, const QString& title);
    void CopyMember(const QString& member);
    void DropLongNamed(const QString& suffix);
    void End(Room room);

    Dialogs& dialogs_;
    FileOperations& files_;
    const Drives& drives_;
    QString sourceFolder_;
    QString destinationFolder_;
    QString longBase_;    // as the user typed it
    QString writtenBase_; // as the files bear it
    QString driveRoot_;
    QStringList members_;
    QStringList written_; // names of the copies
    qsizetype next_ = 0;
    bool aborted_ = false;
};
