#include "session/Globals.h"
#include "shell/DirectoryList.h"
#include "shell/FileList.h"
#include "shell/frmMain.h"
#include "shell/frmNewFile.h"
#include "support/gui/ModalView.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {
class NewFile : public WholeWindow {
protected:
    void SetUp() override {
        Start();
        GoToSets();
    }
    /// Opens the view by the command of a new program and acts in it.
    void New(std::function<void(QWidget&)> act) {
        InModalView("frmNewFile", std::move(act));
        Window().Commands().Run("mnuFileNew");
    }
    static void Type(QWidget& view, const QString& name) {
        auto* text = PartOf<QLineEdit>(view, "txtNew");
        text->setFocus();
        text->selectAll();
        QTest::keyClicks(text, name);
    }
    static void Click(QWidget& view, const char* button) {
        QTest::mouseClick(PartOf<QPushButton>(view, button), Qt::LeftButton);
    }
    static void ClickFile(QWidget& view, const QString& name) {
        auto* list = PartOf<FileList>(view, "filNew");
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 0);
            if (index.data().toString() == name)
                QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                                  list->visualRect(index).center());
        }
    }
    void ExpectReplaceQuestion(const QString& name, int answer) {
        dialogs_.ExpectBox(SetPath(name) + " already exists.\r\nDo you want to replace it?", 308,
                           "Create Halden File", answer);
    }
    QByteArray Content(const QString& name) {
        QFile file(SetPath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }
};
} // namespace

TEST_F(NewFile, OpensOnTheBrowsersFolderWithBoard68) {
    New([&](QWidget& view) {
        auto* boards = PartOf<QComboBox>(view, "cboNew");
        EXPECT_EQ(boards->count(), 17);
        EXPECT_EQ(boards->currentIndex(), 15);
        EXPECT_EQ(boards->currentText().toStdString(), "R6500(PLC)");
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtNew")->text().toStdString(), "*.hdn");
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtNew")->selectedText().toStdString(), "*.hdn");
        EXPECT_EQ(PartOf<FileList>(view, "filNew")->Path(), Window().Browser().Folder());
        Click(view, "cmdCancel");
    });
    EXPECT_FALSE(gNewFileAccepted);
}

TEST_F(NewFile, NameOfEightLettersGivesNoShortNameBox) {
    New([&](QWidget& view) {
        Type(view, "EIGHTLET");
        Click(view, "cmdOk");
    });
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_EQ(Content("EIGHTLET.HDN").toStdString(), "D\r\n");
}

TEST_F(NewFile, NameOfNineLettersGivesTheShortNameBox) {
    dialogs_.ExpectBox("Only 'Short' file names will be used.   ", 64, "New File", MsgAnswer::Ok);
    New([&](QWidget& view) {
        Type(view, "nineletters");
        Click(view, "cmdOk");
    });
    EXPECT_EQ(Content("NINELE~1.HDN").toStdString(), "D\r\n");
    EXPECT_EQ(Content("nineletters.HDN").toStdString(), "missing");
}

TEST_F(NewFile, NewSetIsSelectedAndTheNewestOfTheRecentList) {
    New([&](QWidget& view) {
        PartOf<QComboBox>(view, "cboNew")->setCurrentIndex(0);
        Type(view, "BELT");
        QTest::keyClick(PartOf<QLineEdit>(view, "txtNew"), Qt::Key_Return);
    });
    EXPECT_TRUE(gNewFileAccepted);
    EXPECT_EQ(Content("BELT.HDN").toStdString(), "2\r\n");
    EXPECT_EQ(gHdnFile, SetPath("BELT.HDN"));
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "K2012 [BELT]");
    EXPECT_EQ(Window().Recent().List().Path(0), SetPath("BELT.HDN"));
}

TEST_F(NewFile, NoToTheReplaceQuestionKeepsTheSetAndTheViewOpen) {
    ExpectReplaceQuestion("PUMP.HDN", MsgAnswer::No);
    New([&](QWidget& view) {
        Type(view, "PUMP");
        Click(view, "cmdOk");
        EXPECT_TRUE(view.isVisible());
        EXPECT_TRUE(PartOf<QLineEdit>(view, "txtNew")->hasFocus());
        Click(view, "cmdCancel");
    });
    EXPECT_EQ(Content("PUMP.lmn").toStdString(), "ladder\r\n");
    EXPECT_FALSE(gNewFileAccepted);
}

