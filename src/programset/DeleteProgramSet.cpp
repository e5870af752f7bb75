#include "programset/DeleteProgramSet.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/Siblings.h"
#include "programset/FileOperations.h"
#include "programset/ProgramSet.h"
#include "programset/SetName.h"

namespace {
void RemoveMembers(const QString& folder, const QString& baseName, FileOperations& files) {
    const QStringList members = ProgramFileLast(SetMembers(folder, baseName));
    RefuseReadOnly(folder, members);
    try {
        for (const QString& member : members)
            files.Remove(FileSystem().BuildPath(folder, member));
    } catch (const RunTimeError& error) {
        const QStringList left = SetMembers(folder, baseName);
        throw RunTimeError(error.Number(), error.Description() +
                                               QStringLiteral("\r\n\r\nStill in the folder: ") +
                                               left.join(QStringLiteral(", ")));
    }
}
} // namespace

bool DeleteProgramSet(const QString& hdnFile, Dialogs& dialogs, FileOperations& files) {
    const FileSystem paths;
    if (paths.GetFileName(hdnFile).isEmpty())
        return false;
    const QString whole = paths.GetAbsolutePathName(hdnFile);
    const QString baseName = paths.GetBaseName(whole);
    const QString question = QStringLiteral("Are you sure you want to delete Halden Program '") +
                             baseName + QStringLiteral("'?");
    if (dialogs.MsgBox(question, MsgStyle::YesNoQuestion, QStringLiteral("Confrim File Delete")) !=
        MsgAnswer::Yes)
        return false;
    RemoveMembers(OnDisk(paths.GetParentFolderName(whole)), baseName, files);
    return true;
}
