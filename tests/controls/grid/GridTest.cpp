#include "controls/grid/Grid.h"

#include "support/PrintText.h"
#include <gtest/gtest.h>
#include <QAccessible>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace {
class GridOnScreen : public testing::Test {
protected:
    GridOnScreen() {
        grid.SetCols(6);
        grid.SetRows(60);
        grid.SetFormatString("^|<|^|^|>|>");
        for (int row = 0; row < 60; ++row)
            for (int col = 0; col < 6; ++col)
                grid.SetTextMatrix(row, col, QString("%1/%2").arg(row).arg(col));
        grid.resize(700, 300);
        grid.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&grid));
        grid.SetCell(2, 1);
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&grid, key, modifiers);
    }

    void ClickCell(int row, int col) {
        const QModelIndex cell = grid.model()->index(row - 2, col);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid.visualRect(cell).center());
    }

    Grid grid{2};
};
} // namespace

TEST_F(GridOnScreen, ArrowKeysMoveTheCurrentCell) {
    Press(Qt::Key_Down);
    Press(Qt::Key_Right);
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(grid.RowSel(), 3);
    EXPECT_EQ(grid.ColSel(), 2);
}

TEST_F(GridOnScreen, ShiftExtendsTheSelectionAndKeepsTheCurrentCell) {
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.RowSel(), 4);
    EXPECT_EQ(grid.ColSel(), 2);
}

TEST_F(GridOnScreen, TheSelectionExtendsUpwardToo) {
    grid.SetCell(10, 3);
    Press(Qt::Key_Up, Qt::ShiftModifier);
    Press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(grid.Row(), 10);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(grid.RowSel(), 9);
    EXPECT_EQ(grid.ColSel(), 2);
}

TEST_F(GridOnScreen, ShiftEndSelectsToTheLastColumn) {
    grid.SetCell(5, 0);
    Press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(grid.Row(), 5);
    EXPECT_EQ(grid.Col(), 0);
    EXPECT_EQ(grid.ColSel(), 5);
}

TEST_F(GridOnScreen, MovesAreToldOnce) {
    QSignalSpy left(&grid, &Grid::LeaveCell);
    QSignalSpy entered(&grid, &Grid::EnterCell);
    Press(Qt::Key_Down);
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(left[0][0].toInt(), 2);
    EXPECT_EQ(left[0][1].toInt(), 1);
    EXPECT_EQ(entered.size(), 1);
    Press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(entered.size(), 1) << "extending the selection is no move";
    for (int turn = 0; turn < 20; ++turn) // nothing is told later by a queued call
        QCoreApplication::processEvents();
    EXPECT_EQ(entered.size(), 1);
}

