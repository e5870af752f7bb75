#include "TimingUnderTest.h"

#include "base/Dialogs.h"
#include "session/Globals.h"
#include <gmock/gmock.h>

using haldenboard::PlsEdge;
using testing::ElementsAre;
using testing::IsEmpty;

// The board does not take a command although the line works: what the user is told, letter for
// letter, and what is done after it. The channel is number 8, which users know as CH10.

namespace {
constexpr int warning = 48;
constexpr int information = 64;
constexpr int retryCancel = 37;
constexpr int recordReplies = 2 + 6 + 3; // handshake, data, ready poll
constexpr int wordReplies = 2 + 2;
constexpr int ofHandshake = 2;
constexpr int tableReplies = 2 + 19;
constexpr int scaleHighByte = tableReplies + ofHandshake + 2; // reply of a display
constexpr int ninth = 8;

class BoardRefuses : public TimingUnderTest {
protected:
    using TimingUnderTest::TimingUnderTest;

    void OpenWith(std::initializer_list<Setpoint> setpoints) {
        OpenOnline();
        Program(ninth, setpoints);
        Type(Timing(1), "10");
        Click("cmdRecallChan");
    }
    // The reply to the first data byte behind so many replies is wrong, once.
    void RefuseDataBehind(int replies) {
        line.Faults().Order({haldenboard::FaultKind::Wrong, replies + ofHandshake + 1});
    }
    // Displays the channels with a scale of 360 read as 4456, and nothing else amiss.
    void DisplayWithScaleOf4456() {
        line.Faults().Order({haldenboard::FaultKind::Wrong, scaleHighByte, false, 0, 0x10});
        view.DisplayPLSChannels();
        ASSERT_EQ(line.Faults().Outstanding(), 0U);
    }
    void ExpectBox(const char* text, int style, const char* title, int answer = MsgAnswer::Ok) {
        dialogs.ExpectBox(text, style, title, answer);
    }
    void ExpectClearQuestion() { dialogs.ExpectBoxTitled("Clear Channel", MsgAnswer::Yes); }
    void ExpectNinthChannelShown(const char* index, const char* on, const char* off) {
        EXPECT_EQ(Timing(1)->text(), "10");
        EXPECT_EQ(Timing(5)->text(), index);
        EXPECT_EQ(Timing(2)->text(), on);
        EXPECT_EQ(Timing(3)->text(), off);
        EXPECT_TRUE(Button("cmdAddSetpoint")->isEnabled());
        EXPECT_FALSE(link.CommError());
    }
    const SetpointList& Ninth() const { return gPLS.Chan[ninth]; }
};

class BoardRefusesR6500 : public BoardRefuses {
protected:
    BoardRefusesR6500() : BoardRefuses(r6500) {}
};

class BoardRefusesR6041 : public BoardRefuses {
protected:
    BoardRefusesR6041() : BoardRefuses(r6041) {}
};
} // namespace

TEST_F(BoardRefuses, AnAddIsToldAndTheChannelIsShownAsItWas) {
    OpenWith({{20, 10}});
    TypeSetpoint(30, 40);
    RefuseDataBehind(wordReplies);
    ExpectBox("Unable to Successfully Program Setpoint for Channel CH10.", warning, "Add Setpoint");
    Click("cmdAddSetpoint");
    EXPECT_THAT(Ninth(), ElementsAre(Setpoint{20, 10}));
    ExpectNinthChannelShown("0", "10", "20");
}

TEST_F(BoardRefuses, AnAdjustWhoseClearingFailsIsReadBackWithoutAMessage) {
    OpenWith({{20, 10}, {40, 30}});
    TypeSetpoint(12, 18);
    RefuseDataBehind(0);
    Click("cmdAdjustSetpoint");
    EXPECT_THAT(Ninth(), ElementsAre(Setpoint{20, 10}, Setpoint{40, 30}));
    ExpectNinthChannelShown("0", "10", "20");
}

TEST_F(BoardRefuses, AnAdjustThatFailsOnTheWayIsToldAndShowsWhatTheBoardHolds) {
    OpenWith({{20, 10}, {40, 30}, {60, 50}});
    TypeSetpoint(12, 18);
    RefuseDataBehind(recordReplies + wordReplies + recordReplies + wordReplies);
    ExpectBox("Unable to Successfully Program Setpoint for Channel CH10.", warning,
              "Setpoint Adjust");
    Click("cmdAdjustSetpoint");
    EXPECT_THAT(board.Pls().Edges(ninth), ElementsAre(PlsEdge{1, 12}, PlsEdge{0, 18}));
    EXPECT_THAT(Ninth(), ElementsAre(Setpoint{18, 12})) << "the third was not tried";
    ExpectNinthChannelShown("0", "12", "18");
}

TEST_F(BoardRefuses, APulseTrainIsToldByTheLinkAndByTheView) {
    OpenWith({});
    TypeSetpoint(45, 45);
    RefuseDataBehind(wordReplies);
    ExpectBox("Error Encountered while Programming Pulse Train.\r\n\r\n"
              "PLS Channel will not be Programmed.",
              information, "PLS Pulse Train");
    ExpectBox("Unable to Successfully Program Pulse Train for Channel CH10.", warning,
              "Pulse Train");
    Click("cmdPulseTrain");
    EXPECT_TRUE(Button("cmdPulseTrain")->isEnabled());
}

