#include "session/Globals.h"
#include "shell/frmMain.h"
#include "support/gui/ModalView.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {
class CopyFile : public WholeWindow {
protected:
    void SetUp() override {
        QDir(root_.path()).mkpath("other");
        Start();
        GoToSets();
        ClickSet("PUMP.hdn");
    }
    void Copy(std::function<void(QWidget&)> act) {
        InModalView("frmCopyFile", [act](QWidget& view) {
            act(view);
            if (view.isVisible())
                Click(view, "cmdCancel");
            EXPECT_FALSE(view.isVisible());
        });
        Entry("mnuFileSaveAs")->trigger();
    }
    static void Click(QWidget& view, const char* button) {
        QTest::mouseClick(PartOf<QPushButton>(view, button), Qt::LeftButton);
    }
    static void Type(QWidget& view, const char* entry, const QString& text) {
        auto* box = PartOf<QLineEdit>(view, entry);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
    }
    static QString Text(QWidget& view, const char* label) {
        return PartOf<QLabel>(view, label)->text();
    }
    /// Chooses a file of the other folder as destination and copies.
    void CopyTo(QWidget& view, const QString& name) {
        dialogs_.ExpectSave(Other(name));
        Click(view, "cmdDestination");
        Click(view, "cmdCopy");
    }
    void ExpectShortNameBox() {
        dialogs_.ExpectBox("Only 'Short' file names will be used.   ", 64, "Copy File",
                           MsgAnswer::Ok);
    }
    QString Other(const QString& name) { return root_.filePath("other/" + name); }
    std::string OtherFiles() {
        return QDir(root_.filePath("other")).entryList(QDir::Files).join(u' ').toStdString();
    }
};
} // namespace

TEST_F(CopyFile, OpensOnTheSelectedSet) {
    Copy([&](QWidget& view) {
        EXPECT_EQ(Text(view, "lblSource(1)"), Window().Browser().Folder());
        EXPECT_EQ(Text(view, "lblDestination(1)"), Window().Browser().Folder());
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtSource")->text().toStdString(), "PUMP.hdn");
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtDestination")->text().toStdString(), "PUMP.hdn");
        EXPECT_FALSE(PartOf<QLabel>(view, "lblCopyStatus")->isVisible());
    });
}

TEST_F(CopyFile, WithoutASelectionTheLabelsAreEmpty) {
    Window().Browser().dirDirList_Change();
    Copy([&](QWidget& view) {
        EXPECT_TRUE(Text(view, "lblSource(1)").isEmpty());
        EXPECT_TRUE(Text(view, "lblDestination(1)").isEmpty());
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtSource")->text().toStdString(), "*.hdn");
        EXPECT_TRUE(PartOf<QLineEdit>(view, "txtDestination")->text().isEmpty());
    });
}

TEST_F(CopyFile, TakesEveryFileOfTheSetAndShowsTheCopy) {
    Copy([&](QWidget& view) {
        CopyTo(view, "BELT.hdn");
        EXPECT_EQ(Text(view, "lblDestination(1)"), root_.filePath("other"));
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtDestination")->text().toStdString(), "BELT.HDN");
        EXPECT_EQ(PartOf<QPushButton>(view, "cmdCancel")->text().toStdString(), "&Ok");
        EXPECT_TRUE(PartOf<QPushButton>(view, "cmdCopy")->isEnabled());
        EXPECT_FALSE(PartOf<QLabel>(view, "lblCopyStatus")->isVisible());
    });
    EXPECT_EQ(OtherFiles(), "BELT.BAK BELT.HDN BELT.HEX BELT.LMN BELT.X07");
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [PUMP]");
}

TEST_F(CopyFile, NoTwoButtonsShareAKeyBeforeOrAfterACopy) {
    const auto keys = [](const QWidget& view) {
        QStringList shortcuts;
        for (const QPushButton* button : view.findChildren<QPushButton*>())
            shortcuts.append(button->shortcut().toString());
        return shortcuts;
    };
    Copy([&](QWidget& view) {
        EXPECT_EQ(keys(view).removeDuplicates(), 0);
        CopyTo(view, "BELT.hdn");
        EXPECT_TRUE(keys(view).contains("Alt+O"));
        EXPECT_EQ(keys(view).removeDuplicates(), 0) << keys(view).join(u' ').toStdString();
    });
}

TEST_F(CopyFile, DestinationOfEightLettersGivesTheShortNameBox) {
    ExpectShortNameBox();
    Copy([&](QWidget& view) { CopyTo(view, "EIGHTLET.hdn"); });
    EXPECT_EQ(OtherFiles(), "EIGHTLET.BAK EIGHTLET.HDN EIGHTLET.HEX EIGHTLET.LMN EIGHTLET.X07");
}

TEST_F(CopyFile, DestinationOfSevenLettersDoesNot) {
    Copy([&](QWidget& view) { CopyTo(view, "SEVENLE.hdn"); });
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_TRUE(QFile::exists(Other("SEVENLE.HDN")));
}

TEST_F(CopyFile, LostSourceIsTold) {
    dialogs_.ExpectBox(SetPath("GONE.hdn") + " does not exist.?", 64, "Copy File", MsgAnswer::Ok);
    Copy([&](QWidget& view) {
        Type(view, "txtSource", "GONE.hdn");
        Click(view, "cmdCopy");
    });
}

