#include "programset/ProgramSet.h"

#include "base/FileSystem.h"
#include "base/Siblings.h"
#include "link/TargetBoards.h"
#include "programset/ExtensionFamily.h"
#include "programset/ProgramBoardIndex.h"
#include <algorithm>
#include <QDirIterator>

namespace {
// Calls `take` for the name of each plain file of the folder, in no order.
template <typename Take>
void ForEachFile(const QString& folder, Take take) {
    QDirIterator entries(OnDisk(folder), QDir::Files | QDir::Hidden | QDir::System);
    while (entries.hasNext()) {
        entries.next();
        take(entries.fileName());
    }
}

QStringView BaseName(const QString& name) {
    const qsizetype point = name.lastIndexOf(u'.');
    return point < 0 ? QStringView(name) : QStringView(name).left(point);
}

bool IsBefore(const QString& one, const QString& other) {
    const int order = one.compare(other, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : one < other;
}

std::vector<ProgramTree::Child> ListedSiblings(const QStringList& members) {
    std::vector<ProgramTree::Child> children;
    const FileSystem files;
    for (const QString& member : members) {
        const QString extension = files.GetExtensionName(member);
        const QString label = SiblingLabel(extension);
        if (!label.isEmpty())
            children.push_back({extension.toUpper(), label});
    }
    std::sort(children.begin(), children.end(),
              [](const auto& one, const auto& other) { return IsBefore(one.text, other.text); });
    return children;
}

// The member that carries the board index: the file that was selected, or the one whose name
// differs from it in letter case only.
QString HdnMember(const QStringList& members, const QString& selected) {
    if (members.contains(selected))
        return selected;
    for (const QString& member : members)
        if (member.compare(selected, Qt::CaseInsensitive) == 0)
            return member;
    return QString();
}
} // namespace

QStringList SetMembers(const QString& folder, const QString& baseName) {
    QStringList members;
    if (baseName.isEmpty()) // ".profile" is nobody's sibling
        return members;
    ForEachFile(folder, [&members, &baseName](const QString& name) {
        if (BaseName(name).compare(baseName, Qt::CaseInsensitive) == 0)
            members.append(name);
    });
    members.sort();
    return members;
}

QStringList ProgramFiles(const QString& folder) {
    QStringList names;
    ForEachFile(folder, [&names](const QString& name) {
        if (name.endsWith(QLatin1String(".hdn"), Qt::CaseInsensitive))
            names.append(name);
    });
    std::sort(names.begin(), names.end(), IsBefore);
    return names;
}

SelectedSet ReadSelectedSet(const QString& hdnPath) {
    const FileSystem files;
    const QString whole = files.GetAbsolutePathName(hdnPath);
    const QString folder = files.GetParentFolderName(whole);
    const QString baseName = files.GetBaseName(whole);
    const QStringList members = SetMembers(folder, baseName);
    const QString hdnMember = HdnMember(members, files.GetFileName(whole));

    SelectedSet set;
    set.boardIndex = hdnMember.isEmpty()
                         ? BoardIndex::Default
                         : BoardIndexOfHdnFile(files.BuildPath(OnDisk(folder), hdnMember));
    set.tree.rootKey = baseName;
    set.tree.rootText = TargetboardName(set.boardIndex) + QStringLiteral(" [") + baseName + u']';
    set.tree.children = ListedSiblings(members);
    return set;
}

QString SelectedProgramPath(const QString& folder, const QString& fileName) {
    return FileSystem().BuildPath(folder, fileName);
}

int PositionAfterDelete(int remembered, int count) {
    return std::min(remembered, count - 1);
}
