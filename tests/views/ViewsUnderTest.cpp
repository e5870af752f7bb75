#include "ViewsUnderTest.h"

#include "base/Dialogs.h"
#include "controls/grid/Grid.h"
#include "pls/views/frmTiming.h"
#include "session/Globals.h"
#include "shell/frmMain.h"
#include "support/gui/ModalView.h"
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

// The views that stand in the main window.

namespace {
constexpr int patience = 10000; // milliseconds
} // namespace

void ViewsUnderTest::Until(const std::function<bool()>& test) {
    QElapsedTimer passed;
    passed.start();
    while (!test()) {
        ASSERT_LT(passed.elapsed(), patience);
        application_->Loops().Wake();
        QCoreApplication::processEvents();
    }
}

void ViewsUnderTest::LookAtChild(const char* name, const Look& look) {
    QWidget* view = Window().Children().View(QLatin1String(name));
    ASSERT_NE(view, nullptr) << name;
    ASSERT_EQ(Window().ActiveChildName(), QLatin1String(name));
    QApplication::setActiveWindow(&Window()); // a busy view may have been up
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    look(*view);
}

void ViewsUnderTest::Browser(const Look& look) {
    Window().Children().Hide(QStringLiteral("frmStatusTable"));
    Find<QListView>(QStringLiteral("filFileList"))->setFocus();
    look(Window().Browser());
}

void ViewsUnderTest::StatusTable(const Look& look) {
    WriteSetFile(QStringLiteral("UNIT.nam"), "0012START\r\n");
    WriteSetFile(QStringLiteral("UNIT.doc"), "0012starts the machine\r\n");
    Press("Status");
    dialogs_.ExpectOpen(SetPath(QStringLiteral("UNIT.hdn")));
    Entry(QStringLiteral("mnuStatusTableItem(4)"))->trigger();
    TypeAddresses({QStringLiteral("F12"), QStringLiteral("B100")});
    LookAtChild("frmStatusTable", look);
}

void ViewsUnderTest::Trending(const Look& look) {
    Fill(100, 1, 77);
    Press("Trend");
    Find<QRadioButton>(QStringLiteral("optOptions(1)"))->setChecked(true);
    Entry(QStringLiteral("mnuViewOnline"))->trigger();
    QWidget* view = Window().Children().View(QStringLiteral("frmTrending"));
    auto* variable = PartOf<QComboBox>(*view, "cboAddress");
    PartOf<QComboBox>(*view, "cboTargetBoard")->setCurrentIndex(3);
    variable->setFocus();
    variable->setEditText(QStringLiteral("B100"));
    QTest::keyClick(variable, Qt::Key_Return);
    auto* acquire = PartOf<QCheckBox>(*view, "chkAcquire");
    const auto* samples = PartOf<Grid>(*view, "fgTrend");
    acquire->setChecked(true);
    Until([samples] { return samples->TextMatrix(1, 2) == QStringLiteral("77"); });
    acquire->setChecked(false);
    PartOf<QPushButton>(*view, "cmdGraphData")->click();
    LookAtChild("frmTrending", look);
}

// A set for the board that is on the line.
void ViewsUnderTest::ShowTiming() {
    WriteSetFile(QStringLiteral("CAMS.hdn"),
                 QByteArray(1, static_cast<char>(boardModel_)) + "\r\n");
    ClickSet(QStringLiteral("CAMS.hdn"));
    Entry(QStringLiteral("mnuToolsPLSProgramming"))->trigger();
}

void ViewsUnderTest::TimingOffline(const Look& look) {
    ShowTiming();
    const auto* position = Find<QLabel>(QStringLiteral("sbrMachineTiming(2)"));
    Until([&] { return Window().focusWidget()->objectName() == QLatin1String("cmdDefault"); });
    EXPECT_FALSE(position->text().isEmpty());
    LookAtChild("frmTiming", look);
}

void ViewsUnderTest::TimingTurning(const Look& look) {
    constexpr int speed = 30; // turns a minute
    board_.SetSpeed(speed);
    ShowTiming();
    Entry(QStringLiteral("mnuViewOnline"))->trigger();
    auto* add = Find<QPushButton>(QStringLiteral("cmdAddSetpoint"));
    Until([&] { return add->isEnabled(); });
    LookAtChild("frmTiming", look);
}

void ViewsUnderTest::TimingStopped(const Look& look) {
    board_.SetSpeed(0);
    ShowTiming();
    Entry(QStringLiteral("mnuViewOnline"))->trigger();
    auto* offset = Find<QPushButton>(QStringLiteral("cmdSetOffset"));
    Until([&] { return offset->isEnabled(); });
    LookAtChild("frmTiming", look);
}

void ViewsUnderTest::CompileErrors(const Look& look) {
    WriteSetFile(QStringLiteral("UNIT.err"), "Compiler\r\nUNIT\r\nERROR 5\r\n");
    dialogs_.ExpectOpen(SetPath(QStringLiteral("UNIT.hdn")));
    Entry(QStringLiteral("mnuViewCompileErrors"))->trigger();
    LookAtChild("frmViewResults", look);
}

void ViewsUnderTest::SearchResults(const Look& look) {
    WriteSetFile(QStringLiteral("UNIT.gbl"), "Search\r\nB100\r\n");
    Window().Commands().Run(QStringLiteral("mnuFileListPopupSearch"));
    LookAtChild("frmViewResults", look);
}

const std::vector<ViewCase>& ViewCases() {
    using V = ViewsUnderTest;
    constexpr int k2014 = 51;
    constexpr int k2016 = 54;
    constexpr int k2041 = 55;
    constexpr int r6500 = 69;
    static const std::vector<ViewCase> cases = {
        {"Browser", k2014, &V::Browser},
        {"StatusTable", k2014, &V::StatusTable},
        {"Trending", k2014, &V::Trending},
        {"TimingOffline", k2041, &V::TimingOffline},
        {"TimingTurning", k2041, &V::TimingTurning},
        {"TimingStopped", k2041, &V::TimingStopped},
        {"TimingR6500Turning", r6500, &V::TimingTurning},
        {"TimingR6500Stopped", r6500, &V::TimingStopped},
        {"CompileErrors", k2014, &V::CompileErrors},
        {"SearchResults", k2014, &V::SearchResults},
        {"CopyFile", k2014, &V::CopyFile},
        {"NewFile", k2014, &V::NewFile},
        {"Documentation", k2014, &V::Documentation},
        {"SetupComm", k2014, &V::SetupComm},
        {"ProgramTransfer", k2014, &V::ProgramTransfer},
        {"TransferRange", k2014, &V::TransferRange},
        {"Busy", k2014, &V::Busy},
        {"TrendPrint", k2014, &V::TrendPrint},
        {"BoardFaults", k2014, &V::BoardFaults},
        {"BoardIdent", k2014, &V::BoardIdent},
        {"BoardNetwork", k2014, &V::BoardNetwork},
        {"BoardClock", k2016, &V::BoardClock},
        {"BoardOffline", k2014, &V::BoardOffline},
        {"PLSConfiguration", k2041, &V::PLSConfiguration},
        {"PLSChannels", k2041, &V::PLSChannels},
        {"About", k2014, &V::About},
        {"SysInfo", k2014, &V::SysInfo},
        {"Help", k2014, &V::Help},
        {"HelpSearch", k2014, &V::HelpSearch},
        {"QuestionBox", k2014, &V::QuestionBox},
        {"InputBox", k2014, &V::InputBox},
    };
    return cases;
}
