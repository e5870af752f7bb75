#include "TimingUnderTest.h"

#include "base/Dialogs.h"
#include "session/Globals.h"
#include <gmock/gmock.h>

// The line fails in every step of every command of the view. Whatever step it was, the view ends
// offline with nothing live, and comes back with the user's next online command.

using haldenboard::Fault;
using haldenboard::FaultKind;
using testing::IsEmpty;

namespace {
constexpr int mostReplies = 2000; // no command takes so many

// Cancels what the link asks, says yes to the view's questions, gives up where it may retry.
int AnswerAsInAHurry(const QString&, int style, const QString&) {
    switch (style % 16) {
    case 3:
        return MsgAnswer::Yes;
    case 5:
        return MsgAnswer::Cancel;
    default:
        return MsgAnswer::Ok;
    }
}

struct Command {
    const char* name;
    void (*act)(class TimingFaults& test);
    int stride; ///< every how many replies of a long command one is struck
};

class TimingFaults : public TimingUnderTest, public testing::WithParamInterface<Command> {
protected:
    TimingFaults() { prompts.answer = AnswerAsInAHurry; }

    // Online, the machine standing, two setpoints in channel 0, the first of them selected.
    void Prepare() {
        GoOnline();
        link.ClearPLSChan(0);
        Program(0, {{20, 10}, {40, 30}});
        Type(Timing(1), "0");
        Click("cmdRecallChan");
        ASSERT_EQ(gPLS.Chan[0].size(), 2);
        if (std::string(GetParam().name) == "reset") {
            Type(Config(11), gPLS.StrobePreset == 9 ? "8" : "9");
            Rounds();
        }
    }
    bool IsOffline() {
        return Find<QComboBox>("cboTargetBoard")->isEnabled() && Panel(1) == "RPM: -";
    }
    void ExpectOfflineAndNothingLive() {
        Until([this] { return IsOffline(); });
        EXPECT_THAT(Live(), IsEmpty());
        EXPECT_FALSE(link.OnlineMode());
        EXPECT_FALSE(view.gFirstPassOnline());
    }
    // What is live now fits the state of the view.
    void ExpectLiveAsTheStateHasIt() {
        if (!link.OnlineMode() || link.CommError())
            return ExpectOfflineAndNothingLive();
        Rounds();
        const bool changed = Button("cmdResetPLSConfig")->isEnabled();
        EXPECT_TRUE(Config(10)->isEnabled());
        EXPECT_EQ(Button("cmdAddSetpoint")->isEnabled(), !changed);
        EXPECT_EQ(Timing(0)->isEnabled(), !changed);
        EXPECT_TRUE(Find<QLabel>("lblSetpointRecall")->isHidden());
    }

public:
    void Press(const char* button) { Click(button); }
    void Enter(int on, int off) { TypeSetpoint(on, off); }
    void EnterOffset(int offset) { Type(Timing(0), QString::number(offset)); }
};

const Command commands[] = {
    {"add",
     [](TimingFaults& test) {
         test.Enter(50, 60);
         test.Press("cmdAddSetpoint");
     },
     1},
    {"adjust",
     [](TimingFaults& test) {
         test.Enter(12, 18);
         test.Press("cmdAdjustSetpoint");
     },
     2},
    {"pulse train",
     [](TimingFaults& test) {
         test.Enter(90, 90);
         test.Press("cmdPulseTrain");
     },
     2},
    {"clear", [](TimingFaults& test) { test.Press("cmdClearChan"); }, 1},
    {"clear all", [](TimingFaults& test) { test.Press("cmdClearAll"); }, 23},
    {"recall", [](TimingFaults& test) { test.Press("cmdRecallChan"); }, 1},
    {"offset",
     [](TimingFaults& test) {
         test.EnterOffset(100);
         test.Press("cmdSetOffset");
     },
     1},
    {"reset", [](TimingFaults& test) { test.Press("cmdResetPLSConfig"); }, 9}};
} // namespace

TEST_P(TimingFaults, TheLineIsCutInEachStep) {
    Open();
    int reply = 1;
    for (; reply < mostReplies; reply += GetParam().stride) {
        Prepare();
        line.Faults().Order({FaultKind::Lost, reply, true});
        GetParam().act(*this);
        const bool struck = link.CommError();
        if (struck)
            ExpectOfflineAndNothingLive();
        line.Faults().Clear();
        if (!struck)
            break; // done before the line was cut
    }
    EXPECT_GT(reply, 4 * GetParam().stride);
    EXPECT_LT(reply, mostReplies);
}

