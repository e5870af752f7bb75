#pragma once

#include <QDate>
#include <QString>

class ApplicationFolder;

/// Date on which the program was last changed: of "Quentor.exe" in the application folder, or of
/// `runningProgram` where the program does not stand there. Invalid if neither can be had.
QDate RevisionDate(const ApplicationFolder& folder, const QString& runningProgram);

/// "Revised: " and the date in the short form of the user's country; without a date only the
/// former.
QString RevisionText(const QDate& date);
