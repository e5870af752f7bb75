#include "ViewUnderTest.h"

#include "base/Dialogs.h"
#include "targetboard/TargetBoardTexts.h"
#include <gmock/gmock.h>
#include <QGroupBox>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
constexpr int address1 = 8180;
constexpr int identTab = 1;
constexpr int networkTab = 2;
constexpr int clockTab = 3;

class TargetBoardView : public testing::Test, public ViewUnderTest {
protected:
    explicit TargetBoardView(int model = 65) : ViewUnderTest(model) {}

    // Shows a page with what the board holds and puts the focus into an entry.
    void Enter(int tab, int entry) {
        ClickTab(tab);
        UntilPolled();
        Entry(entry)->setFocus(Qt::TabFocusReason);
    }
    void ExpectRefusal(const QString& text, const QString& title) {
        dialogs.ExpectBox(text, 64, title, MsgAnswer::Ok);
    }
};

class TargetBoardViewR6500 : public TargetBoardView {
protected:
    TargetBoardViewR6500() : TargetBoardView(68) {}
};
class TargetBoardViewK2012 : public TargetBoardView {
protected:
    TargetBoardViewK2012() : TargetBoardView(50) {}
};

// The loop of a view behind the modal one.
class LoopBehind final : public ViewLoop {
public:
    Step TakeStep() override {
        ++steps;
        return Step::Rest;
    }
    int steps = 0;
};
} // namespace

TEST_F(TargetBoardView, OpensOnTheFaultPageWithTheFocusOnTheTabs) {
    Show([this] {
        EXPECT_EQ(view.windowTitle(), "Target Board Interface");
        EXPECT_TRUE(view.isModal());
        auto* tabs = Find<QTabBar>("tabTargetBoard");
        EXPECT_TRUE(tabs->hasFocus());
        ASSERT_EQ(tabs->count(), 4);
        EXPECT_EQ(tabs->tabText(0), "&Fault Codes / Status");
        EXPECT_EQ(tabs->tabText(1), "&Program Ident/Revision");
        EXPECT_EQ(tabs->tabText(2), "&Set Network Address");
        EXPECT_EQ(tabs->tabText(3), "S&et Time && Date");
        Until([this] { return TextOf(3) == "None"; });
        EXPECT_EQ(Find<QLabel>("lblTargetBoard(0)")->text(), "Current Fault: Code = 00H");
    });
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(loops.Current(), nullptr);
}

TEST_F(TargetBoardView, ATabShowsItsFrameAndHidesTheOthers) {
    Show([this] {
        for (int tab = 3; tab >= 0; --tab) {
            ClickTab(tab);
            for (int frame = 0; frame < 4; ++frame)
                EXPECT_EQ(Find<QWidget>(QString("fraTargetBoard(%1)").arg(frame))->isVisible(),
                          frame == tab);
        }
    });
}

TEST_F(TargetBoardView, FixedTextsStandOnThePages) {
    Show([this] {
        EXPECT_EQ(Find<QLabel>("lblNetworkAddComment")->text(),
                  "Each K2000 board connected to the K2000 Network must be assigned a unique "
                  "network address between 1 and 32.\n\nSystem function sfunc19(); configures the "
                  "K2516 serial communication for the R6500 processor.");
        EXPECT_EQ(Find<QLabel>("lblTimeDateNote(1)")->text(),
                  "Only the T7110 Display Module and the K2016 Communications CO-CPU board are "
                  "equipped with real time clocks.");
        EXPECT_EQ(Find<QLabel>("lblSetupDesc(5)")->text(), "Mo.");
        QStringList frames;
        for (const auto* frame : view.findChildren<QGroupBox*>())
            frames << frame->title();
        EXPECT_TRUE(frames.contains("Internal Fault Code:"));
        EXPECT_TRUE(frames.contains("Communications Network Error Codes:"));
        EXPECT_TRUE(frames.contains("On Disk:"));
    });
}

TEST_F(TargetBoardView, TheLoopsOfTheViewsBehindRest) {
    LoopBehind behind;
    loops.Activate(behind);
    Until([&] { return behind.steps > 0; });
    Show([&] {
        const int before = behind.steps;
        UntilPolled();
        EXPECT_EQ(behind.steps, before);
    });
    Until([&, before = behind.steps] { return behind.steps > before; });
    loops.Leave(behind);
}