TEST_F(NewFile, YesToTheReplaceQuestionTakesEverySibling) {
    ExpectReplaceQuestion("PUMP.HDN", MsgAnswer::Yes);
    New([&](QWidget& view) {
        Type(view, "PUMP");
        Click(view, "cmdOk");
    });
    EXPECT_EQ(QDir(root_.filePath("sets")).entryList(QDir::Files).join(u' ').toStdString(),
              "CAMS.hdn CAMS.pcf PUMP.HDN");
}

TEST_F(NewFile, SelectingASetTakesItsNameAndBoard) {
    WriteSetFile("BELT.hdn", "2\r\n");
    New([&](QWidget& view) {
        ClickFile(view, "BELT.hdn");
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtNew")->text().toStdString(), "BELT.hdn");
        EXPECT_EQ(PartOf<QComboBox>(view, "cboNew")->currentIndex(), 0);
        ClickFile(view, "CAMS.hdn");
        EXPECT_EQ(PartOf<QComboBox>(view, "cboNew")->currentText().toStdString(),
                  Link().TargetboardName(55).toStdString());
        Click(view, "cmdCancel");
    });
}

TEST_F(NewFile, SetOfBoardIndex69SelectsTheFirstBoardOfTheList) {
    WriteSetFile("LIMIT.hdn", "E\r\n");
    New([&](QWidget& view) {
        ClickFile(view, "LIMIT.hdn");
        EXPECT_EQ(PartOf<QComboBox>(view, "cboNew")->currentIndex(), 0);
        Click(view, "cmdCancel");
    });
}

TEST_F(NewFile, BoardThatIsNotInTheListLeavesTheSelection) {
    WriteSetFile("ODD.hdn", "5\r\n"); // 53
    New([&](QWidget& view) {
        ClickFile(view, "ODD.hdn");
        EXPECT_EQ(PartOf<QComboBox>(view, "cboNew")->currentIndex(), 15);
        Click(view, "cmdCancel");
    });
}

TEST_F(NewFile, EnterOnAFileActsAsOk) {
    ExpectReplaceQuestion("CAMS.HDN", MsgAnswer::No);
    New([&](QWidget& view) {
        ClickFile(view, "CAMS.hdn");
        QTest::keyClick(PartOf<FileList>(view, "filNew"), Qt::Key_Return);
        Click(view, "cmdCancel");
    });
    EXPECT_EQ(Content("CAMS.hdn").toStdString(), "7\r\n");
}

TEST_F(NewFile, PatternIsNoNameYet) {
    New([&](QWidget& view) {
        PartOf<FileList>(view, "filNew")->setFocus();
        Click(view, "cmdOk");
        EXPECT_TRUE(view.isVisible());
        EXPECT_TRUE(PartOf<QLineEdit>(view, "txtNew")->hasFocus());
        Click(view, "cmdCancel");
    });
}

TEST_F(NewFile, ShortTextWithAPointShowsTheErrorBox) {
    dialogs_.ExpectBox("Error Number = 5\r\n\r\nInvalid procedure call or argument", 16, "New File",
                       MsgAnswer::Ok);
    New([&](QWidget& view) {
        Type(view, "a.b");
        Click(view, "cmdOk");
        EXPECT_TRUE(view.isVisible());
        Click(view, "cmdCancel");
    });
}

TEST_F(NewFile, FocusIntoTheNameSelectsItAll) {
    New([&](QWidget& view) {
        PartOf<FileList>(view, "filNew")->setFocus();
        QTest::mouseClick(PartOf<QLineEdit>(view, "txtNew"), Qt::LeftButton);
        QApplication::processEvents();
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtNew")->selectedText().toStdString(), "*.hdn");
        Click(view, "cmdCancel");
    });
}

