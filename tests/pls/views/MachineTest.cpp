#include "TimingUnderTest.h"

#include "base/Dialogs.h"
#include "session/Globals.h"
#include <gmock/gmock.h>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::UnorderedElementsAreArray;

namespace {
constexpr int readPosition = 0x48;

class TimingMachine : public TimingUnderTest {
protected:
    using TimingUnderTest::TimingUnderTest;

    static QStringList ChannelControls() {
        QStringList names = {"fgPLSChannels",  "cmdRecallChan",     "cmdClearChan", "cmdClearAll",
                             "cmdAddSetpoint", "cmdAdjustSetpoint", "cmdPulseTrain"};
        for (int i = 1; i <= 5; ++i)
            names << QString("txtTmg(%1)").arg(i) << QString("updTmg(%1)").arg(i);
        return names;
    }
    static QStringList OffsetControls() { return {"txtTmg(0)", "updTmg(0)", "cmdSetOffset"}; }
    static QStringList Entries(int first, int last) {
        QStringList names;
        for (int i = first; i <= last; ++i)
            names << QString("txtPLS_CFG(%1)").arg(i) << QString("updPLS_CFG(%1)").arg(i);
        return names;
    }
    static QStringList StandardConfig() {
        return Entries(10, 11) + QStringList{"optR6PlsChan(0)", "chkR6BWComp", "chkR6SpdWinEn"};
    }
    bool ListIsOn() { return Find<QComboBox>("cboTargetBoard")->isEnabled(); }
};

class TimingMachineR6500 : public TimingMachine {
protected:
    TimingMachineR6500() : TimingMachine(r6500) {}
};
class TimingMachineR6041 : public TimingMachine {
protected:
    TimingMachineR6041() : TimingMachine(r6041) {}
};
class TimingMachineOfNoBoard : public TimingMachine {
protected:
    TimingMachineOfNoBoard() : TimingMachine(51) {} // a set of a PLC board
};
} // namespace

TEST_F(TimingMachine, AtExactly50RpmThePositionIsReadAndAt51ItShows888) {
    SetSpeed(50);
    OpenOnline();
    EXPECT_EQ(Panel(1), "RPM: 50");
    EXPECT_TRUE(Panel(2).startsWith("Position: "));
    EXPECT_GT(Sent(readPosition), 0);
    SetSpeed(51);
    Until([this] { return Panel(2) == "Position: 888"; });
    const int before = Sent(readPosition);
    Rounds();
    EXPECT_EQ(Panel(1), "RPM: 51");
    EXPECT_EQ(Sent(readPosition), before);
}

TEST_F(TimingMachine, TheFirstSpeedReadAfterGoingOnlineIf0CountsAsJustStopped) {
    Open();
    EXPECT_FALSE(Config(10)->isEnabled());
    GoOnline();
    EXPECT_EQ(Panel(1), "RPM: 0");
    EXPECT_THAT(Live(),
                UnorderedElementsAreArray(ChannelControls() + OffsetControls() + StandardConfig()));
    EXPECT_EQ(Timing(0)->text(), "0");
}

TEST_F(TimingMachine, TheComboBoxIsDisabledInAllOnlineStates) {
    Open();
    EXPECT_TRUE(ListIsOn());
    GoOnline();
    EXPECT_FALSE(ListIsOn());
    SetSpeed(30);
    Rounds();
    EXPECT_FALSE(ListIsOn());
    SetSpeed(0);
    Rounds();
    Type(Config(11), "7");
    Rounds();
    EXPECT_FALSE(ListIsOn());
    mode.GoOffline();
    Until([this] { return ListIsOn(); });
}

TEST_F(TimingMachine, AChannelWithASingleZeroSetpointListsAsOneRowAndABlankRow) {
    OpenOnline();
    EXPECT_EQ(gPLS.Chan[0], SetpointList{Setpoint()});
    EXPECT_EQ(Cell(1, 0), "CH0");
    EXPECT_EQ(Cell(1, 1), "****");
    EXPECT_EQ(Cell(1, 2), "****");
    for (int col = 0; col < 3; ++col)
        EXPECT_EQ(Cell(2, col), "");
    EXPECT_EQ(Cell(3, 0), "CH1");
    EXPECT_EQ(Cell(17, 0), "CH10"); // the ninth: octal
}