TEST_F(TargetBoardView, AValueBeingTypedIsNeitherOverwrittenNorSent) {
    Show([this] {
        Enter(networkTab, 0);
        QTest::keyClicks(Entry(0), "1");
        Poke(address1, 9);
        UntilPolled();
        EXPECT_EQ(Entry(0)->text(), "1");
        QTest::keyClicks(Entry(0), "2");
        UntilPolled();
        EXPECT_EQ(Entry(0)->text(), "12");
        EXPECT_THAT(TakeWritten(), IsEmpty());
        QTest::keyClick(Entry(0), Qt::Key_Return);
        QCoreApplication::processEvents();
        EXPECT_THAT(TakeWritten(), ElementsAre(WrittenByte{address1, 12}));
        EXPECT_TRUE(Entry(1)->hasFocus());
        UntilPolled();
        EXPECT_EQ(Entry(0)->text(), "12");
    });
}

TEST_F(TargetBoardView, Entering33InEntry0IsRefusedWith1And32AndTheOldValueComesBack) {
    Show([this] {
        Enter(networkTab, 0);
        QTest::keyClicks(Entry(0), "33");
        ExpectRefusal("Only a Number Between 1 and 32 can be Entered",
                      "Set-upCurrent Network Address 1:");
        QTest::keyClick(Entry(0), Qt::Key_Tab);
        UntilPolled();
        EXPECT_EQ(Entry(0)->text(), "5");
        EXPECT_TRUE(Entry(0)->hasFocus());
        EXPECT_THAT(TakeWritten(), IsEmpty());
        QTest::keyClicks(Entry(0), "6");
        ClickTab(0);
        EXPECT_THAT(TakeWritten(), ElementsAre(WrittenByte{address1, 6}));
    });
}

TEST_F(TargetBoardView, ClockEntriesHaveTheirOwnRangesAndTitles) {
    Show([this] {
        Enter(clockTab, 2);
        QTest::keyClicks(Entry(2), "24");
        ExpectRefusal("Only a Number Between 0 and 23 can be Entered", "Set-upHr.");
        QTest::keyClick(Entry(2), Qt::Key_Tab);
        UntilPolled();
        EXPECT_TRUE(Entry(2)->hasFocus());
    });
}

TEST_F(TargetBoardView, ATabClickedOverARefusedValueDoesNotChangeThePage) {
    Show([this] {
        Enter(networkTab, 0);
        QTest::keyClicks(Entry(0), "99");
        ExpectRefusal("Only a Number Between 1 and 32 can be Entered",
                      "Set-upCurrent Network Address 1:");
        ClickTab(0);
        UntilPolled();
        EXPECT_EQ(Find<QTabBar>("tabTargetBoard")->currentIndex(), networkTab);
        EXPECT_TRUE(Find<QWidget>("fraTargetBoard(2)")->isVisible());
        EXPECT_TRUE(Entry(0)->hasFocus());
    });
}

TEST_F(TargetBoardView, OkClickedOverARefusedValueDoesNotClose) {
    Show([this] {
        Enter(networkTab, 0);
        QTest::keyClicks(Entry(0), "99");
        ExpectRefusal("Only a Number Between 1 and 32 can be Entered",
                      "Set-upCurrent Network Address 1:");
        QTest::mouseClick(Button("cmdOk"), Qt::LeftButton);
        UntilPolled();
        EXPECT_TRUE(view.isVisible());
        EXPECT_THAT(TakeWritten(), IsEmpty());
    });
}

TEST_F(TargetBoardView, TwoEscapesLeaveTheEntryAndSendNothing) {
    Show([this] {
        Enter(networkTab, 0);
        QTest::keyClicks(Entry(0), "12");
        QTest::keyClick(Entry(0), Qt::Key_Escape);
        EXPECT_EQ(Entry(0)->text(), "5");
        EXPECT_EQ(Entry(0)->selectedText(), "5");
        QTest::keyClick(Entry(0), Qt::Key_Escape);
        EXPECT_TRUE(Button("cmdDefault")->hasFocus());
        UntilPolled();
        EXPECT_EQ(Entry(0)->text(), "05");
        EXPECT_TRUE(view.isVisible());
        EXPECT_THAT(TakeWritten(), IsEmpty());
    });
}

TEST_F(TargetBoardView, ClosingTheWindowWhileTypingSendsNothing) {
    Show([this] {
        Enter(networkTab, 0);
        QTest::keyClicks(Entry(0), "12");
        view.close();
        QCoreApplication::processEvents();
    });
    EXPECT_THAT(TakeWritten(), IsEmpty());
}

