#include "session/Globals.h"
#include "shell/frmMDIMain.h"
#include "WholeProgram.h"
#include <QAction>
#include <QTest>

namespace {
// The entries of the main window that bring a view up.
class ViewEntries : public WholeProgram {
protected:
    /// The view that is active after a key.
    std::string ActiveAfter(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        Window().activateWindow();
        QTest::keyClick(&Window(), key, modifiers);
        return Window().ActiveChildName().toStdString();
    }
    std::string ActiveAfter(const char* button) {
        Press(button);
        return Window().ActiveChildName().toStdString();
    }
};
} // namespace

TEST_F(ViewEntries, KeysBringTheViewsUp) {
    EXPECT_EQ(ActiveAfter(Qt::Key_R), "frmTrending");
    EXPECT_EQ(ActiveAfter(Qt::Key_L), "frmTiming");
    EXPECT_EQ(ActiveAfter(Qt::Key_T), "frmStatusTable");
    EXPECT_TRUE(port_.Sent().empty()) << "no view goes online by itself";
}

TEST_F(ViewEntries, ButtonsBringTheViewsUp) {
    EXPECT_EQ(ActiveAfter("Trend"), "frmTrending");
    EXPECT_EQ(ActiveAfter("PLS"), "frmTiming");
    EXPECT_EQ(ActiveAfter("Status"), "frmStatusTable");
    EXPECT_TRUE(port_.Sent().empty());
}

TEST_F(ViewEntries, F5AsksForTheSetAndShowsItsBoard) {
    dialogs_.ExpectOpen(SetPath(QStringLiteral("PUMP.hdn")));
    bool up = false;
    WhenUp("frmTargetBoard", [&](QWidget& view) {
        up = Window().IsViewVisible(QStringLiteral("frmTargetBoard"));
        ClickButton(view, "cmdOk");
    });
    ActiveAfter(Qt::Key_F5, Qt::NoModifier);
    EXPECT_TRUE(up);
    EXPECT_EQ(gHdnFile, SetPath(QStringLiteral("PUMP.hdn")));
}

TEST_F(ViewEntries, TheBoardButtonTakesTheSelectedSetWithoutADialog) {
    gHdnFile = QStringLiteral("/somewhere/ELSE.hdn");
    QString shown;
    WhenUp("frmTargetBoard", [&](QWidget& view) {
        shown = gHdnFile;
        ClickButton(view, "cmdOk");
    });
    Press("PLC");
    EXPECT_EQ(shown, SetPath(QStringLiteral("UNIT.hdn")));
    EXPECT_TRUE(dialogs_.FileRequests().empty());
}

TEST_F(ViewEntries, CancelOfTheFileDialogEndsEveryCommandThatAsksForASet) {
    for (const char* entry :
         {"mnuFileDelete", "mnuFileRename", "mnuFileDownloadProgram", "mnuFileDownloadData",
          "mnuFileDownloadToPLS", "mnuFileUploadData", "mnuFileUploadFromPLS",
          "mnuViewTargetBoardStatus", "mnuViewCompileErrors"}) {
        dialogs_.ExpectOpen(QString());
        Entry(QString::fromLatin1(entry))->trigger();
        EXPECT_EQ(gHdnFile, SetPath(QStringLiteral("UNIT.hdn"))) << entry;
        EXPECT_TRUE(Window().Timer().Enabled()) << entry;
    }
    EXPECT_EQ(dialogs_.FileRequests().size(), 9u);
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_TRUE(port_.Sent().empty());
}

TEST_F(ViewEntries, CommPortShowsThePortSettings) {
    bool up = false;
    WhenUp("frmSetupComm", [&up](QWidget& view) {
        up = view.isVisible();
        QTest::keyClick(&view, Qt::Key_Escape);
    });
    Entry(QStringLiteral("mnuEditCommPort"))->trigger();
    EXPECT_TRUE(up);
}

TEST_F(ViewEntries, BothSaveAsEntriesShowTheCopyOfTheSelectedSet) {
    for (const char* entry : {"mnuFileSaveAs", "mnuFileListPopupSaveAs"}) {
        bool up = false;
        WhenUp("frmCopyFile", [&up](QWidget& view) {
            up = view.isVisible();
            QTest::keyClick(&view, Qt::Key_Escape);
        });
        Entry(QString::fromLatin1(entry))->trigger();
        EXPECT_TRUE(up) << entry;
    }
}
