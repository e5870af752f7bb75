#pragma once

#include "shell/SetFiles.h"

class ProgramCommands;
class RecentMenu;
struct ModalViews;

/// The commands that make, copy, rename and delete whole program sets.
class SetCommands {
public:
    /// All must outlive the object.
    SetCommands(const SetFiles& context, ProgramCommands& programs, RecentMenu& recent,
                const ModalViews& views);

    /// Shows frmNewFile; a set that was made becomes the newest of the recent list and is
    /// selected.
    void mnuFileNew_Click();
    /// Asks and deletes every file of a set, of gHdnFile with `BypassOpen` and else of one that
    /// the user chooses; the browser selects the entry that stands in its place then. Errors are
    /// shown, titled "File Delete".
    void DeleteProgram(bool BypassOpen);
    /// Asks for another name and gives it to every file of a set, chosen as by DeleteProgram,
    /// which stays selected. Errors are shown, titled "File Rename".
    void RenameProgram(bool BypassOpen);

private:
    bool DeleteChosenSet();
    void SelectNextSet(int remembered);
    void RenameChosenSet();

    SetFiles context_;
    ProgramCommands& programs_;
    RecentMenu& recent_;
    const ModalViews& views_;
};
