#include "WholeProgram.h"

#include "board/SimulatedBoard.h"
#include "controls/grid/Grid.h"
#include "pls/views/frmTiming.h"
#include "session/Globals.h"
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>

// The timing view in the main window, from its command to the bytes in a limit switch board.

namespace {
class TimingEntries : public WholeProgram {
protected:
    TimingEntries() : WholeProgram(k2041) {}

    void SetUp() override {
        WholeProgram::SetUp();
        GoToSets();
        ClickSet("CAMS.hdn");
    }
    frmTiming& View() { return *Find<frmTiming>("frmTiming"); }
    QComboBox& Boards() { return *View().findChild<QComboBox*>("cboTargetBoard"); }
    void ShowView() { Entry("mnuToolsPLSProgramming")->trigger(); }
    void Until(const std::function<bool()>& test) {
        QElapsedTimer passed;
        passed.start();
        while (!test()) {
            ASSERT_LT(passed.elapsed(), 10000);
            application_->Loops().Wake();
            QCoreApplication::processEvents();
        }
    }
    void GoOnline() {
        Entry("mnuViewOnline")->trigger();
        Until([this] { return View().gFirstPassOnline(); });
    }

    static constexpr int k2041 = 55;
};
} // namespace

TEST_F(TimingEntries, TheCommandShowsTheViewForTheSelectedSet) {
    ShowView();
    EXPECT_TRUE(Window().Children().IsVisible("frmTiming"));
    EXPECT_EQ(Window().ActiveChildName(), "frmTiming");
    EXPECT_EQ(Boards().currentText(), "K2041");
    EXPECT_TRUE(Boards().isEnabled());
    EXPECT_EQ(View().SelectedBoard(), k2041);
    EXPECT_FALSE(View().gFirstPassOnline());
}

TEST_F(TimingEntries, OnlineItReadsTheBoardUnderTheBusyView) {
    ShowView();
    GoOnline();
    EXPECT_EQ(gPLS.Channels, 16);
    EXPECT_EQ(View().ChannelGrid().TextMatrix(1, 0), "CH0");
    Until([this] { return Find<QPushButton>("cmdSetOffset")->isEnabled(); });
}

TEST_F(TimingEntries, CopyTakesTheCellsOfTheGrid) {
    ShowView();
    GoOnline();
    View().ChannelGrid().setFocus();
    View().ChannelGrid().SetCell(1, 0);
    QTest::keyClick(&View().ChannelGrid(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "CH0");
}

TEST_F(TimingEntries, ClosedAndShownAgainItBeginsAnew) {
    ShowView();
    GoOnline();
    Window().Children().Hide("frmTiming");
    EXPECT_FALSE(View().gFirstPassOnline());
    EXPECT_EQ(Window().ActiveChildName(), "frmMain");
    ShowView();
    EXPECT_EQ(Window().ActiveChildName(), "frmTiming");
    Until([this] { return View().gFirstPassOnline(); });
    EXPECT_EQ(View().ChannelGrid().TextMatrix(1, 0), "CH0");
}

TEST_F(TimingEntries, AnotherViewInFrontLeavesItOnline) {
    ShowView();
    GoOnline();
    Entry("mnuToolsStatusTable")->trigger();
    EXPECT_EQ(Window().ActiveChildName(), "frmStatusTable");
    ShowView();
    EXPECT_TRUE(View().gFirstPassOnline());
    EXPECT_EQ(View().ChannelGrid().TextMatrix(1, 0), "CH0");
}

TEST_F(TimingEntries, TheTickReadsTheOffsetWhileItIsActive) {
    ShowView();
    GoOnline();
    Tick(); // this one notices the change of the mode
    port_.ForgetSent();
    Tick();
    EXPECT_EQ(port_.Sent(), (std::vector<int>{0xFF, 0x28, 0x55, 0x55}));
    EXPECT_TRUE(Link().OnlineMode());
    EXPECT_FALSE(Link().CommError());
}

TEST_F(TimingEntries, AnUploadShowsWhatTheBoardHoldsAndSavesIt) {
    ShowView();
    GoOnline();
    ASSERT_TRUE(Link().SingleSetpoint(0, 10, 20, false));
    dialogs_.ExpectBoxTitled("PLS Upload [CAMS]", MsgAnswer::Yes);
    Entry("mnuFileListPopupUploadFromPLS")->trigger();
    EXPECT_EQ(View().ChannelGrid().TextMatrix(1, 1), "10");
    EXPECT_TRUE(Content(SetPath("CAMS.CHL")).contains("|010020\r\n"));
}

TEST_F(TimingEntries, TheUploadTakesTheBoardChosenInTheView) {
    ShowView();
    Boards().setCurrentIndex(5); // an R6500; its scale is up to 4096
    GoOnline();
    dialogs_.ExpectBoxTitled("PLS Upload [CAMS]", MsgAnswer::Yes);
    Entry("mnuFileListPopupUploadFromPLS")->trigger();
    EXPECT_TRUE(Content(SetPath("CAMS.CHL")).startsWith(":0360\r\n"));
}
