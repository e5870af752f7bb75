#include "app/Application.h"

#include "app/StatusTableViews.h"
#include "app/TargetBoardViews.h"
#include "app/TransferViews.h"
#include "controls/ViewHelpers.h"
#include "link/views/frmDownloadProg.h"

Application::Application(const Platform& platform)
    : platform_(platform), link_(platform.dialogs, platform.clock, platform.busy, platform.folder),
      loops_(BlockedByModalView),
      window_(ShellContext{link_, platform.port, platform.dialogs, platform.clock, platform.folder,
                           files_, platform.drives, platform.endProgram}) {
    RegisterViews();
}

Application::~Application() = default;

void Application::Start() {
    window_.Load();
}

// Each view joins here: a modal one as a function, a child of the main window as a factory, its
// entries as handlers.
void Application::RegisterViews() {
    window_.Views().frmDownloadProg = [this](qint16 mode) {
        frmDownloadProg view(link_, &window_);
        view.SetTransferMode(mode);
        view.exec();
    };
    transfers_ = std::make_unique<TransferViews>(platform_, link_, files_, window_);
    statusTable_ = std::make_unique<StatusTableViews>(platform_, link_, loops_, transfers_->Jobs(),
                                                      transfers_->Runner(), window_);
    targetBoard_ = std::make_unique<TargetBoardViews>(platform_, link_, loops_, window_);
}
