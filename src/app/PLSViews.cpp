#include "app/PLSViews.h"

#include "app/Application.h"
#include "pls/views/frmPLSView.h"
#include "shell/frmMain.h"

PLSViews::PLSViews(const Platform& platform, frmMDIMain& window)
    : platform_(platform), window_(window) {
    window_.Browser().HandleNode(NodeAction::ViewPLS,
                                 [this](const QString& path) { ShowPLSFile(path); });
}

void PLSViews::ShowPLSFile(const QString& path) {
    frmPLSView view(platform_.dialogs, &window_);
    view.ShowMe(path);
}
