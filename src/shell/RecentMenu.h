#pragma once

#include "programset/RecentList.h"
#include <array>
#include <QString>

class CommandSurface;
class FileSystem;
class ProgramBrowser;
class ProgramCommands;

/// The recent list in the file menu.
class RecentMenu {
public:
    /// `file` is the path of HD2000.dat. The others must outlive the object.
    RecentMenu(QString file, CommandSurface& surface, const FileSystem& files,
               ProgramBrowser& browser, ProgramCommands& commands);

    /// Reads the list, if its file exists, and shows its entries; the newest set becomes gHdnFile
    /// if it exists. Raises as RecentList::Read.
    void Load();
    /// Writes the list. Raises as RecentList::Write.
    void Save() const;
    /// Puts gHdnFile first in the list.
    void UpdateRecentFile();
    /// A click on entry `index`, 0 to 3: selects that set in the browser.
    void mnuFileList_Click(int index);

    const RecentList& List() const { return list_; }

private:
    void ShowCaptions();

    QString file_;
    CommandSurface& surface_;
    const FileSystem& files_;
    ProgramBrowser& browser_;
    ProgramCommands& commands_;
    RecentList list_;
};
