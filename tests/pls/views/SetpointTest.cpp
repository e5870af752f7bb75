#include "TimingUnderTest.h"

#include "base/Dialogs.h"
#include "session/Globals.h"
#include <gmock/gmock.h>

using haldenboard::PlsEdge;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {
constexpr int yesNoCancel = 35;
constexpr int retryCancel = 37;
constexpr int channelRecord = 0x1B;
constexpr int offsetCommand = 0x2A;

class TimingSetpoints : public TimingUnderTest {
protected:
    using TimingUnderTest::TimingUnderTest;

    // Goes online with setpoints in channel 0, which is selected.
    void OpenWith(std::initializer_list<Setpoint> setpoints, qint16 channel = 0) {
        OpenOnline();
        Program(channel, setpoints);
        Type(Timing(1), QString::number(RSComm::Dec2Octal(channel)));
        Click("cmdRecallChan");
        ASSERT_EQ(gPLS.Chan[static_cast<std::size_t>(channel)].size(),
                  static_cast<qsizetype>(setpoints.size()));
    }
    std::vector<PlsEdge> Edges(int channel) const { return board.Pls().Edges(channel); }
    void ExpectOverlap() {
        dialogs.ExpectBox("Setpoint overlaped with existing setpoint.", 64, "Add Setpoint",
                          MsgAnswer::Ok);
    }
    void Add(int on, int off) {
        TypeSetpoint(on, off);
        Click("cmdAddSetpoint");
    }
    // The flag bytes of the channel records sent since the call before.
    std::vector<int> RecordFlags() {
        std::vector<int> flags;
        const std::vector<haldenboard::LoggedByte>& log = line.Log();
        std::vector<int> sent;
        for (; seen_ < log.size(); ++seen_)
            if (log[seen_].toBoard)
                sent.push_back(log[seen_].value);
        for (std::size_t i = 1; i + 6 < sent.size(); ++i)
            if (sent[i - 1] == 0xFF && sent[i] == channelRecord)
                flags.push_back(sent[i + 6]);
        return flags;
    }

private:
    std::size_t seen_ = 0;
};

class TimingSetpointsR6500 : public TimingSetpoints {
protected:
    TimingSetpointsR6500() : TimingSetpoints(r6500) {}

    // 64 channels, so that the channel entry goes up to 77.
    void OpenWith64Channels() {
        Open();
        mode.GoOnline();
        std::array<qint16, 24> table{};
        table[18] = 64;
        ASSERT_TRUE(link.PLSConfigDownload(table, 360));
        Until([this] { return view.gFirstPassOnline(); });
        Rounds();
    }
};
} // namespace

TEST_F(TimingSetpoints, AddWithOnEqualOffGivesItsMessageWhateverTheRest) {
    OpenWith({{20, 10}});
    dialogs.ExpectBox("ON Setpoint cannot Equal OFF Setpoint", 64, "Add Setpoint", MsgAnswer::Ok);
    RecordFlags();
    Add(15, 15);
    EXPECT_THAT(RecordFlags(), IsEmpty());
    EXPECT_EQ(Timing(2)->text(), "15");
}

TEST_F(TimingSetpoints, WithAnExisting10To20ANew20To30OverlapsAnd21To30DoesNot) {
    OpenWith({{20, 10}});
    ExpectOverlap();
    Add(20, 30);
    EXPECT_THAT(Edges(0), ElementsAre(PlsEdge{1, 10}, PlsEdge{0, 20}));
    Add(21, 30);
    EXPECT_THAT(Edges(0),
                ElementsAre(PlsEdge{1, 10}, PlsEdge{0, 20}, PlsEdge{1, 21}, PlsEdge{0, 30}));
    EXPECT_THAT(gPLS.Chan[0], ElementsAre(Setpoint{20, 10}, Setpoint{30, 21}));
    EXPECT_EQ(Cell(2, 0), "1:");
    EXPECT_EQ(Cell(2, 1), "21");
    EXPECT_EQ(Cell(2, 2), "30");
    EXPECT_EQ(Timing(5)->text(), "0");
    EXPECT_EQ(Timing(2)->text(), "10");
}

TEST_F(TimingSetpoints, WithAnExisting350To10OnAScaleOf360New355To358OverlapsAnd11To349DoesNot) {
    OpenWith({{10, 350}});
    ExpectOverlap();
    Add(355, 358);
    Add(11, 349);
    EXPECT_EQ(gPLS.Chan[0].size(), 2);
}

TEST_F(TimingSetpoints, ACandidateOf5To25AroundAnExisting10To20PassesTheCheck) {
    OpenWith({{20, 10}});
    Add(5, 25);
    EXPECT_THAT(Edges(0), ElementsAre(PlsEdge{1, 5}, PlsEdge{0, 25})); // the board melts them
    EXPECT_THAT(gPLS.Chan[0], ElementsAre(Setpoint{25, 5}));
}

