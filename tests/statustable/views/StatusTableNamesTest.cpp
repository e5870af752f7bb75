#include "session/Globals.h"
#include "TableUnderTest.h"
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>

namespace {
class StatusTableNames : public testing::Test {
protected:
    QString Set(const QByteArray& hdn, const QByteArray& nam = QByteArray(),
                const QByteArray& doc = QByteArray(), const QByteArray& ldt = QByteArray()) {
        const QString path = table.files.Write("press.hdn", hdn);
        if (!nam.isNull())
            table.files.Write("press.nam", nam);
        if (!doc.isNull())
            table.files.Write("press.doc", doc);
        if (!ldt.isNull())
            table.files.Write("press.ldt", ldt);
        return path;
    }

    void Select(const QString& path) {
        table.dialogs.ExpectOpen(path);
        table.view->SelectStatusTableProgram();
    }

    QCheckBox& nicNames() { return table.Find<QCheckBox>("chkViewNicNames"); }
    QCheckBox& descriptions() { return table.Find<QCheckBox>("chkViewDescriptions"); }
    QCheckBox& offline() { return table.Find<QCheckBox>("chkViewOffline"); }
    QString Caption() { return table.Find<QGroupBox>("fraProgram").title(); }

    TableUnderTest table;
};
} // namespace

TEST_F(StatusTableNames, AProgramSetsTheBoardAndTheCaption) {
    Select(Set("3\r\n", "005START\r\n", "005Starts the press\r\n"));
    EXPECT_EQ(Caption(), QString("Program: press"));
    EXPECT_EQ(table.Find<QComboBox>("cboTargetBoard").currentText(), QString("K2014"));
    EXPECT_TRUE(nicNames().isEnabled());
    EXPECT_TRUE(descriptions().isEnabled());
    EXPECT_TRUE(offline().isEnabled());
}

TEST_F(StatusTableNames, Column0ShowsOneKindOrTheOther) {
    Select(Set("3\r\n", "005START\r\n&\r\n100COUNT\r\n", "005Starts the press\r\n"));
    table.Fill({"F5", "B100", "B101"});
    nicNames().setChecked(true);
    EXPECT_EQ(table.Cell(1, 0), QString("NicNames"));
    EXPECT_EQ(table.Cell(2, 0), QString("START"));
    EXPECT_EQ(table.Cell(3, 0), QString("COUNT"));
    EXPECT_EQ(table.Cell(4, 0), QString());
    EXPECT_TRUE(gViewNicNames);
    descriptions().setChecked(true);
    EXPECT_FALSE(nicNames().isChecked());
    EXPECT_FALSE(gViewNicNames);
    EXPECT_TRUE(gViewDescriptions);
    EXPECT_EQ(table.Cell(1, 0), QString("Descriptions"));
    EXPECT_EQ(table.Cell(2, 0), QString("Starts the press"));
    EXPECT_EQ(table.Cell(3, 0), QString());
    descriptions().setChecked(false);
    EXPECT_EQ(table.Cell(1, 0), QString(" "));
    EXPECT_EQ(table.Cell(2, 0), QString());
    EXPECT_EQ(table.Cell(58, 0), QString());
    EXPECT_EQ(table.Cell(table.view->StatusGrid().Rows() - 1, 0), QString("*"));
    EXPECT_FALSE(gViewDescriptions);
}

TEST_F(StatusTableNames, ATableOpenedWhileNamesShowTakesThemAndANewOneKeepsTheHead) {
    Select(Set("3\r\n", "005START\r\n&\r\n100COUNT\r\n", ""));
    nicNames().setChecked(true);
    table.dialogs.ExpectOpen(table.files.Write("a.tbl", " 51 \r\nB100\r\nF5\r\n\r\n"));
    table.view->OpenStatusTable();
    EXPECT_EQ(table.Cell(1, 0), QString("NicNames"));
    EXPECT_EQ(table.Cell(2, 0), QString("COUNT"));
    EXPECT_EQ(table.Cell(3, 0), QString("START"));
    EXPECT_EQ(table.jobs.ran, (std::vector<qint16>{2, 1, 2}));
    table.view->NewStatusTable();
    EXPECT_EQ(table.Cell(1, 0), QString("NicNames"));
    EXPECT_EQ(table.Cell(2, 0), QString());
}

TEST_F(StatusTableNames, AnotherProgramTakesTheNamesAndTheDataOfTheOneBeforeAway) {
    Select(Set("3\r\n", "005START\r\n", "", "12"));
    table.Fill({"F5"});
    nicNames().setChecked(true);
    offline().setChecked(true);
    table.files.Write("pump.hdn", "D\r\n");
    table.files.Write("pump.nam", "0005STOP\r\n");
    table.files.Write("pump.doc", "");
    Select(table.files.Path("pump.hdn"));
    EXPECT_EQ(Caption(), QString("Program: pump"));
    EXPECT_FALSE(nicNames().isChecked());
    EXPECT_FALSE(offline().isChecked());
    EXPECT_EQ(table.Cell(2, 0), QString());
    nicNames().setChecked(true);
    EXPECT_EQ(table.Cell(2, 0), QString("STOP")) << "four digits for a board of large memory";
}

TEST_F(StatusTableNames, ATypedAddressTakesItsName) {
    Select(Set("3\r\n", "&\r\n255TOP\r\n", ""));
    nicNames().setChecked(true);
    table.Type("00ffh");
    table.Press(Qt::Key_Return);
    EXPECT_EQ(table.Cell(2, 0), QString("TOP"));
    EXPECT_EQ(table.view->Nicname("B9000"), QString());
}

