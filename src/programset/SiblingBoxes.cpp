#include "programset/SiblingBoxes.h"

#include "base/RunTimeError.h"
#include "base/Siblings.h"
#include "base/TextFile.h"
#include "link/ProgramIdent.h"
#include <QFileInfo>

namespace {
QString TabbedLines(const QStringList& lines) {
    return u'\t' + lines.join(QStringLiteral("\r\n\t"));
}

QString Kilobytes(qint64 bytes) {
    const qint64 tenths = (bytes + 50) / 100;
    return QStringLiteral("%1.%2 KB").arg(tenths / 10).arg(tenths % 10);
}

QString WithFourYearDigits(QString format) {
    return format.contains(QLatin1String("yyyy"))
               ? format
               : format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
}

QString WithSeconds(QString format) {
    return format.contains(u's') ? format
                                 : format.replace(QLatin1String("mm"), QLatin1String("mm:ss"));
}
} // namespace

RevisionRecord DecodeRevisionRecord(const QString& record) {
    if (record.isEmpty())
        return {};
    const ProgramIdent program = ParseRevLine(record);
    return {program.ident, program.revision, program.checksum};
}

RevisionRecord ReadRevisionRecord(const QString& revFile) {
    TextReader file(revFile);
    return file.AtEnd() ? RevisionRecord() : DecodeRevisionRecord(file.InputItem());
}

QString RevisionText(const RevisionRecord& record) {
    return TabbedLines({QStringLiteral("Program Ident: ") + record.ident,
                        QStringLiteral("Revision: ") + record.revision,
                        QStringLiteral("Checksum: ") + record.checksum});
}

FileData ReadFileData(const QString& path) {
    const QFileInfo file(OnDisk(path));
    if (!file.isFile())
        throw RunTimeError(ErrorNumber::FileNotFound);
    const QDateTime birth = file.birthTime();
    return {birth.isValid() ? birth : file.lastModified(), file.lastRead(), file.size()};
}

QString FileDataText(const FileData& data, const QLocale& locale) {
    return TabbedLines({QStringLiteral("Date Created: ") + GeneralDate(data.created, locale),
                        QStringLiteral("Last Accessed: ") + GeneralDate(data.lastAccessed, locale),
                        QStringLiteral("Size: ") + Kilobytes(data.size)});
}

QString GeneralDate(const QDateTime& moment, const QLocale& locale) {
    const QString date =
        locale.toString(moment.date(), WithFourYearDigits(locale.dateFormat(QLocale::ShortFormat)));
    const QTime time(moment.time().hour(), moment.time().minute(), moment.time().second());
    if (time == QTime(0, 0))
        return date;
    return date + u' ' +
           locale.toString(time, WithSeconds(locale.timeFormat(QLocale::ShortFormat)));
}