TEST_F(CopyFile, EmptyDestinationStopsSilently) {
    Copy([&](QWidget& view) {
        PartOf<QLineEdit>(view, "txtDestination")->clear();
        Click(view, "cmdCopy");
    });
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(CopyFile, SetInTheWayIsReplacedOnYesOnly) {
    QFile::copy(SetPath("CAMS.hdn"), Other("BELT.HDN"));
    const QString question = "The Halden program BELT.hdn already exists. Do you want to replace "
                             "the existing program?";
    for (const int answer : {MsgAnswer::Cancel, MsgAnswer::No, MsgAnswer::Yes}) {
        EXPECT_EQ(OtherFiles(), "BELT.HDN");
        dialogs_.ExpectBox(question, 35, "Copy File", answer);
        Copy([&](QWidget& view) { CopyTo(view, "BELT.hdn"); });
    }
    EXPECT_EQ(OtherFiles(), "BELT.BAK BELT.HDN BELT.HEX BELT.LMN BELT.X07");
}

TEST_F(CopyFile, CancelStopsBeforeTheNextFile) {
    Copy([&](QWidget& view) {
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, [&] {
            if (!Text(view, "lblCopyStatus").startsWith("Copying:  "))
                return;
            user.stop();
            EXPECT_TRUE(PartOf<QLabel>(view, "lblCopyStatus")->isVisible());
            EXPECT_FALSE(PartOf<QPushButton>(view, "cmdCopy")->isEnabled());
            EXPECT_EQ(PartOf<QPushButton>(view, "cmdCancel")->text().toStdString(), "&Cancel");
            Click(view, "cmdCancel");
        });
        user.start(0);
        CopyTo(view, "BELT.hdn");
        EXPECT_TRUE(view.isVisible());
        EXPECT_EQ(PartOf<QPushButton>(view, "cmdCancel")->text().toStdString(), "&Ok");
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtDestination")->text().toStdString(), "BELT.hdn");
    });
    EXPECT_EQ(QDir(root_.filePath("other")).entryList(QDir::Files).size(), 1);
}

TEST_F(CopyFile, ErrorIsShownAndTheViewStaysAsItIs) {
    dialogs_.ExpectBoxTitled("Copy File", MsgAnswer::Ok);
    Copy([&](QWidget& view) {
        dialogs_.ExpectSave(root_.filePath("gone/BELT.hdn"));
        Click(view, "cmdDestination");
        Click(view, "cmdCopy");
        EXPECT_TRUE(view.isVisible());
        EXPECT_TRUE(Text(view, "lblCopyStatus").startsWith("Copying:  PUMP."));
    });
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_EQ(dialogs_.Boxes()[0].style, 16);
    EXPECT_TRUE(dialogs_.Boxes()[0].text.startsWith("Error Number = 76\r\n\r\n"));
}

TEST_F(CopyFile, BrowseFillsTheSource) {
    dialogs_.ExpectOpen(SetPath("CAMS.hdn"));
    Copy([&](QWidget& view) {
        Click(view, "cmdBrowseSource");
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtSource")->text().toStdString(), "CAMS.hdn");
        EXPECT_EQ(Text(view, "lblSource(1)"), root_.filePath("sets"));
    });
    ASSERT_EQ(dialogs_.FileRequests().size(), 1U);
    const FileDialogRequest& request = dialogs_.FileRequests()[0];
    EXPECT_EQ(request.flags, 528388);
    EXPECT_EQ(request.filter.toStdString(), "Halden Files(*.hdn)|*.hdn|");
    EXPECT_EQ(request.filterIndex, 1);
    EXPECT_EQ(request.fileName, Window().SelectedProgramPath());
}

TEST_F(CopyFile, TheDestinationDialogStartsInTheFolderOfTheNewName) {
    dialogs_.ExpectSave(Other("BELT.hdn"));
    dialogs_.ExpectSave(QString());
    Copy([&](QWidget& view) {
        Click(view, "cmdDestination");
        Click(view, "cmdDestination");
    });
    ASSERT_EQ(dialogs_.FileRequests().size(), 2U);
    EXPECT_EQ(dialogs_.FileRequests()[0].fileName, SetPath("PUMP.hdn"));
    EXPECT_EQ(dialogs_.FileRequests()[1].fileName.toStdString(), " ");
    EXPECT_EQ(dialogs_.FileRequests()[1].initDir, root_.filePath("other"));
}

TEST_F(CopyFile, WithoutASelectionTheDialogsStartInTheBrowsersFolder) {
    Window().Browser().dirDirList_Change();
    QDir::setCurrent(root_.path());
    dialogs_.ExpectOpen(QString());
    dialogs_.ExpectSave(QString());
    Copy([&](QWidget& view) {
        Click(view, "cmdBrowseSource");
        Click(view, "cmdDestination");
    });
    ASSERT_EQ(dialogs_.FileRequests().size(), 2U);
    for (const FileDialogRequest& request : dialogs_.FileRequests())
        EXPECT_EQ(request.initDir, Window().Browser().Folder());
}

TEST_F(CopyFile, CancelledFileDialogChangesNothing) {
    dialogs_.ExpectSave(QString());
    Copy([&](QWidget& view) {
        Click(view, "cmdDestination");
        EXPECT_EQ(PartOf<QLineEdit>(view, "txtDestination")->text().toStdString(), "PUMP.hdn");
    });
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(CopyFile, FolderWithBlanksAccentsAndTwoHundredCharactersWorks) {
    const QString folder = "other/" + QString(100, u'a') + " \u00FC, b/" + QString(90, u'c');
    QDir(root_.path()).mkpath(folder);
    Copy([&](QWidget& view) {
        dialogs_.ExpectSave(root_.filePath(folder + "/BELT.hdn"));
        Click(view, "cmdDestination");
        Click(view, "cmdCopy");
        EXPECT_LT(view.width(), 1000);
    });
    EXPECT_TRUE(QFile::exists(root_.filePath(folder + "/BELT.LMN")));
}
