// Who has the line: the status table, the modal views above it, the background update.

#include "controls/grid/Grid.h"
#include "WholeProgram.h"
#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>

namespace {
constexpr int address = 100;
constexpr int decimal = 2;

class LineOrder : public WholeProgram {
protected:
    void SetUp() override {
        WholeProgram::SetUp();
        Press("Status");
        Entry(QStringLiteral("mnuViewOnline"))->trigger();
        port_.ForgetSent();
    }
    void Watch(int value) {
        Fill(address, 1, value);
        TypeAddresses({QStringLiteral("b100")});
        ExpectShown(value);
    }
    void ExpectShown(int value) {
        for (int turn = 0; Cell(2, decimal) != QString::number(value) && turn < 1000; ++turn)
            Turn();
        EXPECT_EQ(Cell(2, decimal), QString::number(value));
    }
    // The loops look whether they may have a step, as they do after a rest.
    void Turn() {
        application_->Loops().Wake();
        QCoreApplication::processEvents();
    }
    void LetLoopsLookAgain() {
        for (int turn = 0; turn < 20; ++turn)
            Turn();
    }
    static QString Label(QWidget& view, const char* name) {
        return view.findChild<QLabel*>(QLatin1String(name))->text();
    }
    void ExpectFaultAlert() {
        dialogs_.ExpectBox(QStringLiteral("Faults Active in Target Board"), MsgStyle::Critical,
                           QStringLiteral("Quentor"), MsgAnswer::Ok);
    }
};
} // namespace

TEST_F(LineOrder, TheTableIsLiveWhileNothingIsAboveIt) {
    Watch(17);
    Fill(address, 1, 18);
    ExpectShown(18);
}

TEST_F(LineOrder, TheTargetBoardViewTakesTheStepsAndGivesThemBack) {
    Watch(17);
    QString fault;
    QString address1;
    QString shownBehind;
    WhenUp(
        "frmTargetBoard",
        [&](QWidget& view) {
            fault = Label(view, "lblTargetBoard(0)");
            LetLoopsLookAgain();
            shownBehind = Cell(2, decimal);
            address1 = view.findChild<QLineEdit*>(QStringLiteral("txtSetup(0)"))->text();
            ClickButton(view, "cmdOk");
        },
        [this] {
            Fill(address, 1, 99);
            auto* modal = QApplication::activeModalWidget();
            return Label(*modal, "lblTargetBoard(0)").endsWith(u'H');
        });
    Fill(8180, 1, 7);
    Press("PLC");
    EXPECT_EQ(fault, QStringLiteral("Current Fault: Code = 00H"));
    EXPECT_EQ(address1, QStringLiteral("07"));
    EXPECT_EQ(shownBehind, QStringLiteral("17")) << "the table rests behind the modal view";
    ExpectShown(99);
}

TEST_F(LineOrder, TheEntryAsksForTheSetOfTheBoard) {
    dialogs_.ExpectOpen(SetPath(QStringLiteral("PUMP.hdn")));
    QString board;
    WhenUp("frmTargetBoard", [&](QWidget& view) {
        board = Label(view, "lblRevIdentOnDisk(3)");
        ClickButton(view, "cmdOk");
    });
    Entry(QStringLiteral("mnuViewTargetBoardStatus"))->trigger();
    EXPECT_EQ(board, QStringLiteral("R6500(PLC)"));
    EXPECT_FALSE(Window().IsViewVisible(QStringLiteral("frmTargetBoard")));
}

TEST_F(LineOrder, CancelOfTheEntrysDialogOpensNoView) {
    dialogs_.ExpectOpen(QString());
    Entry(QStringLiteral("mnuViewTargetBoardStatus"))->trigger();
    EXPECT_FALSE(Window().IsViewVisible(QStringLiteral("frmTargetBoard")));
}

TEST_F(LineOrder, NoStepIsGivenWhileAModalBoxIsUp) {
    Watch(17);
    Window().Timer().SetEnabled(false); // the tick goes on behind a box
    QDialog box(&Window());
    box.setModal(true);
    box.show();
    LetLoopsLookAgain();
    port_.ForgetSent();
    Fill(address, 1, 18);
    LetLoopsLookAgain();
    EXPECT_TRUE(port_.Sent().empty());
    EXPECT_EQ(Cell(2, decimal), QStringLiteral("17"));
    box.close();
    ExpectShown(18);
}

TEST_F(LineOrder, NoStepIsGivenWhileAJobRuns) {
    Watch(17);
    dialogs_.ExpectBoxTitled(QStringLiteral("Data Upload [UNIT]"), MsgAnswer::Yes);
    WhenUp("frmDataXfr", [](QWidget& view) { EnterRange(view, 70, 219); });
    WhenUp("frmWaitDisplay", [this](QWidget&) { Fill(address, 1, 18); });
    constexpr int someYields = 20;
    QString shownBehind;
    WhenUp(
        "frmWaitDisplay", [&](QWidget&) { shownBehind = Cell(2, decimal); },
        [yields = 0]() mutable { return ++yields > someYields; });
    Press("Upload");
    EXPECT_EQ(shownBehind, QStringLiteral("17"));
    ExpectShown(18);
}

// With the browser in front and the table behind it nobody is polled; with the modal view up the
// fault code is.
TEST_F(LineOrder, TheTickReadsTheFaultCodeWhileTheTargetBoardViewIsUp) {
    ClickSet(QStringLiteral("UNIT.hdn"));
    ASSERT_EQ(Window().ActiveChildName(), QStringLiteral("frmMain"));
    Tick(); // notices that the program is online
    SetFaultCode(0x45);
    port_.ForgetSent();
    Tick();
    EXPECT_TRUE(port_.Sent().empty());
    ExpectFaultAlert();
    WhenUp("frmTargetBoard", [this](QWidget& view) {
        Tick();
        EXPECT_EQ(dialogs_.Boxes().size(), 1U);
        ClickButton(view, "cmdOk");
    });
    Press("PLC");
    Tick();
    EXPECT_TRUE(Panel(1).startsWith(QStringLiteral("System Message:  ")));
}

TEST_F(LineOrder, ATypedValueReachesTheBoard) {
    Watch(17);
    Table().SetCell(2, decimal);
    QTest::keyClicks(&Table(), QStringLiteral("42"));
    QTest::keyClick(&Table(), Qt::Key_Return);
    EXPECT_EQ(Byte(address), 42);
    ExpectShown(42);
}