TEST_F(StatusTableNames, WithoutADocFileTheMessageAppearsOnceAndTheBoxStaysUnchecked) {
    table.dialogs.ExpectBox("Unable to Open Descriptions File,\r\nFile Does Not Exist.", 64,
                            "File Error", 1);
    Select(Set("3\r\n", "005START\r\n"));
    EXPECT_FALSE(descriptions().isChecked());
    EXPECT_FALSE(descriptions().isEnabled());
    EXPECT_TRUE(nicNames().isEnabled());
}

TEST_F(StatusTableNames, ALimitSwitchBoardIsRefused) {
    table.ChooseBoard(51);
    table.dialogs.ExpectBox("Unable to View NicNames or Data for Target Board K2041.", 64,
                            "Target Board Error", 1);
    Select(Set("7\r\n", "", ""));
    EXPECT_EQ(table.Find<QComboBox>("cboTargetBoard").currentText(), QString("(none)"));
    EXPECT_FALSE(offline().isEnabled());
}

TEST_F(StatusTableNames, AnUnknownBoardIsRefused) {
    table.dialogs.ExpectBox("Inappropriate or Unrecognized Target Board Type.", 64,
                            "Target Board Error", 1);
    Select(Set("F\r\n"));
}

TEST_F(StatusTableNames, AMissingOrEmptyProgramIsTold) {
    table.dialogs.ExpectBox("Unable to Determine Target Board,\r\nFile Does Not Exist.", 64,
                            "File Error", 1);
    Select(table.files.Path("none.hdn"));
    table.dialogs.ExpectBox("Unable to Determine Target Board.", 64, "File Error", 1);
    Select(Set(""));
}

TEST_F(StatusTableNames, CancelKeepsTheNamesOfTheProgramBefore) {
    Select(Set("3\r\n", "005START\r\n", ""));
    nicNames().setChecked(true);
    Select(QString());
    EXPECT_FALSE(nicNames().isChecked());
    EXPECT_TRUE(table.view->ProgramPath().isEmpty());
    EXPECT_EQ(Caption(), QString("Program:"));
}

TEST_F(StatusTableNames, OfflineDataOfBoard50StartsAtEntry0) {
    Select(Set("2\r\n", "", "", "12:;00\r\n"));
    table.Fill({"B0", "B1", "X10", "B9000"});
    offline().setChecked(true);
    table.RunPasses();
    EXPECT_EQ(table.Cell(2, 2), QString("18"));
    EXPECT_EQ(table.Cell(3, 3), QString("AB"));
    for (int col = 2; col < 6; ++col)
        EXPECT_EQ(table.Cell(4, col), QString("N/A"));
    EXPECT_EQ(table.Cell(5, 2), QString("0"));
}

TEST_F(StatusTableNames, OfflineDataOfAnyOtherBoardStartsAtEntry70) {
    Select(Set("3\r\n", "", "", "12:;00\r\n"));
    table.Fill({"B70", "B71"});
    offline().setChecked(true);
    table.RunPasses();
    EXPECT_EQ(table.Cell(2, 2), QString("18"));
    EXPECT_EQ(table.Cell(3, 2), QString("171"));
    offline().setChecked(false);
    table.Fill({"B72"});
    table.RunPasses();
    EXPECT_EQ(table.Cell(2, 2), QString("18")) << "the values last shown stay";
}

TEST_F(StatusTableNames, AnAddressTypedOfflineShowsItsData) {
    Select(Set("3\r\n", "", "", "12:;00\r\n"));
    offline().setChecked(true);
    table.RunPasses();
    table.Type("B71");
    table.RunPasses();
    EXPECT_EQ(table.Cell(2, 2), QString()) << "while it is typed the row is passed over";
    table.Press(Qt::Key_Return);
    table.RunPasses();
    EXPECT_EQ(table.Cell(2, 2), QString("171"));
}

TEST_F(StatusTableNames, AMissingDataFileTurnsTheBoxOff) {
    Select(Set("3\r\n", "", ""));
    table.dialogs.ExpectBox("Unable to Open Data File,\r\nFile Does Not Exist.", 64,
                            "File Open Error", 1);
    offline().setChecked(true);
    EXPECT_FALSE(offline().isChecked());
    EXPECT_FALSE(offline().isEnabled());
}

TEST_F(StatusTableNames, ADataFileThatFailsIsReportedAndTurnsTheBoxOff) {
    Select(Set("3\r\n", "", ""));
    QFile file(table.files.Write("press.ldt", "12"));
    ASSERT_TRUE(file.resize(65 * 1024 * 1024)); // more than any reader takes
    table.dialogs.ExpectBox("Error Number = 7\r\n\r\nOut of memory", 16, "Status Table", 1);
    offline().setChecked(true);
    EXPECT_FALSE(offline().isChecked());
    EXPECT_FALSE(offline().isEnabled());
}

TEST_F(StatusTableNames, AnEmptyDataFileIsTold) {
    Select(Set("3\r\n", "", "", ""));
    table.files.Write("press.ldt", "");
    table.dialogs.ExpectBox("Unable to Open Data File.", 64, "File Open Error", 1);
    offline().setChecked(true);
    EXPECT_TRUE(offline().isEnabled());
}
