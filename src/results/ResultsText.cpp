#include "results/ResultsText.h"

#include "base/DoEvents.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/RunTimeError.h"
#include "results/ResultsFile.h"

QString gResultsText;
QString gResultsShown;

namespace {
constexpr qsizetype headingLines = 2;
const QString lineEnd = QStringLiteral("\r\n");

QString Joined(const QStringList& lines) {
    if (lines.size() < headingLines)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    return lines.join(lineEnd) + lineEnd;
}

QStringList LinesOf(const QString& path, Clock& clock) {
    DoEvents();
    return FileSystem().FileExists(path) ? ReadResultsFile(path, clock) : QStringList();
}

QString NewSearchResults(const QString& hdnFile, Clock& clock) {
    const QStringList lines = LinesOf(ChangeExtension(hdnFile, QStringLiteral("gbl")), clock);
    gResultsText = SearchResultsText(FileSystem().GetBaseName(hdnFile), lines, gResultsText);
    return gResultsText;
}
} // namespace

QString CompileErrorsText(const QStringList& lines) {
    return Joined(lines);
}

QString SearchResultsText(const QString& baseName, const QStringList& lines,
                          const QString& before) {
    return QStringLiteral("-[") + baseName + QStringLiteral("]-") + lineEnd + Joined(lines) +
           before;
}

QString ResultsFor(qint16 mode, const QString& hdnFile, Clock& clock) {
    switch (mode) {
    case ResultsMode::CompileErrors:
        return CompileErrorsText(LinesOf(ChangeExtension(hdnFile, QStringLiteral("err")), clock));
    case ResultsMode::NewSearch:
        return NewSearchResults(hdnFile, clock);
    default:
        DoEvents();
        return gResultsShown;
    }
}

QString WithLongLinesParted(const QString& text, qsizetype longest) {
    QString parted;
    parted.reserve(text.size());
    qsizetype start = 0;
    while (start < text.size()) {
        const qsizetype end = text.indexOf(u'\n', start);
        const qsizetype next = end < 0 ? text.size() : end + 1;
        while (next - start > longest + lineEnd.size()) {
            parted += QStringView(text).mid(start, longest);
            parted += lineEnd;
            start += longest;
        }
        parted += QStringView(text).mid(start, next - start);
        start = next;
    }
    return parted;
}
