#include "session/Globals.h"
#include "TableUnderTest.h"
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {
class StatusTableTyping : public testing::Test {
protected:
    StatusTableTyping() { table.ChooseBoard(49); }

    Grid& grid() { return table.view->StatusGrid(); }

    TableUnderTest table;
};
} // namespace

TEST_F(StatusTableTyping, AnAddressIsUpperCasedAndTheNextRowIsCurrent) {
    table.Type("b100.3");
    EXPECT_EQ(table.Cell(2, 1), QString("b100.3"));
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(2, 1), QString("B100.3"));
    EXPECT_EQ(grid().Row(), 3);
    EXPECT_EQ(grid().Col(), 1);
}

TEST_F(StatusTableTyping, AnAddressEnteredAs00FFHIsShownAsFFH) {
    table.Type("00FFH");
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(2, 1), QString("FFH"));
}

TEST_F(StatusTableTyping, AnInvalidAddressEmptiesTheCellWithoutAWord) {
    table.Type("W33");
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(2, 1), QString());
    EXPECT_EQ(grid().Row(), 2);
}

TEST_F(StatusTableTyping, LeavingTheCellCommitsATypedAddress) {
    table.Type("ffh");
    table.Press(Qt::Key_Down);
    EXPECT_EQ(table.Cell(2, 1), QString("FFH"));
    EXPECT_EQ(grid().Row(), 3) << "one row, not two";
    table.Type("w33");
    table.ClickCell(6, 2);
    EXPECT_EQ(table.Cell(3, 1), QString());
    EXPECT_EQ(grid().Row(), 6);
    EXPECT_EQ(grid().Col(), 2);
}

TEST_F(StatusTableTyping, AnAddressTypedAfterARefusedOneIsCheckedToo) {
    table.Type("W33");
    table.Press(Qt::Key_Return);
    table.Type("w35");
    table.Press(Qt::Key_Down);
    EXPECT_EQ(table.Cell(2, 1), QString());
}

TEST_F(StatusTableTyping, PassingOverARowDoesNotTakeItsAddressAway) {
    table.Fill({"X999", "B5"});
    table.Press(Qt::Key_Down);
    table.Press(Qt::Key_Down);
    EXPECT_EQ(table.Cell(2, 1), QString("X999"));
    EXPECT_EQ(table.Cell(3, 1), QString("B5"));
}

TEST_F(StatusTableTyping, TheFirstEscRestoresTheSecondLeaves) {
    table.Fill({"B100"});
    table.Type("w2");
    EXPECT_EQ(table.Cell(2, 1), QString("w2"));
    table.Press(Qt::Key_Escape);
    EXPECT_EQ(table.Cell(2, 1), QString("B100"));
    EXPECT_TRUE(grid().hasFocus());
    table.Press(Qt::Key_Escape);
    EXPECT_TRUE(table.Find<QPushButton>("cmdDefault").hasFocus());
}

TEST_F(StatusTableTyping, EscWithNothingTypedArmsTheSecondEsc) {
    table.Press(Qt::Key_Escape);
    EXPECT_TRUE(grid().hasFocus());
    table.Press(Qt::Key_Escape);
    EXPECT_TRUE(table.Find<QPushButton>("cmdDefault").hasFocus());
}

TEST_F(StatusTableTyping, AKeyBetweenTwoEscsDisarms) {
    table.Press(Qt::Key_Escape);
    table.Type("B");
    table.Press(Qt::Key_Escape);
    EXPECT_TRUE(grid().hasFocus());
}

TEST_F(StatusTableTyping, SpaceDoesNothing) {
    table.Fill({"B100"});
    table.Type(" ");
    EXPECT_EQ(table.Cell(2, 1), QString("B100"));
}

TEST_F(StatusTableTyping, BackspaceDropsTheLastKeyOfAnEdit) {
    table.Type("B10");
    table.Press(Qt::Key_Backspace);
    EXPECT_EQ(table.Cell(2, 1), QString("B1"));
}

TEST_F(StatusTableTyping, TypingInTheLastRowAddsARowFirst) {
    const int last = grid().Rows() - 1;
    grid().SetCell(last, 1);
    table.Type("B100");
    EXPECT_EQ(grid().Rows(), last + 2);
    EXPECT_EQ(table.Cell(last, 1), QString("B100"));
    EXPECT_EQ(table.Cell(last, 0), QString());
    EXPECT_EQ(table.Cell(last + 1, 0), QString("*"));
    EXPECT_EQ(table.Cell(last + 1, 1), QString());
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(last, 1), QString("B100"));
    EXPECT_EQ(grid().Row(), last + 1);
    EXPECT_EQ(table.Cell(grid().Rows() - 1, 0), QString("*"));
}

