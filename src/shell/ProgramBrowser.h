#pragma once

#include <QString>

/// What the commands see of the browser.
class ProgramBrowser {
public:
    virtual ~ProgramBrowser();
    /// Full path of what is selected: folder and file name; with nothing selected the folder and
    /// a separator.
    virtual QString SelectedProgramPath() const = 0;
    /// The current folder of the folder list.
    virtual QString Folder() const = 0;
    /// Lists the files of the current folder again and empties the tree.
    virtual void dirDirList_Change() = 0;
    /// Puts all lists onto `path` and selects it; a path that does not exist changes nothing but
    /// the current directory.
    virtual void RefreshFileList(const QString& path) = 0;
};
