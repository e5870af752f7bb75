#include "TrendingViewUnderTest.h"

#include "jobs/WaitJobs.h"
#include "reports/views/PdfPages.h"
#include "support/NoProgress.h"
#include "trending/views/frmTrendingPrint.h"
#include <QLabel>
#include <QPushButton>

TEST_F(TrendingView, ThePrintDialogRunsTheReportAndPrintsTheGraph) {
    printer.UsePrinter({QString(), Path("graph.pdf"), 1});
    frmTrendingPrint dialog(dialogs, printer, jobs);
    dialog.InitialilizePrint(view.Acquisition().Samples(), 255);
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Print -Trending");
    EXPECT_EQ(dialog.findChild<QLabel*>("lblPrinter")->text(), Path("graph.pdf"));
    dialog.findChild<QCheckBox*>("chkGraph")->setChecked(true);
    dialog.findChild<QCheckBox*>("chkTrendData")->setChecked(true);
    dialog.findChild<QPushButton*>("cmdOk")->click();
    EXPECT_EQ(jobs.ran, std::vector<qint16>{WaitJob::PrintTrendData});
    QFile pdf(Path("graph.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_EQ(pdf.read(5), QByteArray("%PDF-"));
}

TEST_F(TrendingView, ACancelledPrinterDialogChangesNothing) {
    printer.UsePrinter({QString(), Path("graph.pdf"), 1});
    frmTrendingPrint dialog(dialogs, printer, jobs);
    dialogs.ExpectPrinterCancelled();
    dialog.findChild<QPushButton*>("cmdSetup")->click();
    EXPECT_EQ(dialog.findChild<QLabel*>("lblPrinter")->text(), Path("graph.pdf"));
    EXPECT_TRUE(dialogs.Boxes().empty());
}

TEST_F(TrendingView, WithoutAPrinterOkAsksForOneAndStaysUpOnCancel) {
    if (!printer.DeviceName().isEmpty())
        GTEST_SKIP() << "this computer has a printer";
    frmTrendingPrint dialog(dialogs, printer, jobs);
    dialog.show();
    dialog.findChild<QCheckBox*>("chkTrendData")->setChecked(true);
    dialogs.ExpectPrinterCancelled();
    dialog.findChild<QPushButton*>("cmdOk")->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(jobs.ran.empty());
    dialogs.ExpectPrinter({QString(), Path("asked.pdf"), 1});
    dialog.findChild<QPushButton*>("cmdOk")->click();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(jobs.ran, std::vector<qint16>{WaitJob::PrintTrendData});
}

TEST_F(TrendingView, TheSetupShowsThePrinterThatWasChosen) {
    printer.UsePrinter({QString(), Path("graph.pdf"), 1});
    frmTrendingPrint dialog(dialogs, printer, jobs);
    dialogs.ExpectPrinter({QString(), Path("other.pdf"), 1});
    dialog.findChild<QPushButton*>("cmdSetup")->click();
    EXPECT_EQ(dialog.findChild<QLabel*>("lblPrinter")->text(), Path("other.pdf"));
}

TEST_F(TrendingView, WithNothingToPrintOkClosesWithoutAQuestion) {
    if (!printer.DeviceName().isEmpty())
        GTEST_SKIP() << "this computer has a printer";
    frmTrendingPrint dialog(dialogs, printer, jobs);
    dialog.show();
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(jobs.ran.empty());
}

TEST_F(TrendingView, AGraphThatCannotBePrintedIsTold) {
    printer.UsePrinter({QStringLiteral("printer that was taken away"), QString(), 1});
    frmTrendingPrint dialog(dialogs, printer, jobs);
    dialog.InitialilizePrint(view.Acquisition().Samples(), 255);
    dialog.findChild<QCheckBox*>("chkGraph")->setChecked(true);
    dialogs.ExpectBoxTitled(QStringLiteral("Print -Trending"), MsgAnswer::Ok);
    dialog.findChild<QPushButton*>("cmdOk")->click();
    ASSERT_EQ(dialogs.Boxes().size(), 1u);
    EXPECT_TRUE(dialogs.Boxes()[0].text.startsWith(QStringLiteral("Error Number = 68")));
}

TEST_F(TrendingView, AReportThatFailsIsToldOnceAndNoGraphFollows) {
    jobs.raises = ErrorNumber::DeviceIOError;
    printer.UsePrinter({QString(), Path("graph.pdf"), 1});
    frmTrendingPrint dialog(dialogs, printer, jobs);
    dialog.InitialilizePrint(view.Acquisition().Samples(), 255);
    dialog.findChild<QCheckBox*>("chkGraph")->setChecked(true);
    dialog.findChild<QCheckBox*>("chkTrendData")->setChecked(true);
    dialogs.ExpectBoxTitled(QStringLiteral("Print -Trending"), MsgAnswer::Ok);
    dialog.findChild<QPushButton*>("cmdOk")->click();
    EXPECT_FALSE(QFile::exists(Path("graph.pdf")));
}

TEST_F(TrendingView, CancelPrintsNothing) {
    printer.UsePrinter({QString(), Path("graph.pdf"), 1});
    frmTrendingPrint dialog(dialogs, printer, jobs);
    dialog.InitialilizePrint(view.Acquisition().Samples(), 255);
    dialog.show();
    dialog.findChild<QCheckBox*>("chkGraph")->setChecked(true);
    dialog.findChild<QCheckBox*>("chkTrendData")->setChecked(true);
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdCancel"), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(jobs.ran.empty());
    EXPECT_FALSE(QFile::exists(Path("graph.pdf")));
}

TEST_F(TrendingView, ThePrintDialogStandsInTheMiddleOfTheWindow) {
    const frmTrendingPrint dialog(dialogs, printer, jobs, &view);
    const QPoint middle = view.frameGeometry().center();
    EXPECT_NEAR(dialog.frameGeometry().center().x(), middle.x(), 1);
    EXPECT_NEAR(dialog.frameGeometry().center().y(), middle.y(), 1);
}

TEST_F(TrendingView, TheReportIsHeadedByTheNameOfTheFile) {
    Write("speed.tdt", "B40\r\n 0 \r\n(sec), Data:\r\n0.5, 1234\r\n0, 7\r\n");
    Open("speed.tdt");
    printer.UsePrinter({QString(), Path("report.pdf"), 1});
    WaitJobs registered;
    view.RegisterJobs(registered);
    NoProgress progress;
    registered.Run(WaitJob::PrintTrendData, progress);
    const std::vector<PdfPage> pages = ReadPdf(Path("report.pdf"));
    ASSERT_EQ(pages.size(), 1u);
    QStringList words;
    for (const PdfWord& word : pages[0])
        words += word.text;
    EXPECT_EQ(words.mid(0, 3).join(u' ').toStdString(), "Trend Data: speed.tdt");
    EXPECT_EQ(words.count(QStringLiteral("1234")), 1) << "a value of the file";
}
