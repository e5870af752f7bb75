#include "session/Globals.h"
#include "TableUnderTest.h"
#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QTest>

namespace {
const QString question = QStringLiteral("Save Changes to File?");

class StatusTableFiles : public testing::Test {
protected:
    void Open(const QString& path) {
        table.dialogs.ExpectOpen(path);
        table.view->OpenStatusTable();
    }
    void ExpectQuestion(int answer) {
        table.dialogs.ExpectBox(question, 35, "Status Table", answer);
    }
    QString Caption() { return table.Find<QGroupBox>("fraStatus").title(); }
    Grid& grid() { return table.view->StatusGrid(); }

    TableUnderTest table;
};
} // namespace

TEST_F(StatusTableFiles, ANewTableHas60RowsAndItsHeads) {
    EXPECT_EQ(grid().Rows(), 60);
    EXPECT_EQ(grid().Cols(), 6);
    const QStringList heads{" ", "Address", "Decimal", "HEX", "76543210", "76543210"};
    for (int col = 0; col < 6; ++col)
        EXPECT_EQ(table.Cell(1, col), heads[col]);
    EXPECT_EQ(table.Cell(0, 4), QString("BIN High"));
    EXPECT_EQ(table.Cell(0, 5), QString("BIN Low"));
    EXPECT_EQ(table.Cell(59, 0), QString("*"));
    EXPECT_EQ(grid().Row(), 2);
    EXPECT_EQ(grid().Col(), 1);
    EXPECT_EQ(gTableAddresses.size(), 58);
    EXPECT_EQ(Caption(), QString("&Status Table:"));
}

TEST_F(StatusTableFiles, ATableOpensWithItsBoardRowsAndTitle) {
    Open(table.files.Write("line 4.tbl", " 49 \r\nB100\r\n\r\nW200\r\n\r\n"));
    EXPECT_EQ(grid().Rows(), 6);
    EXPECT_EQ(table.Column1(), (QStringList{"B100", "", "W200", ""}));
    EXPECT_EQ(table.Cell(5, 0), QString("*"));
    EXPECT_EQ(table.Cell(4, 0), QString());
    EXPECT_EQ(Caption(), QString("&Status Table: line 4"));
    EXPECT_EQ(gTableTitle, QString("line 4"));
    EXPECT_EQ(table.Find<QComboBox>("cboTargetBoard").currentText(), QString("K2010"));
    EXPECT_EQ(table.jobs.ran, std::vector<qint16>{1});
    EXPECT_FALSE(table.view->isWindowModified());
}

TEST_F(StatusTableFiles, ALongerTableLeavesNoMarkInTheMiddle) {
    QByteArray bytes(" 49 \r\n");
    for (int i = 0; i < 100; ++i)
        bytes += "B100\r\n";
    Open(table.files.Write("long.tbl", bytes + "\r\n"));
    EXPECT_EQ(grid().Rows(), 103);
    EXPECT_EQ(table.Cell(59, 0), QString());
    EXPECT_EQ(table.Cell(102, 0), QString("*"));
}

TEST_F(StatusTableFiles, SavedAndOpenedAgainTheRowsStay) {
    table.Fill({"B100", "", "W200"});
    table.dialogs.ExpectSave(table.files.Path("a.tbl"));
    table.view->SaveStatusTable();
    const QByteArray saved = table.files.Read("a.tbl");
    EXPECT_TRUE(saved.startsWith(" 0 \r\nB100\r\n\r\nW200\r\n"));
    EXPECT_EQ(saved.count('\n'), 59);
    Open(table.files.Path("a.tbl"));
    EXPECT_EQ(grid().Rows(), 60);
    EXPECT_EQ(table.Column1().mid(0, 3), (QStringList{"B100", "", "W200"}));
    table.view->SaveStatusTable();
    EXPECT_EQ(table.files.Read("a.tbl"), saved);
}

TEST_F(StatusTableFiles, OfALimitSwitchBoardSelectsNoneAndKeepsItsIndex) {
    table.ChooseBoard(51);
    Open(table.files.Write("pls.tbl", " 62 \r\nB100\r\n\r\n"));
    EXPECT_EQ(table.Find<QComboBox>("cboTargetBoard").currentText(), QString("(none)"));
    table.view->SaveStatusTable();
    EXPECT_EQ(table.files.Read("pls.tbl"), QByteArray(" 62 \r\nB100\r\n\r\n"));
}

TEST_F(StatusTableFiles, NoneChosenOverALimitSwitchBoardTakesItsIndexAway) {
    Open(table.files.Write("pls.tbl", " 62 \r\nB100\r\n\r\n"));
    auto& boards = table.Find<QComboBox>("cboTargetBoard");
    boards.showPopup();
    QTest::keyClick(boards.view(), Qt::Key_Return);
    table.view->SaveStatusTable();
    EXPECT_EQ(table.files.Read("pls.tbl"), QByteArray(" 0 \r\nB100\r\n\r\n"));
}