TEST_F(TimingSetpoints, TheFirstAddOnAnEmptyChannelClearsItFirst) {
    OpenOnline();
    RecordFlags();
    Add(10, 20);
    EXPECT_THAT(RecordFlags(), ElementsAre(0, 1));
    Add(30, 40);
    EXPECT_THAT(RecordFlags(), ElementsAre(1));
    EXPECT_THAT(gPLS.Chan[0], ElementsAre(Setpoint{20, 10}, Setpoint{40, 30}));
}

TEST_F(TimingSetpoints, AdjustOfTheOnlySetpointNeverComparesItWithItself) {
    OpenWith({{20, 10}});
    TypeSetpoint(12, 18);
    RecordFlags();
    Click("cmdAdjustSetpoint");
    EXPECT_THAT(RecordFlags(), ElementsAre(0, 1));
    EXPECT_THAT(gPLS.Chan[0], ElementsAre(Setpoint{18, 12}));
    EXPECT_THAT(Edges(0), ElementsAre(PlsEdge{1, 12}, PlsEdge{0, 18}));
}

TEST_F(TimingSetpoints, AdjustRewritesTheChannelAndStaysAtItsSetpoint) {
    OpenWith({{20, 10}, {40, 30}, {60, 50}});
    ClickCell(2, 1);
    TypeSetpoint(32, 38);
    RecordFlags();
    Click("cmdAdjustSetpoint");
    EXPECT_THAT(RecordFlags(), ElementsAre(0, 1, 1, 1));
    EXPECT_THAT(gPLS.Chan[0], ElementsAre(Setpoint{20, 10}, Setpoint{38, 32}, Setpoint{60, 50}));
    EXPECT_EQ(Timing(5)->text(), "1");
    EXPECT_EQ(Timing(2)->text(), "32");
    EXPECT_TRUE(Find<QLabel>("lblSetpointRecall")->isHidden());
}

TEST_F(TimingSetpoints, AdjustRefusesAnOverlapAndEqualEndsInItsOwnWords) {
    OpenWith({{20, 10}, {40, 30}});
    TypeSetpoint(12, 30);
    dialogs.ExpectBox("Setpoint overlap with existing setpoint.", 64, "Adjust Setpoint",
                      MsgAnswer::Ok);
    Click("cmdAdjustSetpoint");
    Type(Timing(3), "12");
    dialogs.ExpectBox("ON Setpoint cannot Equal OFF Setpoint", 64, "Setpoint Adjust",
                      MsgAnswer::Ok);
    Click("cmdAdjustSetpoint");
    EXPECT_THAT(gPLS.Chan[0], ElementsAre(Setpoint{20, 10}, Setpoint{40, 30}));
}

TEST_F(TimingSetpoints, ClearingChannel7AsksWithCH07AndChannel10WithCH10) {
    OpenWith({{20, 10}}, 7);
    const char* end = ".\r\n\r\nDo you wish to continue?";
    dialogs.ExpectBox(QString("You are about to Clear Channel CH07") + end, yesNoCancel,
                      "Clear Channel", MsgAnswer::No);
    Click("cmdClearChan");
    EXPECT_EQ(Edges(7).size(), 2U);
    dialogs.ExpectBox(QString("You are about to Clear Channel CH07") + end, yesNoCancel,
                      "Clear Channel", MsgAnswer::Yes);
    Click("cmdClearChan");
    EXPECT_THAT(Edges(7), IsEmpty());
    EXPECT_EQ(Timing(1)->text(), "7");
    EXPECT_EQ(Timing(2)->text(), "0");
    Type(Timing(1), "10");
    dialogs.ExpectBox(QString("You are about to Clear Channel CH10") + end, yesNoCancel,
                      "Clear Channel", MsgAnswer::Cancel);
    Click("cmdClearChan");
}

TEST_F(TimingSetpoints, ARecallOfAnEmptyChannelLeavesOneZeroSetpoint) {
    OpenOnline();
    gPLS.Chan[3] = {Setpoint{20, 10}, Setpoint{40, 30}};
    Type(Timing(1), "3");
    Click("cmdRecallChan");
    EXPECT_THAT(gPLS.Chan[3], ElementsAre(Setpoint{0, 0}));
    EXPECT_EQ(Timing(1)->text(), "3");
    EXPECT_EQ(RangeOf("updTmg", 5).max, 0);
}