TEST_F(TargetBoardView, TheUpDownSendsEachStepOnceAndLeavesTheEntry) {
    Show([this] {
        Enter(networkTab, 0);
        ClickArrow(0, "up");
        EXPECT_THAT(TakeWritten(), ElementsAre(WrittenByte{address1, 6}));
        EXPECT_TRUE(Button("cmdDefault")->hasFocus());
        UntilPolled();
        EXPECT_EQ(Entry(0)->text(), "06");
        ClickArrow(0, "down");
        EXPECT_THAT(TakeWritten(), ElementsAre(WrittenByte{address1, 5}));
    });
}

TEST_F(TargetBoardView, ALineThatIsCutWhileTypingEndsTheEntryAndSendsNothing) {
    Show([this] {
        Enter(networkTab, 0);
        QTest::keyClicks(Entry(0), "99");
        CutLine();
        Until([this] { return Button("cmdGoOnline")->isEnabled(); });
        EXPECT_FALSE(Entry(0)->isEnabled());
        EXPECT_FALSE(Find<QWidget>("updSetup(0)")->isEnabled());
        EXPECT_FALSE(Find<QLabel>("lblSetupDesc(0)")->isEnabled());
        MendLine();
        Poke(address1, 7);
        QTest::mouseClick(Button("cmdGoOnline"), Qt::LeftButton);
        Until([this] { return Entry(0)->isEnabled(); });
        UntilPolled();
        EXPECT_EQ(Entry(0)->text(), "07");
    });
    EXPECT_THAT(TakeWritten(), IsEmpty());
}

TEST_F(TargetBoardView, TheLineIsCutOnEachPageAndComesBack) {
    Show([this] {
        for (int tab = 0; tab < 4; ++tab) {
            ClickTab(tab);
            UntilPolled();
            CutLine();
            Until([this] { return Button("cmdGoOnline")->isEnabled(); });
            EXPECT_EQ(TextOf(0), TargetBoardText::Offline());
            EXPECT_FALSE(Button("cmdSetToCurrTime")->isEnabled());
            EXPECT_FALSE(Find<QLabel>("lblRevIdentInPLC(0)")->isEnabled());
            MendLine();
            QTest::mouseClick(Button("cmdGoOnline"), Qt::LeftButton);
            Until([this] { return !Button("cmdGoOnline")->isEnabled(); });
            UntilPolled();
            EXPECT_EQ(TextOf(3), "None");
            EXPECT_TRUE(Button("cmdSetToCurrTime")->isEnabled());
            EXPECT_TRUE(Find<QWidget>(QString("fraTargetBoard(%1)").arg(tab))->isVisible());
        }
    });
}

TEST_F(TargetBoardView, TheButtonsReachTheBoard) {
    Poke(8177, 0x10);
    Show([this] {
        Until([this] { return Button("cmdResetFaults")->isEnabled(); });
        dialogs.ExpectBox(TargetBoardText::ResetPrompt(), 19, TargetBoardText::ResetTitle(),
                          MsgAnswer::Yes);
        QTest::mouseClick(Button("cmdResetFaults"), Qt::LeftButton);
        EXPECT_EQ(TakeWritten().size(), 4U);
        ClickTab(clockTab);
        Until([this] { return Button("cmdSetToCurrTime")->isEnabled(); });
        QTest::mouseClick(Button("cmdSetToCurrTime"), Qt::LeftButton);
        EXPECT_THAT(TakeWritten(), ElementsAre(WrittenByte{43012, 8}, WrittenByte{43010, 5},
                                               WrittenByte{43008, 7}));
        QTest::mouseClick(Button("cmdSetToCurrDate"), Qt::LeftButton);
        EXPECT_THAT(TakeWritten(), ElementsAre(WrittenByte{43016, 3}, WrittenByte{43015, 9},
                                               WrittenByte{43017, 17}));
        UntilPolled();
        EXPECT_EQ(Entry(7)->text(), "17");
    });
}

TEST_F(TargetBoardView, EnterOnThePagesPressesNothing) {
    Poke(8177, 0x10);
    Show([this] {
        Until([this] { return Button("cmdResetFaults")->isEnabled(); });
        QTest::keyClick(Find<QTabBar>("tabTargetBoard"), Qt::Key_Return);
        EXPECT_TRUE(view.isVisible());
    });
}

TEST_F(TargetBoardView, ASetThatCannotBeReadIsReportedAndTheViewStaysClosed) {
    files.Write("PUMP.rev", "ABC\r\n");
    dialogs.ExpectBox("Error Number = 5\r\n\r\nInvalid procedure call or argument",
                      MsgStyle::Critical, "InitializeForm", MsgAnswer::Ok);
    view.InitializeForm(hdnFile);
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(loops.Current(), nullptr);
    EXPECT_TRUE(line.Log().empty());
}

