#include "programset/RenameProgramSet.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/modUtility.h"
#include "base/Siblings.h"
#include "programset/FileOperations.h"
#include "programset/ProgramSet.h"
#include "programset/SetName.h"
#include "programset/ShortName.h"
#include <vector>

namespace {
// One rename under way: what was made and what was removed, so that it can be taken back.
class SetRename {
public:
    SetRename(const QString& folder, const QString& oldBase, const QString& newBase,
              FileOperations& files);
    void MakeNewFiles();
    void RemoveOldFiles();

private:
    struct Pair {
        QString oldPath, newPath;
    };
    [[noreturn]] void TakeBack(const RunTimeError& cause);
    QString Account() const;

    QString folder_, oldBase_, newBase_;
    FileOperations& files_;
    std::vector<Pair> pairs_;
    std::size_t made_ = 0;
    std::size_t removed_ = 0;
};

SetRename::SetRename(const QString& folder, const QString& oldBase, const QString& newBase,
                     FileOperations& files)
    : folder_(folder), oldBase_(oldBase), newBase_(newBase), files_(files) {
    const FileSystem paths;
    const QStringList members = ProgramFileLast(SetMembers(folder, oldBase));
    RefuseReadOnly(folder, members);
    QStringList newNames = SetMembers(folder, newBase);
    for (const QString& member : members) {
        const QString newName = newBase + PointAndExtension(member);
        const QString newPath = paths.BuildPath(folder, newName);
        if (newNames.contains(newName))
            throw FileError(ErrorNumber::FileAlreadyExists, newPath);
        newNames.append(newName);
        pairs_.push_back({paths.BuildPath(folder, member), newPath});
    }
}

void SetRename::MakeNewFiles() {
    try {
        for (; made_ < pairs_.size(); ++made_)
            files_.Copy(pairs_[made_].oldPath, pairs_[made_].newPath);
    } catch (const RunTimeError& error) {
        TakeBack(error);
    }
}

void SetRename::RemoveOldFiles() {
    try {
        for (; removed_ < pairs_.size(); ++removed_)
            files_.Remove(pairs_[removed_].oldPath);
    } catch (const RunTimeError& error) {
        TakeBack(error);
    }
}

void SetRename::TakeBack(const RunTimeError& cause) {
    try {
        for (; removed_ > 0; --removed_)
            files_.Copy(pairs_[removed_ - 1].newPath, pairs_[removed_ - 1].oldPath);
        for (; made_ > 0; --made_)
            files_.Remove(pairs_[made_ - 1].newPath);
    } catch (const RunTimeError&) {
        throw RunTimeError(cause.Number(), cause.Description() + Account());
    }
    throw cause;
}

QString SetRename::Account() const {
    const QString separator = QStringLiteral(", ");
    return QStringLiteral("\r\n\r\nFiles under the old name: ") +
           SetMembers(folder_, oldBase_).join(separator) +
           QStringLiteral("\r\nFiles under the new name: ") +
           SetMembers(folder_, newBase_).join(separator);
}

bool IsTaken(const QString& folder, const QString& baseName) {
    return FileSystem().FileExists(ChangeExtension(baseName, QStringLiteral("hdn"))) ||
           !SetMembers(folder, baseName).isEmpty();
}

// The base name that the user wants; empty for none.
QString AskForName(const QString& folder, Dialogs& dialogs) {
    QString answer = dialogs.InputBox(QStringLiteral("Please enter new program name."),
                                      QStringLiteral("Rename"));
    if (answer.isEmpty())
        return QString();
    if (EndsInHdn(answer))
        answer.chop(PointAndExtension(answer).size());
    CheckBaseName(answer);
    if (answer.size() > longestShortName)
        TellShortNames(dialogs, renameErrorTitle);
    if (IsTaken(folder, answer)) {
        dialogs.MsgBox(QStringLiteral("Can not rename to existing file.   "), MsgStyle::Information,
                       renameErrorTitle);
        return QString();
    }
    return answer;
}
} // namespace

std::optional<QString> RenameProgramSet(const QString& hdnFile, Dialogs& dialogs,
                                        FileOperations& files) {
    const FileSystem paths;
    if (paths.GetFileName(hdnFile).isEmpty())
        return std::nullopt;
    const QString whole = paths.GetAbsolutePathName(hdnFile);
    const QString folder = OnDisk(paths.GetParentFolderName(whole));
    const QString answer = AskForName(folder, dialogs);
    if (answer.isEmpty())
        return std::nullopt;
    const QString newBase = ShortBaseName(folder, answer);
    RenameSetFiles(folder, paths.GetBaseName(whole), newBase, files);
    return paths.BuildPath(folder, newBase + QStringLiteral(".hdn"));
}

void RenameSetFiles(const QString& folder, const QString& oldBase, const QString& newBase,
                    FileOperations& files) {
    SetRename rename(folder, oldBase, newBase, files);
    rename.MakeNewFiles();
    rename.RemoveOldFiles();
}