TEST_F(TimingSetpoints, NoOrCancelOnTheOffsetQuestionResetsTheEntryTo0) {
    OpenOnline();
    for (const int answer : {MsgAnswer::No, MsgAnswer::Cancel}) {
        Type(Timing(0), "100");
        dialogs.ExpectBox(
            "You are about to Change the Resolver Offset.\r\n\r\nDo you wish to continue?",
            yesNoCancel, "Set Offset", answer);
        Click("cmdSetOffset");
        EXPECT_EQ(Timing(0)->text(), "0");
        EXPECT_EQ(Sent(offsetCommand), 0);
    }
}

TEST_F(TimingSetpoints, ANewOffsetGoesIntoTheBoard) {
    OpenOnline();
    Type(Timing(0), "100");
    dialogs.ExpectBoxTitled("Set Offset", MsgAnswer::Yes);
    Click("cmdSetOffset");
    EXPECT_EQ(board.Pls().Offset(), 260); // the standing position 0 reads as 100
    EXPECT_EQ(Timing(0)->text(), "0");
    EXPECT_TRUE(Timing(0)->isEnabled());
    EXPECT_TRUE(Config(10)->isEnabled());
    EXPECT_TRUE(Button("cmdAddSetpoint")->isEnabled());
    Rounds();
    EXPECT_EQ(Panel(2), "Position: 100");
    EXPECT_EQ(Panel(3), "Offset: 260");
}

TEST_F(TimingSetpoints, EnterInTheOffsetGoesOnToItsButton) {
    OpenOnline();
    QTest::mouseClick(Timing(0), Qt::LeftButton);
    QTest::keyClick(Timing(0), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Button("cmdSetOffset")->hasFocus());
}

TEST_F(TimingSetpointsR6500, UpArrowOnTheChannelEntryFrom7Gives10From17Gives20AndStopsAt77) {
    OpenWith64Channels();
    const auto up = [this](const char* from) {
        Type(Timing(1), from);
        ClickArrow("updTmg", 1, "up");
        return Timing(1)->text();
    };
    EXPECT_EQ(up("7"), "10");
    EXPECT_TRUE(Button("cmdDefault")->hasFocus());
    EXPECT_EQ(up("17"), "20");
    EXPECT_EQ(up("77"), "77");
    Type(Timing(1), "10");
    ClickArrow("updTmg", 1, "down");
    EXPECT_EQ(Timing(1)->text(), "7");
}

TEST_F(TimingSetpointsR6500, Typing18InTheChannelEntryGives20And19Gives17) {
    OpenWith64Channels();
    Type(Timing(1), "18");
    EXPECT_EQ(Timing(1)->text(), "20");
    Type(Timing(1), "19");
    EXPECT_EQ(Timing(1)->text(), "17");
}

TEST_F(TimingSetpoints, ANumberOutOfRangeIsRefusedUnderTheTitleOfTheOffsetWhicheverTheEntry) {
    OpenOnline();
    for (const auto& [index, most] : {std::pair(0, 359), {1, 17}, {2, 359}, {3, 359}, {4, 359}}) {
        dialogs.ExpectBox(QString("Only a Number Between 0 and %1 can be Entered").arg(most), 64,
                          "Resolver Offset", MsgAnswer::Ok);
        Type(Timing(index), QString::number(most + 1));
        EXPECT_EQ(Timing(index)->text(), "0") << index;
        EXPECT_TRUE(Timing(index)->hasFocus()) << index;
    }
}

TEST_F(TimingSetpoints, AButtonPressedOverARefusedValueDoesNothing) {
    OpenOnline();
    QTest::mouseClick(Timing(2), Qt::LeftButton);
    QCoreApplication::processEvents();
    QTest::keyClicks(Timing(2), "360");
    RecordFlags();
    dialogs.ExpectBoxTitled("Resolver Offset", MsgAnswer::Ok);
    Click("cmdAddSetpoint");
    QCoreApplication::processEvents();
    EXPECT_THAT(RecordFlags(), IsEmpty());
    EXPECT_TRUE(Timing(2)->hasFocus());
}

TEST_F(TimingSetpoints, TheSetpointEntryWalksThroughTheChannel) {
    OpenWith({{20, 10}, {40, 30}});
    ClickArrow("updTmg", 5, "up");
    EXPECT_EQ(Timing(2)->text(), "30");
    EXPECT_EQ(Timing(3)->text(), "40");
    ClickArrow("updTmg", 5, "up");
    EXPECT_EQ(Timing(5)->text(), "1");
}

