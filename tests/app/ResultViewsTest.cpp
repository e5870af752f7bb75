#include "controls/grid/Grid.h"
#include "results/ResultsText.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include "support/gui/ModalView.h"
#include "WholeProgram.h"
#include <QAction>
#include <QFile>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {
const QString resultsView = QStringLiteral("frmViewResults");

class ResultEntries : public WholeProgram {
protected:
    void SetUp() override {
        gResultsText.clear();
        gResultsShown.clear();
        WholeProgram::SetUp();
    }
    void TearDown() override {
        gResultsText.clear();
        gResultsShown.clear();
    }
    void Run(const char* command) { Window().Commands().Run(QLatin1String(command)); }
    QString Shown() { return Find<QPlainTextEdit>(QStringLiteral("txtViewErrors"))->toPlainText(); }
    bool IsUp() { return Window().IsViewVisible(resultsView); }
    void ShowErrors() {
        WriteSetFile(QStringLiteral("UNIT.err"), "Compiler\r\nUNIT\r\nERROR 5\r\n");
        dialogs_.ExpectOpen(SetPath(QStringLiteral("UNIT.hdn")));
        Entry(QStringLiteral("mnuViewCompileErrors"))->trigger();
    }
    void ClickInView(const char* name) {
        QWidget* view = Window().Children().View(resultsView);
        ASSERT_NE(view, nullptr);
        QTest::mouseClick(PartOf<QPushButton>(*view, name), Qt::LeftButton);
    }
    /// Opens the menu of the status table as a right click does and looks at "&Find".
    bool FindIsOffered() {
        QMenu* menu = Window().Commands().Menu(QStringLiteral("mnuStatusTable"));
        menu->popup(QPoint());
        menu->close();
        return Entry(QStringLiteral("mnuStatusTableItem(2)"))->isEnabled();
    }
    void SelectTableProgram(const char* set) {
        dialogs_.ExpectOpen(SetPath(QLatin1String(set) + QStringLiteral(".hdn")));
        Entry(QStringLiteral("mnuStatusTableItem(4)"))->trigger();
    }
    void WriteNames(const char* set) {
        WriteSetFile(QLatin1String(set) + QStringLiteral(".nam"), "0001A\r\n");
        WriteSetFile(QLatin1String(set) + QStringLiteral(".doc"), "0001a\r\n");
    }
};
} // namespace

TEST_F(ResultEntries, CompileErrorsOfTheSetThatIsChosenAreShown) {
    ShowErrors();
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Window().ActiveChildName(), resultsView);
    EXPECT_EQ(Shown(), QStringLiteral("Compiler\nUNIT\nERROR 5\n"));
    EXPECT_FALSE(Entry(QStringLiteral("mnuViewSearchResults"))->isVisible());
}

TEST_F(ResultEntries, ADoubleClickOnTheErrorNodeShowsTheErrors) {
    WriteSetFile(QStringLiteral("UNIT.err"), "Compiler\r\nUNIT\r\nERROR 7\r\n");
    Window().Browser().dirDirList_Change();
    ClickSet(QStringLiteral("UNIT.hdn"));
    DoubleClickNode(QStringLiteral("ERROR (.err)"));
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Shown(), QStringLiteral("Compiler\nUNIT\nERROR 7\n"));
    EXPECT_EQ(gHdnFile, SetPath(QStringLiteral("UNIT.hdn")));
}

TEST_F(ResultEntries, ASetSelectedWhileAnErrorFileIsWaitedForStaysSelected) {
    WriteSetFile(QStringLiteral("UNIT.err"), "");
    Window().Browser().dirDirList_Change();
    ClickSet(QStringLiteral("UNIT.hdn"));
    QTimer::singleShot(0, &Window(), [this] { ClickSet(QStringLiteral("PUMP.hdn")); });
    dialogs_.ExpectBoxTitled(QStringLiteral("DisplayResults"), MsgAnswer::Ok);
    DoubleClickNode(QStringLiteral("ERROR (.err)"));
    EXPECT_EQ(gHdnFile, SetPath(QStringLiteral("PUMP.hdn")));
}

TEST_F(ResultEntries, ASearchShowsItsResultsAndOffersThemAgain) {
    WriteSetFile(QStringLiteral("UNIT.gbl"), "Search\r\nB100\r\n");
    Run("mnuFileListPopupSearch");
    EXPECT_EQ(Shown(), QStringLiteral("-[UNIT]-\nSearch\nB100\n"));
    EXPECT_TRUE(Entry(QStringLiteral("mnuViewSearchResults"))->isVisible());
    EXPECT_TRUE(Entry(QStringLiteral("View"))->isEnabled());
    ClickInView("cmdOk");
    EXPECT_FALSE(IsUp());
    Press("View");
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Shown(), QStringLiteral("-[UNIT]-\nSearch\nB100\n"));
}

TEST_F(ResultEntries, ASecondSearchOnAnotherSetStandsInFrontUnderItsOwnTag) {
    WriteSetFile(QStringLiteral("UNIT.gbl"), "Search\r\nB100\r\n");
    WriteSetFile(QStringLiteral("PUMP.gbl"), "Search\r\nW200\r\n");
    Run("mnuFileListPopupSearch");
    ClickSet(QStringLiteral("PUMP.hdn"));
    Run("mnuFileListPopupSearch");
    EXPECT_EQ(Shown(), QStringLiteral("-[PUMP]-\nSearch\nW200\n-[UNIT]-\nSearch\nB100\n"));
}

