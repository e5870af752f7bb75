#include "controls/grid/Grid.h"
#include "WholeProgram.h"
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QMenu>
#include <QTest>

namespace {
class StatusTableEntries : public WholeProgram {
protected:
    void SetUp() override {
        WholeProgram::SetUp();
        Press("Status");
    }
    void Trigger(const char* entry) { Entry(QLatin1String(entry))->trigger(); }
    QString TableFile() { return SetPath(QStringLiteral("WATCH.tbl")); }
};
} // namespace

TEST_F(StatusTableEntries, OpenShowsTheAddressesOfTheFile) {
    WriteSetFile(QStringLiteral("WATCH.tbl"), " 51 \r\nB100\r\n\r\nW200\r\n\r\n");
    dialogs_.ExpectOpen(TableFile());
    Trigger("mnuStatusTableItem(6)");
    EXPECT_EQ(Table().Rows(), 6);
    EXPECT_EQ(Cell(2, 1), QStringLiteral("B100"));
    EXPECT_EQ(Cell(4, 1), QStringLiteral("W200"));
    EXPECT_EQ(Find<QComboBox>(QStringLiteral("cboTargetBoard"))->currentText(),
              QStringLiteral("K2014"));
    EXPECT_EQ(Find<QGroupBox>(QStringLiteral("fraStatus"))->title(),
              QStringLiteral("&Status Table: WATCH"));
}

TEST_F(StatusTableEntries, SaveAsAsksForTheNameAndSaveDoesNotAskAgain) {
    TypeAddresses({QStringLiteral("b100")});
    dialogs_.ExpectSave(TableFile());
    Trigger("mnuStatusTableItem(10)");
    EXPECT_TRUE(Content(TableFile()).startsWith(" 0 \r\nB100\r\n\r\n"));
    TypeAddresses({QStringLiteral("b101")});
    Trigger("mnuStatusTableItem(9)");
    EXPECT_TRUE(Content(TableFile()).startsWith(" 0 \r\nB101\r\n\r\n"));
}

TEST_F(StatusTableEntries, NewEmptiesTheTable) {
    TypeAddresses({QStringLiteral("b100")});
    dialogs_.ExpectBox(QStringLiteral("Save Changes to File?"), MsgStyle::YesNoCancelQuestion,
                       QStringLiteral("Status Table"), MsgAnswer::No);
    Trigger("mnuStatusTableItem(7)");
    EXPECT_EQ(Cell(2, 1), QString());
    EXPECT_EQ(Table().Rows(), 60);
}

TEST_F(StatusTableEntries, SelectProgramOffersTheSetThatIsSelected) {
    WriteSetFile(QStringLiteral("UNIT.nam"), "&\r\n100COUNT\r\n");
    WriteSetFile(QStringLiteral("UNIT.doc"), "&\r\n100Parts made\r\n");
    dialogs_.ExpectOpen(SetPath(QStringLiteral("UNIT.hdn")));
    Trigger("mnuStatusTableItem(4)");
    EXPECT_EQ(dialogs_.FileRequests().back().fileName, SetPath(QStringLiteral("UNIT.hdn")));
    EXPECT_EQ(Find<QGroupBox>(QStringLiteral("fraProgram"))->title(),
              QStringLiteral("Program: UNIT"));
}

TEST_F(StatusTableEntries, BothCopyEntriesPutTheSelectionOnTheClipboard) {
    TypeAddresses({QStringLiteral("b100"), QStringLiteral("b101")});
    for (const char* entry : {"mnuStatusTableItem(0)", "mnuEditCopy"}) {
        QGuiApplication::clipboard()->clear();
        Table().SetCell(2, 1);
        QTest::keyClick(&Table(), Qt::Key_Down, Qt::ShiftModifier);
        Trigger(entry);
        EXPECT_EQ(QGuiApplication::clipboard()->text().remove(u'\r').trimmed(),
                  QStringLiteral("B100\nB101"))
            << entry;
    }
}

TEST_F(StatusTableEntries, ShowOnlyWhileTheTableIsActive) {
    const auto shown = [this] {
        return Entry(QStringLiteral("mnuEditCopy"))->isVisible() &&
               Window()
                   .Commands()
                   .Menu(QStringLiteral("mnuStatusTable"))
                   ->menuAction()
                   ->isVisible();
    };
    EXPECT_TRUE(shown());
    Window().Children().Hide(QStringLiteral("frmStatusTable"));
    EXPECT_FALSE(shown());
    EXPECT_FALSE(Entry(QStringLiteral("mnuEditCopy"))->isVisible());
}

TEST_F(StatusTableEntries, TheToolsEntryBringsTheTableBackAndFocusesIt) {
    Window().Children().Hide(QStringLiteral("frmStatusTable"));
    Trigger("mnuToolsStatusTable");
    EXPECT_TRUE(Window().IsViewVisible(QStringLiteral("frmStatusTable")));
    EXPECT_EQ(Window().ActiveChildName(), QStringLiteral("frmStatusTable"));
    EXPECT_TRUE(Table().hasFocus());
}

TEST_F(StatusTableEntries, ARightClickInTheTableOpensItsMenu) {
    QMenu* menu = Window().Commands().Menu(QStringLiteral("mnuStatusTable"));
    Q_EMIT Table().customContextMenuRequested(QPoint(5, 5));
    EXPECT_TRUE(menu->isVisible());
    menu->close();
}