TEST_F(TimingMachine, TheGridNeverShrinksBelowWhatFitsTheControl) {
    Open();
    Grid& grid = view.ChannelGrid();
    for (const int height : {500, 900, 600}) {
        view.resize(900, height);
        QCoreApplication::processEvents();
        const int fit = grid.height() / grid.verticalHeader()->defaultSectionSize() - 1;
        EXPECT_GE(grid.Rows(), fit);
        view.DisplayPLSChannels();
        EXPECT_GE(grid.Rows(), fit);
    }
}

TEST_F(TimingMachine, WithAChannelLeftEmptyTheListEndsBeforeIt) {
    OpenOnline();
    gPLS.Chan[2].clear();
    view.DisplayPLSChannels();
    EXPECT_EQ(Cell(3, 0), "CH1");
    for (int row = 4; row < view.ChannelGrid().Rows(); ++row)
        EXPECT_EQ(Cell(row, 0), "");
}

TEST_F(TimingMachine, OfflineNothingIsLiveButTheListOfBoards) {
    Open();
    EXPECT_EQ(view.windowTitle(), "PLS Timing");
    EXPECT_THAT(Live(), IsEmpty());
    EXPECT_TRUE(ListIsOn());
    EXPECT_EQ(Panel(1), "RPM: -");
    EXPECT_EQ(Panel(2), "Position: -");
    EXPECT_EQ(Panel(3), "Offset: -");
    EXPECT_EQ(Panel(4), "Scale: -");
    for (int i = 0; i < 19; ++i)
        EXPECT_EQ(Config(i)->text(), "-");
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(Timing(i)->text(), "-");
    EXPECT_TRUE(line.Log().empty());
}

TEST_F(TimingMachine, WhileTheMachineMovesConfigurationAndOffsetAreLocked) {
    SetSpeed(30);
    OpenOnline();
    EXPECT_THAT(Live(), UnorderedElementsAreArray(ChannelControls()));
    SetSpeed(0);
    Rounds();
    EXPECT_THAT(Live(), IsSupersetOf(OffsetControls() + StandardConfig()));
    SetSpeed(1);
    Rounds();
    EXPECT_THAT(Live(), UnorderedElementsAreArray(ChannelControls()));
    EXPECT_EQ(Timing(0)->text(), "-");
}

TEST_F(TimingMachine, AnEditOfTheConfigurationLocksChannelsAndOffsetUntilItIsUndone) {
    OpenOnline();
    Type(Config(11), "7");
    Rounds();
    EXPECT_THAT(Live(),
                UnorderedElementsAreArray(StandardConfig() + QStringList{"cmdResetPLSConfig"}));
    EXPECT_EQ(Timing(0)->text(), "-");
    Type(Config(11), "1");
    Rounds();
    EXPECT_THAT(Live(),
                UnorderedElementsAreArray(ChannelControls() + OffsetControls() + StandardConfig()));
    EXPECT_EQ(Timing(0)->text(), "0");
}

TEST_F(TimingMachine, AnEditStaysLockedWhenTheMachineMovesAndStopsAgain) {
    OpenOnline();
    Type(Config(11), "7");
    Rounds();
    SetSpeed(5);
    Rounds();
    EXPECT_THAT(Live(), IsEmpty());
    SetSpeed(0);
    Rounds();
    EXPECT_THAT(Live(),
                UnorderedElementsAreArray(StandardConfig() + QStringList{"cmdResetPLSConfig"}));
    EXPECT_EQ(gPLS.StrobePreset, 7);
}

TEST_F(TimingMachine, TheMachineStartsWhileAConfigurationEntryIsOpen) {
    OpenOnline();
    QTest::mouseClick(Config(11), Qt::LeftButton);
    QCoreApplication::processEvents();
    QTest::keyClicks(Config(11), "99");
    SetSpeed(5);
    Rounds();
    EXPECT_FALSE(Config(11)->isEnabled());
    EXPECT_EQ(gPLS.StrobePreset, 1);
    EXPECT_EQ(Config(11)->text(), "1");
    EXPECT_TRUE(Button("cmdDefault")->hasFocus());
    SetSpeed(0);
    Rounds();
    EXPECT_TRUE(Config(11)->isEnabled());
    EXPECT_EQ(gPLS.StrobePreset, 1);
}

