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
    /// How many sets the file list holds.
    virtual int ListCount() const = 0;
    /// Position of the selected set from 0, -1 when none is.
    virtual int ListIndex() const = 0;
    /// Selects the set at a position, as a click on it does.
    virtual void SetListIndex(int position) = 0;
};