TEST_F(StatusTableTyping, AClickOnTheLastRowAddsARow) {
    const int last = grid().Rows() - 1;
    grid().SetTopRow(last);
    table.ClickCell(last, 0);
    EXPECT_EQ(grid().Rows(), last + 2);
    EXPECT_EQ(grid().Row(), last);
    EXPECT_EQ(grid().Col(), 1);
    EXPECT_EQ(table.Cell(last + 1, 0), QString("*"));
}

TEST_F(StatusTableTyping, ReturnOnTheLastRowKeepsItsMark) {
    const int last = grid().Rows() - 1;
    grid().SetCell(last, 1);
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(last, 0), QString("*"));
}

TEST_F(StatusTableTyping, AClickOnABitColumnGoesToTheAddress) {
    table.ClickCell(4, 5);
    EXPECT_EQ(grid().Row(), 4);
    EXPECT_EQ(grid().Col(), 1);
}

TEST_F(StatusTableTyping, ReturnWithAutoIncrementFillsAColumnOfAddresses) {
    table.Find<QCheckBox>("chkAutoIncrement").setChecked(true);
    table.Type("B100.6");
    for (int i = 0; i < 3; ++i)
        table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Column1().mid(0, 5), (QStringList{"B100.6", "B100.7", "B101.0", "B101.1", ""}));
    EXPECT_EQ(grid().Row(), 5);
}

TEST_F(StatusTableTyping, AutoIncrementEndsWhereTheBoardEnds) {
    table.Find<QCheckBox>("chkAutoIncrement").setChecked(true);
    table.Type("B254");
    for (int i = 0; i < 4; ++i)
        table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Column1().mid(0, 4), (QStringList{"B254", "B255", "", ""}));
}

TEST_F(StatusTableTyping, AnAddressThatWasFilledInIsCheckedWhenItsRowIsLeft) {
    table.Find<QCheckBox>("chkAutoIncrement").setChecked(true);
    table.Type("B255");
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(3, 1), QString("B256"));
    table.Press(Qt::Key_Down);
    EXPECT_EQ(table.Cell(3, 1), QString());
}

TEST_F(StatusTableTyping, AnotherAddressTakesTheValuesOfTheOneBeforeAway) {
    table.Fill({"B100"});
    for (int col = 2; col < 6; ++col)
        grid().SetTextMatrix(2, col, "5");
    table.Type("b100");
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(2, 2), QString("5")) << "the same variable";
    grid().SetCell(2, 1);
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(2, 2), QString("5")) << "nothing was typed";
    grid().SetCell(2, 1);
    table.Type("B101");
    table.Press(Qt::Key_Return);
    for (int col = 2; col < 6; ++col)
        EXPECT_EQ(table.Cell(2, col), QString()) << col;
}

TEST_F(StatusTableTyping, AnAddressFilledInTakesTheRestOfItsRowAway) {
    table.Find<QCheckBox>("chkAutoIncrement").setChecked(true);
    table.Fill({"", "W200"});
    grid().SetTextMatrix(3, 0, "COUNT");
    grid().SetTextMatrix(3, 2, "5");
    table.Type("B100");
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(3, 1), QString("B101"));
    EXPECT_EQ(table.Cell(3, 0), QString());
    EXPECT_EQ(table.Cell(3, 2), QString());
}

TEST_F(StatusTableTyping, AnAddressTakenAwayEmptiesItsRow) {
    table.Fill({"B100"});
    grid().SetTextMatrix(2, 2, "5");
    table.Type("B");
    table.Press(Qt::Key_Backspace);
    table.Press(Qt::Key_Return);
    for (int col = 0; col < 6; ++col)
        EXPECT_EQ(table.Cell(2, col), QString());
}

TEST_F(StatusTableTyping, DeleteEmptiesTheSelectedRows) {
    table.Fill({"B100", "B101", "B102"});
    table.Press(Qt::Key_Down, Qt::ShiftModifier);
    table.Press(Qt::Key_Delete);
    EXPECT_EQ(table.Column1().mid(0, 3), (QStringList{"", "", "B102"}));
    EXPECT_EQ(grid().Col(), 1);
}

TEST_F(StatusTableTyping, DeleteOfWholeRowsRemovesThem) {
    table.Fill({"B100", "B101", "B102"});
    const int rows = grid().Rows();
    grid().SetCell(2, 0);
    table.Press(Qt::Key_Down, Qt::ShiftModifier);
    table.Press(Qt::Key_End, Qt::ShiftModifier);
    table.Press(Qt::Key_Delete);
    EXPECT_EQ(grid().Rows(), rows - 2);
    EXPECT_EQ(table.Cell(2, 1), QString("B102"));
}

