#include "TrendingViewUnderTest.h"

#include "session/Globals.h"
#include "trending/views/GraphView.h"
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

TEST_F(TrendingView, OpensWith12RowsAndNumbersTheVisibleOnes) {
    EXPECT_EQ(Samples().Rows(), 12);
    EXPECT_EQ(Samples().TextMatrix(0, 1).toStdString(), "(sec)");
    EXPECT_EQ(Samples().TextMatrix(1, 0).toStdString(), "1");
    EXPECT_EQ(gPrintContext, PrintContext::Trending);
    EXPECT_TRUE(host.commandsShown);
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

TEST_F(TrendingView, ClosingTheViewStopsItsLoopAndItsTimerAndActivatingStartsThemAgain) {
    TypeAddress(QStringLiteral("B40"));
    GoOnlineAndAcquire();
    Find<QRadioButton>("optOptions(1)").setChecked(true);
    Find<QComboBox>("cboOptions").setFocus();
    QTest::keyClick(&Find<QComboBox>("cboOptions"), Qt::Key_Down);
    const QTimer& timer = Find<QTimer>("tmrTrending");
    EXPECT_TRUE(timer.isActive());
    view.Deactivate();
    EXPECT_TRUE(timer.isActive()); // goes on behind another view
    view.close();
    EXPECT_FALSE(timer.isActive());
    EXPECT_EQ(loops.Current(), nullptr);
    EXPECT_FALSE(host.commandsShown);
    EXPECT_TRUE(view.Acquisition().Acquire());
    view.show();
    view.Activate();
    EXPECT_TRUE(timer.isActive());
    EXPECT_NE(loops.Current(), nullptr);
}

TEST_F(TrendingView, AJobHoldsTheSamplesAndTheyGoOnAfterIt) {
    TypeAddress(QStringLiteral("B40"));
    Find<QRadioButton>("optOptions(1)").setChecked(true);
    {
        const ViewLoopHold job;
        GoOnlineAndAcquire();
        for (int turn = 0; turn < 50; ++turn)
            QCoreApplication::processEvents();
        EXPECT_EQ(view.Acquisition().Counter(), 0);
    }
    Until([&] { return view.Acquisition().Counter() > 0; });
}

TEST_F(TrendingView, TheNumbersHaveTheirWidthAndTimeAndValueShareTheRest) {
    const int time = Samples().columnWidth(1);
    const int numbers = Samples().columnWidth(0);
    view.resize(1400, 600);
    Until([&] { return Samples().columnWidth(1) > time; });
    EXPECT_EQ(Samples().columnWidth(0), numbers);
    EXPECT_EQ(numbers, 500 / 15);
}

TEST_F(TrendingView, LiveSamplesAreGraphedAsTheyCome) {
    TypeAddress(QStringLiteral("B40"));
    QTest::mouseClick(&Find<QCheckBox>("chkLiveData"), Qt::LeftButton, {}, {8, 8});
    GoOnlineAndAcquire();
    const GraphView& graph = Find<GraphView>("picGraph");
    const auto shows = [&](const QString& label) {
        const auto& texts = const_cast<GraphView&>(graph).Surface().Top().texts;
        return std::any_of(texts.begin(), texts.end(),
                           [&](const DrawnText& text) { return text.text == label; });
    };
    Until([&] { return shows(QStringLiteral("40")); });
}

TEST_F(TrendingView, ComingBackToTheViewGraphsTheSamplesTakenMeanwhile) {
    GraphView& graph = Find<GraphView>("picGraph");
    Until([&] { return graph.Surface().Top().texts.size() == 17; });
    TypeAddress(QStringLiteral("B40"));
    GoOnlineAndAcquire();
    Until([&] { return Samples().TextMatrix(1, 2) == QStringLiteral("40"); });
    const auto highest = [&] { return graph.Surface().Top().texts.at(5).text.toStdString(); };
    EXPECT_EQ(highest(), "10") << "not live: nothing but the empty rows is graphed";
    view.Deactivate();
    view.Activate();
    Until([&] { return highest() == "40"; });
}
