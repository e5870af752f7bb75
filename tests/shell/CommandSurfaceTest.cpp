#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace {
// How an entry stands when the program has started without a recent list.
enum class Start { Hidden, Later, Disabled, Enabled };

struct Row {
    const char* name;
    const char* caption; // empty: a separator
    const char* key;
    Start start;
};

using enum Start;

const std::vector<Row> fileRows = {
    {"mnuFileNew", "&New Halden Program", "Ctrl+N", Hidden},
    {"mnuFileOpen", "&Open Halden Program...", "Ctrl+O", Hidden},
    {"mnuFileSaveAs", "Save Halden Program &As...", "", Enabled},
    {"mnuFileDelete", "&Delete Halden Program", "", Enabled},
    {"mnuFileRename", "R&ename Halden Program", "", Enabled},
    {"mnuFileSep1", "", "", Enabled},
    {"mnuFileCompile", "&Compile Program", "", Hidden},
    {"mnuFileDownloadProgram", "Download PLC P&rogram", "", Enabled},
    {"mnuFileDownloadData", "Download Targetboard Da&ta", "", Enabled},
    {"mnuFileDownloadFile", "Download Data&file", "", Enabled},
    {"mnuFileDownloadToPLS", "Download to P&LS", "", Enabled},
    {"mnuFileSep2", "", "", Enabled},
    {"mnuFileUploadData", "&Upload Targetboard Data", "", Enabled},
    {"mnuFileUploadProgram", "Upload PLC/PLS Pro&gram", "", Enabled},
    {"mnuFileUploadFromPLS", "Upload from PL&S", "", Enabled},
    {"mnuFileSep3", "", "", Enabled},
    {"mnuFilePrintStatusTable", "Print Status Table", "", Later},
    {"mnuFilePrintResults", "Print Results", "", Later},
    {"mnuFilePrintTrendData", "Print Trending Data", "", Later},
    {"mnuFilePrintProgram", "&Print Program", "Ctrl+P", Hidden},
    {"mnuFileSep4", "", "", Later},
    {"mnuFileList(0)", "&1 Recent File", "", Later},
    {"mnuFileList(1)", "&2 Recent File", "", Later},
    {"mnuFileList(2)", "&3 Recent File", "", Later},
    {"mnuFileList(3)", "&4 Recent File", "", Later},
    {"mnuFileSep5", "", "", Enabled},
    {"mnuFileExit", "E&xit", "", Enabled},
};
const std::vector<Row> editRows = {
    {"mnuEditCopy", "Copy", "Ctrl+C", Later},
    {"mnuEditSep1", "", "", Later},
    {"mnuEditSysConfig", "&System Configuration", "", Hidden},
    {"mnuEditVarDoc", "&Variable Documentation", "", Hidden},
    {"mnuEditCommPort", "Co&mm Port", "", Enabled},
};
const std::vector<Row> viewRows = {
    {"mnuViewOnline", "O&nline Data", "F3", Enabled},
    {"mnuViewOffline", "O&ffline Data", "F4", Enabled},
    {"mnuViewSep1", "", "", Enabled},
    {"mnuViewTargetBoardStatus", "Target &Board Interface", "F5", Enabled},
    {"mnuViewSep2", "", "", Enabled},
    {"mnuViewCompileErrors", "&Compile Errors", "", Enabled},
    {"mnuViewSearchResults", "Search &Results", "", Later},
};
const std::vector<Row> toolsRows = {
    {"mnuToolsSearch", "&Search", "Ctrl+F", Hidden},
    {"mnuToolsStatusTable", "Status &Table", "Ctrl+T", Enabled},
    {"mnuToolsOnlineMon", "&Monitor Program Online", "Ctrl+M", Hidden},
    {"mnuToolsTrending", "T&rend Data", "Ctrl+R", Enabled},
    {"mnuToolsPLSProgramming", "&PLS Programming", "Ctrl+L", Enabled},
};
const std::vector<Row> helpRows = {
    {"mnuHelpTopics", "Help &Topics", "Ctrl+H", Enabled},
    {"", "", "", Enabled},
    {"mnuHelpAbout", "&About Quentor", "", Enabled},
};
const std::vector<Row> trendingPopupRows = {
    {"mnuTrendingPopupOpen", "&Open Trend Sample", "", Enabled},
    {"mnuTrendingPopupSave", "S&ave Trend Sample", "", Enabled},
    {"mnuTrendingPopupCopy", "&Copy      Ctrl+C", "", Enabled},
    {"mnuTrendingPopupPrint", "&Print Trend Data", "", Enabled},
    {"", "", "", Enabled},
    {"mnuTrendingPopupExport", "Export CSV", "", Enabled},
};
// No set is selected at the start.
const std::vector<Row> fileListPopupRows = {
    {"mnuFileListPopupOpen", "Open", "", Hidden},
    {"mnuFileListPopupSaveAs", "Save As...", "", Disabled},
    {"mnuFileListPopupCompile", "Compile", "", Hidden},
    {"mnuFileListPopupSearch", "Search", "", Hidden},
    {"", "", "", Enabled},
    {"mnuFileListPopupDownloadProg", "Download Program", "", Disabled},
    {"mnuFileListPopupDownloadToPLS", "Download to PLS", "", Disabled},
    {"mnuFileListPopupUploadFromPLS", "Upload From PLS", "", Disabled},
    {"", "", "", Enabled},
    {"mnuFileListPopupDelete", "Delete", "", Disabled},
    {"mnuFileListPopupRename", "Rename", "", Disabled},
    {"mnuFileListPopupPrint", "Print", "", Hidden},
};

