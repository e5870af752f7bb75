#include "base/Drives.h"
#include "shell/frmMain.h"
#include "shell/frmMDIMain.h"
#include "shell/Icons.h"
#include "shell/WindowKeys.h"
#include <QMdiArea>
#include <QScreen>
#include <QStatusBar>

// How the main window is put together.

namespace {
constexpr QSize usualSize(1280, 800);
constexpr QSize smallestSize(640, 400);
} // namespace

void frmMDIMain::BuildForm() {
    setObjectName(QStringLiteral("frmMDIMain"));
    setWindowTitle(QStringLiteral("Quentor"));
    setWindowIcon(ProgramIcon());
    setContextMenuPolicy(Qt::NoContextMenu); // the toolbar stays
    setMinimumSize(smallestSize);
    area_ = new QMdiArea;
    area_->setBackground(palette().mid());
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area_);
    surface_ = new CommandSurface(*this, context_.dialogs);
    panels_ = new StatusPanels(*statusBar(), context_.clock);
    children_ = new MdiChildren(*area_);
    new WindowKeys(*this, *area_, surface_->Toolbar());
    browser_ = new frmMain(context_.link, context_.dialogs, context_.files, context_.drives,
                           context_.folder, this);
    browser_->hide();
    timer_ = new BackgroundTimer(update_, context_.dialogs, this);
}

void frmMDIMain::SizeToScreen() {
    const QSize room = screen()->availableSize();
    resize(usualSize.boundedTo(room));
    if (room.width() <= usualSize.width() || room.height() <= usualSize.height())
        showMaximized();
    else
        show();
}

void frmMDIMain::ConnectBrowser() {
    connect(browser_, &frmMain::SelectionChanged, this, &frmMDIMain::RefreshCommandState);
    connect(browser_, &frmMain::PopupRequested, this, &frmMDIMain::PopUpFileList);
    connect(browser_, &frmMain::OpenRequested, this, &frmMDIMain::mnuFileListPopupOpen_Click);
    connect(browser_, &frmMain::FileDoubleClicked, this, &frmMDIMain::filFileList_DblClick);
    connect(browser_, &frmMain::DeleteRequested, this, &frmMDIMain::mnuFileListPopupDelete_Click);
    connect(children_, &MdiChildren::ActiveChanged, this, &frmMDIMain::RefreshCommandState);
    connect(children_, &MdiChildren::AreaResized, this, &frmMDIMain::MDIForm_Resize);
    connect(surface_, &CommandSurface::HandlersChanged, this, &frmMDIMain::RefreshCommandState);
    connect(panels_, &StatusPanels::PanelDoubleClicked, this, &frmMDIMain::sbrMain_PanelDblClick);
}