TEST_F(GridOnScreen, AClickMovesAndIsTold) {
    QSignalSpy clicks(&grid, &Grid::Click);
    ClickCell(6, 3);
    EXPECT_EQ(grid.Row(), 6);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(GridOnScreen, WhoIsToldOfAMoveMayMoveOn) {
    QObject::connect(&grid, &Grid::EnterCell, [this] {
        if (grid.Col() > 3)
            grid.SetCol(1);
    });
    ClickCell(6, 5);
    EXPECT_EQ(grid.Row(), 6);
    EXPECT_EQ(grid.Col(), 1);
    Press(Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 7);
    EXPECT_EQ(grid.Col(), 1);
}

TEST_F(GridOnScreen, AddedRowsKeepTheRowNumber) {
    grid.SetCell(5, 1);
    grid.AddItem("a\tb", 5);
    EXPECT_EQ(grid.Row(), 5);
    EXPECT_EQ(grid.TextMatrix(5, 1), QString("b"));
    EXPECT_EQ(grid.TextMatrix(6, 1), QString("5/1"));
    grid.AddItem("last");
    EXPECT_EQ(grid.Rows(), 62);
    EXPECT_EQ(grid.TextMatrix(61, 0), QString("last"));
}

TEST_F(GridOnScreen, RemovedRowsKeepTheRowNumberWhileThereIsOne) {
    grid.SetCell(5, 1);
    grid.RemoveItem(5);
    EXPECT_EQ(grid.Row(), 5);
    EXPECT_EQ(grid.TextMatrix(5, 1), QString("6/1"));
    grid.SetCell(58, 1);
    grid.RemoveItem(58);
    EXPECT_EQ(grid.Row(), 57);
    EXPECT_EQ(grid.RowSel(), 57);
}

TEST_F(GridOnScreen, ACurrentCellThatIsGoneMovesToTheLastRowThatIsLeft) {
    grid.SetCell(50, 3);
    grid.SetRows(20);
    EXPECT_EQ(grid.Row(), 19);
    EXPECT_EQ(grid.Col(), 3);
    grid.SetRows(60);
    EXPECT_EQ(grid.Row(), 19);
}

TEST_F(GridOnScreen, ClipHasTabsAndLineEnds) {
    grid.SetCell(3, 1);
    EXPECT_EQ(grid.Clip(), QString("3/1"));
    Press(Qt::Key_Down, Qt::ShiftModifier);
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(grid.Clip(), QString("3/1\t3/2\r\n4/1\t4/2"));
}

TEST_F(GridOnScreen, TopRowAndVisibleRowsFollowTheScrolling) {
    EXPECT_EQ(grid.TopRow(), 2);
    EXPECT_TRUE(grid.RowIsVisible(2));
    EXPECT_FALSE(grid.RowIsVisible(50));
    grid.SetTopRow(30);
    EXPECT_EQ(grid.TopRow(), 30);
    EXPECT_FALSE(grid.RowIsVisible(29));
    EXPECT_TRUE(grid.RowIsVisible(30));
    EXPECT_TRUE(grid.RowIsVisible(0)) << "the heads do not scroll";
    EXPECT_FALSE(grid.RowIsVisible(60));
    EXPECT_FALSE(grid.RowIsVisible(-1));
}

TEST_F(GridOnScreen, ACellMadeCurrentIsShown) {
    grid.SetCell(50, 1);
    EXPECT_TRUE(grid.RowIsVisible(50));
    grid.SetCell(500, 9);
    EXPECT_EQ(grid.Row(), 59);
    EXPECT_EQ(grid.Col(), 5);
}

TEST_F(GridOnScreen, KeysAreOfferedToTheOwnerFirst) {
    grid.SetKeyHandler([](const QKeyEvent& key) { return key.key() == Qt::Key_Down; });
    Press(Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 2);
    Press(Qt::Key_Right);
    EXPECT_EQ(grid.Col(), 2);
}

TEST_F(GridOnScreen, WidthsAreSharedButTheUsersOwnStay) {
    grid.ShareWidth({2, 1, 1, 1, 1, 1}, {40, 40, 40, 40, 40, 40});
    int sum = 0;
    for (int col = 0; col < 6; ++col)
        sum += grid.columnWidth(col);
    EXPECT_NEAR(sum, grid.viewport()->width(), 6);
    EXPECT_GT(grid.columnWidth(0), grid.columnWidth(1));

    QHeaderView& header = *grid.horizontalHeader();
    const QPoint edge(header.sectionViewportPosition(1) + header.sectionSize(1) - 1, 5);
    QTest::mousePress(header.viewport(), Qt::LeftButton, Qt::NoModifier, edge);
    QTest::mouseMove(header.viewport(), edge + QPoint(30, 0));
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, Qt::NoModifier, edge + QPoint(30, 0));
    const int own = grid.columnWidth(1);
    grid.resize(900, 300);
    grid.ShareWidth({2, 1, 1, 1, 1, 1}, {40, 40, 40, 40, 40, 40});
    EXPECT_EQ(grid.columnWidth(1), own);
}

TEST(GridInAView, TabLeavesTheGrid) {
    QWidget view;
    auto* row = new QHBoxLayout(&view);
    auto* before = new QPushButton;
    auto* grid = new Grid(2);
    auto* behind = new QPushButton;
    for (QWidget* part : QWidgetList{before, grid, behind})
        row->addWidget(part);
    grid->SetCols(3);
    grid->SetRows(9);
    view.show();
    view.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_TRUE(behind->hasFocus());
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Backtab);
    EXPECT_TRUE(before->hasFocus());
}

TEST_F(GridOnScreen, AScreenReaderFindsHeadsAndCells) {
    QAccessible::setActive(true);
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&grid);
    ASSERT_TRUE(table && table->tableInterface());
    EXPECT_EQ(table->tableInterface()->rowCount(), 58);
    EXPECT_EQ(table->tableInterface()->cellAt(0, 1)->text(QAccessible::Name), QString("2/1"));
    EXPECT_EQ(table->tableInterface()->columnDescription(1), QString("0/1\n1/1"));
    QAccessible::setActive(false);
}

TEST(GridOfManyRows, OpensScrollsAndRepaintsLikeAShortOne) {
    Grid grid(2);
    grid.SetCols(6);
    grid.resize(700, 500);
    grid.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid));
    QElapsedTimer timer;
    timer.start();
    grid.SetRows(32769);
    for (int row = 2; row < 32769; ++row)
        grid.SetTextMatrix(row, 1, QStringLiteral("B100"));
    grid.SetTopRow(2);
    QCoreApplication::processEvents();
    RecordProperty("open_ms", static_cast<int>(timer.elapsed()));
    EXPECT_LT(timer.elapsed(), 3000);
    timer.restart();
    for (int step = 0; step < 20; ++step) {
        grid.SetTopRow(2 + step * 1600);
        grid.grab();
    }
    RecordProperty("scroll_ms", static_cast<int>(timer.elapsed()));
    EXPECT_LT(timer.elapsed(), 4000);
    EXPECT_TRUE(grid.RowIsVisible(2 + 19 * 1600));
    EXPECT_LT(grid.findChildren<QWidget*>().size(), 20) << "no object per cell";
}