class Surface : public WholeWindow {
protected:
    void SetUp() override {
        Start();
        Window().Children().Hide("frmStatusTable"); // so that its entries are down
        Window().Browser().dirDirList_Change();
    }
    void ExpectMenu(const char* name, const std::vector<Row>& rows) {
        const QList<QAction*> actions =
            Window().Commands().Menu(QString::fromLatin1(name))->actions();
        ASSERT_EQ(actions.size(), static_cast<qsizetype>(rows.size())) << name;
        for (qsizetype i = 0; i < actions.size(); ++i)
            ExpectRow(*actions[i], rows[static_cast<std::size_t>(i)]);
    }
    static void ExpectRow(const QAction& action, const Row& row) {
        EXPECT_EQ(action.objectName().toStdString(), row.name);
        EXPECT_EQ(action.text().toStdString(), row.caption) << row.name;
        EXPECT_EQ(action.shortcut().toString().toStdString(), row.key) << row.name;
        EXPECT_EQ(action.isSeparator(), *row.caption == '\0') << row.name;
        EXPECT_EQ(action.isVisible(), row.start == Enabled || row.start == Disabled) << row.name;
        if (!action.isSeparator() && row.start != Later) {
            EXPECT_EQ(action.isEnabled(), row.start == Enabled) << row.name;
        }
    }
};
} // namespace

TEST_F(Surface, MenusStandAsTheirTablesSay) {
    QStringList captions;
    for (const QAction* menu : Window().menuBar()->actions()) {
        if (menu->isVisible())
            captions << menu->text();
    }
    EXPECT_EQ(captions.join(u' ').toStdString(), "&File &Edit &View &Tools &Help");
    ExpectMenu("mnuFile", fileRows);
    ExpectMenu("mnuEdit", editRows);
    ExpectMenu("mnuView", viewRows);
    ExpectMenu("mnuTools", toolsRows);
    ExpectMenu("mnuHelp", helpRows);
    EXPECT_TRUE(Entry("mnuViewOffline")->isChecked());
    EXPECT_FALSE(Entry("mnuViewOnline")->isChecked());
}

TEST_F(Surface, PopupsStandAsTheirTablesSay) {
    ExpectMenu("mnuTrendingPopup", trendingPopupRows);
    ExpectMenu("mnuFileListPopup", fileListPopupRows);
}

TEST_F(Surface, PopupOfASetEnablesWhatItsBoardTakes) {
    GoToSets();
    for (const char* name : {"PUMP.hdn", "CAMS.hdn"}) {
        ClickSet(QString::fromLatin1(name));
        const bool plc = QLatin1String(name) == QLatin1String("PUMP.hdn");
        EXPECT_EQ(Entry("mnuFileListPopupDownloadProg")->isEnabled(), plc);
        for (const char* both :
             {"mnuFileListPopupSaveAs", "mnuFileListPopupDelete", "mnuFileListPopupRename"})
            EXPECT_TRUE(Entry(both)->isEnabled()) << both;
    }
}

TEST_F(Surface, ToolbarStandsAsItsTableSays) {
    struct Button {
        int index;
        const char* key;
        const char* toolTip;
        bool shown;
    };
    const Button buttons[] = {
        {2, "New", "Create New PLC/PLS Program", false},
        {3, "Open", "Open Existing PLC/PLS Program", false},
        {4, "Print", "Print", false},
        {6, "Search", "Search PLC Program", false},
        {7, "View", "View Results", true},
        {9, "Program", "Download Program to PLC/PLS", true},
        {10, "Upload", "Upload Data from PLC/PLS", true},
        {11, "Download", "Download Data to PLC/PLS", true},
        {13, "Monitor", "Monitor Program Online", false},
        {14, "Status", "Status Table", true},
        {15, "Trend", "Trend Data", true},
        {16, "PLS", "PLS Programming", true},
        {18, "PLC", "Target Board Interface", true},
    };
    const QList<QAction*> actions = Find<QToolBar>("Toolbar1")->actions();
    ASSERT_EQ(actions.size(), 18);
    for (const int separator : {1, 5, 8, 12, 17})
        EXPECT_TRUE(actions[separator - 1]->isSeparator()) << separator;
    for (const Button& button : buttons) {
        const QAction& action = *actions[button.index - 1];
        EXPECT_EQ(action.objectName().toStdString(), button.key);
        EXPECT_EQ(action.toolTip().toStdString(), button.toolTip);
        EXPECT_EQ(action.isVisible(), button.shown) << button.key;
    }
    EXPECT_FALSE(Entry("View")->isEnabled());
}
