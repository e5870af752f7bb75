#include "trending/views/frmTrending.h"

#include "base/RunTimeError.h"
#include "controls/grid/Grid.h"
#include "jobs/JobRunner.h"
#include "jobs/WaitJobs.h"
#include "reports/views/PrinterSurface.h"
#include "session/Globals.h"
#include "support/LinkUnderTest.h"
#include "trending/views/frmTrendingPrint.h"
#include "trending/views/GraphView.h"
#include <gtest/gtest.h>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

namespace {
class NotedHost final : public TrendingHost {
public:
    void ShowTrendCommands(bool shown) override { commandsShown = shown; }
    void PopUpTrendMenu(const QPoint&) override { ++popUps; }

    bool commandsShown = false;
    int popUps = 0;
};

class NotedJobs final : public JobRunner {
public:
    void RunWaitJob(qint16 code) override { ran.push_back(code); }
    std::vector<qint16> ran;
};

class TrendingView : public testing::Test, protected LinkUnderTest {
protected:
    TrendingView()
        : loops([](const ViewLoop&) { return false; }),
          view({link, clock, dialogs, loops, jobs, printer, host}) {
        view.resize(1000, 600);
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
        view.Activate();
    }
    template <class Control>
    Control& Find(const char* name) {
        return *view.findChild<Control*>(QString::fromLatin1(name));
    }
    Grid& Samples() { return Find<Grid>("fgTrend"); }
    void TypeAddress(const QString& text) {
        QComboBox& entry = Find<QComboBox>("cboAddress");
        entry.setFocus();
        entry.setEditText(text);
        QTest::keyClick(&entry, Qt::Key_Return);
    }
    void GoOnlineAndAcquire() {
        GoOnline();
        EnterReadMode();
        port.AnswerLikeBoard(true);
        Find<QCheckBox>("chkAcquire").setChecked(true);
    }
    void Until(const std::function<bool()>& condition) {
        constexpr int mostTurns = 10'000'000;
        for (int turn = 0; turn < mostTurns && !condition(); ++turn)
            QCoreApplication::processEvents();
        EXPECT_TRUE(condition());
    }
    QString Path(const char* name) const { return files.filePath(QString::fromLatin1(name)); }

    QTemporaryDir files;
    ViewLoopRunner loops;
    NotedJobs jobs;
    SystemPrinter printer;
    NotedHost host;
    frmTrending view;
};
} // namespace

TEST_F(TrendingView, OpensWith12RowsAndNumbersTheVisibleOnes) {
    EXPECT_EQ(Samples().Rows(), 12);
    EXPECT_EQ(Samples().TextMatrix(0, 1).toStdString(), "(sec)");
    EXPECT_EQ(Samples().TextMatrix(1, 0).toStdString(), "1");
    EXPECT_EQ(gPrintContext, PrintContext::Trending);
    EXPECT_TRUE(host.commandsShown);
}

TEST_F(TrendingView, ABitOf9BecomesABitOf7InTheEntry) {
    TypeAddress(QStringLiteral("b100.9"));
    EXPECT_EQ(Find<QComboBox>("cboAddress").currentText().toStdString(), "B100.7");
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
}

TEST_F(TrendingView, ARefusedVariableGoesBackToTheFirstEntryAndKeepsTheFocus) {
    TypeAddress(QStringLiteral("X31"));
    EXPECT_EQ(Find<QComboBox>("cboAddress").currentText().toStdString(), "(none)");
    EXPECT_TRUE(Find<QComboBox>("cboAddress").hasFocus());
}

TEST_F(TrendingView, LeavingTheEntryTakesWhatWasTyped) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    entry.setEditText(QStringLiteral("w100"));
    Find<QCheckBox>("chkAcquire").setFocus();
    Until([&] { return entry.currentText() == QStringLiteral("W100"); });
    EXPECT_EQ(view.Acquisition().Variable().Address().toStdString(), "W100");
}

