#pragma once

#include <QString>
#include <QStringList>

class Dialogs;

/// Names of program sets as users type them, and names of their files.

/// Raises 52 for a base name that cannot be one: empty, "." or "..", or with a separator or a
/// character of code 0 in it.
void CheckBaseName(const QString& baseName);

/// Shows that a long name will be shortened.
void TellShortNames(Dialogs& dialogs, const QString& title);

/// The point and the extension of a file name as they stand; empty without a point.
QString PointAndExtension(const QString& fileName);

/// Whether a name, with or without its extension, ends in ".hdn" in any letter case.
bool EndsInHdn(const QString& name);

/// The members of a set with its .hdn file last, so that a set that could not be dealt with
/// whole stays in the list of programs.
QStringList ProgramFileLast(const QStringList& members);
