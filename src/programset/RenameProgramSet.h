#pragma once

#include <optional>
#include <QString>
#include <QStringList>

class Dialogs;
class FileOperations;
class RunTimeError;

/// Title of the error box of a rename.
inline const QString renameErrorTitle = QStringLiteral("File Rename");

/// Asks for a new name and gives it to every file of the set of a .hdn file. Returns the path of
/// the renamed .hdn file; nothing if the user gave no name or one that is taken. A name of more
/// than eight characters is shortened. A ".hdn" that was typed with the name is dropped. A path
/// that names no file is no set: nothing is asked. Raises as RenameSetFiles, 52 for a name that
/// no file can have.
std::optional<QString> RenameProgramSet(const QString& hdnFile, Dialogs& dialogs,
                                        FileOperations& files);

/// Gives all files of a set in `folder` another base name. All new files are made before the
/// first old one is removed. After an error the old set is whole and no new file is left; if even
/// that fails, the error tells which files are there under which name. Raises 58 if two files of
/// the set would get the same name, 70 if one is read-only (nothing is done then), and as
/// FileOperations.
void RenameSetFiles(const QString& folder, const QString& oldBase, const QString& newBase,
                    FileOperations& files);