TEST_P(TimingFaults, OneAcknowledgeIsWrongInEachStep) {
    Open();
    for (int reply = 1; reply < mostReplies; reply += 2 * GetParam().stride) {
        SCOPED_TRACE(reply);
        Prepare();
        line.Faults().Order({FaultKind::Wrong, reply});
        GetParam().act(*this);
        const bool struck = line.Faults().Outstanding() == 0;
        line.Faults().Clear();
        // A refused offset leaves all off that it concerns, until the machine has moved.
        const bool refusedOffset =
            std::string(GetParam().name) == "offset" && !Button("cmdSetOffset")->isEnabled();
        if (!refusedOffset)
            ExpectLiveAsTheStateHasIt();
        if (link.OnlineMode()) {
            mode.GoOffline();
            ExpectOfflineAndNothingLive();
        }
        if (!struck)
            break;
    }
}

TEST_P(TimingFaults, ABoardThatIsBusyForEverEndsOffline) {
    Open();
    Prepare();
    line.SetBaud(9600); // time passes while the board answers
    board.SetBusyAnswers(1000000);
    GetParam().act(*this);
    if (std::string(GetParam().name) == "recall") // asks for no readiness
        ExpectLiveAsTheStateHasIt();
    else
        ExpectOfflineAndNothingLive();
}

TEST_P(TimingFaults, TheMachineStartsBehindTheCommand) {
    Open();
    Prepare();
    SetSpeed(30);
    GetParam().act(*this);
    Rounds();
    EXPECT_FALSE(Config(10)->isEnabled());
    EXPECT_FALSE(Button("cmdSetOffset")->isEnabled());
    EXPECT_FALSE(Button("cmdResetPLSConfig")->isEnabled());
}

INSTANTIATE_TEST_SUITE_P(EachCommand, TimingFaults, testing::ValuesIn(commands),
                         [](const testing::TestParamInfo<Command>& command) {
                             return QString(command.param.name).remove(' ').toStdString();
                         });

namespace {
class TimingRefusals : public TimingUnderTest {
protected:
    // The board acknowledges the command wrongly, once, at this reply from now on.
    void SpoilReply(int reply) { line.Faults().Order({FaultKind::Wrong, reply}); }
};
} // namespace

TEST_F(TimingRefusals, ARefusedOffsetLeavesAllControlsOffThatItConcerns) {
    OpenOnline();
    Type(Timing(0), "100");
    QStringList boxes;
    prompts.answer = [&](const QString& text, int style, const QString& title) {
        boxes << text;
        return AnswerAsInAHurry(text, style, title);
    };
    const QString refused = "Unable to Successfully Set the Resolver Offset";
    for (int reply = 1; reply < 40 && !boxes.contains(refused); ++reply) {
        if (!Timing(0)->isEnabled()) {
            SetSpeed(5);
            Rounds();
            SetSpeed(0);
            Rounds();
        }
        Type(Timing(0), "100");
        SpoilReply(reply);
        Click("cmdSetOffset");
        line.Faults().Clear();
        ASSERT_FALSE(link.CommError()) << reply;
    }
    ASSERT_TRUE(boxes.contains(refused));
    EXPECT_THAT(Live(), IsEmpty());
    EXPECT_EQ(Timing(0)->text(), "0");
    Rounds();
    EXPECT_THAT(Live(), IsEmpty());
    SetSpeed(5);
    Rounds();
    SetSpeed(0);
    Rounds();
    EXPECT_TRUE(Timing(0)->isEnabled());
    EXPECT_TRUE(Config(10)->isEnabled());
}

TEST_F(TimingRefusals, ARefusedResetAsksAndRetriesOrShowsThatNothingIsKnown) {
    OpenOnline();
    Type(Config(11), "9");
    Rounds();
    int asked = 0;
    gPLS.StrobePreset = 300; // no byte: the link refuses the table
    prompts.answer = [&](const QString& text, int style, const QString& title) {
        if (title != "PLS Config Download")
            return MsgAnswer::Ok;
        EXPECT_EQ(text, "Unable to Reset PLS Configuration Parameters");
        EXPECT_EQ(style, 37);
        return ++asked == 1 ? MsgAnswer::Retry : MsgAnswer::Cancel;
    };
    Click("cmdResetPLSConfig");
    EXPECT_EQ(asked, 2);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(Config(i)->text(), "---");
    EXPECT_TRUE(Config(11)->isEnabled());
    Rounds();
    EXPECT_TRUE(Button("cmdResetPLSConfig")->isEnabled());
    EXPECT_FALSE(Button("cmdAddSetpoint")->isEnabled());
}
