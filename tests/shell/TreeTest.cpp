#include "programset/SiblingBoxes.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include "shell/ProgramTreeView.h"
#include "support/gui/WholeWindow.h"
#include <QFile>
#include <QTest>

namespace {
class Tree : public WholeWindow {
protected:
    void SetUp() override {
        Start();
        GoToSets();
    }
    ProgramTreeView* View() { return Find<ProgramTreeView>("trvHDNList"); }
    QTreeWidgetItem* Root() { return View()->topLevelItem(0); }
    int Image(const QTreeWidgetItem* item) {
        return item->data(0, ProgramTreeView::imageRole).toInt();
    }
    void Select(const QString& name) {
        Window().Browser().dirDirList_Change();
        ClickSet(name);
    }
    QByteArray Content(const QString& name) {
        QFile file(SetPath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }
};
} // namespace

TEST_F(Tree, KnownSiblingsAreListedSortedUnderTheBoard) {
    Select("PUMP.hdn");
    EXPECT_EQ(TreeTexts().join(u'|').toStdString(),
              "R6500(PLC) [PUMP]|HEX (.HEX)|MAIN (.lmn)|Ufunc07 (.x07)");
    EXPECT_TRUE(Root()->isExpanded());
    EXPECT_EQ(Root()->data(0, ProgramTreeView::keyRole).toString().toStdString(), "PUMP");
    EXPECT_EQ(Root()->child(1)->data(0, ProgramTreeView::keyRole).toString().toStdString(), "LMN");
}

TEST_F(Tree, ASetWithNoKnownSiblingsShowsARootOnly) {
    WriteSetFile("ALONE.hdn", "D\r\n");
    WriteSetFile("ALONE.txt", "");
    Select("ALONE.hdn");
    EXPECT_EQ(TreeTexts().join(u'|').toStdString(), "R6500(PLC) [ALONE]");
    EXPECT_EQ(Image(Root()), 2);
}

TEST_F(Tree, ATwoDigitExtensionIsAUserFunctionWhateverItsFirstLetter) {
    WriteSetFile("FUNC.hdn", "D\r\n");
    WriteSetFile("FUNC.l01", "");
    WriteSetFile("FUNC.Q42", "");
    WriteSetFile("FUNC.99", "");
    Select("FUNC.hdn");
    EXPECT_EQ(TreeTexts().join(u'|').toStdString(),
              "R6500(PLC) [FUNC]|Ufunc01 (.l01)|Ufunc42 (.Q42)|Ufunc99 (.99)");
}

TEST_F(Tree, SiblingsAreFoundWhateverTheirLetterCase) {
    WriteSetFile("mixed.hdn", "D\r\n");
    WriteSetFile("MIXED.Lin", "");
    Select("mixed.hdn");
    EXPECT_EQ(TreeTexts().join(u'|').toStdString(), "R6500(PLC) [mixed]|INIT (.Lin)");
}

TEST_F(Tree, ImagesFollowExpandAndCollapse) {
    Select("PUMP.hdn");
    EXPECT_EQ(Image(Root()), 2);
    EXPECT_EQ(Image(Root()->child(0)), 3);
    View()->setFocus();
    View()->setCurrentItem(Root());
    QTest::keyClick(View(), Qt::Key_Left);
    EXPECT_EQ(Image(Root()), 1);
    QTest::keyClick(View(), Qt::Key_Right);
    EXPECT_EQ(Image(Root()), 2);
}

TEST_F(Tree, AClickKeepsTheKeyInUpperCase) {
    Select("PUMP.hdn");
    const QPoint position = View()->visualItemRect(Root()->child(1)).center();
    QTest::mouseClick(View()->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    EXPECT_EQ(View()->SelectedKey().toStdString(), "LMN");
}

TEST_F(Tree, ANewTitleReplacesTheFile) {
    WriteSetFile("PUMP.ltl", "Old title\r\nsecond line\r\n");
    Select("PUMP.hdn");
    dialogs_.ExpectInput("Enter Program Title.", "PUMP.ltl", "Old title", "New title");
    DoubleClickNode("TITLE (.ltl)");
    EXPECT_EQ(Content("PUMP.ltl").toStdString(), "New title\r\n");
}

TEST_F(Tree, AnEmptyTitleAnswerKeepsTheFile) {
    WriteSetFile("PUMP.ltl", "Old title\r\n");
    Select("PUMP.hdn");
    dialogs_.ExpectInput("Enter Program Title.", "PUMP.ltl", "Old title", "");
    DoubleClickNode("TITLE (.ltl)");
    EXPECT_EQ(Content("PUMP.ltl").toStdString(), "Old title\r\n");
}

TEST_F(Tree, TheRevisionBoxDecodesTheRecord) {
    WriteSetFile("PUMP.REV", "IDENT1:5?2\r\n");
    Select("PUMP.hdn");
    dialogs_.ExpectBox("\tProgram Ident: IDENT1\r\n\tRevision: 242\r\n\tChecksum: 165",
                       MsgStyle::Plain, "PUMP.REV", MsgAnswer::Ok);
    DoubleClickNode("REVISION (.REV)");
}

TEST_F(Tree, TheImageBoxIsTitledByItsFile) {
    Select("PUMP.hdn");
    dialogs_.ExpectBoxTitled("PUMP.HEX", MsgAnswer::Ok);
    DoubleClickNode("HEX (.HEX)");
    ASSERT_EQ(dialogs_.Boxes().size(), 1U);
    EXPECT_TRUE(dialogs_.Boxes()[0].text.endsWith("\tSize: 0.0 KB"))
        << dialogs_.Boxes()[0].text.toStdString();
}

namespace {
// Counts the presses of the key 0 that come to a view.
class ZeroKeys : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyPress)
            count += static_cast<QKeyEvent*>(event)->text() == QStringLiteral("0");
        return false;
    }
};
} // namespace

