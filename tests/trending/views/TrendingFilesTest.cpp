#include "TrendingViewUnderTest.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

TEST_F(TrendingView, SavedAndOpenedAgainItShowsTheSameGridAndTheCounterItsRows) {
    TypeAddress(QStringLiteral("B40"));
    dialogs.ExpectSave(Path("a.tdt"));
    view.SaveTendData();
    dialogs.ExpectOpen(Path("a.tdt"));
    view.OpenTrendData();
    EXPECT_EQ(Samples().Rows(), 12);
    EXPECT_EQ(Find<QLabel>("lblSamples").text().toStdString(), "11");
    EXPECT_EQ(Find<QComboBox>("cboAddress").currentText().toStdString(), "B40");
    ASSERT_EQ(dialogs.FileRequests().size(), 2u);
    EXPECT_EQ(dialogs.FileRequests()[0].title.toStdString(), "Trend Sample Save");
    EXPECT_EQ(dialogs.FileRequests()[1].title.toStdString(), "Trend Sample Open");
    EXPECT_EQ(dialogs.FileRequests()[1].fileName, Path("a.tdt"));
}

TEST_F(TrendingView, ACancelledDialogChangesNothing) {
    dialogs.ExpectOpen(QString());
    view.OpenTrendData();
    dialogs.ExpectSave(QString());
    view.SaveTendData();
    EXPECT_EQ(Find<QLabel>("lblSamples").text().toStdString(), "0");
}

TEST_F(TrendingView, AFileCutAfterItsFirstLineIsToldAndChangesNothing) {
    QFile file(Path("cut.tdt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("B50\r\n");
    file.close();
    dialogs.ExpectOpen(Path("cut.tdt"));
    dialogs.ExpectBoxTitled(QStringLiteral("Trend Sample Open"), MsgAnswer::Ok);
    view.OpenTrendData();
    EXPECT_EQ(Find<QComboBox>("cboAddress").currentText().toStdString(), "(none)");
}

TEST_F(TrendingView, SavingAndOpeningGivesTheSameGridAndTheCounterEqualsTheNumberOfRows) {
    TypeAddress(QStringLiteral("B40"));
    GoOnlineAndAcquire();
    Find<QRadioButton>("optOptions(1)").setChecked(true);
    Until([&] { return view.Acquisition().Counter() >= 20; });
    Find<QCheckBox>("chkAcquire").setChecked(false);
    const int rows = view.Acquisition().Samples().Rows();
    Until([&] { return Samples().Rows() == rows; });
    const QStringList cells = Cells();
    EXPECT_EQ(cells.at(3).toStdString(), "40");
    dialogs.ExpectSave(Path("a.tdt"));
    view.SaveTendData();
    QTest::mouseClick(&Find<QPushButton>("cmdClear"), Qt::LeftButton);
    EXPECT_NE(Cells(), cells);
    Open("a.tdt");
    EXPECT_EQ(Cells(), cells);
    EXPECT_EQ(Find<QLabel>("lblSamples").text().toStdString(), std::to_string(rows - 1));
}

TEST_F(TrendingView, AnEmptyFileOpensWithNothingChanged) {
    Write("a.tdt", "B40\r\n 2 \r\n(sec), Data:\r\n1, 5\r\n0, 4\r\n");
    Open("a.tdt");
    const QStringList cells = Cells();
    Write("empty.tdt", "");
    Open("empty.tdt");
    EXPECT_EQ(Cells(), cells);
    EXPECT_EQ(Find<QLabel>("lblSamples").text().toStdString(), "2");
    EXPECT_EQ(Find<QComboBox>("cboTargetBoard").currentText().toStdString(), "K2012");
    EXPECT_EQ(Find<QComboBox>("cboAddress").currentText().toStdString(), "B40");
}

TEST_F(TrendingView, OpeningTakesTheVariableAsThoughTheUserTypedIt) {
    Write("a.tdt", "x30\r\n 1 \r\n(sec), Data:\r\n0, 4\r\n");
    Open("a.tdt");
    EXPECT_EQ(Find<QComboBox>("cboAddress").currentText().toStdString(), "X30");
    EXPECT_EQ(view.Acquisition().Variable().Address().toStdString(), "B49");
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
}

TEST_F(TrendingView, AFileOfMoreThan257SamplesIsShownWhole) {
    QByteArray bytes = "B40\r\n 0 \r\n(sec), Data:\r\n";
    for (int i = 300; i > 0; --i)
        bytes += QByteArray::number(i) + ", 5\r\n";
    Write("a.tdt", bytes);
    Open("a.tdt");
    EXPECT_EQ(Samples().Rows(), 301);
    EXPECT_EQ(Samples().TextMatrix(300, 1).toStdString(), "1");
    EXPECT_EQ(Find<QLabel>("lblSamples").text().toStdString(), "300");
}

TEST_F(TrendingView, OnlyTheRowsInSightAreNumbered) {
    QByteArray bytes = "B40\r\n 0 \r\n(sec), Data:\r\n";
    for (int i = 300; i > 0; --i)
        bytes += QByteArray::number(i) + ", 5\r\n";
    Write("a.tdt", bytes);
    Open("a.tdt");
    EXPECT_EQ(Samples().TextMatrix(1, 0).toStdString(), "1");
    EXPECT_EQ(Samples().TextMatrix(300, 0).toStdString(), "");
    Samples().SetTopRow(295);
    EXPECT_EQ(Samples().TextMatrix(300, 0).toStdString(), "300");
}

TEST_F(TrendingView, AFileOf100000LinesIsShownWithNumbersThatHaveRoom) {
    QByteArray bytes = "B40\r\n 0 \r\n(sec), Data:\r\n";
    for (int i = 0; i < 100'000; ++i)
        bytes += QByteArray::number(i) + ", 5\r\n";
    Write("a.tdt", bytes);
    const int before = Samples().columnWidth(0);
    Open("a.tdt");
    EXPECT_EQ(Samples().Rows(), 100'001);
    EXPECT_EQ(Find<QLabel>("lblSamples").text().toStdString(), "100,000");
    EXPECT_GT(Samples().columnWidth(0),
              Samples().fontMetrics().horizontalAdvance(QStringLiteral("100000")));
    QTest::mouseClick(&Find<QPushButton>("cmdClear"), Qt::LeftButton);
    EXPECT_EQ(Samples().columnWidth(0), before);
    EXPECT_EQ(Find<QLabel>("lblSamples").text().toStdString(), "100,000");
}

TEST_F(TrendingView, AFileThatCannotBeSavedIsToldAndIsNotTheNextStart) {
    dialogs.ExpectSave(Path("none/a.tdt"));
    dialogs.ExpectBoxTitled(QStringLiteral("Trend Sample Save"), MsgAnswer::Ok);
    view.SaveTendData();
    dialogs.ExpectSave(QString());
    view.SaveTendData();
    EXPECT_EQ(dialogs.FileRequests().at(1).fileName.toStdString(), "");
}
