#include "app/ResultViews.h"

#include "app/Application.h"
#include "base/RunTimeError.h"
#include "link/TargetBoards.h"
#include "programset/ProgramBoardIndex.h"
#include "results/views/frmEditDoc.h"
#include "session/HeldProgram.h"
#include "statustable/views/frmStatusTable.h"
#include <QMenu>

namespace {
QString ViewName() {
    return QStringLiteral("frmViewResults");
}

// Limit switches have no program to search.
bool CanFindIn(const QString& hdnFile) {
    try {
        return !hdnFile.isEmpty() && !IsPLSBoard(ProgramBoardIndex(hdnFile));
    } catch (const RunTimeError&) {
        return false; // a set that cannot be read
    }
}
} // namespace

ResultViews::ResultViews(const Platform& platform, frmMDIMain& window)
    : platform_(platform), window_(window), activation_(window.Children(), ViewName(), [this] {
          if (view_)
              view_->Activate();
      }) {
    RegisterViews();
    RegisterCommands();
    connect(window_.Commands().Menu(QStringLiteral("mnuStatusTable")), &QMenu::aboutToShow, this,
            &ResultViews::RefreshFind);
}

void ResultViews::RegisterViews() {
    window_.Children().Register(ViewName(), [this] { return &View(); });
    window_.Views().frmViewResults = [this](qint16 mode) { ShowResults(mode); };
    window_.Views().frmEditDoc = [this](const QString& hdnFile) { ShowDocumentation(hdnFile); };
}

void ResultViews::RegisterCommands() {
    CommandSurface& commands = window_.Commands();
    commands.Handle(QStringLiteral("mnuFilePrintResults"), [this] {
        if (view_)
            view_->PrintResults();
    });
    commands.Handle(QStringLiteral("mnuStatusTableItem(2)"), [this] { FindInTableProgram(); });
}

frmViewResults& ResultViews::View() {
    if (!view_) {
        view_ = new frmViewResults({platform_.dialogs, platform_.clock, platform_.printer, *this},
                                   &window_);
        view_->hide(); // until it is filled
    }
    return *view_;
}

void ResultViews::ShowResults(qint16 mode) {
    View().DisplayResults(mode);
    window_.Children().Show(ViewName());
}

void ResultViews::UnloadResults() {
    window_.Children().Hide(ViewName());
}

void ResultViews::ShowDocumentation(const QString& hdnFile) {
    const FileSystem files;
    const QString full = files.GetAbsolutePathName(hdnFile);
    frmEditDoc view(platform_.dialogs, &window_);
    view.InitializeVar(files.BuildPath(files.GetParentFolderName(full), files.GetBaseName(full)));
    view.exec();
}

QString ResultViews::TableProgram() const {
    const auto* table =
        qobject_cast<frmStatusTable*>(window_.Children().View(QStringLiteral("frmStatusTable")));
    return table ? table->ProgramPath() : QString();
}

// The program may have been selected, and its file changed, since the menu was open last.
void ResultViews::RefreshFind() {
    window_.SetTableCanFind(CanFindIn(TableProgram()));
}

void ResultViews::FindInTableProgram() {
    const QString program = TableProgram();
    if (!CanFindIn(program))
        return;
    const HeldProgram held(program);
    window_.Tools().GlobalSearch(true, false);
}
