#include "targetboard/TargetBoardShown.h"

#include "targetboard/TargetBoardTexts.h"

TargetBoardShown ShownAtOpening(const DiskIdent& ident) {
    TargetBoardShown shown;
    shown.controls = ControlTable(ident.boardIndex);
    shown.lblRevIdentOnDisk = ident.Texts();
    shown.lblRevIdentInPLC.fill(QStringLiteral("-"));
    for (std::size_t i = firstClockEntry; i < shown.txtSetup.size(); ++i)
        shown.txtSetup[i] = QStringLiteral("-");
    shown.lblTargetBoard = {
        QStringLiteral("Current Fault:"),      QStringLiteral("Last Fault:"),
        QStringLiteral("CO-CPU Slot:"),        QStringLiteral("Corrective Action:"),
        QStringLiteral("Current Comm Error:"), QStringLiteral("Last Comm Error:")};
    return shown;
}

void ShowBoardOffline(TargetBoardShown& shown) {
    shown.controls.GoOffline();
    for (const int position :
         {FaultPosition::CurrentFault, FaultPosition::LastFault, FaultPosition::CorrectiveAction,
          FaultPosition::CurrentCommError, FaultPosition::LastCommError})
        shown.txtTargetBoard[static_cast<std::size_t>(position)] = TargetBoardText::Offline();
}
