#include "shell/CommandTable.h"

#include <gtest/gtest.h>
#include <QSet>

namespace {
const MenuEntry* FindEntry(const char* name) {
    for (const MenuTable& menu : MenuTables()) {
        for (const MenuEntry& entry : menu.entries) {
            if (QLatin1String(entry.name) == QLatin1String(name))
                return &entry;
        }
    }
    return nullptr;
}

const ToolbarEntry* FindButton(const char* key) {
    for (const ToolbarEntry& button : ToolbarTable()) {
        if (QLatin1String(button.key) == QLatin1String(key))
            return &button;
    }
    return nullptr;
}

QString Command(const char* key, bool plsBoard) {
    return ToolbarCommand(*FindButton(key), plsBoard);
}
} // namespace

TEST(CommandTable, MenusStandInOrder) {
    QStringList names;
    for (const MenuTable& menu : MenuTables())
        names << QString::fromLatin1(menu.name);
    EXPECT_EQ(names.join(u' ').toStdString(),
              "mnuFile mnuEdit mnuView mnuStatusTable mnuTools mnuHelp mnuTrendingPopup "
              "mnuFileListPopup");
}

TEST(CommandTable, EveryEntryIsThereWithCaptionKeyAndStart) {
    struct Expected {
        const char* name;
        const char* caption;
        const char* key;
        CommandStart start;
    };
    using enum CommandStart;
    const Expected table[] = {
        {"mnuFileNew", "&New Halden Program", "Ctrl+N", Hidden},
        {"mnuFileOpen", "&Open Halden Program...", "Ctrl+O", Hidden},
        {"mnuFileSaveAs", "Save Halden Program &As...", "", Shown},
        {"mnuFileDelete", "&Delete Halden Program", "", Shown},
        {"mnuFileRename", "R&ename Halden Program", "", Shown},
        {"mnuFileCompile", "&Compile Program", "", Hidden},
        {"mnuFileDownloadProgram", "Download PLC P&rogram", "", Shown},
        {"mnuFileDownloadData", "Download Targetboard Da&ta", "", Shown},
        {"mnuFileDownloadFile", "Download Data&file", "", Shown},
        {"mnuFileDownloadToPLS", "Download to P&LS", "", Shown},
        {"mnuFileUploadData", "&Upload Targetboard Data", "", Shown},
        {"mnuFileUploadProgram", "Upload PLC/PLS Pro&gram", "", Shown},
        {"mnuFileUploadFromPLS", "Upload from PL&S", "", Shown},
        {"mnuFilePrintStatusTable", "Print Status Table", "", ShownLater},
        {"mnuFilePrintResults", "Print Results", "", ShownLater},
        {"mnuFilePrintTrendData", "Print Trending Data", "", ShownLater},
        {"mnuFilePrintProgram", "&Print Program", "Ctrl+P", Hidden},
        {"mnuFileList(0)", "&1 Recent File", "", ShownLater},
        {"mnuFileList(3)", "&4 Recent File", "", ShownLater},
        {"mnuFileExit", "E&xit", "", Shown},
        {"mnuEditCopy", "Copy", "Ctrl+C", ShownLater},
        {"mnuEditSysConfig", "&System Configuration", "", Hidden},
        {"mnuEditVarDoc", "&Variable Documentation", "", Hidden},
        {"mnuEditCommPort", "Co&mm Port", "", Shown},
        {"mnuViewOnline", "O&nline Data", "F3", Shown},
        {"mnuViewOffline", "O&ffline Data", "F4", Shown},
        {"mnuViewTargetBoardStatus", "Target &Board Interface", "F5", Shown},
        {"mnuViewCompileErrors", "&Compile Errors", "", Shown},
        {"mnuViewSearchResults", "Search &Results", "", ShownLater},
        {"mnuToolsSearch", "&Search", "Ctrl+F", Hidden},
        {"mnuToolsStatusTable", "Status &Table", "Ctrl+T", Shown},
        {"mnuToolsOnlineMon", "&Monitor Program Online", "Ctrl+M", Hidden},
        {"mnuToolsTrending", "T&rend Data", "Ctrl+R", Shown},
        {"mnuToolsPLSProgramming", "&PLS Programming", "Ctrl+L", Shown},
        {"mnuHelpTopics", "Help &Topics", "Ctrl+H", Shown},
        {"mnuHelpAbout", "&About Quentor", "", Shown},
        {"mnuStatusTableItem(0)", "&Copy", "", Shown},
        {"mnuStatusTableItem(2)", "&Find", "", Disabled},
        {"mnuStatusTableItem(4)", "Se&lect Program", "", Shown},
        {"mnuStatusTableItem(6)", "&Open Status Table", "", Shown},
        {"mnuStatusTableItem(7)", "&New Status Table", "", Shown},
        {"mnuStatusTableItem(9)", "&Save Status Table", "", Shown},
        {"mnuStatusTableItem(10)", "Save Status Table &As...", "", Shown},
        {"mnuFileListPopupOpen", "Open", "", Hidden},
        {"mnuFileListPopupSaveAs", "Save As...", "", Shown},
        {"mnuFileListPopupCompile", "Compile", "", Hidden},
        {"mnuFileListPopupSearch", "Search", "", Hidden},
        {"mnuFileListPopupDownloadProg", "Download Program", "", Shown},
        {"mnuFileListPopupDownloadToPLS", "Download to PLS", "", Shown},
        {"mnuFileListPopupUploadFromPLS", "Upload From PLS", "", Shown},
        {"mnuFileListPopupDelete", "Delete", "", Shown},
        {"mnuFileListPopupRename", "Rename", "", Shown},
        {"mnuFileListPopupPrint", "Print", "", Hidden},
    };
    for (const Expected& expected : table) {
        const MenuEntry* entry = FindEntry(expected.name);
        ASSERT_NE(entry, nullptr) << expected.name;
        EXPECT_STREQ(entry->caption, expected.caption) << expected.name;
        EXPECT_STREQ(entry->key, expected.key) << expected.name;
        EXPECT_EQ(entry->start, expected.start) << expected.name;
    }
}