TEST_F(ResultEntries, ASetSelectedWhileASearchRunsDoesNotTakeItsResults) {
    QTimer::singleShot(0, &Window(), [this] {
        ClickSet(QStringLiteral("PUMP.hdn"));
        WriteSetFile(QStringLiteral("UNIT.gbl"), "Search\r\nB100\r\n");
    });
    Run("mnuFileListPopupSearch");
    EXPECT_EQ(Shown(), QStringLiteral("-[UNIT]-\nSearch\nB100\n"));
    EXPECT_EQ(gHdnFile, SetPath(QStringLiteral("PUMP.hdn")));
}

TEST_F(ResultEntries, AfterClearTheSearchResultsAreAnEmptyPage) {
    WriteSetFile(QStringLiteral("UNIT.gbl"), "Search\r\nB100\r\n");
    Run("mnuFileListPopupSearch");
    dialogs_.ExpectBox(QStringLiteral("Do you wish to clear the contents of this page?"),
                       MsgStyle::YesNoQuestion, QStringLiteral("Clear Results"), MsgAnswer::Yes);
    ClickInView("cmdClear");
    Entry(QStringLiteral("mnuViewSearchResults"))->trigger();
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Shown(), QString());
}

TEST_F(ResultEntries, ThePrintEntryShowsWhileTheViewIsActive) {
    const QAction* print = Entry(QStringLiteral("mnuFilePrintResults"));
    EXPECT_FALSE(print->isVisible());
    ShowErrors();
    EXPECT_TRUE(print->isVisible());
    EXPECT_TRUE(print->isEnabled());
    EXPECT_EQ(gPrintContext, PrintContext::Results);
    EXPECT_TRUE(Find<QPlainTextEdit>(QStringLiteral("txtViewErrors"))->hasFocus());
    Press("Status");
    EXPECT_FALSE(print->isVisible());
    EXPECT_EQ(gPrintContext, PrintContext::StatusTable);
    Window().Children().Show(resultsView);
    EXPECT_TRUE(print->isVisible());
    EXPECT_EQ(gPrintContext, PrintContext::Results);
    ClickInView("cmdOk");
    EXPECT_FALSE(print->isVisible());
    EXPECT_NE(gPrintContext, PrintContext::Results);
}

TEST_F(ResultEntries, TheMenuAndThePrintButtonPrintTheResults) {
    ShowErrors();
    const QString pdf = root_.filePath(QStringLiteral("results.pdf"));
    for (const bool byMenu : {true, false}) {
        dialogs_.ExpectPrinter({QString(), pdf, 1});
        if (byMenu)
            Entry(QStringLiteral("mnuFilePrintResults"))->trigger();
        else
            Run("Print");
        EXPECT_TRUE(Content(pdf).startsWith("%PDF")) << byMenu;
        QFile::remove(pdf);
    }
}

TEST_F(ResultEntries, FindIsDisabledUntilTheTableHasAProgramThatCanBeSearched) {
    Press("Status");
    EXPECT_FALSE(Entry(QStringLiteral("mnuStatusTableItem(2)"))->isEnabled());
    EXPECT_FALSE(FindIsOffered());
    WriteNames("UNIT");
    SelectTableProgram("UNIT");
    EXPECT_TRUE(FindIsOffered());
}

TEST_F(ResultEntries, FindSearchesTheProgramOfTheTableAndRestoresTheSelectedSet) {
    WriteNames("UNIT");
    WriteSetFile(QStringLiteral("UNIT.gbl"), "Search\r\nB100\r\n");
    WriteSetFile(QStringLiteral("PUMP.gbl"), "Search\r\nW200\r\n");
    Press("Status");
    SelectTableProgram("UNIT");
    ClickSet(QStringLiteral("PUMP.hdn"));
    Press("Status");
    ASSERT_TRUE(FindIsOffered());
    Entry(QStringLiteral("mnuStatusTableItem(2)"))->trigger();
    EXPECT_TRUE(IsUp());
    EXPECT_EQ(Shown(), QStringLiteral("-[UNIT]-\nSearch\nB100\n"));
    EXPECT_EQ(gHdnFile, SetPath(QStringLiteral("PUMP.hdn")));
}

TEST_F(ResultEntries, FindWithoutResultsIsToldAndRestoresTheSelectedSet) {
    WriteNames("UNIT");
    Press("Status");
    SelectTableProgram("UNIT");
    ClickSet(QStringLiteral("PUMP.hdn"));
    Press("Status");
    ASSERT_TRUE(FindIsOffered());
    dialogs_.ExpectBox(QStringLiteral("File Not Found ") + SetPath(QStringLiteral("UNIT.gbl")),
                       MsgStyle::Information, QStringLiteral("XSearch"), MsgAnswer::Ok);
    Entry(QStringLiteral("mnuStatusTableItem(2)"))->trigger();
    EXPECT_FALSE(IsUp());
    EXPECT_EQ(gHdnFile, SetPath(QStringLiteral("PUMP.hdn")));
}

TEST_F(ResultEntries, TheDocumentationOfTheSetThatIsChosenIsShown) {
    WriteSetFile(QStringLiteral("UNIT.nam"), "0012START\r\n");
    dialogs_.ExpectOpen(SetPath(QStringLiteral("UNIT.hdn")));
    WhenUp("frmEditDoc", [](QWidget& view) {
        const auto* table = view.findChild<Grid*>(QStringLiteral("fgEditDoc"));
        EXPECT_EQ(table->TextMatrix(1, 0), QStringLiteral("F0012"));
        EXPECT_EQ(table->TextMatrix(1, 1), QStringLiteral("START"));
        ClickButton(view, "cmdOk");
    });
    Run("mnuEditVarDoc");
}
