#pragma once

#include <QString>

class Dialogs;
class FileOperations;

/// Title of the error box of a delete.
inline const QString deleteErrorTitle = QStringLiteral("File Delete");

/// Asks whether to delete the set of a .hdn file and deletes every file of the set, whatever its
/// extension, on yes. Returns whether it did. A path that names no file is no set: nothing is
/// asked. Raises 70 if a file is read-only, and then none is deleted; an error in the middle
/// names the files that are still there. The .hdn file goes last.
bool DeleteProgramSet(const QString& hdnFile, Dialogs& dialogs, FileOperations& files);
