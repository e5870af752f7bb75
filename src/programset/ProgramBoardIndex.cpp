#include "programset/ProgramBoardIndex.h"

#include "base/CharacterSet.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/RunTimeError.h"
#include "base/Siblings.h"
#include "base/TextFile.h"
#include "link/TargetBoards.h"
#include <QFileInfo>

namespace {
// The .hdn file beside `path`. A path that names one is taken itself, without a look at the rest
// of the folder: commands ask for the index of the selected set again and again.
QString HdnFileOf(const QString& path) {
    const QString whole = FileSystem().GetAbsolutePathName(path);
    if (whole.endsWith(QLatin1String(".hdn"), Qt::CaseInsensitive) && QFileInfo(whole).isFile())
        return whole;
    return OnDisk(ChangeExtension(path, QStringLiteral("HDN")));
}
} // namespace

qint16 ProgramBoardIndex(const QString& path) {
    const QString hdnFile = HdnFileOf(path);
    return QFileInfo(hdnFile).isFile() ? BoardIndexOfHdnFile(hdnFile) : BoardIndex::Default;
}

qint16 BoardIndexOfHdnFile(const QString& hdnFile) {
    TextReader file(hdnFile);
    if (file.AtEnd())
        return BoardIndex::Default;
    const QString item = file.InputItem();
    if (item.isEmpty())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    return CodeOfCharacter(item.front());
}
