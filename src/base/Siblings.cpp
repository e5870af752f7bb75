#include "base/Siblings.h"

#include <optional>
#include <QDir>
#include <QFileInfo>

namespace {
// Name of the entry of `folder` that matches `name` but for letter case, if there is one.
std::optional<QString> EntryOnDisk(const QString& folder, const QString& name) {
    if (name == QLatin1String(".") || name == QLatin1String("..") ||
        QFileInfo::exists(folder + u'/' + name))
        return name;
    const auto filters = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    const QStringList entries = QDir(folder).entryList(filters, QDir::Name);
    for (const QString& entry : entries)
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    return std::nullopt;
}

QString WithSlashes(const QString& path) {
    return QString(path).replace(u'\\', u'/');
}
} // namespace

QString OnDiskBelow(const QString& folder, const QString& relative) {
    QString found = folder;
    while (found.size() > 1 && found.endsWith(u'/'))
        found.chop(1);
    const QStringList parts = WithSlashes(relative).split(u'/', Qt::SkipEmptyParts);
    bool searching = true; // nothing stands below a part that does not exist
    for (const QString& part : parts) {
        std::optional<QString> entry;
        if (searching)
            entry = EntryOnDisk(found.isEmpty() ? QStringLiteral("/") : found, part);
        searching = entry.has_value();
        if (found != QLatin1String("/"))
            found += u'/';
        found += entry.value_or(part);
    }
    return found;
}

QString OnDisk(const QString& path) {
    if (path.isEmpty() || QFileInfo::exists(path))
        return path;
    const QString whole = QDir(QDir::currentPath()).absoluteFilePath(WithSlashes(path));
    const QString root =
        QDir::isAbsolutePath(whole) ? whole.left(whole.indexOf(u'/') + 1) : QString();
    return OnDiskBelow(root.isEmpty() ? QStringLiteral("/") : root, whole.mid(root.size()));
}
