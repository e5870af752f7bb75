#pragma once

#include <QString>

class Dialogs;

/// The program title, one line in the set's .LTL file.

/// First item of the file, empty for an empty file; a title with a comma is cut there. Raises as
/// TextReader.
QString ReadProgramTitle(const QString& ltlFile);
/// Makes the title the only line of the file. Raises as TextWriter.
void WriteProgramTitle(const QString& ltlFile, const QString& title);
/// Asks for the title, with the present one as default and the file's name above the box. An empty
/// answer, which is also what Cancel gives, leaves the file as it is. Raises as the two above.
void EditProgramTitle(const QString& ltlFile, Dialogs& dialogs);
