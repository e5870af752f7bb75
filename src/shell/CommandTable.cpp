#include "shell/CommandTable.h"

namespace {
using enum CommandStart;

constexpr MenuEntry separator{"", ""};

MenuTable FileMenu() {
    return {"mnuFile",
            "&File",
            false,
            {
                {"mnuFileNew", "&New Halden Program", "Ctrl+N", Hidden},
                {"mnuFileOpen", "&Open Halden Program...", "Ctrl+O", Hidden},
                {"mnuFileSaveAs", "Save Halden Program &As..."},
                {"mnuFileDelete", "&Delete Halden Program"},
                {"mnuFileRename", "R&ename Halden Program"},
                {"mnuFileSep1", ""},
                {"mnuFileCompile", "&Compile Program", "", Hidden},
                {"mnuFileDownloadProgram", "Download PLC P&rogram"},
                {"mnuFileDownloadData", "Download Targetboard Da&ta"},
                {"mnuFileDownloadFile", "Download Data&file"},
                {"mnuFileDownloadToPLS", "Download to P&LS"},
                {"mnuFileSep2", ""},
                {"mnuFileUploadData", "&Upload Targetboard Data"},
                {"mnuFileUploadProgram", "Upload PLC/PLS Pro&gram"},
                {"mnuFileUploadFromPLS", "Upload from PL&S"},
                {"mnuFileSep3", ""},
                {"mnuFilePrintStatusTable", "Print Status Table", "", ShownLater},
                {"mnuFilePrintResults", "Print Results", "", ShownLater},
                {"mnuFilePrintTrendData", "Print Trending Data", "", ShownLater},
                {"mnuFilePrintProgram", "&Print Program", "Ctrl+P", Hidden},
                {"mnuFileSep4", "", "", ShownLater},
                {"mnuFileList(0)", "&1 Recent File", "", ShownLater},
                {"mnuFileList(1)", "&2 Recent File", "", ShownLater},
                {"mnuFileList(2)", "&3 Recent File", "", ShownLater},
                {"mnuFileList(3)", "&4 Recent File", "", ShownLater},
                {"mnuFileSep5", ""},
                {"mnuFileExit", "E&xit"},
            }};
}

MenuTable EditMenu() {
    return {"mnuEdit",
            "&Edit",
            false,
            {
                {"mnuEditCopy", "Copy", "Ctrl+C", ShownLater},
                {"mnuEditSep1", "", "", ShownLater},
                {"mnuEditSysConfig", "&System Configuration", "", Hidden},
                {"mnuEditVarDoc", "&Variable Documentation", "", Hidden},
                {"mnuEditCommPort", "Co&mm Port"},
            }};
}

MenuTable ViewMenu() {
    return {"mnuView",
            "&View",
            false,
            {
                {"mnuViewOnline", "O&nline Data", "F3", Shown, true},
                {"mnuViewOffline", "O&ffline Data", "F4", Shown, true},
                {"mnuViewSep1", ""},
                {"mnuViewTargetBoardStatus", "Target &Board Interface", "F5"},
                {"mnuViewSep2", ""},
                {"mnuViewCompileErrors", "&Compile Errors"},
                {"mnuViewSearchResults", "Search &Results", "", ShownLater},
            }};
}

MenuTable StatusTableMenu() {
    return {"mnuStatusTable",
            "&Status Table",
            false,
            {
                {"mnuStatusTableItem(0)", "&Copy"},
                {"mnuStatusTableItem(1)", ""},
                {"mnuStatusTableItem(2)", "&Find", "", Disabled},
                {"mnuStatusTableItem(3)", ""},
                {"mnuStatusTableItem(4)", "Se&lect Program"},
                {"mnuStatusTableItem(5)", ""},
                {"mnuStatusTableItem(6)", "&Open Status Table"},
                {"mnuStatusTableItem(7)", "&New Status Table"},
                {"mnuStatusTableItem(8)", ""},
                {"mnuStatusTableItem(9)", "&Save Status Table"},
                {"mnuStatusTableItem(10)", "Save Status Table &As..."},
            }};
}

MenuTable ToolsMenu() {
    return {"mnuTools",
            "&Tools",
            false,
            {
                {"mnuToolsSearch", "&Search", "Ctrl+F", Hidden},
                {"mnuToolsStatusTable", "Status &Table", "Ctrl+T"},
                {"mnuToolsOnlineMon", "&Monitor Program Online", "Ctrl+M", Hidden},
                {"mnuToolsTrending", "T&rend Data", "Ctrl+R"},
                {"mnuToolsPLSProgramming", "&PLS Programming", "Ctrl+L"},
            }};
}

MenuTable HelpMenu() {
    return {"mnuHelp",
            "&Help",
            false,
            {
                {"mnuHelpTopics", "Help &Topics", "Ctrl+H"},
                separator,
                {"mnuHelpAbout", "&About Quentor"},
            }};
}

MenuTable TrendingPopup() {
    return {"mnuTrendingPopup",
            "",
            true,
            {
                {"mnuTrendingPopupOpen", "&Open Trend Sample"},
                {"mnuTrendingPopupSave", "S&ave Trend Sample"},
                {"mnuTrendingPopupCopy", "&Copy      Ctrl+C"},
                {"mnuTrendingPopupPrint", "&Print Trend Data"},
                separator,
                {"mnuTrendingPopupExport", "Export CSV"},
            }};
}

MenuTable FileListPopup() {
    return {"mnuFileListPopup",
            "",
            true,
            {
                {"mnuFileListPopupOpen", "Open", "", Hidden},
                {"mnuFileListPopupSaveAs", "Save As..."},
                {"mnuFileListPopupCompile", "Compile", "", Hidden},
                {"mnuFileListPopupSearch", "Search", "", Hidden},
                separator,
                {"mnuFileListPopupDownloadProg", "Download Program"},
                {"mnuFileListPopupDownloadToPLS", "Download to PLS"},
                {"mnuFileListPopupUploadFromPLS", "Upload From PLS"},
                separator,
                {"mnuFileListPopupDelete", "Delete"},
                {"mnuFileListPopupRename", "Rename"},
                {"mnuFileListPopupPrint", "Print", "", Hidden},
            }};
}
} // namespace