TEST_F(StatusTableFiles, OfMoreThan32767LinesTheRowsReadSoFarAreShown) {
    QByteArray bytes(" 50 \r\n");
    for (int i = 0; i < 32768; ++i)
        bytes += "B" + QByteArray::number(32 + i % 8000) + "\r\n";
    table.files.Write("long.tbl", bytes);
    table.dialogs.ExpectBox("Maximum Row Limit Reached.", 48, "File Error", 1);
    QElapsedTimer timer;
    timer.start();
    Open(table.files.Path("long.tbl"));
    RecordProperty("open_ms", static_cast<int>(timer.elapsed()));
    EXPECT_EQ(table.Cell(2, 1), QString("B32"));
    EXPECT_EQ(table.Cell(32768, 1), QString("B%1").arg(32 + 32766 % 8000));
    EXPECT_EQ(table.Cell(grid().Rows() - 1, 0), QString("*"));
    EXPECT_EQ(table.Cell(grid().Rows() - 1, 1), QString());
    EXPECT_LT(timer.elapsed(), 5000);
}

TEST_F(StatusTableFiles, MissingAndEmptyFilesLeaveTheTable) {
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\n\r\n"));
    table.dialogs.ExpectBox("Status Table File is Empty,\r\nFile Does Not Exist.", 64, "File Error",
                            1);
    Open(table.files.Path("none.tbl"));
    table.dialogs.ExpectBox("Status Table File is Empty.", 64, "File Error", 1);
    Open(table.files.Write("empty.tbl", ""));
    table.dialogs.ExpectBox("Error Number = 6\r\n\r\nOverflow", 64, "OpenStatusTable", 1);
    Open(table.files.Write("bad.tbl", "99999\r\nB200\r\n"));
    EXPECT_EQ(table.Cell(2, 1), QString("B100"));
    EXPECT_EQ(Caption(), QString("&Status Table: a"));
    table.Fill({"B101"});
    table.view->SaveStatusTable();
    EXPECT_EQ(table.files.Read("a.tbl"), QByteArray(" 49 \r\nB101\r\n\r\n"));
}

TEST_F(StatusTableFiles, CancelOfTheOpenDialogLeavesTheTable) {
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\n\r\n"));
    Open(QString());
    EXPECT_EQ(table.Cell(2, 1), QString("B100"));
    EXPECT_EQ(Caption(), QString("&Status Table: a"));
}

TEST_F(StatusTableFiles, TheOpenDialogOffersTablesAndStartsAtTheLastOne) {
    Open(QString());
    EXPECT_EQ(table.dialogs.FileRequests().back().initDir, QString("/application"));
    table.host.selected = "/sets/PUMP.hdn";
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\n\r\n"));
    EXPECT_EQ(table.dialogs.FileRequests().back().initDir, QString("/sets"));
    Open(QString());
    const FileDialogRequest& request = table.dialogs.FileRequests().back();
    EXPECT_EQ(request.fileName, table.files.Path("a.tbl"));
    EXPECT_EQ(request.filter, QString("Status Table Files(*.tbl)|*.tbl|"));
    EXPECT_EQ(request.flags, 0x81004);
}

TEST_F(StatusTableFiles, AChosenBoardIsKeptAndGivesTheFocusBackToTheTable) {
    auto& boards = table.Find<QComboBox>("cboTargetBoard");
    boards.setFocus();
    boards.showPopup();
    boards.view()->setCurrentIndex(boards.model()->index(1, 0));
    QTest::keyClick(boards.view(), Qt::Key_Return);
    EXPECT_EQ(boards.currentText(), QString("K2010"));
    EXPECT_TRUE(grid().hasFocus());
    table.dialogs.ExpectSave(table.files.Path("a.tbl"));
    table.view->SaveStatusTable();
    EXPECT_TRUE(table.files.Read("a.tbl").startsWith(" 49 \r\n"));
}

TEST_F(StatusTableFiles, CancellingTheQuestionLeavesTheTableUntouched) {
    table.Fill({"B100"});
    ExpectQuestion(2);
    table.view->OpenStatusTable();
    ExpectQuestion(2);
    table.view->NewStatusTable();
    EXPECT_EQ(table.Cell(2, 1), QString("B100"));
}

TEST_F(StatusTableFiles, NoToTheQuestionEmptiesTheTable) {
    table.Fill({"B100"});
    ExpectQuestion(7);
    table.view->NewStatusTable();
    EXPECT_EQ(table.Cell(2, 1), QString());
}

TEST_F(StatusTableFiles, YesToTheQuestionSavesFirst) {
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\n\r\n"));
    table.Fill({"B101"});
    ExpectQuestion(6);
    table.view->NewStatusTable();
    EXPECT_EQ(table.files.Read("a.tbl"), QByteArray(" 49 \r\nB101\r\n\r\n"));
    EXPECT_EQ(grid().Rows(), 60);
    EXPECT_EQ(gTableTitle, QString());
}

