#pragma once

#include <optional>
#include <QString>

class Dialogs;
class FileOperations;

/// File name of a new set from what was typed: with a point in it the last four characters,
/// whatever they are, become ".HDN"; otherwise ".HDN" is appended. Raises 5 for a text with a
/// point and less than four characters.
QString NewSetFileName(const QString& typed);

/// Makes the .hdn file of a new program set.
class NewProgramSet {
public:
    /// Title of the error box.
    inline static const QString errorTitle = QStringLiteral("New File");

    /// Both must outlive the object.
    NewProgramSet(Dialogs& dialogs, FileOperations& files);

    /// What became of the user's wish.
    struct Result {
        QString nameText;               ///< what the name box shows now
        std::optional<QString> hdnFile; ///< path of the new file; nothing: back to the name box
    };
    /// Takes a typed name, a folder and a board index (the character code that the file will
    /// hold). A name with "*" is none yet. A long name is told and shortened. Before a set of
    /// that name is replaced the user is asked, and then every file of it goes; until the new
    /// file stands an error leaves the old set whole. Raises as NewSetFileName, 52 for a name
    /// that no file can have, as FileOperations and ReplacedSet.
    Result Create(const QString& typed, const QString& folder, qint16 boardIndex);

private:
    bool UserReplaces(const QString& path);
    void Replace(const QString& folder, const QString& oldBase, const QString& hdnFile,
                 const QByteArray& content);

    Dialogs& dialogs_;
    FileOperations& files_;
};
