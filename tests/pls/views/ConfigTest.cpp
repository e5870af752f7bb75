#include "TimingUnderTest.h"

#include "base/Dialogs.h"
#include "session/Globals.h"
#include <gmock/gmock.h>

using testing::IsEmpty;

namespace {
class TimingConfig : public TimingUnderTest {
protected:
    using TimingUnderTest::TimingUnderTest;

    void ExpectRefusal(int min, int max) {
        dialogs.ExpectBox(
            QString("Only a Number Between %1 and %2 can be Entered").arg(min).arg(max), 64,
            "Set-up", MsgAnswer::Ok);
    }
};

class TimingConfigR6500 : public TimingConfig {
protected:
    TimingConfigR6500() : TimingConfig(r6500) {}
};
class TimingConfigR6041 : public TimingConfig {
protected:
    TimingConfigR6041() : TimingConfig(r6041) {}
};
} // namespace

TEST_F(TimingConfigR6500, Entering5000InEntry0With8ChannelsGivesTheMessageWith2And4096) {
    OpenOnline();
    ExpectRefusal(2, 4096);
    Type(Config(0), "5000");
    EXPECT_EQ(Config(0)->text(), "360");
    EXPECT_TRUE(Config(0)->hasFocus());
    EXPECT_EQ(gPLS.ScaleFactor, 360);
}

TEST_F(TimingConfigR6500, Entering2000With64ChannelsIsRefusedWith511AndWith16AcceptedUpTo2047) {
    OpenOnline();
    ClickOption("optPlsChan", 3);
    ExpectRefusal(2, 511);
    Type(Config(0), "2000");
    ClickOption("optPlsChan", 1);
    Type(Config(0), "2000");
    EXPECT_EQ(gPLS.ScaleFactor, 2000);
    ExpectRefusal(2, 2047);
    Type(Config(0), "2048");
    EXPECT_EQ(gPLS.ScaleFactor, 2000);
}

TEST_F(TimingConfigR6500, Scale2048WithProgram3TheProgramIsCorrectedAtTheNextOptionClick) {
    OpenOnline();
    Type(Config(1), "3");
    Type(Config(0), "2048");
    EXPECT_EQ(RangeOf("updPLS_CFG", 1).max, 7);
    EXPECT_EQ(Config(1)->text(), "3");
    ClickOption("optPlsChan", 0);
    EXPECT_EQ(RangeOf("updPLS_CFG", 1).max, 0);
    EXPECT_EQ(Config(1)->text(), "0");
    EXPECT_EQ(gPLS.PLSProgram, 0);
}

TEST_F(TimingConfigR6500, RaisingTheScaleTo1023FitsAndTo1024MovesTheSelectionTo16Channels) {
    OpenOnline();
    ClickOption("optPlsChan", 2);
    EXPECT_EQ(RangeOf("updTmg", 1).max, 37);
    ExpectRefusal(2, 1023); // what 32 channels allow
    Type(Config(0), "1024");
    ClickOption("optPlsChan", 1);
    Type(Config(0), "1024");
    EXPECT_TRUE(Option("optPlsChan", 1)->isChecked());
    EXPECT_FALSE(Option("optPlsChan", 2)->isEnabled());
    EXPECT_FALSE(Option("optPlsChan", 3)->isEnabled());
    EXPECT_EQ(gPLS.Channels, 16);
    EXPECT_EQ(RangeOf("updTmg", 1).max, 17);
    EXPECT_EQ(RangeOf("updTmg", 2).max, 1023);
}

TEST_F(TimingConfigR6500, EnteringLettersGivesTheSameMessageAsANumberOutOfRange) {
    OpenOnline();
    for (const char* text : {"abc", "12x", "", "1.5"}) {
        ExpectRefusal(0, 255);
        Type(Config(2), text);
        EXPECT_EQ(Config(2)->text(), "0");
    }
    EXPECT_EQ(gPLS.SpeedComp[0], 0);
}

TEST_F(TimingConfigR6500, TwoEscapesInAnEntryRestoreItAndLeaveForTheDefaultButton) {
    OpenOnline();
    QTest::mouseClick(Config(2), Qt::LeftButton);
    QCoreApplication::processEvents();
    QTest::keyClicks(Config(2), "77");
    QTest::keyClick(Config(2), Qt::Key_Escape);
    EXPECT_EQ(Config(2)->text(), "0");
    EXPECT_EQ(Config(2)->selectedText(), "0");
    EXPECT_TRUE(Config(2)->hasFocus());
    QTest::keyClick(Config(2), Qt::Key_Escape);
    EXPECT_TRUE(Button("cmdDefault")->hasFocus());
    EXPECT_EQ(gPLS.SpeedComp[0], 0);
}

