#include "session/Globals.h"
#include "shell/FileList.h"
#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QMenu>
#include <QTest>

namespace {
class Popup : public WholeWindow {
protected:
    void SetUp() override {
        Start();
        GoToSets();
    }
    QMenu* Menu() { return Window().Commands().Menu("mnuFileListPopup"); }
    /// A right click as the window system sends it: the press, then the wish for the menu.
    void RightClick(const QString& name) {
        ClickSet(name, Qt::RightButton);
        auto* list = Find<FileList>("filFileList");
        const QPoint position = list->visualRect(list->currentIndex()).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                                list->viewport()->mapToGlobal(position));
        QCoreApplication::sendEvent(list->viewport(), &event);
    }
    void AddPLSRoute() {
        for (const char* name : {"mnuFileListPopupDownloadToPLS", "mnuFileListPopupUploadFromPLS"})
            Window().Commands().Handle(name, [] {});
    }
    void ExpectEnabled(const char* name, bool enabled) {
        EXPECT_EQ(Entry(name)->isEnabled(), enabled) << name;
    }
};
} // namespace

TEST_F(Popup, ForAPLCSetOffersTheProgram) {
    AddPLSRoute();
    RightClick("PUMP.hdn");
    EXPECT_TRUE(Menu()->isVisible());
    ExpectEnabled("mnuFileListPopupDownloadProg", true);
    ExpectEnabled("mnuFileListPopupDownloadToPLS", false);
    ExpectEnabled("mnuFileListPopupUploadFromPLS", false);
    EXPECT_FALSE(Entry("mnuFileListPopupCompile")->isVisible());
    EXPECT_FALSE(Entry("mnuFileListPopupSearch")->isVisible());
}

TEST_F(Popup, ForAPLSSetOffersTheConfiguration) {
    AddPLSRoute();
    RightClick("CAMS.hdn");
    EXPECT_TRUE(Menu()->isVisible());
    ExpectEnabled("mnuFileListPopupDownloadProg", false);
    ExpectEnabled("mnuFileListPopupDownloadToPLS", true);
    ExpectEnabled("mnuFileListPopupUploadFromPLS", true);
    ExpectEnabled("mnuFileListPopupSaveAs", true);
}

TEST_F(Popup, TakesTheSelectionAsTheSetInUse) {
    ClickSet("PUMP.hdn");
    gHdnFile = "/somewhere/ELSE.hdn";
    RightClick("PUMP.hdn");
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
}

TEST_F(Popup, TheMenuKeyOpensItBelowTheMarkedSet) {
    ClickSet("PUMP.hdn");
    auto* list = Find<FileList>("filFileList");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(0, 0), QPoint(0, 0));
    QCoreApplication::sendEvent(list->viewport(), &event);
    EXPECT_TRUE(Menu()->isVisible());
    const QRect row = list->visualRect(list->currentIndex());
    EXPECT_EQ(Menu()->pos(), list->viewport()->mapToGlobal(row.bottomLeft()));
}

TEST_F(Popup, TheDeleteKeyRunsDelete) {
    ClickSet("PUMP.hdn");
    int deletes = 0;
    Window().Commands().Handle("mnuFileListPopupDelete", [&] { ++deletes; });
    QTest::keyClick(Find<FileList>("filFileList"), Qt::Key_Delete);
    EXPECT_EQ(deletes, 1);
}

TEST_F(Popup, TheDeleteKeyMeansTheMarkedSetWhateverACommandHasLeft) {
    ClickSet("PUMP.hdn");
    QString deleted;
    Window().Commands().Handle("mnuFileListPopupDelete", [&] { deleted = gHdnFile; });
    gHdnFile = SetPath("CAMS.hdn");
    QTest::keyClick(Find<FileList>("filFileList"), Qt::Key_Delete);
    EXPECT_EQ(deleted, SetPath("PUMP.hdn"));
}

TEST_F(Popup, TheEnterKeyStartsNothing) {
    ClickSet("PUMP.hdn");
    QTest::keyClick(Find<FileList>("filFileList"), Qt::Key_Return);
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_TRUE(tools_.commands.isEmpty());
}