TEST_F(NewFile, DriveThatIsNotReadyIsRefused) {
    drives_.roots = QStringList{"/", "/nowhere"};
    drives_.notReady << "/nowhere";
    dialogs_.ExpectBox("Selected Drive is Not Ready.", 64, "Drives", MsgAnswer::Ok);
    New([&](QWidget& view) {
        auto* drive = PartOf<QComboBox>(view, "drvNew");
        drive->setFocus();
        QTest::keyClick(drive, Qt::Key_Down);
        EXPECT_EQ(drive->currentData().toString().toStdString(), "/");
        Click(view, "cmdCancel");
    });
}

TEST_F(NewFile, FolderThatIsEnteredIsListedAndBecomesTheCurrentOne) {
    QDir(root_.path()).mkpath("sets/inner");
    WriteSetFile("inner/BELT.hdn", "2\r\n");
    New([&](QWidget& view) {
        auto* folders = PartOf<DirectoryList>(view, "dirNew");
        folders->SetPath(root_.filePath("sets/inner"));
        EXPECT_EQ(PartOf<FileList>(view, "filNew")->model()->index(0, 0).data().toString(),
                  QStringLiteral("BELT.hdn"));
        EXPECT_EQ(QDir::current(), QDir(root_.filePath("sets/inner")));
        Type(view, "FAN");
        Click(view, "cmdOk");
    });
    EXPECT_EQ(gHdnFile, SetPath("inner/FAN.HDN"));
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [FAN]");
}

TEST_F(NewFile, DriveThatIsReadyIsEntered) {
    const QString stick = root_.filePath("stick");
    QDir(root_.path()).mkpath("stick");
    drives_.roots = QStringList{"/", stick};
    New([&](QWidget& view) {
        auto* drive = PartOf<QComboBox>(view, "drvNew");
        drive->setFocus();
        QTest::keyClick(drive, Qt::Key_Down);
        EXPECT_EQ(QDir(PartOf<FileList>(view, "filNew")->Path()), QDir(stick));
        EXPECT_TRUE(dialogs_.Boxes().empty());
        Click(view, "cmdCancel");
    });
}

TEST_F(NewFile, ToolOfTheBoardIsStartedForANewProgram) {
    New([&](QWidget& view) {
        Type(view, "BELT");
        Click(view, "cmdOk");
    });
    const QString command = AppPath("tgt96/pgmsetup.exe") + u' ' + SetPath("BELT") + "=H";
    ASSERT_EQ(tools_.commands.size(), 1);
    EXPECT_EQ(tools_.commands[0].left(command.size() - 2), command.left(command.size() - 2));
    EXPECT_TRUE(tools_.commands[0].endsWith(u'=' + Link().LCFBoardIndex(68)));
    EXPECT_EQ(tools_.styles[0], 3);
}

TEST_F(NewFile, ToolOfALimitSwitchBoardTakesTheSetAlone) {
    New([&](QWidget& view) {
        PartOf<QComboBox>(view, "cboNew")->setCurrentIndex(16);
        Type(view, "CAM2");
        Click(view, "cmdOk");
    });
    EXPECT_EQ(tools_.commands.value(0), AppPath("lmt51/limtool45.exe") + u' ' + SetPath("CAM2"));
    EXPECT_EQ(Content("CAM2.HDN").toStdString(), "E\r\n");
}

TEST_F(NewFile, MissingToolIsReportedAndTheSetStands) {
    tools_.fails = true;
    dialogs_.ExpectBox("Error Number = 53\r\n\r\nFile not found", 16, "New File", MsgAnswer::Ok);
    New([&](QWidget& view) {
        Type(view, "BELT");
        Click(view, "cmdOk");
    });
    EXPECT_TRUE(gNewFileAccepted);
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [BELT]");
}

TEST_F(NewFile, EscapeIsCancel) {
    gNewFileAccepted = true;
    Link().SetInUploadMode(true);
    New([&](QWidget& view) { QTest::keyClick(&view, Qt::Key_Escape); });
    EXPECT_FALSE(gNewFileAccepted);
    EXPECT_FALSE(Link().InUploadMode());
    EXPECT_TRUE(tools_.commands.isEmpty());
}