TEST_F(TimingConfig, TheLabelSays2To512AndAChangeOfScalePullsLocationAndWindowDown) {
    OpenOnline();
    EXPECT_EQ(Find<QLabel>("lblPLS_CFG(10)")->text(), "Scale Factor (2-512):");
    ClickCheck("chkR6BWComp");
    Type(Config(12), "300");
    Type(Config(15), "40");
    Type(Config(16), "350");
    Type(Config(10), "200");
    EXPECT_EQ(Config(12)->text(), "199");
    EXPECT_EQ(Config(15)->text(), "40");
    EXPECT_EQ(Config(16)->text(), "199");
    EXPECT_EQ(gPLS.StopLocation, 199);
    EXPECT_EQ(gPLS.WindowOn, 40);
    EXPECT_EQ(gPLS.WindowOff, 199);
    for (const int index : {12, 15, 16})
        EXPECT_EQ(RangeOf("updPLS_CFG", index).max, 199);
    for (const int index : {0, 2, 3, 4})
        EXPECT_EQ(RangeOf("updTmg", index).max, 199);
    ExpectRefusal(2, 512);
    Type(Config(10), "513");
}

TEST_F(TimingConfig, ClearingBrakeWearCompensationSetsWindowOffToItsMaximumAndTheOthersTo0) {
    OpenOnline();
    ClickCheck("chkR6BWComp");
    EXPECT_EQ(gPLS.OptionFlags & 1, 1);
    for (int index = 12; index <= 16; ++index) {
        EXPECT_TRUE(Config(index)->isEnabled()) << index;
        Type(Config(index), "33");
    }
    EXPECT_TRUE(Find<QLabel>("lblBWComp(1)")->isEnabled());
    ClickCheck("chkR6BWComp");
    EXPECT_EQ(gPLS.OptionFlags & 1, 0);
    for (int index = 12; index <= 15; ++index) {
        EXPECT_FALSE(Config(index)->isEnabled()) << index;
        EXPECT_EQ(Config(index)->text(), "0");
    }
    EXPECT_EQ(Config(16)->text(), "359");
    EXPECT_EQ(gPLS.WindowOff, 359);
    EXPECT_EQ(gPLS.StopLocation + gPLS.StopError + gPLS.SignalWidth + gPLS.WindowOn, 0);
}

TEST_F(TimingConfig, TheSpeedWindowFreesAndClearsItsThresholds) {
    OpenOnline();
    ClickCheck("chkR6SpdWinEn");
    Type(Config(17), "100");
    Type(Config(18), "5999");
    EXPECT_EQ(gPLS.HighThreshold, 5999);
    ClickCheck("chkR6SpdWinEn");
    EXPECT_EQ(gPLS.LowThreshold + gPLS.HighThreshold + gPLS.OptionFlags, 0);
    EXPECT_FALSE(Config(17)->isEnabled());
}

TEST_F(TimingConfig, TheXLabelOfEntry16IsShownAsItStands) {
    OpenOnline();
    EXPECT_EQ(Find<QLabel>("lblPLS_CFG(16)")->text(), "X:");
    EXPECT_TRUE(Find<QLabel>("lblPLS_CFG(16)")->isVisible());
}

TEST_F(TimingConfig, TheUpDownStoresEachStepAndLeavesTheEntry) {
    OpenOnline();
    QTest::mouseClick(Config(11), Qt::LeftButton);
    ClickArrow("updPLS_CFG", 11, "up");
    EXPECT_EQ(gPLS.StrobePreset, 2);
    EXPECT_TRUE(Button("cmdDefault")->hasFocus());
}

TEST_F(TimingConfig, EnterMovesOnToTheNextEntry) {
    OpenOnline();
    QTest::mouseClick(Config(10), Qt::LeftButton);
    QTest::keyClick(Config(10), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Config(11)->hasFocus());
}

