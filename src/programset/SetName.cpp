#include "programset/SetName.h"

#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include <algorithm>

namespace {
constexpr int badFileName = 52;
}

void CheckBaseName(const QString& baseName) {
    const bool isFolder = baseName == QLatin1String(".") || baseName == QLatin1String("..");
    const bool leavesFolder =
        baseName.contains(u'/') || baseName.contains(u'\\') || baseName.contains(QChar(u'\0'));
    if (baseName.isEmpty() || isFolder || leavesFolder)
        throw RunTimeError(badFileName, QStringLiteral("Bad file name or number"));
}

void TellShortNames(Dialogs& dialogs, const QString& title) {
    dialogs.MsgBox(QStringLiteral("Only 'Short' file names will be used.   "),
                   MsgStyle::Information, title);
}

QString PointAndExtension(const QString& fileName) {
    const qsizetype point = fileName.lastIndexOf(u'.');
    return point < 0 ? QString() : fileName.mid(point);
}

bool EndsInHdn(const QString& name) {
    return name.endsWith(QLatin1String(".hdn"), Qt::CaseInsensitive);
}

QStringList ProgramFileLast(const QStringList& members) {
    QStringList ordered = members;
    std::stable_partition(ordered.begin(), ordered.end(),
                          [](const QString& name) { return !EndsInHdn(name); });
    return ordered;
}
