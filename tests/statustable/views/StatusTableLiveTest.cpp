#include "TableUnderTest.h"
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QTest>

namespace {
class StatusTableLive : public testing::Test {
protected:
    void Online(int model, const QStringList& addresses) {
        table = std::make_unique<TableUnderTest>(model);
        table->ChooseBoard(static_cast<qint16>(model));
        table->Fill(addresses);
        table->Connect();
        table->RunPasses();
    }

    void Poke(int address, int value) {
        table->boardPort.board.Poke(static_cast<std::uint16_t>(address),
                                    static_cast<std::uint8_t>(value));
    }

    int Peek(int address) {
        return table->boardPort.board.Peek(static_cast<std::uint16_t>(address));
    }

    QStringList Row(int row) const {
        QStringList texts;
        for (int col = 1; col < 6; ++col)
            texts += table->Cell(row, col);
        return texts;
    }

    std::unique_ptr<TableUnderTest> table;
};
} // namespace

TEST_F(StatusTableLive, ValuesOfAllKindsComeFromTheBoard) {
    Online(49, {"B100", "B100.3", "W102", "D104", "F17", "X30", "Y81.1", "64H", "", "B101"});
    Poke(100, 0x1A);
    Poke(101, 7);
    Poke(102, 0x34);
    Poke(103, 0x12);
    Poke(104, 1);
    Poke(105, 0);
    Poke(106, 2);
    Poke(107, 0);
    Poke(34, 2);
    Poke(49, 255);
    Poke(58, 2);
    table->RunPasses();
    EXPECT_EQ(Row(2), (QStringList{"B100", "26", "1A", "", "00011010"}));
    EXPECT_EQ(Row(3), (QStringList{"B100.3", "1", "1", "", "1"}));
    EXPECT_EQ(Row(4), (QStringList{"W102", "4660", "1234", "00010010", "00110100"}));
    EXPECT_EQ(Row(5), (QStringList{"D104", "20001", "4E21", "01001110", "00100001"}));
    EXPECT_EQ(Row(6), (QStringList{"F17", "1", "1", "", "1"}));
    EXPECT_EQ(Row(7), (QStringList{"X30", "255", "FF", "", "11111111"}));
    EXPECT_EQ(Row(8), (QStringList{"Y81.1", "1", "1", "", "1"}));
    EXPECT_EQ(Row(9), (QStringList{"64H", "26", "1A", "", "00011010"}));
    EXPECT_EQ(Row(10), (QStringList{"", "", "", "", ""}));
    EXPECT_EQ(Row(11), (QStringList{"B101", "7", "7", "", "00000111"}));
}

TEST_F(StatusTableLive, AHexadecimalAddressReadsItsByteAndStays) {
    Online(50, {"1F40H"});
    Poke(8000, 77);
    table->RunPasses();
    EXPECT_EQ(Row(2), (QStringList{"1F40H", "77", "4D", "", "01001101"}));
}

TEST_F(StatusTableLive, ARowBeingTypedInKeepsItsTextWhileTheOthersGoOn) {
    Online(49, {"B100", "B101"});
    table->view->StatusGrid().SetCell(2, 2);
    table->Type("4");
    Poke(100, 200);
    Poke(101, 201);
    table->RunPasses();
    EXPECT_EQ(table->Cell(2, 2), QString("4"));
    EXPECT_EQ(table->Cell(3, 2), QString("201"));
    table->Press(Qt::Key_Escape);
    table->RunPasses();
    EXPECT_EQ(table->Cell(2, 2), QString("0")); // the text from before the first key
    table->Press(Qt::Key_Escape);
    table->RunPasses();
    EXPECT_EQ(table->Cell(2, 2), QString("200"));
}

TEST_F(StatusTableLive, AValueTypedIsWrittenAndReadBack) {
    Online(49, {"B100", "W102", "B110.3", "Y81", "D112"});
    Grid& grid = table->view->StatusGrid();
    grid.SetCell(2, 2);
    table->Type("200");
    table->Press(Qt::Key_Return);
    EXPECT_EQ(Peek(100), 200);
    grid.SetCell(3, 3);
    table->Type("1ff");
    table->Press(Qt::Key_Return);
    EXPECT_EQ(Peek(102), 0xFF);
    EXPECT_EQ(Peek(103), 1);
    grid.SetCell(4, 2);
    table->Type("1");
    table->Press(Qt::Key_Return);
    EXPECT_EQ(Peek(110), 8);
    grid.SetCell(5, 2);
    table->Type("3");
    table->Press(Qt::Key_Return);
    EXPECT_EQ(Peek(58), 3);
    grid.SetCell(6, 2);
    table->Type("20001");
    table->Press(Qt::Key_Return);
    EXPECT_EQ(Peek(112), 1);
    EXPECT_EQ(Peek(114), 2);
    table->RunPasses();
    EXPECT_EQ(table->Cell(3, 2), QString("511"));
    EXPECT_EQ(table->Cell(6, 3), QString("4E21"));
}