TEST_F(TimingMachine, TheMachineStartsAndStopsWhileASetpointIsTyped) {
    OpenOnline();
    QTest::mouseClick(Timing(2), Qt::LeftButton);
    QCoreApplication::processEvents();
    QTest::keyClicks(Timing(2), "12");
    SetSpeed(5);
    Rounds();
    QTest::keyClicks(Timing(2), "3");
    SetSpeed(0);
    Rounds();
    EXPECT_EQ(Timing(2)->text(), "123");
    EXPECT_TRUE(Timing(2)->hasFocus());
}

TEST_F(TimingMachine, TheLineIsCutWhileAnEntryIsOpenAndNothingStaysLive) {
    OpenOnline();
    QTest::mouseClick(Config(11), Qt::LeftButton);
    QTest::keyClicks(Config(11), "99");
    CutLine();
    Until([this] { return ListIsOn(); });
    EXPECT_THAT(Live(), IsEmpty());
    EXPECT_FALSE(view.gFirstPassOnline());
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_EQ(Config(11)->text(), "-");
    EXPECT_EQ(Panel(1), "RPM: -");
    line.Faults().SetSilence(false);
    GoOnline();
    EXPECT_TRUE(Config(11)->isEnabled());
    EXPECT_EQ(Config(11)->text(), "1");
}

TEST_F(TimingMachine, TheUsersOfflineCommandTakesTheViewOffline) {
    OpenOnline();
    mode.GoOffline();
    Until([this] { return ListIsOn(); });
    EXPECT_THAT(Live(), IsEmpty());
}

TEST_F(TimingMachine, OfflineNoNumberOfChannelsIsChosen) {
    OpenOnline();
    EXPECT_TRUE(Option("optR6PlsChan", 0)->isChecked());
    mode.GoOffline();
    Until([this] { return ListIsOn(); });
    for (int i = 0; i < 2; ++i)
        EXPECT_FALSE(Option("optR6PlsChan", i)->isChecked()) << i;
    for (int i = 0; i < 4; ++i)
        EXPECT_FALSE(Option("optPlsChan", i)->isChecked()) << i;
}

TEST_F(TimingMachineR6041, ThirtyTwoChannelsCanBeChosenOnThisBoardAlone) {
    OpenOnline();
    EXPECT_TRUE(Option("optR6PlsChan", 1)->isEnabled());
    EXPECT_EQ(Find<QComboBox>("cboTargetBoard")->currentText(), "R6041");
}

TEST_F(TimingMachineR6500, ItsFramesAreShownAndTheOthersHidden) {
    OpenOnline();
    for (const int frame : {0, 1, 2, 3, 4, 8})
        EXPECT_TRUE(Frame(frame)->isVisible());
    for (const int frame : {5, 6, 7})
        EXPECT_FALSE(Frame(frame)->isVisible());
    EXPECT_THAT(Live(),
                UnorderedElementsAreArray(ChannelControls() + OffsetControls() + Entries(0, 9) +
                                          QStringList{"optPlsChan(0)", "optPlsChan(1)",
                                                      "optPlsChan(2)", "optPlsChan(3)"}));
}

TEST_F(TimingMachineOfNoBoard, AnyOtherSetIsTakenForAnR6500) {
    Open();
    EXPECT_EQ(Find<QComboBox>("cboTargetBoard")->currentIndex(), 5);
    EXPECT_EQ(view.SelectedBoard(), r6500);
}

TEST_F(TimingMachine, TheListOfBoardsShowsTheFramesOfTheBoardChosen) {
    Open();
    auto* boards = Find<QComboBox>("cboTargetBoard");
    boards->setFocus();
    QTest::keyClick(boards, Qt::Key_End);
    EXPECT_EQ(view.SelectedBoard(), r6500);
    EXPECT_TRUE(Frame(0)->isVisible());
    EXPECT_FALSE(Frame(5)->isVisible());
    QTest::keyClick(boards, Qt::Key_Up);
    EXPECT_EQ(view.SelectedBoard(), r6041);
    EXPECT_FALSE(Option("optR6PlsChan", 1)->isEnabled());
    EXPECT_TRUE(Frame(7)->isVisible());
}