TEST_F(Tree, TheImageBoxComesWithTheKey0) {
    Select("PUMP.hdn");
    View()->setFocus();
    ZeroKeys keys;
    View()->installEventFilter(&keys);
    const QString text = FileDataText(ReadFileData(SetPath("PUMP.HEX")));
    dialogs_.ExpectBox(text, MsgStyle::Plain, "PUMP.HEX", MsgAnswer::Ok, [&keys] {
        EXPECT_EQ(keys.count, 0);
        QCoreApplication::processEvents();
        EXPECT_EQ(keys.count, 1);
    });
    DoubleClickNode("HEX (.HEX)");
}

TEST_F(Tree, EnterOnANodeActsAsADoubleClick) {
    Select("PUMP.hdn");
    View()->setFocus();
    View()->setCurrentItem(Root()->child(0));
    dialogs_.ExpectBoxTitled("PUMP.HEX", MsgAnswer::Ok);
    QTest::keyClick(View(), Qt::Key_Return);
}

TEST_F(Tree, TheSelectedSetIsInUseOnlyForTheDoubleClick) {
    Select("PUMP.hdn");
    gHdnFile = "/somewhere/ELSE.hdn";
    QString during;
    Window().Browser().HandleNode(NodeAction::OpenSource,
                                  [&](const QString&) { during = gHdnFile; });
    DoubleClickNode("MAIN (.lmn)");
    EXPECT_EQ(during, Window().SelectedProgramPath());
    EXPECT_EQ(gHdnFile.toStdString(), "/somewhere/ELSE.hdn");
}

TEST_F(Tree, ARootWhoseNameEndsInTwoDigitsCountsAsASource) {
    WriteSetFile("LINE42.hdn", "D\r\n");
    Select("LINE42.hdn");
    int opened = 0;
    Window().Browser().HandleNode(NodeAction::OpenSource, [&](const QString&) { ++opened; });
    DoubleClickNode("R6500(PLC) [LINE42]");
    EXPECT_EQ(opened, 1);
}

TEST_F(Tree, ANodeWhoseFileVanishedShowsTheErrorBox) {
    WriteSetFile("PUMP.REV", "IDENT1:5?2\r\n");
    Select("PUMP.hdn");
    QFile::remove(SetPath("PUMP.REV"));
    dialogs_.ExpectBox("Error Number = 53\r\n\r\nFile not found", MsgStyle::Critical, "File List",
                       MsgAnswer::Ok);
    DoubleClickNode("REVISION (.REV)");
}

TEST_F(Tree, AfterAnErrorTheSetOfTheNodeStaysInUse) {
    WriteSetFile("PUMP.REV", "012\r\n");
    Select("PUMP.hdn");
    gHdnFile = "/somewhere/ELSE.hdn";
    dialogs_.ExpectBoxTitled("File List", MsgAnswer::Ok);
    DoubleClickNode("REVISION (.REV)");
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
}

TEST_F(Tree, DataAndRootNodesDoNothing) {
    WriteSetFile("PUMP.LDT", "00\r\n");
    Select("PUMP.hdn");
    DoubleClickNode("DATA (.LDT)");
    DoubleClickNode("R6500(PLC) [PUMP]");
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_TRUE(tools_.commands.isEmpty());
}

TEST_F(Tree, TheTreeKeepsItsHeightInASmallWindow) {
    Window().resize(Window().minimumSize());
    EXPECT_GE(View()->height(), 69);
}
