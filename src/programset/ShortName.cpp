#include "programset/ShortName.h"

#include "base/FileSystem.h"
#include "base/SystemCalls.h"
#include <QFile>
#include <QSet>

namespace {
constexpr qsizetype longestStem = 6;

QString LettersAndDigits(const QString& name) {
    QString kept;
    for (const QChar character : name)
        if (character.isLetterOrNumber())
            kept.append(character.toUpper());
    return kept;
}

// The system gives a name its short form only while a file bears it.
QString SystemShortBaseName(const QString& folder, const QString& baseName) {
    if (!SystemMakesShortNames())
        return QString();
    const FileSystem files;
    QFile probe(files.BuildPath(folder, baseName + QStringLiteral(".HDN")));
    if (probe.exists() || !probe.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return QString();
    probe.close();
    const QString found = files.GetBaseName(SystemShortPath(probe.fileName()));
    probe.remove();
    return found.size() <= longestShortName ? found : QString();
}
} // namespace

QString ShortFormOf(const QString& baseName, const QStringList& taken) {
    if (baseName.size() <= longestShortName)
        return baseName;
    QSet<QString> borne;
    for (const QString& name : taken)
        borne.insert(name.toUpper());
    const QString stem = LettersAndDigits(baseName).left(longestStem);
    for (int number = 1;; ++number) {
        const QString tail = u'~' + QString::number(number);
        const QString candidate = stem.left(longestShortName - tail.size()) + tail;
        if (!borne.contains(candidate.toUpper()))
            return candidate;
    }
}

QString ShortBaseName(const QString& folder, const QString& baseName) {
    if (baseName.size() <= longestShortName)
        return baseName;
    const QString systemName = SystemShortBaseName(folder, baseName);
    if (!systemName.isEmpty())
        return systemName;
    const FileSystem files;
    QStringList taken;
    for (const QString& name : files.Files(folder))
        taken.append(files.GetBaseName(name));
    return ShortFormOf(baseName, taken);
}

QString ShortFolderPath(const QString& folder) {
    return SystemShortPath(folder);
}
