#include "app/Application.h"

#include "app/StatusTableViews.h"
#include "app/TransferViews.h"
#include "controls/ViewHelpers.h"
#include "link/views/frmDownloadProg.h"

Application::Application(const Platform& platform)
    : link_(platform.dialogs, platform.clock, platform.busy, platform.folder),
      loops_(BlockedByModalView),
      window_(ShellContext{link_, platform.port, platform.dialogs, platform.clock, platform.folder,
                           files_, platform.drives, platform.endProgram}) {
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
    transfers_ = std::make_unique<TransferViews>(platform, link_, files_, window_);
    statusTable_ = std::make_unique<StatusTableViews>(platform, link_, loops_, transfers_->Jobs(),
                                                      transfers_->Runner(), window_);
}
