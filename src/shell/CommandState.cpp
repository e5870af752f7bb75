#include "shell/CommandState.h"

namespace {
const QString statusTableView = QStringLiteral("frmStatusTable");
const QString resultsView = QStringLiteral("frmViewResults");
const QString trendingView = QStringLiteral("frmTrending");

// The view that brings an entry up while it is active; empty for entries of no view.
QString OwningView(const QString& name) {
    static const QStringList statusTableEntries = {
        QStringLiteral("mnuFilePrintStatusTable"), QStringLiteral("mnuEditCopy"),
        QStringLiteral("mnuEditSep1"), QStringLiteral("mnuStatusTable")};
    if (statusTableEntries.contains(name))
        return statusTableView;
    if (name == QStringLiteral("mnuFilePrintResults"))
        return resultsView;
    if (name == QStringLiteral("mnuFilePrintTrendData"))
        return trendingView;
    return QString();
}

// A hidden command is disabled too, so that its key does nothing. These few are told apart by the
// class of the board all the same.
bool FollowsTheBoard(const QString& name) {
    return name == QStringLiteral("mnuFileListPopupCompile") ||
           name == QStringLiteral("mnuFileListPopupSearch") || name == QStringLiteral("Monitor");
}

// Position in the recent list of "mnuFileList(2)", or -1.
int RecentPosition(const QString& name) {
    for (int i = 0; i < recentCount; ++i) {
        if (name == ElementName(QStringLiteral("mnuFileList"), i))
            return i;
    }
    return -1;
}
} // namespace

EntryState CommandState::Menu(const MenuTable& menu) const {
    EntryState state;
    state.visible = menu.popup || OwningView(QString::fromLatin1(menu.name)).isEmpty() ||
                    situation_.activeView == statusTableView;
    return state;
}

EntryState CommandState::Entry(const MenuEntry& entry) const {
    const QString name = QString::fromLatin1(entry.name);
    EntryState state;
    state.visible = IsVisible(name, entry.start);
    state.enabled = situation_.handled.contains(name) && IsAllowed(name) &&
                    (entry.start != CommandStart::Hidden || FollowsTheBoard(name));
    if (name == QStringLiteral("mnuViewOnline"))
        state.checked = situation_.online;
    if (name == QStringLiteral("mnuViewOffline"))
        state.checked = !situation_.online;
    return state;
}

bool CommandState::IsVisible(const QString& name, CommandStart start) const {
    if (start != CommandStart::ShownLater)
        return start != CommandStart::Hidden;
    if (name == QStringLiteral("mnuFileSep4"))
        return situation_.recentListShown;
    if (name == QStringLiteral("mnuViewSearchResults"))
        return situation_.resultsFound;
    const int recent = RecentPosition(name);
    if (recent >= 0)
        return situation_.recentShown[static_cast<std::size_t>(recent)];
    return situation_.activeView == OwningView(name);
}

bool CommandState::IsAllowed(const QString& name) const {
    if (name == QStringLiteral("mnuStatusTableItem(2)"))
        return situation_.tableCanFind;
    return IsPopupEntryAllowed(name);
}

// The popup of the browser's list: what a board of this class cannot take is disabled, and so is
// all of it while no set is selected.
bool CommandState::IsPopupEntryAllowed(const QString& name) const {
    if (!name.startsWith(QStringLiteral("mnuFileListPopup")))
        return true;
    static const QStringList forPLS = {QStringLiteral("mnuFileListPopupDownloadToPLS"),
                                       QStringLiteral("mnuFileListPopupUploadFromPLS")};
    static const QStringList forPLC = {QStringLiteral("mnuFileListPopupCompile"),
                                       QStringLiteral("mnuFileListPopupSearch"),
                                       QStringLiteral("mnuFileListPopupDownloadProg")};
    if (forPLS.contains(name) && !situation_.plsBoard)
        return false;
    if (forPLC.contains(name) && situation_.plsBoard)
        return false;
    return situation_.setSelected;
}

EntryState CommandState::Button(const ToolbarEntry& button) const {
    const QString key = QString::fromLatin1(button.key);
    EntryState state;
    state.visible = button.start != CommandStart::Hidden;
    state.enabled = situation_.handled.contains(ToolbarCommand(button, situation_.plsBoard)) &&
                    (state.visible || FollowsTheBoard(key));
    if (button.start == CommandStart::Disabled)
        state.enabled = state.enabled && situation_.resultsFound;
    if (key == QStringLiteral("Monitor"))
        state.enabled = state.enabled && !situation_.plsBoard;
    const bool transfers = key == QStringLiteral("Program") || key == QStringLiteral("Upload") ||
                           key == QStringLiteral("Download");
    if (transfers)
        state.enabled = state.enabled && situation_.setSelected;
    return state;
}