TEST_F(TrendingView, LeavingTheEntryWithNoVariableKeepsTheFocus) {
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    entry.setEditText(QStringLiteral("X31"));
    Find<QCheckBox>("chkAcquire").setFocus();
    Until([&] { return entry.currentText() == TrendVariable::none && entry.hasFocus(); });
}

TEST_F(TrendingView, EscapeGivesTheTypedTextUp) {
    TypeAddress(QStringLiteral("B40"));
    QComboBox& entry = Find<QComboBox>("cboAddress");
    entry.setFocus();
    entry.setEditText(QStringLiteral("B4"));
    QTest::keyClick(&entry, Qt::Key_Escape);
    EXPECT_EQ(entry.currentText().toStdString(), "B40");
    EXPECT_TRUE(Find<QPushButton>("cmdDefault").hasFocus());
}

TEST_F(TrendingView, SamplesOfTheBoardStandInTheGridAndTheCounter) {
    TypeAddress(QStringLiteral("B40"));
    Find<QRadioButton>("optOptions(1)").setChecked(true);
    EXPECT_TRUE(Find<QComboBox>("cboOptions").isEnabled());
    GoOnlineAndAcquire();
    Until([&] { return view.Acquisition().Counter() >= 300; });
    Find<QCheckBox>("chkAcquire").setChecked(false);
    Until([&] { return Samples().Rows() == 258; });
    EXPECT_EQ(Samples().TextMatrix(1, 2).toStdString(), "40");
    EXPECT_EQ(Samples().TextMatrix(1, 0).toStdString(), "1");
    Until([&] { return Find<QLabel>("lblSamples").text() == view.Acquisition().CounterText(); });
}

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

TEST_F(TrendingView, ResizingDrawsTheGraphAnewInItsNewSize) {
    GraphView& graph = Find<GraphView>("picGraph");
    Until([&] { return !graph.Surface().Ground().lines.empty(); });
    view.resize(1300, 700);
    const auto fits = [&] {
        return graph.Surface().Ground().lines.at(0).x2 == graph.width() * 15.0 - 300;
    };
    Until(fits);
}

TEST_F(TrendingView, TheCrosshairTellsTheValueUnderTheMouse) {
    GraphView& graph = Find<GraphView>("picGraph");
    Until([&] { return !graph.Surface().Top().texts.empty(); });
    QTest::mouseMove(&graph, QPoint(61, 100)); // a pixel right of the axis, at 900 twips
    EXPECT_EQ(graph.CrosshairText().toStdString(), "Sample 0: 0");
    QTest::mouseMove(&graph, QPoint(10, 100));
    EXPECT_EQ(graph.CrosshairText().toStdString(), "");
}

TEST_F(TrendingView, CopyPutsAPictureOfTheGraphOnTheClipboard) {
    GraphView& graph = Find<GraphView>("picGraph");
    Until([&] { return !graph.Surface().Top().texts.empty(); });
    view.CopyGraph();
    const QImage image = QGuiApplication::clipboard()->image();
    ASSERT_EQ(image.size(), graph.size() * 2);
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::white));
    // The left axis stands at 900 twips, which is 60 pixels of the view.
    EXPECT_LT(image.pixelColor(120, image.height() / 2).lightness(), 60);
}

TEST_F(TrendingView, TooManySamplesToGraphAreRefused) {
    QLineEdit& entry = Find<QLineEdit>("txtSamples");
    EXPECT_EQ(entry.text().toStdString(), "255");
    entry.setFocus();
    entry.setText(QStringLiteral("256"));
    dialogs.ExpectBoxTitled(QStringLiteral("Graphing Samples"), MsgAnswer::Ok);
    QTest::keyClick(&entry, Qt::Key_Return);
    Until([&] { return dialogs.Boxes().size() == 1; });
    EXPECT_EQ(dialogs.Boxes().at(0).text.toStdString(),
              "Only a Number Between 1 and 255 can be Entered");
}

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
