#include "tour/TourSetting.h"

#include "base/TextFile.h"
#include <QDir>
#include <QFile>

TourSetting::TourSetting(const QString& folder) : folder_(folder) {
    QDir(folder_).removeRecursively();
    const QString source = QStringLiteral(QUENTOR_SOURCE_FOLDER);
    ready_ = CopyFolder(source + QLatin1String("/support"), folder_ + QLatin1String("/support")) &&
             CopyFolder(source + QLatin1String("/samples"), folder_ + QLatin1String("/samples")) &&
             QDir().mkpath(folder_ + QLatin1String("/support/ports")) && WriteRecentList();
}

QString TourSetting::Sample(const QString& name) const {
    return folder_ + QLatin1String("/samples/") + name;
}

QString TourSetting::PortLink() const {
    return folder_ + QLatin1String("/support/ports/COM1");
}

bool TourSetting::CopyFolder(const QString& from, const QString& to) {
    QDir().mkpath(to);
    const QStringList files = QDir(from).entryList(QDir::Files);
    for (const QString& file : files)
        if (!QFile::copy(from + u'/' + file, to + u'/' + file))
            return false;
    return !files.isEmpty();
}

bool TourSetting::WriteRecentList() {
    TextWriter file(folder_ + QLatin1String("/support/HD2000.dat"));
    file.PrintText(Sample(QStringLiteral("PRESS.hdn")));
    for (int empty = 0; empty < 3; ++empty)
        file.PrintText(QString());
    file.Close();
    return true;
}
