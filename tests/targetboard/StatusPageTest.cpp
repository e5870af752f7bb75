#include "ModelUnderTest.h"

#include "base/Dialogs.h"
#include "targetboard/TargetBoardTexts.h"
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
constexpr int currentFault = 8176;
constexpr int lastFault = 8177;
constexpr int coCpuSlot = 8175;
constexpr int lastCommError = 8178;
constexpr int currentCommError = 8179;

class StatusPage : public testing::Test, public ModelUnderTest {
protected:
    StatusPage() : StatusPage(68) {}
    explicit StatusPage(int index) : ModelUnderTest(index) {
        for (const int address :
             {currentFault, lastFault, coCpuSlot, lastCommError, currentCommError})
            Poke(address, 0);
        WriteSupport("FaultErrCodes.txt", "05,Watchdog fault\r\n45,\"Called, by sfunc09\"\r\n");
        WriteSupport("CommErrCodes.txt", "00,No error\r\n05,Late\r\n05,Very late\r\n");
    }
    bool ResetEnabled() const { return Shown().controls.cmdResetFaults(); }
    void AnswerReset(int answer) {
        dialogs.ExpectBox("Target Board will be reinitialized.\r\n\r\nDo you wish to continue?", 19,
                          "WARNING - Fault Code Reset!", answer);
    }
    void ExpectFileError() {
        dialogs.ExpectBox("Error Number = 62\r\n\r\nInput past end of file", MsgStyle::Critical,
                          "TargetBoard FirstPass", MsgAnswer::Ok);
    }
};

class StatusPageK2012 : public StatusPage {
protected:
    StatusPageK2012() : StatusPage(50) {}
};
} // namespace

TEST_F(StatusPage, Code0Shows00HTheAdviceNoneAndLeavesTheResetOff) {
    OpenOnline();
    EXPECT_EQ(Label(0), "Current Fault: Code = 00H");
    EXPECT_EQ(Label(1), "Last Fault: Code = 00H");
    EXPECT_EQ(Label(4), "Current Comm Error: Code = 00H");
    EXPECT_EQ(Label(5), "Last Comm Error: Code = 00H");
    EXPECT_EQ(Text(FaultPosition::CorrectiveAction), "None");
    EXPECT_FALSE(ResetEnabled());
}

TEST_F(StatusPage, Code0AShows0AAndEnablesTheResetOnlyIfAnotherCodeDoes) {
    Poke(currentFault, 0x0A);
    OpenOnline();
    EXPECT_EQ(Label(0), "Current Fault: Code = 0AH");
    EXPECT_FALSE(ResetEnabled());
    Poke(lastCommError, 0x05);
    mode.GoOffline();
    Turns(1);
    model.cmdGoOnline_Click();
    Turns(1);
    EXPECT_TRUE(ResetEnabled());
}

TEST_F(StatusPage, TheSlotDoesNotEnableTheReset) {
    Poke(coCpuSlot, 5);
    OpenOnline();
    EXPECT_FALSE(ResetEnabled());
}

TEST_F(StatusPage, ACodeAbsentFromTheFaultFileLeavesTheDescriptionAsItWas) {
    Poke(currentFault, 0x05);
    OpenOnline();
    EXPECT_EQ(Text(0), "Watchdog fault");
    EXPECT_EQ(Text(1), "");
    Poke(currentFault, 0x06);
    AnswerReset(MsgAnswer::Yes);
    model.cmdResetFaults_Click();
    Poke(currentFault, 0x06);
    Turns(1);
    EXPECT_EQ(Label(0), "Current Fault: Code = 06H");
    EXPECT_EQ(Text(0), "Watchdog fault");
}

TEST_F(StatusPage, DescriptionsComeFromTheirOwnFilesAndALaterPairWins) {
    Poke(currentFault, 0x45);
    Poke(lastFault, 0x05);
    Poke(currentCommError, 0x05);
    OpenOnline();
    EXPECT_EQ(Text(0), "Called, by sfunc09");
    EXPECT_EQ(Text(1), "Watchdog fault");
    EXPECT_EQ(Text(4), "Very late");
    EXPECT_EQ(Text(5), "No error");
}

TEST_F(StatusPage, TheAdviceFollowsTheLastFaultNotTheCurrentOne) {
    Poke(currentFault, 0x42);
    Poke(lastFault, 0x45);
    OpenOnline();
    EXPECT_TRUE(Text(FaultPosition::CorrectiveAction).startsWith("User program executed"));
}

TEST_F(StatusPage, OpeningTheViewOfflineGoesOnlineFirst) {
    ASSERT_FALSE(link.OnlineMode());
    link.SetCommError(true);
    OpenOnline();
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_FALSE(link.CommError());
    EXPECT_TRUE(display.shown);
    EXPECT_FALSE(Shown().controls.cmdGoOnline());
}