TEST_F(TargetBoardView, OpensASecondTimeAsTheFirst) {
    Show([this] {
        ClickTab(clockTab);
        UntilPolled();
    });
    Show([this] {
        EXPECT_EQ(Find<QTabBar>("tabTargetBoard")->currentIndex(), 0);
        EXPECT_TRUE(Find<QWidget>("fraTargetBoard(0)")->isVisible());
        UntilPolled();
        EXPECT_EQ(Entry(0)->text(), "05");
    });
}

TEST_F(TargetBoardView, TheIdentPageShowsTheBoardAndTheDisk) {
    files.Write("PUMP.rev", "PUMP01:507\r\n");
    const QByteArray inBoard = "PUMP02  \x10\x08";
    for (int i = 0; i < inBoard.size(); ++i)
        Poke(61424 + i, inBoard[i]);
    const auto texts = [this](const char* family, int count) {
        QStringList all;
        for (int i = 0; i < count; ++i)
            all << Find<QLabel>(QString("%1(%2)").arg(family).arg(i))->text();
        return all;
    };
    Show([&] {
        ClickTab(identTab);
        UntilPolled();
        EXPECT_EQ(texts("lblRevIdentInPLC", 3), (QStringList{"PUMP02  ", "8", "16"}));
        EXPECT_EQ(texts("lblRevIdentOnDisk", 5), (QStringList{"PUMP01", "7", "165", "T7110", "-"}));
    });
}

TEST_F(TargetBoardView, BytesThatAreNoCharactersShowAsBlanks) {
    const char name[] = "AB\x01\x1F\x7F";
    for (int i = 0; i < 8; ++i)
        Poke(61424 + i, i < 5 ? name[i] : 0);
    Show([this] {
        UntilPolled();
        EXPECT_EQ(Find<QLabel>("lblRevIdentInPLC(0)")->text(), "AB      ");
    });
}

TEST_F(TargetBoardView, EscapeHeldDownInAnEntryLeavesItAndKeepsTheViewOpen) {
    Show([this] {
        Enter(networkTab, 0);
        QTest::keyClicks(Entry(0), "12");
        for (int repeat = 0; repeat < 5; ++repeat) {
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), repeat > 0);
            QCoreApplication::sendEvent(view.focusWidget(), &held);
        }
        EXPECT_TRUE(view.isVisible());
        EXPECT_TRUE(Button("cmdDefault")->hasFocus());
        EXPECT_THAT(TakeWritten(), IsEmpty());
    });
}

TEST_F(TargetBoardView, TextOfTheBoardIsNoMarkup) {
    const char name[] = "<b>X</b>";
    for (int i = 0; i < 8; ++i)
        Poke(61424 + i, name[i]);
    Show([this] {
        UntilPolled();
        auto* label = Find<QLabel>("lblRevIdentInPLC(0)");
        EXPECT_EQ(label->text(), "<b>X</b>");
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
    });
}

TEST_F(TargetBoardViewR6500, ShowsNoSecondAddressNoSlotAndNoClock) {
    Show([this] {
        UntilPolled();
        ClickTab(networkTab);
        EXPECT_TRUE(Entry(0)->isVisible());
        EXPECT_FALSE(Entry(1)->isVisible());
        EXPECT_FALSE(Find<QLabel>("lblSetupDesc(1)")->isVisible());
        EXPECT_FALSE(Find<QWidget>("updSetup(1)")->isVisible());
        ClickTab(clockTab);
        for (int i = 2; i < 8; ++i) {
            EXPECT_EQ(Entry(i)->text(), "-");
            EXPECT_FALSE(Entry(i)->isEnabled());
        }
        EXPECT_FALSE(Find<QLabel>("lblTargetBoardTime")->isEnabled());
        EXPECT_EQ(Find<QLabel>("lblCurrTime")->text(), "08 : 05 : 07");
        EXPECT_TRUE(Find<QLabel>("lblCurrDate")->isEnabled());
        ClickTab(0);
        EXPECT_FALSE(Find<QLabel>("lblTargetBoard(2)")->isVisible());
    });
}

TEST_F(TargetBoardViewK2012, ShowsTheSlot) {
    Poke(8175, 3);
    Show([this] {
        UntilPolled();
        EXPECT_TRUE(Find<QLabel>("lblTargetBoard(2)")->isVisible());
        EXPECT_EQ(Find<QLabel>("lblTargetBoard(2)")->text(), "CO-CPU Slot: 3");
    });
}
