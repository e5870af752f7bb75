#include "shell/CommandState.h"

#include <gtest/gtest.h>

namespace {
/// A situation in which every entry has a handler and a PLC set is selected.
ShellSituation EverythingHandled() {
    ShellSituation situation;
    situation.setSelected = true;
    for (const MenuTable& menu : MenuTables()) {
        for (const MenuEntry& entry : menu.entries)
            situation.handled << QString::fromLatin1(entry.name);
    }
    for (const ToolbarEntry& button : ToolbarTable())
        situation.handled << QString::fromLatin1(button.key);
    return situation;
}

EntryState StateOf(const char* name, const ShellSituation& situation) {
    const CommandState state(situation);
    for (const MenuTable& menu : MenuTables()) {
        for (const MenuEntry& entry : menu.entries) {
            if (QLatin1String(entry.name) == QLatin1String(name))
                return state.Entry(entry);
        }
    }
    for (const ToolbarEntry& button : ToolbarTable()) {
        if (QLatin1String(button.key) == QLatin1String(name))
            return state.Button(button);
    }
    ADD_FAILURE() << "no entry " << name;
    return {};
}

bool MenuVisible(const char* name, const ShellSituation& situation) {
    for (const MenuTable& menu : MenuTables()) {
        if (QLatin1String(menu.name) == QLatin1String(name))
            return CommandState(situation).Menu(menu).visible;
    }
    ADD_FAILURE() << "no menu " << name;
    return false;
}

void ExpectEnabled(const char* name, bool enabled, const ShellSituation& situation) {
    EXPECT_EQ(StateOf(name, situation).enabled, enabled) << name;
}

void ExpectVisible(const char* name, bool visible, const ShellSituation& situation) {
    EXPECT_EQ(StateOf(name, situation).visible, visible) << name;
}
} // namespace

TEST(CommandState, EntriesWithoutHandlerAreDisabledNotDead) {
    ShellSituation situation = EverythingHandled();
    situation.handled.clear();
    for (const MenuTable& menu : MenuTables()) {
        for (const MenuEntry& entry : menu.entries)
            ExpectEnabled(entry.name, false, situation);
    }
    for (const ToolbarEntry& button : ToolbarTable())
        ExpectEnabled(button.key, false, situation);
}

TEST(CommandState, HiddenEntriesStayHiddenWhateverHappens) {
    ShellSituation situation = EverythingHandled();
    situation.online = true;
    situation.resultsFound = true;
    situation.recentListShown = true;
    for (const char* view : {"", "frmMain", "frmStatusTable", "frmViewResults", "frmTrending"}) {
        situation.activeView = QString::fromLatin1(view);
        for (const char* name :
             {"mnuFileNew", "mnuFileOpen", "mnuFileCompile", "mnuFilePrintProgram",
              "mnuEditSysConfig", "mnuEditVarDoc", "mnuToolsSearch", "mnuToolsOnlineMon",
              "mnuFileListPopupOpen", "mnuFileListPopupCompile", "mnuFileListPopupSearch",
              "mnuFileListPopupPrint", "New", "Open", "Print", "Search", "Monitor"})
            ExpectVisible(name, false, situation);
    }
}

TEST(CommandState, ModeCommandsAreCheckedByTheMode) {
    ShellSituation situation = EverythingHandled();
    EXPECT_FALSE(StateOf("mnuViewOnline", situation).checked);
    EXPECT_TRUE(StateOf("mnuViewOffline", situation).checked);
    situation.online = true;
    EXPECT_TRUE(StateOf("mnuViewOnline", situation).checked);
    EXPECT_FALSE(StateOf("mnuViewOffline", situation).checked);
}

