#include "app/TargetBoardViews.h"

#include "app/Application.h"
#include "session/Globals.h"
#include "targetboard/views/frmTargetBoard.h"

TargetBoardViews::TargetBoardViews(const Platform& platform, RSComm& link, ViewLoopRunner& loops,
                                   frmMDIMain& window)
    : platform_(platform), link_(link), loops_(loops), window_(window) {
    window_.Commands().Handle(QStringLiteral("mnuViewTargetBoardStatus"),
                              [this] { ShowTargetBoard(false); });
    window_.Commands().Handle(QStringLiteral("PLC"), [this] { ShowTargetBoard(true); });
}

void TargetBoardViews::ShowTargetBoard(bool BypassOpen) {
    bool ok = false;
    window_.Programs().OpenProgramDialog(BypassOpen, false, ok);
    if (ok)
        ShowView();
}

// The background update reads the fault code for as long as the view is up.
void TargetBoardViews::ShowView() {
    const QString name = QStringLiteral("frmTargetBoard");
    frmTargetBoard view(link_, window_.Mode(), platform_.clock, platform_.dialogs, platform_.folder,
                        loops_, &window_);
    window_.SetModalViewVisible(name, true);
    view.InitializeForm(gHdnFile);
    window_.SetModalViewVisible(name, false);
}