TEST_F(StatusPage, OpeningTheViewOnlineOpensThePortNoSecondTime) {
    mode.GoOnline();
    const std::size_t logged = line.Log().size();
    Open();
    Steps(1);
    EXPECT_EQ(line.Log().size(), logged);
}

TEST_F(StatusPage, Label3KeepsItsCaption) {
    Open();
    EXPECT_EQ(Label(3), "Corrective Action:");
    Poke(lastFault, 0x42);
    Turns(1);
    EXPECT_EQ(Label(3), "Corrective Action:");
}

TEST_F(StatusPage, TheSixAddressesAreReadInOrderThenTheIdent) {
    OpenOnline();
    EXPECT_THAT(TakeRead(), ElementsAre(8176, 8177, 8175, 8177, 8179, 8178, 61424, 61425, 61426,
                                        61427, 61428, 61429, 61430, 61431, 61432, 61433, 8180, 8191,
                                        43012, 43010, 43008, 43016, 43015, 43017));
}

TEST_F(StatusPage, TheFaultsAreReadOnceAndTheEntriesAgainAndAgain) {
    OpenOnline();
    TakeRead();
    Turns(2);
    const std::vector<int> read = TakeRead();
    EXPECT_EQ(read.size(), 16U);
    EXPECT_EQ(std::count(read.begin(), read.end(), currentFault), 0);
}

TEST_F(StatusPageK2012, TheSlotIsReadOnceMoreAndShownInDecimal) {
    Poke(coCpuSlot, 12);
    Open();
    Steps(4); // online, the turn, two reads
    EXPECT_EQ(Label(2), "CO-CPU Slot:");
    Steps(1);
    EXPECT_EQ(Label(2), "CO-CPU Slot: 12");
    Poke(coCpuSlot, 3);
    Turns(1);
    EXPECT_EQ(Label(2), "CO-CPU Slot: 3");
    const std::vector<int> read = TakeRead();
    EXPECT_EQ(std::count(read.begin(), read.end(), coCpuSlot), 2);
}

TEST_F(StatusPage, TheSlotStaysUnshownOnOtherBoards) {
    Poke(coCpuSlot, 12);
    OpenOnline();
    EXPECT_EQ(Label(2), "CO-CPU Slot:");
}

TEST_F(StatusPage, AResetWritesTheFourAddressesInOrderAndReadsTheBoardAnew) {
    Poke(lastFault, 0x05);
    OpenOnline();
    ASSERT_TRUE(ResetEnabled());
    AnswerReset(MsgAnswer::Yes);
    model.cmdResetFaults_Click();
    EXPECT_FALSE(ResetEnabled());
    EXPECT_THAT(TakeWritten(), ElementsAre(WrittenByte{8178, 0}, WrittenByte{8179, 0},
                                           WrittenByte{8177, 0}, WrittenByte{8176, 0}));
    Turns(1);
    EXPECT_EQ(Label(1), "Last Fault: Code = 00H");
    EXPECT_FALSE(ResetEnabled());
}

TEST_F(StatusPage, NoAndCancelWriteNothing) {
    Poke(lastFault, 0x05);
    OpenOnline();
    for (const int answer : {MsgAnswer::No, MsgAnswer::Cancel}) {
        AnswerReset(answer);
        model.cmdResetFaults_Click();
    }
    EXPECT_THAT(TakeWritten(), IsEmpty());
    EXPECT_TRUE(ResetEnabled());
}

TEST_F(StatusPage, AResetWhileOfflineWritesNothing) {
    OpenOnline();
    AnswerReset(MsgAnswer::Yes);
    mode.GoOffline();
    model.cmdResetFaults_Click();
    EXPECT_THAT(TakeWritten(), IsEmpty());
}

TEST_F(StatusPage, AResetOnACutLineStopsAtTheFirstWrite) {
    Poke(lastFault, 0x05);
    OpenOnline();
    AnswerReset(MsgAnswer::Yes);
    CutLine();
    model.cmdResetFaults_Click();
    Turns(1);
    EXPECT_EQ(board.Peek(lastFault), 0x05);
    EXPECT_EQ(Text(0), TargetBoardText::Offline());
}

TEST_F(StatusPage, ACutLineWhileTheFaultsAreReadShowsTheCableAdviceThenOffline) {
    Open();
    Steps(4); // online, the turn, two reads
    CutLine();
    Steps(4);
    EXPECT_EQ(Label(4), "Current Comm Error: Code = 42H");
    EXPECT_EQ(Label(5), "Last Comm Error: Code = 42H");
    EXPECT_FALSE(ResetEnabled());
    Steps(3);
    EXPECT_TRUE(Text(FaultPosition::CorrectiveAction).startsWith("Verify connection of cable"));
    Turns(1);
    for (const int position : {0, 1, 3, 4, 5})
        EXPECT_EQ(Text(position), "Cannot Communicate with Target Board.") << position;
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_FALSE(display.shown);
    EXPECT_TRUE(Shown().controls.cmdGoOnline());
}

