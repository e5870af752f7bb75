#include "programset/NewProgramSet.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/Siblings.h"
#include "programset/FileOperations.h"
#include "programset/ReplacedSet.h"
#include "programset/SetName.h"
#include "programset/ShortName.h"

namespace {
const QString extension = QStringLiteral(".HDN");

QByteArray HdnContent(qint16 boardIndex) {
    if (boardIndex < 0 || boardIndex > 255)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    return QByteArray(1, static_cast<char>(boardIndex)) + "\r\n";
}
} // namespace

QString NewSetFileName(const QString& typed) {
    if (!typed.contains(u'.'))
        return typed + extension;
    if (typed.size() < extension.size())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    return typed.chopped(extension.size()) + extension;
}

NewProgramSet::NewProgramSet(Dialogs& dialogs, FileOperations& files)
    : dialogs_(dialogs), files_(files) {}

NewProgramSet::Result NewProgramSet::Create(const QString& typed, const QString& folder,
                                            qint16 boardIndex) {
    if (typed.contains(u'*'))
        return {typed, std::nullopt};
    const FileSystem paths;
    const QByteArray content = HdnContent(boardIndex);
    const QString name = NewSetFileName(typed);
    const QString baseName = name.chopped(extension.size());
    CheckBaseName(baseName);
    if (baseName.size() > longestShortName)
        TellShortNames(dialogs_, errorTitle);

    const QString path = ChangeExtension(paths.BuildPath(folder, name), QStringLiteral("HDN"));
    const bool replaces = paths.FileExists(path);
    if (replaces && !UserReplaces(path))
        return {name, std::nullopt};
    const QString place = OnDisk(paths.GetParentFolderName(path));
    const QString hdnFile = paths.BuildPath(place, ShortBaseName(place, baseName) + extension);
    if (replaces)
        Replace(place, baseName, hdnFile, content);
    else
        files_.Write(hdnFile, content);
    return {name, hdnFile};
}

bool NewProgramSet::UserReplaces(const QString& path) {
    const QString question =
        path + QStringLiteral(" already exists.\r\nDo you want to replace it?");
    return dialogs_.MsgBox(question, MsgStyle::YesNoExclamationSecond,
                           QStringLiteral("Create Halden File")) == MsgAnswer::Yes;
}

void NewProgramSet::Replace(const QString& folder, const QString& oldBase, const QString& hdnFile,
                            const QByteArray& content) {
    ReplacedSet oldSet(folder, oldBase, files_);
    oldSet.StepAside();
    try {
        files_.Write(hdnFile, content);
    } catch (const RunTimeError&) {
        oldSet.ComeBack();
        throw;
    }
    oldSet.Discard();
}