TEST_F(TimingConfig, AnOptionClickedOverARefusedValueDoesNotCount) {
    OpenOnline();
    QTest::mouseClick(Config(11), Qt::LeftButton);
    QCoreApplication::processEvents();
    QTest::keyClicks(Config(11), "999");
    ExpectRefusal(1, 255);
    ClickCheck("chkR6BWComp");
    QCoreApplication::processEvents();
    EXPECT_FALSE(Find<QCheckBox>("chkR6BWComp")->isChecked());
    EXPECT_EQ(gPLS.OptionFlags, 0);
    EXPECT_TRUE(Config(11)->hasFocus());
}

TEST_F(TimingConfig, ResetSendsTheConfigurationAndReadsTheBoardAgain) {
    OpenOnline();
    Type(Config(11), "9");
    ClickCheck("chkR6SpdWinEn");
    Type(Config(17), "300");
    Type(Config(10), "400");
    Rounds();
    EXPECT_EQ(board.Pls().ScaleFactor(), 360) << "nothing goes out before the button";
    EXPECT_EQ(board.Pls().ConfigTable()[18], 1);
    runner.ran.clear();
    Click("cmdResetPLSConfig");
    EXPECT_EQ(board.Pls().ScaleFactor(), 400);
    EXPECT_EQ(board.Pls().ConfigTable()[18], 9);
    EXPECT_EQ(board.Pls().ConfigTable()[0] + 256 * board.Pls().ConfigTable()[1], 300);
    EXPECT_THAT(runner.ran, testing::ElementsAre(6));
    EXPECT_EQ(Panel(4), "Scale: 400");
    Rounds();
    EXPECT_FALSE(Button("cmdResetPLSConfig")->isEnabled());
    EXPECT_TRUE(Config(17)->isEnabled());
    EXPECT_TRUE(Button("cmdAddSetpoint")->isEnabled());
    EXPECT_TRUE(Timing(0)->isEnabled());
}

TEST_F(TimingConfigR6500, ResetSendsChannelsProgramAndSpeedCompensation) {
    OpenOnline();
    ClickOption("optPlsChan", 1);
    Type(Config(1), "3");
    Type(Config(9), "255");
    Rounds();
    Click("cmdResetPLSConfig");
    EXPECT_EQ(board.Pls().Channels(), 16);
    EXPECT_EQ(board.Pls().ConfigTable()[1], 3);
    EXPECT_EQ(board.Pls().ConfigTable()[9], 255);
    EXPECT_TRUE(Option("optPlsChan", 1)->isChecked());
    EXPECT_EQ(Config(9)->text(), "255");
    EXPECT_EQ(Cell(17, 0), "CH10");
}

TEST_F(TimingConfigR6500, AMachineThatComesToStandOffersOnlyTheChannelsThatTheScaleAllows) {
    OpenOnline();
    ClickOption("optPlsChan", 1);
    Type(Config(0), "1024");
    Rounds();
    Click("cmdResetPLSConfig");
    SetSpeed(20);
    Rounds();
    SetSpeed(0);
    Rounds();
    EXPECT_TRUE(Option("optPlsChan", 0)->isEnabled());
    EXPECT_TRUE(Option("optPlsChan", 1)->isEnabled());
    EXPECT_FALSE(Option("optPlsChan", 2)->isEnabled());
    EXPECT_FALSE(Option("optPlsChan", 3)->isEnabled());
    EXPECT_EQ(gPLS.ScaleFactor, 1024);
    EXPECT_EQ(gPLS.Channels, 16);
}

TEST_F(TimingConfigR6041, ThirtyTwoChannelsLetTheChannelEntryGoTo37AndSixteenTo17) {
    OpenOnline();
    Type(Timing(1), "5");
    ClickOption("optR6PlsChan", 1);
    EXPECT_EQ(gPLS.Channels, 32);
    EXPECT_EQ(RangeOf("updTmg", 1).max, 37);
    EXPECT_EQ(Timing(1)->text(), "0");
    ClickOption("optR6PlsChan", 0);
    EXPECT_EQ(gPLS.Channels, 16);
    EXPECT_EQ(RangeOf("updTmg", 1).max, 17);
}

TEST_F(TimingConfigR6041, ResetSendsThe32ChannelsAndTheGridListsThem) {
    OpenOnline();
    ClickOption("optR6PlsChan", 1);
    Rounds();
    Click("cmdResetPLSConfig");
    EXPECT_EQ(board.Pls().Channels(), 32);
    EXPECT_TRUE(Option("optR6PlsChan", 1)->isChecked());
    EXPECT_EQ(Cell(1 + 2 * 31, 0), "CH37");
}
