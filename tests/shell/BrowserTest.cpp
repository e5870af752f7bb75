#include "session/Globals.h"
#include "shell/DirectoryList.h"
#include "shell/FileList.h"
#include "shell/frmMain.h"
#include "support/gui/WholeWindow.h"
#include "support/OrdinaryUser.h"
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <QTreeWidget>

namespace {
class Browser : public WholeWindow {
protected:
    void SetUp() override {
        Start();
        GoToSets();
    }
    FileList* Files() { return Find<FileList>("filFileList"); }
    DirectoryList* Folders() { return Find<DirectoryList>("dirDirList"); }
    QString NameOf(const QString& path) { return QFileInfo(path).fileName(); }
    QStringList FileNames() {
        QStringList names;
        for (int row = 0; row < Files()->model()->rowCount(); ++row)
            names << Files()->model()->index(row, 0).data().toString();
        return names;
    }
    QTreeWidgetItem* FolderItem(const QString& name) {
        const auto found = Folders()->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        EXPECT_EQ(found.size(), 1) << name.toStdString();
        return found.value(0);
    }
};
} // namespace

TEST_F(Browser, SelectingAFileSetsTheSetInUseAndItsBoard) {
    ClickSet("CAMS.hdn");
    EXPECT_EQ(gHdnFile, Window().SelectedProgramPath());
    EXPECT_EQ(NameOf(gHdnFile).toStdString(), "CAMS.hdn");
    EXPECT_EQ(Link().TargetboardType(), 55);
    ClickSet("PUMP.hdn");
    EXPECT_EQ(NameOf(gHdnFile).toStdString(), "PUMP.hdn");
    EXPECT_EQ(Link().TargetboardType(), 68);
}

TEST_F(Browser, ArrowKeysSelectAsClicksDo) {
    ClickSet("CAMS.hdn");
    QTest::keyClick(Files(), Qt::Key_Down);
    EXPECT_EQ(NameOf(gHdnFile).toStdString(), "PUMP.hdn");
    EXPECT_EQ(Link().TargetboardType(), 68);
}

TEST_F(Browser, TheListShowsProgramFilesInAnyLetterCase) {
    WriteSetFile("Upper.HDN", "D\r\n");
    WriteSetFile("notes.txt", "");
    Window().Browser().dirDirList_Change();
    EXPECT_EQ(FileNames().join(u' ').toStdString(), "CAMS.hdn PUMP.hdn Upper.HDN");
}

TEST_F(Browser, RefreshFileListFindsTheNameWhateverItsCase) {
    Window().Browser().RefreshFileList(SetPath("pump.HDN"));
    EXPECT_EQ(Files()->FileName().toStdString(), "PUMP.hdn");
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [PUMP]");
}

TEST_F(Browser, OfTwoNamesThatDifferInCaseTheOneThatIsMeantIsSelected) {
    const QString other = WriteSetFile("Pump.hdn", "7\r\n");
    if (QDir(root_.filePath("sets")).entryList({"pump.hdn"}, QDir::Files).size() < 2)
        GTEST_SKIP() << "this file system knows no letter case";
    for (const QString& path : {other, SetPath("PUMP.hdn"), other}) {
        Window().Browser().RefreshFileList(path);
        EXPECT_EQ(gHdnFile.toStdString(), path.toStdString());
    }
    EXPECT_EQ(Link().TargetboardType(), 55);
}

TEST_F(Browser, AMissingPathGoesBackToTheApplicationFolderOnly) {
    ClickSet("PUMP.hdn");
    Window().Browser().RefreshFileList("/gone/GONE.hdn");
    EXPECT_EQ(Files()->FileName().toStdString(), "PUMP.hdn");
    EXPECT_EQ(QFileInfo(QDir::currentPath()).canonicalFilePath(),
              QFileInfo(folder_->Root()).canonicalFilePath());
}

TEST_F(Browser, RefreshFileListFollowsASetIntoAnotherFolder) {
    QDir(root_.path()).mkpath("other place, ümlaut");
    const QString path = root_.filePath("other place, ümlaut/BELT.hdn");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("2\r\n");
    file.close();
    Window().Browser().RefreshFileList(path);
    EXPECT_EQ(QFileInfo(gHdnFile), QFileInfo(path));
    EXPECT_EQ(QDir(Window().Browser().Folder()), QDir(QFileInfo(path).path()));
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "K2012 [BELT]");
}