TEST_F(BoardRefuses, AClearingAsksAndRetryClears) {
    OpenWith({{20, 10}});
    ExpectClearQuestion();
    RefuseDataBehind(0);
    ExpectBox("Unable to Clear Channel", retryCancel, "Clear Channel", MsgAnswer::Retry);
    Click("cmdClearChan");
    EXPECT_THAT(board.Pls().Edges(ninth), IsEmpty());
    EXPECT_THAT(Ninth(), ElementsAre(Setpoint{0, 0}));
    ExpectNinthChannelShown("0", "0", "0");
}

TEST_F(BoardRefuses, AClearingAsksAndCancelLeavesTheChannel) {
    OpenWith({{20, 10}});
    ExpectClearQuestion();
    RefuseDataBehind(0);
    ExpectBox("Unable to Clear Channel", retryCancel, "Clear Channel", MsgAnswer::Cancel);
    Click("cmdClearChan");
    EXPECT_EQ(board.Pls().Edges(ninth).size(), 2U);
    EXPECT_THAT(Ninth(), ElementsAre(Setpoint{20, 10}));
    ExpectNinthChannelShown("0", "10", "20");
}

TEST_F(BoardRefuses, ARecallIsToldAndLeavesOneZeroSetpoint) {
    OpenWith({{20, 10}});
    RefuseDataBehind(0);
    ExpectBox("Unable to Recall Channel CH10", information, "Channel Recall");
    Click("cmdRecallChan");
    EXPECT_THAT(Ninth(), ElementsAre(Setpoint{0, 0}));
    ExpectNinthChannelShown("0", "0", "0");
}

TEST_F(BoardRefuses, ATableOutOfAllBoundsIsReportedWhenTheChannelsAreDisplayed) {
    OpenOnline();
    std::array<qint16, 24> table{};
    table[14] = table[15] = 255; // a low speed threshold of 65535
    ASSERT_TRUE(link.PLSConfigDownload(table, 360));
    ExpectBox("Error Number = 6\r\n\r\nOverflow", 16, "Display PLS Channels");
    view.DisplayPLSChannels();
}

TEST_F(BoardRefuses, AScaleOutOfBoundsThatWasNotReadBeforeIsNoScale) {
    OpenOnline();
    DisplayWithScaleOf4456();
    EXPECT_EQ(gPLS.ScaleFactor, 360);
    EXPECT_EQ(Panel(4), "Scale: 360");
    Rounds();
    EXPECT_FALSE(Button("cmdResetPLSConfig")->isEnabled());
}

// As a board may hold it that was never set up: the user must see it to mend it.
TEST_F(BoardRefuses, AScaleOutOfBoundsThatTheUploadReadTooIsShown) {
    OpenOnline();
    gPLS.ScaleFactor = gPLSSnapshot.ScaleFactor = 4456;
    DisplayWithScaleOf4456();
    EXPECT_EQ(Panel(4), "Scale: 4456");
    EXPECT_EQ(Config(10)->text(), "4456");
    EXPECT_EQ(RangeOf("updTmg", 2).max, 4455);
    EXPECT_FALSE(Button("cmdResetPLSConfig")->isEnabled());
}

TEST_F(BoardRefusesR6500, AnEditKeepsTheChannelsAndProgramThatWereReadButCouldNotBeShown) {
    OpenOnline();
    gPLS.Channels = gPLSSnapshot.Channels = 16;
    gPLS.PLSProgram = gPLSSnapshot.PLSProgram = 2;
    Type(Config(0), "400");
    EXPECT_EQ(gPLS.ScaleFactor, 400);
    EXPECT_EQ(gPLS.Channels, 16);
    EXPECT_EQ(gPLS.PLSProgram, 2);
    Type(Config(1), "1");
    EXPECT_EQ(gPLS.ScaleFactor, 400);
    EXPECT_EQ(gPLS.Channels, 16);
}

TEST_F(BoardRefusesR6500, AResetGivenUpSelects8ChannelsAndTheNextResetSendsThem) {
    OpenOnline();
    ClickOption("optPlsChan", 1);
    Rounds();
    gPLS.SpeedComp[0] = 300; // no byte: the link refuses the table
    ExpectBox("Unable to Reset PLS Configuration Parameters", retryCancel, "PLS Config Download",
              MsgAnswer::Cancel);
    Click("cmdResetPLSConfig");
    EXPECT_TRUE(Option("optPlsChan", 0)->isChecked());
    EXPECT_EQ(gPLS.Channels, 8);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(Config(i)->text(), "---");
    ClickArrow("updPLS_CFG", 2, "up");
    Rounds();
    Click("cmdResetPLSConfig");
    EXPECT_EQ(board.Pls().Channels(), 8);
    EXPECT_EQ(board.Pls().ConfigTable()[2], 1);
    EXPECT_EQ(Config(0)->text(), "360");
}

// The option shown says how far the channel entry goes.
TEST_F(BoardRefusesR6041, AnyCountOfChannelsTheBoardGivesLeavesTheChannelEntryAsFarAsTheOption) {
    OpenOnline();
    for (const auto& [count, option, highest] : {std::tuple(20, 0, 17), {40, 1, 37}, {32, 1, 37}}) {
        std::array<qint16, 24> table{};
        table[18] = static_cast<qint16>(count);
        ASSERT_TRUE(link.PLSConfigDownload(table, 360));
        view.DisplayPLSChannels();
        EXPECT_EQ(gPLS.Channels, count);
        EXPECT_TRUE(Option("optR6PlsChan", option)->isChecked()) << count;
        EXPECT_EQ(RangeOf("updTmg", 1).max, highest) << count;
    }
}