TEST(CommandTable, StatusTableMenuHasItsSeparators) {
    for (const char* name : {"mnuStatusTableItem(1)", "mnuStatusTableItem(3)",
                             "mnuStatusTableItem(5)", "mnuStatusTableItem(8)"}) {
        ASSERT_NE(FindEntry(name), nullptr) << name;
        EXPECT_STREQ(FindEntry(name)->caption, "") << name;
    }
}

TEST(CommandTable, NoNameAndNoKeyStandsTwice) {
    QSet<QString> names;
    QSet<QString> keys;
    for (const MenuTable& menu : MenuTables()) {
        for (const MenuEntry& entry : menu.entries) {
            const QString name = QString::fromLatin1(entry.name);
            const QString key = QString::fromLatin1(entry.key);
            EXPECT_TRUE(name.isEmpty() || !names.contains(name)) << entry.name;
            EXPECT_TRUE(key.isEmpty() || !keys.contains(key)) << entry.key;
            names << name;
            keys << key;
        }
    }
}

TEST(CommandTable, ToolbarHasThirteenButtonsAtTheirIndexes) {
    const std::vector<ToolbarEntry>& buttons = ToolbarTable();
    ASSERT_EQ(buttons.size(), 18U);
    QString keys;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(buttons[i].index, static_cast<int>(i) + 1);
        keys += QString::fromLatin1(buttons[i].key) + u'|';
    }
    EXPECT_EQ(keys.toStdString(), "|New|Open|Print||Search|View||Program|Upload|Download||Monitor|"
                                  "Status|Trend|PLS||PLC|");
    EXPECT_STREQ(FindButton("Program")->toolTip, "Download Program to PLC/PLS");
    EXPECT_STREQ(FindButton("PLC")->toolTip, "Target Board Interface");
}

TEST(CommandTable, ButtonsTakeTheRouteOfTheBoard) {
    EXPECT_EQ(Command("Program", false).toStdString(), "mnuFileListPopupDownloadProg");
    EXPECT_EQ(Command("Program", true).toStdString(), "mnuFileListPopupDownloadToPLS");
    EXPECT_EQ(Command("Upload", false).toStdString(), "Upload");
    EXPECT_EQ(Command("Upload", true).toStdString(), "mnuFileListPopupUploadFromPLS");
    EXPECT_EQ(Command("Download", false).toStdString(), "Download");
    EXPECT_EQ(Command("Download", true).toStdString(), "mnuFileListPopupDownloadToPLS");
    EXPECT_EQ(Command("Status", true).toStdString(), "mnuToolsStatusTable");
    EXPECT_EQ(Command("PLC", true).toStdString(), "PLC");
}