TEST(CommandState, ViewsBringTheirEntriesUpWhileTheyAreActive) {
    struct Row {
        const char* entry;
        const char* view;
    };
    const Row rows[] = {
        {"mnuFilePrintStatusTable", "frmStatusTable"},
        {"mnuEditCopy", "frmStatusTable"},
        {"mnuEditSep1", "frmStatusTable"},
        {"mnuFilePrintResults", "frmViewResults"},
        {"mnuFilePrintTrendData", "frmTrending"},
    };
    for (const char* view : {"frmMain", "frmStatusTable", "frmViewResults", "frmTrending"}) {
        ShellSituation situation = EverythingHandled();
        situation.activeView = QString::fromLatin1(view);
        for (const Row& row : rows)
            ExpectVisible(row.entry, QLatin1String(row.view) == QLatin1String(view), situation);
        EXPECT_EQ(MenuVisible("mnuStatusTable", situation),
                  QLatin1String(view) == QLatin1String("frmStatusTable"))
            << view;
        EXPECT_TRUE(MenuVisible("mnuFile", situation));
    }
}

TEST(CommandState, PopupFollowsTheBoardClass) {
    ShellSituation situation = EverythingHandled();
    for (const bool plsBoard : {false, true}) {
        situation.plsBoard = plsBoard;
        ExpectEnabled("mnuFileListPopupDownloadToPLS", plsBoard, situation);
        ExpectEnabled("mnuFileListPopupUploadFromPLS", plsBoard, situation);
        ExpectEnabled("mnuFileListPopupCompile", !plsBoard, situation);
        ExpectEnabled("mnuFileListPopupSearch", !plsBoard, situation);
        ExpectEnabled("mnuFileListPopupDownloadProg", !plsBoard, situation);
        ExpectEnabled("mnuFileListPopupDelete", true, situation);
        ExpectEnabled("Monitor", !plsBoard, situation);
        // The menu asks for a set of its own, so the selected one does not matter.
        ExpectEnabled("mnuFileDownloadProgram", true, situation);
    }
}

TEST(CommandState, WithoutASelectedSetNothingCanBeDoneToIt) {
    ShellSituation situation = EverythingHandled();
    situation.setSelected = false;
    for (const char* name : {"mnuFileListPopupDownloadProg", "mnuFileListPopupDelete",
                             "mnuFileListPopupRename", "Program", "Upload", "Download"})
        ExpectEnabled(name, false, situation);
    for (const char* name : {"mnuFileDownloadProgram", "mnuViewOnline", "PLC", "Status"})
        ExpectEnabled(name, true, situation);
}

TEST(CommandState, ButtonsNeedTheHandlerOfTheirRoute) {
    ShellSituation situation = EverythingHandled();
    situation.handled.remove(QStringLiteral("mnuFileListPopupDownloadToPLS"));
    ExpectEnabled("Program", true, situation);
    situation.plsBoard = true;
    ExpectEnabled("Program", false, situation);
}

TEST(CommandState, RecentEntriesComeOneByOne) {
    ShellSituation situation = EverythingHandled();
    ExpectVisible("mnuFileSep4", false, situation);
    ExpectVisible("mnuFileList(0)", false, situation);
    situation.recentListShown = true;
    situation.recentShown = {true, false, true, false};
    ExpectVisible("mnuFileSep4", true, situation);
    ExpectVisible("mnuFileList(0)", true, situation);
    ExpectVisible("mnuFileList(1)", false, situation);
    ExpectVisible("mnuFileList(2)", true, situation);
    ExpectVisible("mnuFileList(3)", false, situation);
}

TEST(CommandState, ResultsAndFindComeWithTheirSearch) {
    ShellSituation situation = EverythingHandled();
    ExpectVisible("mnuViewSearchResults", false, situation);
    ExpectEnabled("View", false, situation);
    ExpectEnabled("mnuStatusTableItem(2)", false, situation);
    situation.resultsFound = true;
    situation.tableCanFind = true;
    ExpectVisible("mnuViewSearchResults", true, situation);
    ExpectEnabled("View", true, situation);
    ExpectEnabled("mnuStatusTableItem(2)", true, situation);
}
