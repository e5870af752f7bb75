#pragma once

#include "targetboard/ControlTable.h"
#include "targetboard/FaultCodes.h"
#include "targetboard/ProgramIdent.h"
#include "targetboard/SetupEntries.h"
#include <array>
#include <QString>

/// Everything that stands on the four pages. Written by the model, shown by the view.
struct TargetBoardShown {
    std::array<QString, FaultPosition::Count> lblTargetBoard;
    std::array<QString, FaultPosition::Count> txtTargetBoard; ///< that of the slot stays empty
    IdentInPLC lblRevIdentInPLC;
    std::array<QString, IdentLabel::OnDiskCount> lblRevIdentOnDisk;
    std::array<QString, setupEntryCount> txtSetup;
    std::array<bool, setupEntryCount> editing{}; ///< the user is in the entry: its text is his
    QString lblCurrTime;
    QString lblCurrDate;
    ControlTable controls;
};

/// As the view opens on a set, with what the disk says of it: captions without codes, a clock of
/// "-".
TargetBoardShown ShownAtOpening(const DiskIdent& ident);
/// Puts the texts and controls of a board that cannot be reached.
void ShowBoardOffline(TargetBoardShown& shown);