TEST_F(TimingSetpoints, AnEmptyChannelEmptiesOnAndOffAndAnEntryBeginsWith0) {
    OpenWith({{20, 10}});
    gPLS.Chan[2].clear();
    Type(Timing(1), "2");
    EXPECT_EQ(Timing(2)->text(), "");
    EXPECT_EQ(Timing(3)->text(), "");
    EXPECT_EQ(RangeOf("updTmg", 5).max, 0);
    QTest::mouseClick(Timing(2), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(Timing(2)->text(), "0");
    EXPECT_EQ(Timing(2)->selectedText(), "0");
}

TEST_F(TimingSetpoints, TwoEscapesInAnEntryRestoreItAndLeave) {
    OpenWith({{20, 10}});
    QTest::mouseClick(Timing(2), Qt::LeftButton);
    QCoreApplication::processEvents();
    QTest::keyClicks(Timing(2), "55");
    QTest::keyClick(Timing(2), Qt::Key_Escape);
    EXPECT_EQ(Timing(2)->text(), "10");
    EXPECT_EQ(Timing(2)->selectedText(), "10");
    QTest::keyClick(Timing(2), Qt::Key_Escape);
    EXPECT_TRUE(Button("cmdDefault")->hasFocus());
}

TEST_F(TimingSetpoints, APulseTrainGoesIntoTheBoardAndIsReadBack) {
    OpenOnline();
    TypeSetpoint(45, 45);
    Type(Timing(4), "10");
    Click("cmdPulseTrain");
    EXPECT_EQ(Edges(0).size(), 8U);
    EXPECT_THAT(gPLS.Chan[0], ElementsAre(Setpoint{55, 10}, Setpoint{145, 100}, Setpoint{235, 190},
                                          Setpoint{325, 280}));
    EXPECT_TRUE(Button("cmdPulseTrain")->isEnabled());
}

TEST_F(TimingSetpoints, APulseTrainThatDoesNotFitIsToldTwice) {
    OpenOnline();
    TypeSetpoint(5, 2);
    dialogs.ExpectBoxTitled("PLS Pulse Train", MsgAnswer::Ok);
    dialogs.ExpectBox("Unable to Successfully Program Pulse Train for Channel CH0.", 48,
                      "Pulse Train", MsgAnswer::Ok);
    Click("cmdPulseTrain");
    EXPECT_THAT(Edges(0), IsEmpty());
    EXPECT_TRUE(Button("cmdPulseTrain")->isEnabled());
}

TEST_F(TimingSetpoints, ClearAllAsksAndClearsEveryChannel) {
    OpenWith({{20, 10}});
    Program(5, {{40, 30}});
    const QString question =
        "You are about to Clear ALL PLS Channels.    \r\n\r\nDo you wish to continue?";
    dialogs.ExpectBox(question, yesNoCancel, "Clear ALL", MsgAnswer::No);
    Click("cmdClearAll");
    EXPECT_EQ(Edges(0).size(), 2U);
    dialogs.ExpectBox(question, yesNoCancel, "Clear ALL", MsgAnswer::Yes);
    Click("cmdClearAll");
    EXPECT_THAT(Edges(0), IsEmpty());
    EXPECT_THAT(Edges(5), IsEmpty());
    EXPECT_EQ(runner.ran.back(), 8);
    EXPECT_EQ(Cell(1, 1), "****");
}

TEST_F(TimingSetpoints, TheFocusStaysWithTheUserAfterAnEdit) {
    OpenOnline();
    Add(10, 20);
    EXPECT_TRUE(Button("cmdAddSetpoint")->hasFocus());
}

TEST_F(TimingSetpoints, WhileARecallGoesOnNothingElseIsLive) {
    OpenWith({{20, 10}, {40, 30}});
    auto* label = Find<QLabel>("lblSetpointRecall");
    QStringList live, captions;
    const auto look = [&] {
        if (label->isVisible() && !label->text().isEmpty()) {
            live += Live();
            captions << label->text();
        }
    };
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &view, look);
    watch.start(0);
    Click("cmdRecallChan");
    watch.stop();
    EXPECT_THAT(live, IsEmpty());
    ASSERT_FALSE(captions.isEmpty());
    EXPECT_TRUE(captions.front().startsWith("Recalling CH0 Setpoint: "));
    EXPECT_TRUE(Button("cmdRecallChan")->isEnabled());
    EXPECT_TRUE(Config(10)->isEnabled());
}

TEST_F(TimingSetpoints, TheViewIsClosedInTheMidstOfARecall) {
    OpenWith({{20, 10}, {40, 30}});
    QTimer::singleShot(0, &view, [this] { view.close(); });
    Click("cmdRecallChan");
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(loops.Current(), nullptr);
    EXPECT_FALSE(Button("cmdAddSetpoint")->isEnabled());
}

TEST_F(TimingSetpoints, TheUserGoesOfflineInTheMidstOfARecall) {
    OpenWith({{20, 10}, {40, 30}});
    QTimer::singleShot(0, &view, [this] { mode.GoOffline(); });
    Click("cmdRecallChan");
    Until([this] { return Panel(1) == "RPM: -"; });
    EXPECT_THAT(Live(), IsEmpty());
}
