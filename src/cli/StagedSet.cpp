#include "cli/StagedSet.h"

#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/RunTimeError.h"
#include "base/Siblings.h"
#include "base/TextFile.h"
#include <QFile>

StagedSet::StagedSet(const QString& hdnFile, const QStringList& extensions) : hdnFile_(hdnFile) {
    if (!folder_.isValid())
        throw RunTimeError(ErrorNumber::PathFileAccess);
    for (const QString& extension : extensions) {
        const QString file = OnDisk(ChangeExtension(hdnFile_, extension));
        if (FileSystem().FileExists(file) && !QFile::copy(file, Path(extension)))
            throw RunTimeError(ErrorNumber::PathFileAccess);
    }
}

QString StagedSet::Path(const QString& extension) const {
    return folder_.filePath(FileSystem().GetBaseName(hdnFile_) + u'.' + extension);
}

void StagedSet::Keep(const QStringList& extensions) const {
    for (const QString& extension : extensions) {
        QFile copy(Path(extension));
        if (!copy.exists())
            continue;
        if (!copy.open(QIODevice::ReadOnly))
            throw RunTimeError(ErrorNumber::PathFileAccess);
        WriteWholeFile(OnDisk(ChangeExtension(hdnFile_, extension)), copy.readAll());
    }
}