TEST_F(StatusPage, ACutLineWhileTheIdentIsReadGoesOffline) {
    Open();
    for (int i = 0; i < 8; ++i)
        Poke(61424 + i, 'A' + i);
    Steps(2 + 9 + 3);
    CutLine();
    Turns(1);
    EXPECT_EQ(Shown().lblRevIdentInPLC[0], "ABC"); // what was not read is not invented
    EXPECT_FALSE(Shown().controls.lblRevIdentInPLC());
    EXPECT_TRUE(Shown().controls.cmdGoOnline());
}

TEST_F(StatusPageK2012, ACutLineWhileTheSlotIsReadAgainKeepsTheSlot) {
    Poke(8175, 3);
    Open();
    Steps(2 + 7); // online, the turn, the six addresses and the fault file
    CutLine();
    Steps(1);
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(Label(2), "CO-CPU Slot: 3");
}

TEST_F(StatusPage, GoOnlineBringsTheBoardBack) {
    Poke(currentFault, 0x05);
    OpenOnline();
    CutLine();
    Turns(1);
    EXPECT_EQ(Text(0), TargetBoardText::Offline());
    MendLine();
    model.cmdGoOnline_Click();
    EXPECT_TRUE(link.OnlineMode());
    Turns(1);
    EXPECT_EQ(Text(0), "Watchdog fault");
    EXPECT_FALSE(Shown().controls.cmdGoOnline());
    EXPECT_TRUE(Shown().controls.lblRevIdentInPLC());
}

TEST_F(StatusPage, GoOnlineOnALineThatIsStillCutStaysOffline) {
    OpenOnline();
    CutLine();
    Turns(1);
    CutLine();
    model.cmdGoOnline_Click();
    Turns(2);
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_TRUE(Shown().controls.cmdGoOnline());
}

TEST_F(StatusPage, MissingFilesLeaveTheDescriptions) {
    QFile::remove(folder.Path("support/FaultErrCodes.txt"));
    QFile::remove(folder.Path("support/CommErrCodes.txt"));
    Poke(currentFault, 0x05);
    OpenOnline();
    EXPECT_EQ(Label(0), "Current Fault: Code = 05H");
    for (const int position : {0, 1, 4, 5})
        EXPECT_EQ(Text(position), "");
    EXPECT_EQ(Text(3), "None");
}

TEST_F(StatusPage, ADamagedFileIsReportedOnceAndTriedAgain) {
    WriteSupport("FaultErrCodes.txt", "05,Watchdog fault\r\n06");
    Poke(currentFault, 0x05);
    Open();
    ExpectFileError();
    Turns(3);
    EXPECT_EQ(dialogs.Boxes().size(), 1U);
    const std::vector<int> read = TakeRead();
    EXPECT_EQ(std::count(read.begin(), read.end(), currentFault), 3);
    EXPECT_EQ(std::count(read.begin(), read.end(), 8180), 3); // the entries are not held up
    WriteSupport("FaultErrCodes.txt", "05,Watchdog fault\r\n");
    Turns(1);
    EXPECT_EQ(Text(0), "Watchdog fault");
    TakeRead();
    Turns(1);
    EXPECT_EQ(TakeRead().size(), 8U);
}

TEST_F(StatusPage, ADamagedCommErrorFileIsReportedToo) {
    WriteSupport("CommErrCodes.txt", "00,\"No error\"\r\n01");
    Poke(lastFault, 0x45);
    Open();
    ExpectFileError();
    Turns(1);
    EXPECT_TRUE(Text(3).startsWith("User program executed"));
}

TEST_F(StatusPage, AfterOkNothingGoesOut) {
    OpenOnline();
    model.Stop();
    const std::size_t logged = line.Log().size();
    EXPECT_EQ(model.TakeStep(), ViewLoop::Step::Rest);
    model.cmdSetToCurrTime_Click();
    model.SetupAccepted(0, "7");
    EXPECT_EQ(line.Log().size(), logged);
}

TEST_F(StatusPage, NothingOfAnEarlierBoardStaysWhenTheViewOpensAnew) {
    Poke(currentFault, 0x05);
    OpenOnline();
    model.SetupEntered(0);
    model.Stop();
    Open();
    EXPECT_EQ(Text(0), "");
    EXPECT_EQ(Label(0), "Current Fault:");
    EXPECT_FALSE(Shown().editing[0]);
    Turns(1);
    EXPECT_EQ(Text(0), "Watchdog fault");
}