const std::vector<MenuTable>& MenuTables() {
    static const std::vector<MenuTable> tables = {
        FileMenu(),  EditMenu(), ViewMenu(),      StatusTableMenu(),
        ToolsMenu(), HelpMenu(), TrendingPopup(), FileListPopup(),
    };
    return tables;
}

const std::vector<ToolbarEntry>& ToolbarTable() {
    static const std::vector<ToolbarEntry> buttons = {
        {1, "", ""},
        {2, "New", "Create New PLC/PLS Program", Hidden, false, "mnuFileNew"},
        {3, "Open", "Open Existing PLC/PLS Program", Hidden, true},
        {4, "Print", "Print", Hidden},
        {5, "", ""},
        {6, "Search", "Search PLC Program", Hidden, true},
        {7, "View", "View Results", Disabled, false, "mnuViewSearchResults"},
        {8, "", ""},
        {9, "Program", "Download Program to PLC/PLS", Shown, true, "mnuFileListPopupDownloadProg",
         "mnuFileListPopupDownloadToPLS"},
        {10, "Upload", "Upload Data from PLC/PLS", Shown, true, "",
         "mnuFileListPopupUploadFromPLS"},
        {11, "Download", "Download Data to PLC/PLS", Shown, true, "",
         "mnuFileListPopupDownloadToPLS"},
        {12, "", ""},
        {13, "Monitor", "Monitor Program Online", Hidden, true},
        {14, "Status", "Status Table", Shown, false, "mnuToolsStatusTable"},
        {15, "Trend", "Trend Data", Shown, false, "mnuToolsTrending"},
        {16, "PLS", "PLS Programming", Shown, false, "mnuToolsPLSProgramming"},
        {17, "", ""},
        {18, "PLC", "Target Board Interface", Shown, true},
    };
    return buttons;
}

QString ToolbarCommand(const ToolbarEntry& button, bool plsBoard) {
    const QString pls = QString::fromLatin1(button.plsCommand);
    if (plsBoard && !pls.isEmpty())
        return pls;
    const QString plc = QString::fromLatin1(button.plcCommand);
    return plc.isEmpty() ? QString::fromLatin1(button.key) : plc;
}

QString ElementName(const QString& array, int index) {
    return QStringLiteral("%1(%2)").arg(array).arg(index);
}