TEST_F(Browser, ChangingTheFolderEmptiesTheTree) {
    ClickSet("PUMP.hdn");
    ASSERT_FALSE(TreeTexts().isEmpty());
    QTest::keyClick(Folders(), Qt::Key_Backspace);
    EXPECT_TRUE(TreeTexts().isEmpty());
    EXPECT_TRUE(FileNames().isEmpty());
    EXPECT_EQ(QDir(Window().Browser().Folder()), QDir(root_.path()));
    EXPECT_EQ(QDir::current(), QDir(root_.path()));
}

TEST_F(Browser, EnterGoesIntoAFolder) {
    QTest::keyClick(Folders(), Qt::Key_Backspace);
    Folders()->setCurrentItem(FolderItem("app"));
    QTest::keyClick(Folders(), Qt::Key_Return);
    EXPECT_EQ(QDir(Window().Browser().Folder()), QDir(folder_->Root()));
}

TEST_F(Browser, ADoubleClickGoesIntoAFolderAndAClickDoesNot) {
    QTest::keyClick(Folders(), Qt::Key_Backspace);
    Folders()->scrollToItem(FolderItem("sets"));
    const QPoint position = Folders()->visualItemRect(FolderItem("sets")).center();
    QTest::mouseClick(Folders()->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    EXPECT_EQ(QDir(Window().Browser().Folder()), QDir(root_.path()));
    QTest::mouseDClick(Folders()->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    EXPECT_EQ(QDir(Window().Browser().Folder()), QDir(root_.filePath("sets")));
}

TEST_F(Browser, AClickOnTheFolderKeepsTheSelection) {
    ClickSet("PUMP.hdn");
    QTest::mouseClick(Folders()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      Folders()->visualItemRect(FolderItem("sets")).center());
    EXPECT_EQ(Files()->FileName().toStdString(), "PUMP.hdn");
    EXPECT_FALSE(TreeTexts().isEmpty());
}

TEST_F(Browser, AFolderThatVanishedFallsBackToTheOneAbove) {
    QDir(root_.path()).mkpath("short/lived");
    Folders()->SetPath(root_.filePath("short/lived"));
    QDir(root_.filePath("short")).removeRecursively();
    Folders()->SetPath(root_.filePath("short/lived/deeper"));
    EXPECT_EQ(QDir(Window().Browser().Folder()), QDir(root_.path()));
}

TEST_F(Browser, AnEmptyProgramFileCountsAsBoard68) {
    WriteSetFile("EMPTY.hdn", "");
    Window().Browser().dirDirList_Change();
    ClickSet("EMPTY.hdn");
    EXPECT_EQ(Link().TargetboardType(), 68);
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [EMPTY]");
}

TEST_F(Browser, AnEmptyFirstItemShowsTheErrorBoxAndAnEmptyTree) {
    WriteSetFile("BLANK.hdn", "\r\nD\r\n");
    Window().Browser().dirDirList_Change();
    ClickSet("PUMP.hdn");
    dialogs_.ExpectBox("Error Number = 5\r\n\r\nInvalid procedure call or argument",
                       MsgStyle::Critical, "File List", MsgAnswer::Ok);
    ClickSet("BLANK.hdn");
    EXPECT_TRUE(TreeTexts().isEmpty());
}

TEST_F(Browser, AnUnreadableSetShowsTheErrorBox) {
    const QString path = WriteSetFile("LOCKED.hdn", "D\r\n");
    ForbidReading(path);
    const OrdinaryUser user;
    if (!user.Possible())
        GTEST_SKIP() << "no other user's rights can be had here";
    Window().Browser().dirDirList_Change();
    dialogs_.ExpectBox("Error Number = 70\r\n\r\nPermission denied", MsgStyle::Critical,
                       "File List", MsgAnswer::Ok);
    ClickSet("LOCKED.hdn");
}

TEST_F(Browser, AMissingProgramFileCountsAsBoard68ForTheTick) {
    ClickSet("PUMP.hdn");
    QFile::remove(SetPath("PUMP.hdn"));
    QTest::keyClick(&Window(), Qt::Key_F3);
    port_.ForgetSent();
    Tick();
    EXPECT_FALSE(port_.Sent().empty()); // the fault register is read
    EXPECT_EQ(Panel(1).toStdString(), "System Message:  Quentor is Currently ON-LINE");
}

TEST_F(Browser, ADriveThatIsNotReadyIsRefusedAndTheOldOneComesBack) {
    drives_.roots = QStringList{"/", "/nowhere"};
    drives_.notReady << "/nowhere";
    GoToSets();
    ClickSet("PUMP.hdn");
    auto* drive = Find<QComboBox>("drvDriveList");
    const QString folder = Window().Browser().Folder();
    dialogs_.ExpectBox("Selected Drive is Not Ready.", MsgStyle::Information, "Drives",
                       MsgAnswer::Ok);
    drive->setFocus();
    QTest::keyClick(drive, Qt::Key_Down);
    EXPECT_EQ(drive->currentData().toString().toStdString(), "/");
    EXPECT_EQ(Window().Browser().Folder(), folder);
    EXPECT_FALSE(TreeTexts().isEmpty());
}

TEST_F(Browser, AnotherDriveIsEnteredAndEmptiesTheTree) {
    const QString stick = root_.filePath("stick");
    QDir(root_.path()).mkpath("stick");
    drives_.roots = QStringList{"/", stick};
    GoToSets();
    ClickSet("PUMP.hdn");
    auto* drive = Find<QComboBox>("drvDriveList");
    drive->setFocus();
    QTest::keyClick(drive, Qt::Key_Down);
    EXPECT_EQ(QDir(Window().Browser().Folder()), QDir(stick));
    EXPECT_EQ(gCurrentDrive, stick);
    EXPECT_TRUE(TreeTexts().isEmpty());
}

TEST_F(Browser, ADoubleClickBeforeTheFirstActivationDoesNothing) {
    ClickSet("PUMP.hdn");
    gHdnFile.clear();
    Window().Browser().gFormLoaded = false;
    const QRect row = Files()->visualRect(Files()->currentIndex());
    QTest::mouseDClick(Files()->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    EXPECT_TRUE(gHdnFile.isEmpty());
    Window().Browser().gFormLoaded = true;
    QTest::mouseDClick(Files()->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    EXPECT_EQ(gHdnFile, Window().SelectedProgramPath());
    EXPECT_TRUE(tools_.commands.isEmpty());
}

TEST_F(Browser, WithNothingSelectedThePathEndsWithASeparator) {
    Window().Browser().dirDirList_Change();
    EXPECT_EQ(Window().SelectedProgramPath(), Window().Browser().Folder() + u'/');
}

TEST_F(Browser, EveryListHasALabelAndAnAccessibleName) {
    const char* lists[] = {"drvDriveList", "dirDirList", "filFileList", "trvHDNList"};
    for (int i = 0; i < 4; ++i) {
        auto* label = Find<QLabel>(QStringLiteral("lblLabel(%1)").arg(i));
        EXPECT_EQ(label->buddy(), Find<QWidget>(lists[i]));
        EXPECT_FALSE(Find<QWidget>(lists[i])->accessibleName().isEmpty());
        EXPECT_NE(Find<QWidget>(lists[i])->focusPolicy() & Qt::TabFocus, 0) << lists[i];
    }
}

TEST_F(Browser, AFolderOfManyFilesShowsItsTreeAtOnce) {
    QDir(root_.path()).mkpath("many");
    for (int i = 0; i < 2000; ++i) {
        QFile file(root_.filePath(QStringLiteral("many/SET%1.%2")
                                      .arg(i / 4)
                                      .arg(QStringList{"hdn", "lmn", "hex", "rev"}.at(i % 4))));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("D");
    }
    Window().Browser().RefreshFileList(root_.filePath("many/SET7.hdn"));
    EXPECT_EQ(TreeTexts().size(), 4);
    QElapsedTimer timer;
    timer.start();
    ClickSet("SET8.hdn");
    // Far more than it takes: only a pass over the folder for each file would show.
    EXPECT_LT(timer.elapsed(), 250);
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [SET8]");
}

TEST_F(Browser, AFolderListMadeInARemovedFolderBeginsAtTheRoot) {
    const QString before = QDir::currentPath();
    QTemporaryDir gone;
    ASSERT_TRUE(QDir::setCurrent(gone.path()));
    ASSERT_TRUE(gone.remove());
    const DirectoryList list;
    EXPECT_EQ(list.Path().toStdString(), "/");
    QDir::setCurrent(before);
}