TEST_F(StatusTableFiles, YesAndThenNoFileKeepsTheTable) {
    table.Fill({"B100"});
    ExpectQuestion(6);
    table.dialogs.ExpectSave(QString());
    table.view->NewStatusTable();
    EXPECT_EQ(table.Cell(2, 1), QString("B100"));
}

TEST_F(StatusTableFiles, TheQuestionIsNotAskedForAnUnchangedTable) {
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\n\r\n"));
    table.view->NewStatusTable();
    table.view->NewStatusTable();
    EXPECT_EQ(grid().Rows(), 60);
}

TEST_F(StatusTableFiles, AFailedSaveLeavesFileAndTable) {
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\n\r\n"));
    table.Fill({"B101"});
    table.dialogs.ExpectSave(table.files.Path("none/b.tbl"));
    table.dialogs.ExpectBox("Error Number = 76\r\n\r\nPath not found", 64, "SaveStatusTable", 1);
    table.view->SaveStatusTableAs();
    EXPECT_EQ(Caption(), QString("&Status Table: a"));
    EXPECT_EQ(table.Cell(2, 1), QString("B101"));
    ExpectQuestion(2);
    table.view->NewStatusTable();
    table.view->SaveStatusTable();
    EXPECT_EQ(table.files.Read("a.tbl"), QByteArray(" 49 \r\nB101\r\n\r\n"));
}

TEST_F(StatusTableFiles, SaveAsStartsInTheFolderOfTheLastTable) {
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\n\r\n"));
    table.dialogs.ExpectSave(table.files.Path("b.tbl"));
    table.view->SaveStatusTableAs();
    EXPECT_EQ(table.dialogs.FileRequests().back().fileName, table.files.Path("a.tbl"));
    EXPECT_EQ(table.dialogs.FileRequests().back().flags, 0x80006);
    EXPECT_EQ(table.dialogs.FileRequests().back().filter,
              QString("Status Table Files(*.tbl)|*.tbl|"));
    EXPECT_EQ(Caption(), QString("&Status Table: b"));
    table.view->NewStatusTable();
    table.dialogs.ExpectSave(QString());
    table.view->SaveStatusTableAs();
    EXPECT_EQ(table.dialogs.FileRequests().back().fileName, table.files.Path("*.tbl"));
}

TEST_F(StatusTableFiles, AnAddressStillBeingTypedIsCheckedBeforeTheSave) {
    Open(table.files.Write("a.tbl", " 49 \r\n\r\n\r\n"));
    table.Type("b100");
    table.view->SaveStatusTable();
    EXPECT_EQ(table.files.Read("a.tbl"), QByteArray(" 49 \r\nB100\r\n\r\n"));
    EXPECT_FALSE(table.view->isWindowModified());
}

TEST_F(StatusTableFiles, TheTitleMarksAChangedTable) {
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\n\r\n"));
    EXPECT_FALSE(table.view->isWindowModified());
    table.Press(Qt::Key_Delete);
    EXPECT_TRUE(table.view->isWindowModified());
    table.view->SaveStatusTable();
    EXPECT_FALSE(table.view->isWindowModified());
    table.ChooseBoard(50);
    EXPECT_TRUE(table.view->isWindowModified());
}

TEST_F(StatusTableFiles, ClosingTheProgramAsksForRowsBehindTheEndToo) {
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\n\r\n"));
    EXPECT_TRUE(table.view->MayClose());
    grid().SetRows(9);
    grid().SetTextMatrix(7, 1, "B101");
    ExpectQuestion(2);
    EXPECT_FALSE(table.view->MayClose());
    ExpectQuestion(7);
    EXPECT_TRUE(table.view->MayClose());
    ExpectQuestion(6);
    EXPECT_TRUE(table.view->MayClose());
    EXPECT_TRUE(table.files.Read("a.tbl").contains("B101"));
}

TEST_F(StatusTableFiles, CancelInTheJobLeavesTheRowsWrittenSoFar) {
    table.jobs.cancelAt = 2;
    Open(table.files.Write("a.tbl", " 49 \r\nB100\r\nB101\r\nB102\r\n\r\n"));
    EXPECT_EQ(table.Column1(), (QStringList{"B100", "B101", "", ""}));
    EXPECT_EQ(table.Cell(5, 0), QString("*"));
}

TEST_F(StatusTableFiles, PrintingTakesThePrinterAndRunsItsJob) {
    table.dialogs.ExpectPrinter({"Office", "", 1});
    table.view->PrintStatusTable();
    EXPECT_EQ(table.host.printer, QString("Office"));
    EXPECT_EQ(table.jobs.ran, std::vector<qint16>{3});
}

TEST_F(StatusTableFiles, ActivationShowsTheCommandsOfTheView) {
    EXPECT_TRUE(table.host.commandsShown);
    EXPECT_EQ(gPrintContext, PrintContext::StatusTable);
    table.view->Deactivate();
    EXPECT_FALSE(table.host.commandsShown);
    EXPECT_NE(table.loops.Current(), nullptr) << "the values stay live";
}
