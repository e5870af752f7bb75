#pragma once

#include <QStringList>

class Clock;

/// What all searches of this run have found so far, the newest first. Written by ResultsFor and by
/// the Clear button of the results view.
extern QString gResultsText;
/// What the results view showed after the last search. Written by the view; shown again by it.
extern QString gResultsShown;

namespace ResultsMode {
constexpr qint16 CompileErrors = 0;
constexpr qint16 NewSearch = 1; ///< results of a search that has just ended
constexpr qint16 Stored = 2;    ///< what the last search has left
} // namespace ResultsMode

// A results file is two lines of heading, then the body. Each line of the texts below ends in CR
// LF.

/// The text of a compile run. Raises SubscriptOutOfRange (9) for fewer than two lines.
QString CompileErrorsText(const QStringList& lines);
/// The text of a search in the set of this base name, under its tag, with `before` behind it.
/// Raises SubscriptOutOfRange (9) for fewer than two lines.
QString SearchResultsText(const QString& baseName, const QStringList& lines, const QString& before);

/// The text to show in a mode for a program set: its compile errors out of the sibling .err, its
/// search results out of the sibling .gbl before those of gResultsText, which becomes the text, or
/// gResultsShown. Yields. A file that does not exist counts as one without lines. Raises as
/// ReadResultsFile and the texts above.
QString ResultsFor(qint16 mode, const QString& hdnFile, Clock& clock);

/// The text with lines of more than `longest` characters, 1 or more, parted: what a text box can
/// lay out at once. No character is lost.
QString WithLongLinesParted(const QString& text, qsizetype longest);
