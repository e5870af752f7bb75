#include "app/WholeProgram.h"
#include "controls/entry/EntryUpDown.h"
#include "link/views/frmDownloadProg.h"
#include "ListOfView.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include <QAction>
#include <QApplication>
#include <QLineEdit>

// Each view of the program shows the texts of its list and no others.

namespace {
class ViewTexts : public WholeProgram {
protected:
    /// The child of the main window of this name has the texts of its list.
    void ExpectChildTexts(const char* name) {
        auto* view = Find<QWidget>(QLatin1String(name));
        ASSERT_NE(view, nullptr);
        EXPECT_EQ(DifferencesFromList(*view), "");
    }
    /// The modal view that comes up next has the texts of its list; it is left by this button.
    void ExpectModalTexts(const char* name, const char* leave) {
        WhenUp(name, [leave](QWidget& view) {
            EXPECT_EQ(DifferencesFromList(view), "");
            ClickButton(view, leave);
        });
    }
    void Trigger(const char* entry) { Entry(QLatin1String(entry))->trigger(); }
    void Run(const char* command) { Window().Commands().Run(QLatin1String(command)); }
    void ExpectOpenUnit() { dialogs_.ExpectOpen(SetPath(QStringLiteral("UNIT.hdn"))); }
    /// A question of this title is answered Yes; what it asks is told elsewhere.
    void SayYes(const char* title) {
        dialogs_.ExpectBoxTitled(QLatin1String(title), MsgAnswer::Yes);
    }
};
} // namespace

TEST_F(ViewTexts, OfTheMainWindow) {
    EXPECT_EQ(DifferencesFromList(Window()), "");
}

TEST_F(ViewTexts, OfTheBrowser) {
    ExpectChildTexts("frmMain");
}

TEST_F(ViewTexts, OfTheStatusTable) {
    ExpectChildTexts("frmStatusTable");
}

TEST_F(ViewTexts, OfTheTrend) {
    Trigger("mnuToolsTrending");
    ExpectChildTexts("frmTrending");
    ExpectModalTexts("frmTrendingPrint", "cmdCancel");
    Trigger("mnuTrendingPopupPrint");
}

TEST_F(ViewTexts, OfTheTimingView) {
    Trigger("mnuToolsPLSProgramming");
    ExpectChildTexts("frmTiming");
}

TEST_F(ViewTexts, OfCompileErrors) {
    WriteSetFile(QStringLiteral("UNIT.err"), "Compiler\r\nUNIT\r\nERROR 5\r\n");
    ExpectOpenUnit();
    Trigger("mnuViewCompileErrors");
    ExpectChildTexts("frmViewResults");
}

TEST_F(ViewTexts, OfThePortSettings) {
    ExpectModalTexts("frmSetupComm", "cmdCancel");
    Trigger("mnuEditCommPort");
}

TEST_F(ViewTexts, OfANewSet) {
    ExpectModalTexts("frmNewFile", "cmdCancel");
    Run("mnuFileNew");
}

TEST(ViewTextsOfParts, OfTheArrowsOfAnEntry) {
    QLineEdit entry;
    entry.setAccessibleName(QStringLiteral("Samples"));
    EntryUpDown arrows(entry);
    arrows.show(); // named once the entry has its name
    EXPECT_EQ(DifferencesFromList(arrows, QStringLiteral("EntryUpDown")), "");
}

TEST_F(ViewTexts, OfTheCopyOfASet) {
    ExpectModalTexts("frmCopyFile", "cmdCancel");
    Trigger("mnuFileSaveAs");
}

TEST_F(ViewTexts, OfADownloadOfData) {
    SayYes("Data Download [UNIT]");
    ExpectModalTexts("frmDataXfr", "cmdCancel");
    Press("Download");
}

TEST_F(ViewTexts, OfTheBusyView) {
    SayYes("Data Upload [UNIT]");
    WhenUp("frmDataXfr", [](QWidget& view) { EnterRange(view, 70, 219); });
    ExpectModalTexts("frmWaitDisplay", "cmdCancel");
    Press("Upload");
}

TEST_F(ViewTexts, OfAProgramTransfer) {
    const frmDownloadProg view(Link());
    EXPECT_EQ(DifferencesFromList(view), "");
}

TEST_F(ViewTexts, OfTheVariableDocumentation) {
    ExpectOpenUnit();
    ExpectModalTexts("frmEditDoc", "cmdOk");
    Run("mnuEditVarDoc");
}

TEST_F(ViewTexts, OfTheFilesOfALimitSwitchSet) {
    WriteSetFile(QStringLiteral("CAM.hdn"), "7\r\n");
    WriteSetFile(QStringLiteral("CAM.pcf"),
                 "163603012100005020030350004012000000000000000000%\r\n");
    Window().Browser().dirDirList_Change();
    ClickSet(QStringLiteral("CAM.hdn"));
    ExpectModalTexts("frmPLSView", "cmdOk");
    DoubleClickNode(QStringLiteral("PLS Config (.pcf)"));
}

TEST_F(ViewTexts, OfTheTargetBoardView) {
    ExpectModalTexts("frmTargetBoard", "cmdOk");
    Press("PLC");
}

TEST_F(ViewTexts, OfTheSplash) {
    WhenUp("frmSplash", [](QWidget& view) {
        EXPECT_EQ(DifferencesFromList(view), "");
        view.close();
    });
    Window().Views().frmSplash();
}

TEST_F(ViewTexts, OfAboutAndOfTheSystemInformation) {
    ExpectModalTexts("frmAbout", "cmdSysInfo");
    ExpectModalTexts("frmSysInfo", "cmdOk");
    WhenUp("frmAbout", [](QWidget& view) { ClickButton(view, "cmdOk"); });
    Trigger("mnuHelpAbout");
}

TEST_F(ViewTexts, OfTheHelp) {
    Trigger("mnuHelpTopics");
    int found = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() != QLatin1String("frmHelp"))
            continue;
        ++found;
        EXPECT_EQ(DifferencesFromList(*window), "");
    }
    EXPECT_EQ(found, 1);
}
