#include "programset/ShortName.h"

#include "base/FileSystem.h"
#include <QSet>

#ifdef Q_OS_WIN
#include <QDir>
#include <QFile>
#include <qt_windows.h>
#endif

namespace {
constexpr qsizetype longestStem = 6;

QString LettersAndDigits(const QString& name) {
    QString kept;
    for (const QChar character : name)
        if (character.isLetterOrNumber())
            kept.append(character.toUpper());
    return kept;
}

#ifdef Q_OS_WIN
// Short path of an existing file or folder; the path itself if the volume makes no short names.
QString SystemShortPath(const QString& path) {
    const std::wstring wide = QDir::toNativeSeparators(path).toStdWString();
    std::wstring shortPath(32768, L'\0');
    const DWORD length =
        GetShortPathNameW(wide.c_str(), shortPath.data(), static_cast<DWORD>(shortPath.size()));
    if (length == 0 || length >= shortPath.size())
        return path;
    shortPath.resize(length);
    return QDir::fromNativeSeparators(QString::fromStdWString(shortPath));
}

// The system gives a name its short form only while a file bears it.
QString SystemShortBaseName(const QString& folder, const QString& baseName) {
    const FileSystem files;
    QFile probe(files.BuildPath(folder, baseName + QStringLiteral(".HDN")));
    if (probe.exists() || !probe.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return QString();
    probe.close();
    const QString found = files.GetBaseName(SystemShortPath(probe.fileName()));
    probe.remove();
    return found.size() <= longestShortName ? found : QString();
}
#endif
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
#ifdef Q_OS_WIN
    const QString systemName = SystemShortBaseName(folder, baseName);
    if (!systemName.isEmpty())
        return systemName;
#endif
    const FileSystem files;
    QStringList taken;
    for (const QString& name : files.Files(folder))
        taken.append(files.GetBaseName(name));
    return ShortFormOf(baseName, taken);
}

QString ShortFolderPath(const QString& folder) {
#ifdef Q_OS_WIN
    return SystemShortPath(folder);
#else
    return folder;
#endif
}