TEST_F(StatusTableLive, AValueTooLargeIsRefusedByTheLinkAndTheCellComesBack) {
    Online(49, {"B100"});
    Poke(100, 9);
    table->RunPasses();
    table->view->StatusGrid().SetCell(2, 2);
    table->dialogs.ExpectBoxTitled("ENTRY ALERT", 1);
    table->Type("256");
    table->Press(Qt::Key_Return);
    table->RunPasses();
    EXPECT_EQ(Peek(100), 9);
    EXPECT_EQ(table->Cell(2, 2), QString("9"));
}

TEST_F(StatusTableLive, AValueTypedForAnInputGoesNowhereAndTheCellComesBack) {
    Online(59, {"X10"});
    Poke(51, 3);
    table->RunPasses();
    table->view->StatusGrid().SetCell(2, 2);
    table->Type("9");
    table->Press(Qt::Key_Return);
    EXPECT_EQ(Peek(51), 3);
    table->RunPasses();
    EXPECT_EQ(table->Cell(2, 2), QString("3"));
}

TEST_F(StatusTableLive, WithTheLinkLostTheRowReachedKeepsItsValues) {
    Online(49, {"B100", "B101"});
    Poke(100, 5);
    Poke(101, 6);
    table->RunPasses();
    Poke(100, 50);
    Poke(101, 60);
    table->boardPort.plugged = false;
    table->ExpectAlert(NoReplyAlert(), 2);
    table->RunPasses();
    EXPECT_TRUE(table->link.CommError());
    EXPECT_FALSE(table->link.OnlineMode());
    EXPECT_EQ(table->Cell(2, 2), QString("5"));
    EXPECT_EQ(table->Cell(3, 2), QString("6"));
}

TEST_F(StatusTableLive, OnlyVisibleRowsAreRead) {
    Online(49, {"B100"});
    Grid& grid = table->view->StatusGrid();
    grid.SetRows(3000);
    for (int row = 2; row < 2999; ++row)
        grid.SetTextMatrix(row, 1, "B100");
    Poke(100, 9);
    table->RunPasses();
    EXPECT_EQ(table->Cell(2, 2), QString("9"));
    EXPECT_EQ(table->Cell(200, 2), QString());
    grid.SetTopRow(1500);
    table->RunPasses();
    EXPECT_EQ(table->Cell(1500, 2), QString("9"));
    EXPECT_EQ(table->Cell(1400, 2), QString());
}

TEST_F(StatusTableLive, AnAddressBeyondMemoryHarmsNoOtherRow) {
    Online(49, {"B99999", "W65535", "B100"});
    Poke(100, 9);
    table->RunPasses();
    EXPECT_EQ(table->Cell(2, 2), QString());
    EXPECT_EQ(table->Cell(4, 2), QString("9"));
}

TEST_F(StatusTableLive, AChangedValueIsMarkedForAMoment) {
    Online(49, {"B100", "B101"});
    table->RunPasses();
    const QAbstractItemModel& model = *table->view->StatusGrid().model();
    EXPECT_FALSE(model.index(0, 2).data(GridModel::ChangedRole).toBool());
    Poke(100, 9);
    table->Until([&] { return table->Cell(2, 2) == "9"; });
    EXPECT_TRUE(model.index(0, 2).data(GridModel::ChangedRole).toBool());
    EXPECT_FALSE(model.index(1, 2).data(GridModel::ChangedRole).toBool());
    table->Until([&] { return !model.index(0, 2).data(GridModel::ChangedRole).toBool(); });
}

TEST_F(StatusTableLive, ATypedAddressIsReadAtOnce) {
    Online(49, {});
    Poke(120, 44);
    table->Type("B120");
    table->Press(Qt::Key_Return);
    table->RunPasses();
    EXPECT_EQ(table->Cell(2, 2), QString("44"));
}

TEST_F(StatusTableLive, ARowThatIsRemovedEndsThePassAndTheNextBeginsAnew) {
    Online(49, {"B100", "B101", "B102"});
    Poke(102, 7);
    Grid& grid = table->view->StatusGrid();
    grid.SetCell(2, 0);
    table->Press(Qt::Key_End, Qt::ShiftModifier);
    table->Press(Qt::Key_Delete);
    table->RunPasses();
    EXPECT_EQ(Row(3), (QStringList{"B102", "7", "7", "", "00000111"}));
}

TEST_F(StatusTableLive, TheColumnsTakeTheWholeWidth) {
    Online(49, {});
    const Grid& grid = table->view->StatusGrid();
    int sum = 0;
    for (int col = 0; col < 6; ++col)
        sum += grid.columnWidth(col);
    EXPECT_NEAR(sum, grid.viewport()->width(), 6);
}

TEST_F(StatusTableLive, HiddenItReadsNothing) {
    Online(49, {"B100"});
    table->view->hide();
    const int sent = table->boardPort.bytesSent;
    table->RunPasses();
    EXPECT_EQ(table->boardPort.bytesSent, sent);
}

TEST_F(StatusTableLive, ClosedItReadsNothingUntilItIsActiveAgain) {
    Online(49, {"B100"});
    table->view->close();
    EXPECT_FALSE(table->host.menusShown);
    EXPECT_EQ(table->loops.Current(), nullptr);
    table->view->show();
    table->view->Activate();
    Poke(100, 3);
    table->RunPasses();
    EXPECT_EQ(table->Cell(2, 2), QString("3"));
}
