#include "shell/RecentMenu.h"

#include "base/FileSystem.h"
#include "session/Globals.h"
#include "shell/CommandSurface.h"
#include "shell/ProgramBrowser.h"
#include "shell/ProgramCommands.h"
#include <QAction>

namespace {
constexpr qint16 openForEditing = 0;
constexpr qsizetype mnemonicLength = 3; // "&1 "

// The first "&" marks the digit; any other belongs to the path and is shown.
QString MenuText(const QString& caption) {
    return caption.left(mnemonicLength) +
           caption.mid(mnemonicLength).replace(QStringLiteral("&"), QStringLiteral("&&"));
}
} // namespace

RecentMenu::RecentMenu(QString file, CommandSurface& surface, const FileSystem& files,
                       ProgramBrowser& browser, ProgramCommands& commands)
    : file_(std::move(file)), surface_(surface), files_(files), browser_(browser),
      commands_(commands) {
    for (int i = 0; i < RecentList::length; ++i)
        surface_.Handle(ElementName(QStringLiteral("mnuFileList"), i),
                        [this, i] { mnuFileList_Click(i); });
}

void RecentMenu::Load() {
    list_.Read(file_);
    ShowCaptions();
    const QString program = list_.ProgramAtStart();
    if (!program.isEmpty())
        gHdnFile = program;
}

void RecentMenu::Save() const {
    list_.Write(file_);
}

void RecentMenu::UpdateRecentFile() {
    list_.UpdateRecentFile(gHdnFile);
    ShowCaptions();
}

void RecentMenu::mnuFileList_Click(int index) {
    const QString& path = list_.Path(index);
    const bool exists = files_.FileExists(path);
    if (exists)
        gHdnFile = path;
    commands_.SpawnRequest(openForEditing, exists);
    browser_.RefreshFileList(gHdnFile);
}

void RecentMenu::ShowCaptions() {
    for (int i = 0; i < RecentList::length; ++i)
        surface_.Action(ElementName(QStringLiteral("mnuFileList"), i))
            ->setText(MenuText(list_.Caption(i)));
}
