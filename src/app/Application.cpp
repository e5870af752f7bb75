#include "app/Application.h"

#include "app/StatusTableViews.h"
#include "app/TransferViews.h"
#include "controls/ViewHelpers.h"
#include "link/views/frmDownloadProg.h"
#include "link/views/frmSetupComm.h"
#include "shell/frmCopyFile.h"
#include "shell/frmMain.h"
#include "shell/frmNewFile.h"

Application::Application(const Platform& platform)
    : link_(platform.dialogs, platform.clock, platform.busy, platform.folder),
      loops_(BlockedByModalView),
      window_(ShellContext{link_, platform.port, platform.dialogs, platform.clock, platform.folder,
                           files_, fileOperations_, platform.drives, platform.endProgram}) {
    RegisterViews(platform);
}

Application::~Application() = default;

void Application::Start() {
    window_.Load();
}

// Each view joins here: a modal one as a function, a child of the main window as a factory, its
// entries as handlers.
void Application::RegisterViews(const Platform& platform) {
    window_.Views().frmDownloadProg = [this](qint16 mode) {
        frmDownloadProg view(link_, &window_);
        view.SetTransferMode(mode);
        view.exec();
    };
    window_.Views().frmSetupComm = [this, platform] {
        frmSetupComm view({link_, platform.port, platform.dialogs, platform.clock, platform.ports,
                           platform.folder},
                          &window_);
        view.exec();
    };
    RegisterSetViews(platform);
    transfers_ = std::make_unique<TransferViews>(platform, link_, files_, window_);
    statusTable_ = std::make_unique<StatusTableViews>(platform, link_, loops_, transfers_->Jobs(),
                                                      transfers_->Runner(), window_);
}

void Application::RegisterSetViews(const Platform& platform) {
    const SetFiles context{link_,           platform.dialogs, files_,
                           fileOperations_, platform.drives,  window_.Browser()};
    window_.Views().frmNewFile = [this, context, platform](qint16 mode) {
        frmNewFile view(context, platform.tools, platform.folder, &window_);
        view.SetNewFileMode(mode);
        view.exec();
    };
    window_.Views().frmCopyFile = [this, context] {
        frmCopyFile view(context, &window_);
        view.exec();
    };
}
