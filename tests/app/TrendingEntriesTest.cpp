#include "controls/grid/Grid.h"
#include "reports/views/PdfPages.h"
#include "session/Globals.h"
#include "WholeProgram.h"
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QImage>
#include <QMenu>
#include <QTest>

namespace {
class TrendingEntries : public WholeProgram {
protected:
    void SetUp() override {
        WholeProgram::SetUp();
        Press("Trend");
    }
    void Trigger(const char* entry) { Entry(QLatin1String(entry))->trigger(); }
    Grid& Samples() { return *Find<Grid>(QStringLiteral("fgTrend")); }
    void Watch(const QString& address) {
        auto* view = Window().Children().View(QStringLiteral("frmTrending"));
        view->findChild<QComboBox*>(QStringLiteral("cboTargetBoard"))->setCurrentIndex(3);
        auto* entry = view->findChild<QComboBox*>(QStringLiteral("cboAddress"));
        entry->setFocus();
        entry->setEditText(address);
        QTest::keyClick(entry, Qt::Key_Return);
    }
    bool IsPdf(const QString& path) const { return Content(path).startsWith("%PDF-"); }
};
} // namespace

TEST_F(TrendingEntries, TheButtonShowsTheViewAndItsPrintEntry) {
    EXPECT_EQ(Window().ActiveChildName(), QStringLiteral("frmTrending"));
    EXPECT_TRUE(Entry(QStringLiteral("mnuFilePrintTrendData"))->isVisible());
    Window().Children().Hide(QStringLiteral("frmTrending"));
    EXPECT_FALSE(Entry(QStringLiteral("mnuFilePrintTrendData"))->isVisible());
}

TEST_F(TrendingEntries, AValueOfTheBoardArrivesInTheGrid) {
    Fill(100, 1, 77);
    Trigger("mnuViewOnline");
    Watch(QStringLiteral("B100"));
    QTest::mouseClick(Find<QCheckBox>(QStringLiteral("chkAcquire")), Qt::LeftButton, {}, {8, 8});
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return Samples().TextMatrix(1, 2) == QStringLiteral("77"); }, 10000));
    EXPECT_EQ(Samples().TextMatrix(1, 1), QStringLiteral("0"));
}

TEST_F(TrendingEntries, TheKeyAndTheEntryPutTheGraphOnTheClipboard) {
    QGuiApplication::clipboard()->clear();
    Trigger("mnuTrendingPopupCopy");
    const QImage byEntry = QGuiApplication::clipboard()->image();
    EXPECT_FALSE(byEntry.isNull());
    QGuiApplication::clipboard()->clear();
    Samples().setFocus();
    QTest::keyClick(&Samples(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->image(), byEntry);
}

TEST_F(TrendingEntries, ThePrintEntryPrintsReportAndGraph) {
    ASSERT_EQ(gPrintContext, PrintContext::Trending);
    dialogs_.ExpectPrinter({QString(), SetPath(QStringLiteral("trend.pdf")), 1});
    WhenUp("frmTrendingPrint", [](QWidget& dialog) {
        ClickButton(dialog, "chkTrendData");
        ClickButton(dialog, "chkGraph");
        ClickButton(dialog, "cmdSetup");
        ClickButton(dialog, "cmdOk");
    });
    Trigger("mnuFilePrintTrendData");
    EXPECT_TRUE(IsPdf(SetPath(QStringLiteral("trend.pdf"))));
    EXPECT_TRUE(IsPdf(SetPath(QStringLiteral("trend-2.pdf"))));
}

TEST_F(TrendingEntries, ExportWritesTheSamplesWithAHead) {
    dialogs_.ExpectSave(SetPath(QStringLiteral("trend.csv")));
    Trigger("mnuTrendingPopupExport");
    EXPECT_EQ(Content(SetPath(QStringLiteral("trend.csv"))), QByteArray("Time (sec),Value\r\n"));
}

TEST_F(TrendingEntries, ARightClickOpensThePopup) {
    QMenu* menu = Window().Commands().Menu(QStringLiteral("mnuTrendingPopup"));
    QContextMenuEvent click(QContextMenuEvent::Mouse, {5, 5}, Samples().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(Samples().viewport(), &click);
    EXPECT_TRUE(menu->isVisible());
    menu->close();
}

TEST_F(TrendingEntries, TheStatusTableIsPrintedWhileItIsActive) {
    Press("Status");
    ASSERT_EQ(gPrintContext, PrintContext::StatusTable);
    TypeAddresses({QStringLiteral("b100")});
    dialogs_.ExpectPrinter({QString(), SetPath(QStringLiteral("table.pdf")), 1});
    Trigger("mnuFilePrintStatusTable");
    EXPECT_TRUE(IsPdf(SetPath(QStringLiteral("table.pdf"))));
}

TEST_F(TrendingEntries, ThePrintedTableIsHeadedByItsTitleAndHoldsItsRows) {
    Press("Status");
    WriteSetFile(QStringLiteral("WATCH.tbl"), " 51 \r\nB100\r\nW200\r\n\r\n");
    dialogs_.ExpectOpen(SetPath(QStringLiteral("WATCH.tbl")));
    Trigger("mnuStatusTableItem(6)");
    dialogs_.ExpectPrinter({QString(), SetPath(QStringLiteral("table.pdf")), 1});
    Trigger("mnuFilePrintStatusTable");
    const std::vector<PdfPage> pages = ReadPdf(SetPath(QStringLiteral("table.pdf")));
    ASSERT_EQ(pages.size(), 1u);
    QStringList words;
    for (const PdfWord& word : pages[0])
        words += word.text;
    EXPECT_EQ(words.mid(0, 3).join(u' ').toStdString(), "Status Table: WATCH");
    EXPECT_TRUE(words.contains(QStringLiteral("B100")));
    EXPECT_TRUE(words.contains(QStringLiteral("W200")));
}

TEST_F(TrendingEntries, ACancelledPrinterDialogPrintsNoTable) {
    Press("Status");
    dialogs_.ExpectPrinterCancelled();
    Trigger("mnuFilePrintStatusTable");
    EXPECT_TRUE(dialogs_.Boxes().empty());
}

TEST_F(TrendingEntries, AReportThatCannotBeWrittenIsToldOnce) {
    dialogs_.ExpectPrinter({QString(), SetPath(QStringLiteral("none/trend.pdf")), 1});
    dialogs_.ExpectBoxTitled(QStringLiteral("Print -Trending"), MsgAnswer::Ok);
    WhenUp("frmTrendingPrint", [](QWidget& dialog) {
        ClickButton(dialog, "chkTrendData");
        ClickButton(dialog, "chkGraph");
        ClickButton(dialog, "cmdSetup");
        ClickButton(dialog, "cmdOk");
    });
    Trigger("mnuFilePrintTrendData");
    EXPECT_EQ(dialogs_.Boxes().size(), 1u);
}

TEST_F(TrendingEntries, ATableThatCannotBePrintedIsToldAndTheFocusGoesToTheGrid) {
    Press("Status");
    dialogs_.ExpectPrinter({QStringLiteral("printer that was taken away"), QString(), 1});
    dialogs_.ExpectBoxTitled(QStringLiteral("Status Table"), MsgAnswer::Ok);
    Trigger("mnuFilePrintStatusTable");
    EXPECT_TRUE(dialogs_.Boxes().at(0).text.startsWith(QStringLiteral("Error Number = 68")));
    EXPECT_EQ(Window().focusWidget(), &Table());
}
