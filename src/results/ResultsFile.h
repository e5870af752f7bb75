#pragma once

#include <QStringList>

class Clock;

/// Seconds for which an empty results file is given to the tool that may still be writing it.
constexpr double resultsFileWait = 1.0;
/// Most characters of a results file. No tool writes a hundredth of it.
constexpr qsizetype longestResults = 16 * 1024 * 1024;

/// The lines of a results file (.err, .gbl), without their ends. A file that is empty at once is
/// closed and opened again after resultsFileWait, during which the program yields; what it holds
/// then counts. Lines that a tool appends during the reading are read too. Raises as TextReader,
/// and 7 for a file of more than longestResults characters.
QStringList ReadResultsFile(const QString& path, Clock& clock);
