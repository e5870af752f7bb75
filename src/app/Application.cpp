#include "app/Application.h"

#include "app/ResultViews.h"
#include "app/StatusTableViews.h"
#include "app/TargetBoardViews.h"
#include "app/TransferViews.h"
#include "app/TrendingViews.h"
#include "controls/ViewHelpers.h"
#include "link/views/frmDownloadProg.h"
#include "link/views/frmSetupComm.h"
#include "shell/frmCopyFile.h"
#include "shell/frmMain.h"
#include "shell/frmNewFile.h"

Application::Application(const Platform& platform)
    : platform_(platform), link_(platform.dialogs, platform.clock, platform.busy, platform.folder),
      loops_(BlockedByModalView),
      window_(ShellContext{link_, platform.port, platform.dialogs, platform.clock, platform.folder,
                           files_, fileOperations_, platform.drives, platform.endProgram}) {
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
    window_.Views().frmSetupComm = [this] {
        frmSetupComm view({link_, platform_.port, platform_.dialogs, platform_.clock,
                           platform_.ports, platform_.folder},
                          &window_);
        view.exec();
    };
    RegisterSetViews();
    transfers_ = std::make_unique<TransferViews>(platform_, link_, files_, window_);
    statusTable_ = std::make_unique<StatusTableViews>(platform_, link_, loops_, transfers_->Jobs(),
                                                      transfers_->Runner(), window_);
    targetBoard_ = std::make_unique<TargetBoardViews>(platform_, link_, loops_, window_);
    trending_ = std::make_unique<TrendingViews>(platform_, link_, loops_, transfers_->Jobs(),
                                                transfers_->Runner(), window_);
    results_ = std::make_unique<ResultViews>(platform_, window_);
    RegisterCopy();
}

// One entry and one key copy for two views: the table goes before the graph.
void Application::RegisterCopy() {
    window_.Commands().Handle(QStringLiteral("mnuEditCopy"), [this] {
        if (window_.Children().IsVisible(QStringLiteral("frmStatusTable")))
            statusTable_->CopyCells();
        else
            trending_->CopyGraph();
    });
}

void Application::RegisterSetViews() {
    const SetFiles context{link_,           platform_.dialogs, files_,
                           fileOperations_, platform_.drives,  window_.Browser()};
    window_.Views().frmNewFile = [this, context](qint16 mode) {
        frmNewFile view(context, platform_.tools, platform_.folder, &window_);
        view.SetNewFileMode(mode);
        view.exec();
    };
    window_.Views().frmCopyFile = [this, context] {
        frmCopyFile view(context, &window_);
        view.exec();
    };
}
