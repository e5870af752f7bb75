#pragma once

#include <QString>
#include <QStringList>
#include <vector>

/// A program set is a .hdn file and every file of the same folder with the same base name, letter
/// case apart. Members are always found in one pass over the folder.

/// Names, as on disk and in name order, of the plain files of `folder` whose base name is
/// `baseName`. Empty when the folder cannot be read, and for an empty base name.
QStringList SetMembers(const QString& folder, const QString& baseName);

/// Names, as on disk, of the .hdn files of `folder`, in the order of their names without letter
/// case: what the browser's list shows.
QStringList ProgramFiles(const QString& folder);

/// What the browser's tree shows of a set.
struct ProgramTree {
    struct Child {
        QString key;  ///< extension in upper case
        QString text; ///< "MAIN (.lmn)"
    };
    QString rootKey;             ///< base name of the set
    QString rootText;            ///< "R6500(PLC) [PUMP]"
    std::vector<Child> children; ///< in the order of their texts
};

/// The set that was selected in the browser.
struct SelectedSet {
    qint16 boardIndex = 0; ///< character code, 68 for an empty .hdn file
    ProgramTree tree;
};

/// Reads the set of a .hdn file: one pass over its folder and one read of the file itself. Raises
/// 5 for an empty first item and as TextReader for a .hdn file that cannot be read; a missing one
/// counts as board 68.
SelectedSet ReadSelectedSet(const QString& hdnPath);

/// Full path of what is selected in the browser: folder and file name with a separator between
/// them unless the folder is a root folder. With nothing selected the folder and a separator.
QString SelectedProgramPath(const QString& folder, const QString& fileName);

/// Which entry of the program list to select after a set was deleted: the remembered position, or
/// the last entry if the list is shorter now; -1 for an empty list.
int PositionAfterDelete(int remembered, int count);