TEST_F(TimingMachine, TheUploadIsSkippedOnceAfterTheCallerHasJustUploaded) {
    Open();
    view.SetPLSUploadComplete();
    GoOnline();
    EXPECT_THAT(runner.ran, IsEmpty());
    mode.GoOffline();
    Until([this] { return ListIsOn(); });
    GoOnline();
    EXPECT_THAT(runner.ran, ElementsAre(6));
}

TEST_F(TimingMachine, TypingANumberOnTheGridStartsANewOn) {
    OpenOnline();
    Program(0, {{20, 10}});
    Click("cmdRecallChan");
    ClickCell(1, 1);
    EXPECT_EQ(Timing(2)->text(), "10");
    QTest::keyClicks(&view.ChannelGrid(), "4");
    EXPECT_TRUE(Timing(2)->hasFocus());
    QTest::keyClicks(Timing(2), "2");
    EXPECT_EQ(Timing(2)->text(), "42");
}

TEST_F(TimingMachine, EscapeOnTheGridShowsTheSetpointAgainAndASecondOneLeaves) {
    OpenOnline();
    Program(0, {{20, 10}});
    Click("cmdRecallChan");
    Type(Timing(2), "99");
    Grid& grid = view.ChannelGrid();
    grid.setFocus();
    for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Escape})
        QTest::keyClick(&grid, key);
    EXPECT_EQ(Timing(2)->text(), "10");
    EXPECT_TRUE(grid.hasFocus());
    QTest::keyClick(&grid, Qt::Key_Escape);
    EXPECT_TRUE(Button("cmdDefault")->hasFocus());
}

TEST_F(TimingMachine, TheArrowKeysSelectTheSetpointOfTheRow) {
    OpenOnline();
    Program(0, {{20, 10}, {40, 30}});
    Click("cmdRecallChan");
    ClickCell(1, 1);
    QTest::keyClick(&view.ChannelGrid(), Qt::Key_Down);
    EXPECT_EQ(Timing(5)->text(), "1");
    EXPECT_EQ(Timing(2)->text(), "30");
    EXPECT_EQ(Timing(3)->text(), "40");
    EXPECT_EQ(RangeOf("updTmg", 5).max, 1);
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(&view.ChannelGrid(), Qt::Key_Down);
    EXPECT_EQ(Timing(1)->text(), "1"); // the row of channel 1, behind the blank row
    EXPECT_EQ(Timing(5)->text(), "0");
}

TEST_F(TimingMachine, CopyPutsTheSelectedCellsOnTheClipboard) {
    OpenOnline();
    Program(0, {{20, 10}});
    Click("cmdRecallChan");
    ClickCell(1, 0);
    QTest::keyClick(&view.ChannelGrid(), Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&view.ChannelGrid(), Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&view.ChannelGrid(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "CH0\t10\t20");
}

TEST_F(TimingMachine, TheStripShowsTheSelectedChannelAndThePositionOfThePanels) {
    OpenOnline();
    Program(1, {{30, 330}});
    Type(Timing(1), "1");
    Click("cmdRecallChan");
    SetSpeed(30);
    Rounds();
    const ShownCycle& cycle = Find<CycleStripView>("picCycle")->Shown();
    EXPECT_EQ(cycle.channelName, "CH1");
    EXPECT_EQ(cycle.scaleFactor, 360);
    EXPECT_THAT(cycle.setpoints, ElementsAre(Setpoint{30, 330}));
    ASSERT_TRUE(cycle.position.has_value());
    EXPECT_EQ(Panel(2), "Position: " + QString::number(*cycle.position));
    SetSpeed(300);
    Rounds();
    EXPECT_FALSE(Find<CycleStripView>("picCycle")->Shown().position.has_value());
}

TEST_F(TimingMachine, ClosedAndShownAgainTheViewBeginsAnew) {
    OpenOnline();
    EXPECT_NE(gPLS, PLSRecord());
    view.close();
    EXPECT_FALSE(view.gFirstPassOnline());
    EXPECT_EQ(loops.Current(), nullptr);
    const auto before = line.Log().size();
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(line.Log().size(), before);
    mode.GoOffline();
    Open();
    EXPECT_EQ(gPLS, PLSRecord());
    EXPECT_THAT(Live(), IsEmpty());
    EXPECT_EQ(Cell(1, 0), "");
}
