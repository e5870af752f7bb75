#include "help/RevisionDate.h"

#include "base/ApplicationFolder.h"
#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

QDate RevisionDate(const ApplicationFolder& folder, const QString& runningProgram) {
    const QFileInfo installed(folder.Path(QStringLiteral("Quentor.exe")));
    const QFileInfo program = installed.isFile() ? installed : QFileInfo(runningProgram);
    return program.lastModified().date();
}

QString RevisionText(const QDate& date) {
    return QStringLiteral("Revised: ") + QLocale().toString(date, QLocale::ShortFormat);
}
