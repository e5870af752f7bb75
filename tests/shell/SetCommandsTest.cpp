#include "session/Globals.h"
#include "shell/FileList.h"
#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QDir>
#include <QFile>
#include <QTest>

namespace {
class SetCommandsTest : public WholeWindow {
protected:
    void SetUp() override {
        Start();
        GoToSets();
        ClickSet("PUMP.hdn");
    }
    void ExpectDeleteQuestion(const QString& base, int answer) {
        dialogs_.ExpectBox("Are you sure you want to delete Halden Program '" + base + "'?", 36,
                           "Confrim File Delete", answer);
    }
    void ExpectName(const QString& answer) {
        dialogs_.ExpectInput("Please enter new program name.", "Rename", "", answer);
    }
    std::string Files() {
        return QDir(root_.filePath("sets")).entryList(QDir::Files).join(u' ').toStdString();
    }
};
} // namespace

TEST_F(SetCommandsTest, DeleteTakesEveryFileAndSelectsTheLastSetThatIsLeft) {
    ExpectDeleteQuestion("PUMP", MsgAnswer::Yes);
    Entry("mnuFileListPopupDelete")->trigger();
    EXPECT_EQ(Files(), "CAMS.hdn CAMS.pcf");
    EXPECT_EQ(gHdnFile, SetPath("CAMS.hdn"));
    EXPECT_EQ(Link().TargetboardType(), 55);
}

TEST_F(SetCommandsTest, DeleteSelectsTheSetAtTheSamePlace) {
    ClickSet("CAMS.hdn");
    ExpectDeleteQuestion("CAMS", MsgAnswer::Yes);
    QTest::keyClick(Find<FileList>("filFileList"), Qt::Key_Delete);
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
}

TEST_F(SetCommandsTest, DeletingTheLastSetLeavesAFolderPathWithAnEmptyName) {
    ExpectDeleteQuestion("PUMP", MsgAnswer::Yes);
    Entry("mnuFileListPopupDelete")->trigger();
    ExpectDeleteQuestion("CAMS", MsgAnswer::Yes);
    Entry("mnuFileListPopupDelete")->trigger();
    EXPECT_EQ(Files(), "");
    EXPECT_EQ(gHdnFile, Window().Browser().Folder() + u'/');
    EXPECT_EQ(gHdnFile, Window().SelectedProgramPath());
}

TEST_F(SetCommandsTest, NoToTheDeleteQuestionGoesBackToTheSetInUse) {
    dialogs_.ExpectOpen(SetPath("CAMS.hdn"));
    ExpectDeleteQuestion("CAMS", MsgAnswer::No);
    Entry("mnuFileDelete")->trigger();
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
    EXPECT_TRUE(QFile::exists(SetPath("CAMS.hdn")));
}

TEST_F(SetCommandsTest, CancelledDialogDeletesAndRenamesNothing) {
    for (const char* entry : {"mnuFileDelete", "mnuFileRename"}) {
        dialogs_.ExpectOpen(QString());
        Entry(entry)->trigger();
        EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
    }
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(SetCommandsTest, ReadOnlyFileIsReportedAndNothingIsDeleted) {
    QFile::setPermissions(SetPath("PUMP.HEX"), QFile::ReadOwner);
    const std::string before = Files();
    ExpectDeleteQuestion("PUMP", MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled("File Delete", MsgAnswer::Ok);
    Entry("mnuFileListPopupDelete")->trigger();
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(dialogs_.Boxes().back().style, 16);
    EXPECT_TRUE(dialogs_.Boxes().back().text.startsWith("Error Number = 70\r\n\r\n"));
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
}

TEST_F(SetCommandsTest, RenameGivesEveryFileTheNewNameAndSelectsIt) {
    ExpectName("BELT");
    Entry("mnuFileListPopupRename")->trigger();
    EXPECT_EQ(Files(), "BELT.HEX BELT.bak BELT.hdn BELT.lmn BELT.x07 CAMS.hdn CAMS.pcf");
    EXPECT_EQ(gHdnFile, SetPath("BELT.hdn"));
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [BELT]");
}

TEST_F(SetCommandsTest, LongNewNameIsShortened) {
    dialogs_.ExpectOpen(SetPath("CAMS.hdn"));
    ExpectName("camshaft two");
    dialogs_.ExpectBox("Only 'Short' file names will be used.   ", 64, "File Rename",
                       MsgAnswer::Ok);
    Entry("mnuFileRename")->trigger();
    EXPECT_TRUE(QFile::exists(SetPath("CAMSHA~1.pcf"))) << Files();
    EXPECT_EQ(gHdnFile, SetPath("CAMSHA~1.hdn"));
}

TEST_F(SetCommandsTest, ExistingNameIsRefused) {
    const std::string before = Files();
    ExpectName("cams");
    dialogs_.ExpectBox("Can not rename to existing file.   ", 64, "File Rename", MsgAnswer::Ok);
    Entry("mnuFileListPopupRename")->trigger();
    EXPECT_EQ(Files(), before);
}

TEST_F(SetCommandsTest, EmptyNewNameStops) {
    const std::string before = Files();
    ExpectName("");
    Entry("mnuFileListPopupRename")->trigger();
    EXPECT_EQ(Files(), before);
}

TEST_F(SetCommandsTest, NameThatNoFileCanHaveIsReported) {
    const std::string before = Files();
    ExpectName("a/b");
    dialogs_.ExpectBoxTitled("File Rename", MsgAnswer::Ok);
    Entry("mnuFileListPopupRename")->trigger();
    EXPECT_EQ(dialogs_.Boxes().back().style, 16);
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [PUMP]");
}