TEST_F(StatusTableTyping, DeletingWithTheSelectionOnTheLastRowLeavesThatRow) {
    const int rows = grid().Rows();
    grid().SetCell(rows - 2, 0);
    table.Press(Qt::Key_Down, Qt::ShiftModifier);
    table.Press(Qt::Key_End, Qt::ShiftModifier);
    table.Press(Qt::Key_Delete);
    EXPECT_EQ(grid().Rows(), rows - 1);
    EXPECT_EQ(table.Cell(rows - 2, 0), QString("*"));
    grid().SetCell(rows - 2, 0);
    table.Press(Qt::Key_Delete);
    EXPECT_EQ(table.Cell(rows - 2, 0), QString("*"));
    EXPECT_EQ(grid().Col(), 1);
}

TEST_F(StatusTableTyping, BackspaceWithNothingTypedDeletes) {
    table.Fill({"B100", "B101"});
    table.Press(Qt::Key_Backspace);
    EXPECT_EQ(table.Column1().mid(0, 2), (QStringList{"", "B101"}));
}

TEST_F(StatusTableTyping, InsertAddsARowForEachSelectedOne) {
    table.Fill({"B100", "B101", "B102"});
    const int rows = grid().Rows();
    grid().SetCell(3, 1);
    table.Press(Qt::Key_Down, Qt::ShiftModifier);
    table.Press(Qt::Key_Insert);
    EXPECT_EQ(grid().Rows(), rows + 2);
    EXPECT_EQ(table.Column1().mid(0, 5), (QStringList{"B100", "", "", "B101", "B102"}));
    EXPECT_EQ(grid().Row(), 3);
}

TEST_F(StatusTableTyping, InsertAtTheRowLimitShowsItsMessageAndAddsNothing) {
    grid().SetRows(32767);
    table.dialogs.ExpectBox("Maximum Row Limit Reached.", 48, "Add Cell", 1);
    table.Press(Qt::Key_Insert);
    EXPECT_EQ(grid().Rows(), 32767);
}

TEST_F(StatusTableTyping, AtTheRowLimitTypingInTheLastRowHarmsNoOther) {
    grid().SetRows(32768);
    grid().SetTextMatrix(32766, 1, "B100");
    grid().SetCell(32767, 1);
    table.Type("B");
    EXPECT_EQ(grid().Rows(), 32768);
    EXPECT_EQ(table.Cell(32766, 1), QString("B100"));
}

TEST_F(StatusTableTyping, PastedAddressesAreCheckedAndMakeRoom) {
    QStringList lines;
    for (int i = 0; i < 70; ++i)
        lines += QString("b%1\tMotor").arg(100 + i);
    lines[1] = "W33";
    lines[2] = "";
    QGuiApplication::clipboard()->setText(lines.join("\r\n") + "\r\n");
    table.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(table.Column1().mid(0, 4), (QStringList{"B100", "", "", "B103"}));
    EXPECT_EQ(table.Cell(71, 1), QString("B169"));
    EXPECT_EQ(grid().Rows(), 73);
    EXPECT_EQ(table.Cell(72, 0), QString("*"));
    EXPECT_TRUE(table.Find<QLabel>("lblPaste").isVisible());
    EXPECT_TRUE(table.Find<QLabel>("lblPaste").text().startsWith("68 addresses pasted; 1 "));
}

TEST_F(StatusTableTyping, NothingIsPastedIntoValues) {
    table.Fill({"B100"});
    grid().SetCell(2, 2);
    QGuiApplication::clipboard()->setText("B101");
    table.Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(table.Cell(2, 1), QString("B100"));
    EXPECT_EQ(table.Cell(2, 2), QString());
}

TEST_F(StatusTableTyping, CopyTakesTheSelectedCells) {
    table.Fill({"B100", "W200"});
    grid().SetTextMatrix(2, 2, "5");
    table.Press(Qt::Key_Down, Qt::ShiftModifier);
    table.Press(Qt::Key_Right, Qt::ShiftModifier);
    QGuiApplication::clipboard()->setText("before");
    table.view->StatusTableCopyClip();
    EXPECT_EQ(QGuiApplication::clipboard()->text().remove('\r'), QString("B100\t5\nW200\t"));
    QGuiApplication::clipboard()->setText("before");
    table.Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().remove('\r'), QString("B100\t5\nW200\t"));
}

TEST_F(StatusTableTyping, TheRightButtonOpensTheMenu) {
    const QPoint place(5, 5);
    QContextMenuEvent click(QContextMenuEvent::Mouse, place, grid().viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(grid().viewport(), &click);
    EXPECT_EQ(table.host.popUps, 1);
}

TEST_F(StatusTableTyping, AValueThatIsLeftWithoutReturnIsNotShownAsTheBoards) {
    table.Fill({"B100"});
    grid().SetTextMatrix(2, 2, "5");
    grid().SetCell(2, 2);
    table.Type("77");
    EXPECT_EQ(table.Cell(2, 2), QString("77"));
    table.Press(Qt::Key_Down);
    EXPECT_EQ(table.Cell(2, 2), QString("5"));
}
