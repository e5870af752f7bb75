#include "board/SimulatedBoard.h"
#include "controls/QtDialogs.h"
#include "help/views/frmHelp.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include "support/gui/ModalView.h"
#include "ViewsUnderTest.h"
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>

// The views that stand before the main window: each is opened by its command and closed after the
// look.

void ViewsUnderTest::LookAtModal(const char* name, const Look& look) {
    WhenUp(name, [look](QWidget& view) {
        look(view);
        view.close();
    });
}

void ViewsUnderTest::CopyFile(const Look& look) {
    LookAtModal("frmCopyFile", look);
    Entry(QStringLiteral("mnuFileSaveAs"))->trigger();
}

void ViewsUnderTest::NewFile(const Look& look) {
    LookAtModal("frmNewFile", look);
    Window().Commands().Run(QStringLiteral("mnuFileNew"));
}

void ViewsUnderTest::Documentation(const Look& look) {
    WriteSetFile(QStringLiteral("UNIT.nam"), "0012START\r\n");
    dialogs_.ExpectOpen(SetPath(QStringLiteral("UNIT.hdn")));
    LookAtModal("frmEditDoc", look);
    Window().Commands().Run(QStringLiteral("mnuEditVarDoc"));
}

void ViewsUnderTest::SetupComm(const Look& look) {
    ports_.found = {{7, QStringLiteral("/dev/ttyTest"), QStringLiteral("test adapter")},
                    {std::nullopt, QStringLiteral("/dev/ttyS0"), QString()}};
    LookAtModal("frmSetupComm", look);
    Entry(QStringLiteral("mnuEditCommPort"))->trigger();
}

// Offline the transfer ends with a box at once: what the view shows is looked at while it is up.
void ViewsUnderTest::ProgramTransfer(const Look& look) {
    dialogs_.ExpectBox(QStringLiteral("Program is Currently OFFLINE.\r\n\r\n"
                                      "Switch to ONLINE MODE to Continue."),
                       MsgStyle::Information, QStringLiteral("Program Download"), MsgAnswer::Ok,
                       [&look] {
                           QWidget* view = QApplication::activeModalWidget();
                           ASSERT_NE(view, nullptr);
                           look(*view);
                       });
    Window().Views().frmDownloadProg(0);
}

void ViewsUnderTest::TransferRange(const Look& look) {
    dialogs_.ExpectBoxTitled(QStringLiteral("Data Upload [UNIT]"), MsgAnswer::Yes);
    LookAtModal("frmDataXfr", [look](QWidget& view) {
        ClickButton(view, "optRange(1)");
        look(view);
    });
    Press("Upload");
}

void ViewsUnderTest::Busy(const Look& look) {
    dialogs_.ExpectBoxTitled(QStringLiteral("Data Upload [UNIT]"), MsgAnswer::Yes);
    WhenUp("frmDataXfr", [](QWidget& view) { EnterRange(view, 70, 219); });
    WhenUp("frmWaitDisplay", [look](QWidget& view) {
        look(view);
        ClickButton(view, "cmdCancel");
    });
    Press("Upload");
}

void ViewsUnderTest::TrendPrint(const Look& look) {
    Press("Trend");
    LookAtModal("frmTrendingPrint", look);
    Entry(QStringLiteral("mnuFilePrintTrendData"))->trigger();
}

void ViewsUnderTest::LookAtBoardPage(int page, const Look& look) {
    constexpr std::uint16_t networkAddress = 8180;
    board_.Poke(networkAddress, 17);
    LookAtModal("frmTargetBoard", [this, page, look](QWidget& view) {
        auto* tabs = PartOf<QTabBar>(view, "tabTargetBoard");
        Until([this] { return Link().OnlineMode(); });
        tabs->setCurrentIndex(page);
        Until([&] { return tabs->currentIndex() == page; });
        look(view);
    });
    Press("PLC");
}

