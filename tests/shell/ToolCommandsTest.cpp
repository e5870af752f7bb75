#include "session/Globals.h"
#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QFile>
#include <QTest>

namespace {
class Tools : public WholeWindow {
protected:
    void SetUp() override {
        Start();
        GoToSets();
        ClickSet("PUMP.hdn");
        Window().Views().frmViewResults = [this](qint16 mode) { resultModes_ << mode; };
        Window().Views().frmEditDoc = [this](const QString& path) { documented_ << path; };
        Window().TakeViews();
    }
    void Run(const char* name) { Window().Commands().Run(QString::fromLatin1(name)); }

    QList<qint16> resultModes_;
    QStringList documented_;
};
} // namespace

TEST_F(Tools, SearchWaitsForItsResultsAndShowsThem) {
    WriteSetFile("PUMP.GBL", "found\r\n");
    EXPECT_FALSE(Entry("mnuViewSearchResults")->isVisible());
    Run("mnuFileListPopupSearch");
    EXPECT_TRUE(Entry("mnuViewSearchResults")->isVisible());
    EXPECT_TRUE(Entry("View")->isEnabled());
    EXPECT_EQ(resultModes_, QList<qint16>{1});
    Entry("mnuViewSearchResults")->trigger();
    EXPECT_EQ(resultModes_, (QList<qint16>{1, 2}));
}

TEST_F(Tools, SearchWithoutResultsIsToldAfter100Seconds) {
    const double start = clock_.MonotonicSeconds();
    dialogs_.ExpectBox("File Not Found " + SetPath("PUMP.gbl"), 64, "XSearch", MsgAnswer::Ok);
    Run("mnuToolsSearch");
    EXPECT_NEAR(clock_.MonotonicSeconds() - start, 100.0, 0.2);
    EXPECT_FALSE(Entry("mnuViewSearchResults")->isVisible());
}

TEST_F(Tools, LimitSwitchSetsAreNotSearched) {
    WriteSetFile("CAMS.gbl", "found\r\n");
    ClickSet("CAMS.hdn");
    Run("Search");
    EXPECT_TRUE(resultModes_.isEmpty());
}

TEST_F(Tools, MonitorFreesThePort) {
    Entry("mnuViewOnline")->trigger();
    ASSERT_TRUE(Link().OnlineMode());
    Run("mnuToolsOnlineMon");
    EXPECT_FALSE(Link().OnlineMode());
    EXPECT_FALSE(port_.PortOpen());
}

TEST_F(Tools, CompileErrorsAreShownOrMissed) {
    dialogs_.ExpectOpen(SetPath("PUMP.hdn"));
    dialogs_.ExpectBox("Error File Does Not Exist", 64, "View Errors", MsgAnswer::Ok);
    Entry("mnuViewCompileErrors")->trigger();
    EXPECT_TRUE(resultModes_.isEmpty());
    WriteSetFile("PUMP.Err", "line 1\r\n");
    dialogs_.ExpectOpen(SetPath("PUMP.hdn"));
    Entry("mnuViewCompileErrors")->trigger();
    EXPECT_EQ(resultModes_, QList<qint16>{0});
}

TEST_F(Tools, ErrorNodeShowsTheCompileErrors) {
    WriteSetFile("PUMP.err", "line 1\r\n");
    Window().Browser().dirDirList_Change();
    ClickSet("PUMP.hdn");
    DoubleClickNode("ERROR (.err)");
    EXPECT_EQ(resultModes_, QList<qint16>{0});
}

TEST_F(Tools, DocumentationOfALimitSwitchSetIsRefused) {
    dialogs_.ExpectOpen(SetPath("CAMS.hdn"));
    dialogs_.ExpectBox("Select FILE - OPEN to Edit PLS Documentation.", 64, "PLS Target Board",
                       MsgAnswer::Ok);
    Run("mnuEditVarDoc");
    EXPECT_TRUE(documented_.isEmpty());
    dialogs_.ExpectOpen(SetPath("PUMP.hdn"));
    Run("mnuEditVarDoc");
    EXPECT_EQ(documented_, QStringList{SetPath("PUMP.hdn")});
}

TEST_F(Tools, RequestsToTheToolsStartNothing) {
    for (const char* name : {"mnuFileOpen", "mnuFileCompile", "mnuFilePrintProgram",
                             "mnuEditSysConfig", "mnuFileListPopupOpen", "mnuFileListPopupCompile",
                             "mnuFileListPopupPrint", "Open", "Print", "Monitor"}) {
        Run(name);
        EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn")) << name;
        EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [PUMP]") << name;
    }
    EXPECT_TRUE(tools_.commands.isEmpty());
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(Tools, PrintButtonServesTheViewThatIsInFront) {
    QStringList printed;
    for (const char* name :
         {"mnuFilePrintStatusTable", "mnuFilePrintResults", "mnuFilePrintTrendData"})
        Window().Commands().Handle(QString::fromLatin1(name),
                                   [&printed, name] { printed << QString::fromLatin1(name); });
    for (const qint16 context : {PrintContext::StatusTable, PrintContext::Results,
                                 PrintContext::Trending, PrintContext::Browser}) {
        gPrintContext = context;
        Run("Print");
    }
    EXPECT_EQ(printed.join(u' ').toStdString(),
              "mnuFilePrintStatusTable mnuFilePrintResults mnuFilePrintTrendData");
}

TEST_F(Tools, KeysOfHiddenCommandsDoNothing) {
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_O, Qt::Key_P, Qt::Key_F, Qt::Key_M})
        QTest::keyClick(&Window(), key, Qt::ControlModifier);
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_TRUE(dialogs_.FileRequests().empty());
}