void ViewsUnderTest::BoardFaults(const Look& look) {
    LookAtBoardPage(0, look);
}
void ViewsUnderTest::BoardIdent(const Look& look) {
    LookAtBoardPage(1, look);
}
void ViewsUnderTest::BoardNetwork(const Look& look) {
    LookAtBoardPage(2, [this, look](QWidget& view) {
        auto* address = PartOf<QLineEdit>(view, "txtSetup(0)");
        Until([&] { return address->isEnabled() && address->text() == QLatin1String("17"); });
        look(view);
    });
}
void ViewsUnderTest::BoardClock(const Look& look) {
    WriteSetFile(QStringLiteral("CLOCK.hdn"),
                 QByteArray(1, static_cast<char>(boardModel_)) + "\r\n");
    Window().Browser().dirDirList_Change();
    ClickSet(QStringLiteral("CLOCK.hdn"));
    LookAtBoardPage(3, [this, look](QWidget& view) {
        auto* hour = PartOf<QLineEdit>(view, "txtSetup(2)");
        Until([&] { return hour->isEnabled(); });
        ClickButton(view, "cmdSetToCurrTime");
        ClickButton(view, "cmdSetToCurrDate");
        const auto* year = PartOf<QLineEdit>(view, "txtSetup(7)");
        Until([&] { return hour->text().toInt() < 24 && year->text().toInt() > 0; });

        look(view);
    });
}

void ViewsUnderTest::BoardOffline(const Look& look) {
    line_.Faults().SetSilence(true);
    dialogs_.ExpectBoxTitled(QStringLiteral("WARNING - Communication Error!"), MsgAnswer::Cancel);
    LookAtModal("frmTargetBoard", [this, look](QWidget& view) {
        auto* goOnline = PartOf<QWidget>(view, "cmdGoOnline");
        Until([&] { return goOnline->isEnabled(); });
        look(view);
    });
    Press("PLC");
}

void ViewsUnderTest::LookAtPLSFile(const QString& node, const Look& look) {
    WriteSetFile("CAM.hdn", "7\r\n");
    WriteSetFile("CAM.pcf", "163603012100005020030350004012000000000000000000%\r\n");
    WriteSetFile("CAM.CHL", ":360\r\n:000\r\n:001:00:00:00GLUE\r\n|010020\r\n%\r\n");
    Window().Browser().dirDirList_Change();
    ClickSet("CAM.hdn");
    LookAtModal("frmPLSView", look);
    DoubleClickNode(node);
}

void ViewsUnderTest::PLSConfiguration(const Look& look) {
    LookAtPLSFile("PLS Config (.pcf)", look);
}

void ViewsUnderTest::PLSChannels(const Look& look) {
    LookAtPLSFile("CHANNEL (.CHL)", look);
}

void ViewsUnderTest::About(const Look& look) {
    LookAtModal("frmAbout", look);
    Entry(QStringLiteral("mnuHelpAbout"))->trigger();
}

void ViewsUnderTest::SysInfo(const Look& look) {
    WhenUp("frmAbout", [](QWidget& about) { ClickButton(about, "cmdSysInfo"); });
    LookAtModal("frmSysInfo", look);
    WhenUp("frmAbout", [](QWidget& about) { about.close(); });
    Entry(QStringLiteral("mnuHelpAbout"))->trigger();
}

QWidget* ViewsUnderTest::ShowHelp() {
    Entry(QStringLiteral("mnuHelpTopics"))->trigger();
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* help = qobject_cast<frmHelp*>(window); help && help->isVisible()) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(help));
            return help;
        }
    ADD_FAILURE() << "no help window";
    return nullptr;
}

void ViewsUnderTest::Help(const Look& look) {
    QWidget* help = ShowHelp();
    ASSERT_NE(help, nullptr);
    look(*help);
    help->close();
}

// Two pages were shown and one left again, so that every button of the window is live.
void ViewsUnderTest::HelpSearch(const Look& look) {
    QWidget* help = ShowHelp();
    ASSERT_NE(help, nullptr);
    PartOf<QLineEdit>(*help, "txtSearch")->setText(QStringLiteral("fault"));
    for (int hit = 0; hit < 12; ++hit)
        ClickButton(*help, "cmdNextHit");
    ClickButton(*help, "cmdBack");
    look(*help);
    help->close();
}

void ViewsUnderTest::QuestionBox(const Look& look) {
    QtDialogs dialogs;
    LookAtModal("", look);
    EXPECT_EQ(dialogs.MsgBox(QStringLiteral("Do you wish to continue?"),
                             MsgStyle::YesNoCancelInformation, QStringLiteral("Data Upload")),
              MsgAnswer::Cancel);
}

void ViewsUnderTest::InputBox(const Look& look) {
    QtDialogs dialogs;
    LookAtModal("", look);
    EXPECT_EQ(dialogs.InputBox(QStringLiteral("Please enter new program name."),
                               QStringLiteral("Rename"), QStringLiteral("UNIT")),
              QString());
}
