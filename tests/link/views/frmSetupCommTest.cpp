#include "link/views/frmSetupComm.h"

#include "base/ApplicationFolder.h"
#include "base/RunTimeError.h"
#include "controls/entry/EntryUpDown.h"
#include "link/RSComm.h"
#include "support/PrintText.h"
#include "support/ScriptedDialogs.h"
#include "support/ScriptedPort.h"
#include "support/ScriptedSerialPorts.h"
#include "support/TestFolder.h"
#include "support/VirtualClock.h"
#include <gtest/gtest.h>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

namespace {
class SetupComm : public testing::Test {
protected:
    SetupComm() {
        ports.found = {{1, QStringLiteral("/dev/ttyS0"), QStringLiteral("Serial port")},
                       {33, QStringLiteral("/dev/ttyUSB0"), QStringLiteral("Maker USB Serial")},
                       {std::nullopt, QStringLiteral("/dev/ttyAMA0"), QString()}};
        ports.behind[1] = {QStringLiteral("/dev/ttyS0"), true};
        ports.behind[7] = {QStringLiteral("/dev/ttyS6"), false};
        ports.behind[33] = {QStringLiteral("/dev/ttyUSB0"), true};
    }
    void Store(const QByteArray& settings) {
        files.Write(QStringLiteral("Support/RSPort.cfg"), settings);
    }
    QByteArray Stored() const { return files.Content(QStringLiteral("Support/RSPort.cfg")); }
    void Open() {
        view = std::make_unique<frmSetupComm>(
            SetupCommContext{link, port, dialogs, clock, ports, folder});
        view->show();
        view->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    }
    template <class T>
    T* Part(const char* name) const {
        T* part = view->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(part, nullptr) << name;
        return part;
    }
    void Click(const char* name) const {
        QTest::mouseClick(Part<QPushButton>(name), Qt::LeftButton);
        Settle();
    }
    void ClickPort(int row) const {
        auto* list = Part<QTreeWidget>("lstPorts");
        const QRect place = list->visualItemRect(list->topLevelItem(row));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(10, place.center().y()));
        Settle();
    }
    void Type(const QString& text) const {
        Part<QLineEdit>("txtCommPort")->setFocus();
        Part<QLineEdit>("txtCommPort")->selectAll();
        QTest::keyClicks(Part<QLineEdit>("txtCommPort"), text);
    }
    QString PortText() const { return Part<QLineEdit>("txtCommPort")->text(); }
    bool IsFast() const { return Part<QRadioButton>("optPortSpeed(1)")->isChecked(); }
    QString Device() const { return Part<QLabel>("lblDevice")->text(); }
    QString Outcome() const { return Part<QLabel>("lblTest")->text(); }
    static void Settle() {
        for (int turn = 0; turn < 4; ++turn)
            QApplication::processEvents();
    }
    void GoOnline() {
        port.AnswerLikeBoard(true);
        link.OpenRSComm(port);
        ASSERT_TRUE(link.OnlineMode());
        port.ForgetSent();
    }

    TestFolder files;
    ApplicationFolder folder{files.Path()};
    VirtualClock clock;
    ScriptedDialogs dialogs;
    NoBusyDisplay busy;
    ScriptedPort port{clock};
    ScriptedSerialPorts ports;
    RSComm link{dialogs, clock, busy, folder};
    std::unique_ptr<frmSetupComm> view;
};
} // namespace

TEST_F(SetupComm, WithoutASettingsFileShowsPort1And9600) {
    Open();
    EXPECT_EQ(view->windowTitle(), QStringLiteral("Comm Port Settings"));
    EXPECT_EQ(PortText(), QStringLiteral("1"));
    EXPECT_FALSE(IsFast());
    EXPECT_EQ(Part<EntryUpDown>("updCommPort")->Min(), 1);
    EXPECT_EQ(Part<EntryUpDown>("updCommPort")->Max(), 99);
}

TEST_F(SetupComm, SettingsFileOf7And19200ShowsThem) {
    Store("7,19200\r\n");
    Open();
    EXPECT_EQ(PortText(), QStringLiteral("7"));
    EXPECT_TRUE(IsFast());
}

TEST_F(SetupComm, SettingsFileOf200And4800ShowsPort99And9600) {
    Store("200,4800\r\n");
    Open();
    EXPECT_EQ(PortText(), QStringLiteral("99"));
    EXPECT_FALSE(IsFast());
}

TEST_F(SetupComm, UnreadableSettingsAreReported) {
    Store("7\r\n");
    dialogs.ExpectBox(QStringLiteral("Error Number = 62\r\n\r\nInput past end of file"), 16,
                      QStringLiteral("SetupComm CurrentSettings"), MsgAnswer::Ok);
    Open();
    EXPECT_EQ(PortText(), QStringLiteral("1"));
}

TEST_F(SetupComm, SaveWritesTheSettingsAndTheCopiesOfTheFoldersThatExist) {
    files.MakeFolder(QStringLiteral("tgt51"));
    files.MakeFolder(QStringLiteral("TGT96"));
    Open();
    Part<QRadioButton>("optPortSpeed(1)")->setChecked(true);
    Click("cmdSave");
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(Stored(), "1, 19200 \r\n");
    EXPECT_EQ(files.Content(QStringLiteral("tgt51/HALDEN.SFG")), "0\r\n");
    EXPECT_EQ(files.Content(QStringLiteral("TGT96/HALDEN.SFG")), "0\r\n");
    EXPECT_FALSE(files.Names().contains(QStringLiteral("LMT51")));
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(SetupComm, SaveWhileOnlineOpensTheNewPort) {
    GoOnline();
    Open();
    Type(QStringLiteral("7"));
    Click("cmdSave");
    EXPECT_FALSE(view->isVisible());
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_EQ(port.CommPort(), 7);
    EXPECT_EQ(Stored(), "7, 9600 \r\n");
}

TEST_F(SetupComm, PortThatDoesNotOpenLeavesTheViewForAnotherTry) {
    GoOnline();
    Open();
    Type(QStringLiteral("7"));
    port.RefuseToOpen(ErrorNumber::DeviceUnavailable, QStringLiteral("not there"));
    dialogs.ExpectBoxTitled(QStringLiteral("Comm Port Error"), MsgAnswer::Ok);
    Click("cmdSave");
    EXPECT_TRUE(view->isVisible());
    EXPECT_FALSE(link.OnlineMode());
    port.RefuseToOpen(0, QString());
    Type(QStringLiteral("1"));
    Click("cmdSave");
    EXPECT_FALSE(view->isVisible());
    EXPECT_TRUE(link.OnlineMode());
}

TEST_F(SetupComm, SettingsThatCannotBeWrittenAreReported) {
    files.MakeFolder(QStringLiteral("Support/RSPort.cfg"));
    dialogs.ExpectBoxTitled(QStringLiteral("SetupComm CurrentSettings"), MsgAnswer::Ok);
    Open();
    dialogs.ExpectBoxTitled(QStringLiteral("SetupComm"), MsgAnswer::Ok);
    Click("cmdSave");
    EXPECT_TRUE(view->isVisible());
    EXPECT_EQ(dialogs.Boxes().back().style, 16);
}

TEST_F(SetupComm, CancelChangesNothing) {
    Store("7,19200\r\n");
    Open();
    Type(QStringLiteral("300"));
    Click("cmdCancel");
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(Stored(), "7,19200\r\n");
}

TEST_F(SetupComm, NumbersOutside1To99AreRefusedAndKeepTheFocus) {
    Open();
    for (const char* text : {"0", "100", "x", ""}) {
        dialogs.ExpectBox(QStringLiteral("Only a Number Between 1 and 99 can be Entered"), 64,
                          QStringLiteral("Comm Port"), MsgAnswer::Ok);
        Part<QLineEdit>("txtCommPort")->clear();
        Type(QString::fromLatin1(text));
        QTest::keyClick(Part<QLineEdit>("txtCommPort"), Qt::Key_Tab);
        Settle();
        EXPECT_TRUE(Part<QLineEdit>("txtCommPort")->hasFocus()) << text;
    }
    EXPECT_EQ(dialogs.Boxes().size(), 4U);
}

TEST_F(SetupComm, RefusedNumberIsNotSaved) {
    Open();
    Type(QStringLiteral("100"));
    dialogs.ExpectBoxTitled(QStringLiteral("Comm Port"), MsgAnswer::Ok);
    Click("cmdSave");
    EXPECT_TRUE(view->isVisible());
    EXPECT_TRUE(Stored().isEmpty());
}

TEST_F(SetupComm, ArrowsStepTheNumberWithinItsRange) {
    Open();
    auto* down = Part<EntryUpDown>("updCommPort")->findChild<QToolButton*>(QStringLiteral("down"));
    auto* up = Part<EntryUpDown>("updCommPort")->findChild<QToolButton*>(QStringLiteral("up"));
    QTest::mouseClick(down, Qt::LeftButton);
    EXPECT_EQ(PortText(), QStringLiteral("1"));
    QTest::mouseClick(up, Qt::LeftButton);
    EXPECT_EQ(PortText(), QStringLiteral("2"));
}

TEST_F(SetupComm, NamesTheDeviceBehindTheNumber) {
    Open();
    EXPECT_EQ(Device(), QStringLiteral("/dev/ttyS0 - is there"));
    Type(QStringLiteral("7"));
    EXPECT_EQ(Device(), QStringLiteral("/dev/ttyS6 - is not there"));
    Type(QStringLiteral("98"));
    EXPECT_EQ(Device(), QStringLiteral("stands for no device"));
    Type(QStringLiteral("x"));
    EXPECT_TRUE(Device().isEmpty());
}

TEST_F(SetupComm, ClickOnAPortSetsItsNumber) {
    Open();
    auto* list = Part<QTreeWidget>("lstPorts");
    ASSERT_EQ(list->topLevelItemCount(), 3);
    EXPECT_EQ(list->topLevelItem(1)->text(0), QStringLiteral("COM33"));
    EXPECT_EQ(list->topLevelItem(1)->text(2), QStringLiteral("Maker USB Serial"));
    ClickPort(1);
    EXPECT_EQ(PortText(), QStringLiteral("33"));
    EXPECT_EQ(Device(), QStringLiteral("/dev/ttyUSB0 - is there"));
    ClickPort(2);
    EXPECT_EQ(PortText(), QStringLiteral("33"));
}

TEST_F(SetupComm, WithoutPortsTheListSaysSo) {
    ports.found.clear();
    Open();
    EXPECT_EQ(Part<QTreeWidget>("lstPorts")->topLevelItem(0)->text(1),
              QStringLiteral("No serial port was found."));
}

TEST_F(SetupComm, TestAsksTheBoardOnTheShownPort) {
    Open();
    Type(QStringLiteral("33"));
    Part<QRadioButton>("optPortSpeed(1)")->setChecked(true);
    port.AnswerLikeBoard(true);
    Click("cmdTest");
    EXPECT_TRUE(Outcome().startsWith(QStringLiteral("COM33 at 19200 baud: a board answered in ")))
        << Outcome().toStdString();
    EXPECT_EQ(port.Sent(), std::vector<int>{0xFF});
    EXPECT_FALSE(port.PortOpen());
    EXPECT_TRUE(Stored().isEmpty());
    EXPECT_FALSE(link.OnlineMode());
}

TEST_F(SetupComm, AnotherNumberTakesTheOutcomeAway) {
    Open();
    Click("cmdTest");
    EXPECT_FALSE(Outcome().isEmpty());
    Type(QStringLiteral("33"));
    EXPECT_TRUE(Outcome().isEmpty());
}

TEST_F(SetupComm, TestWhileOnlineIsRefusedAndLeavesTheLinkAlone) {
    GoOnline();
    Open();
    Click("cmdTest");
    EXPECT_EQ(
        Outcome(),
        QStringLiteral("The program is online and uses its port. Go offline to test a port."));
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_TRUE(port.PortOpen());
    EXPECT_TRUE(port.Sent().empty());
}

TEST_F(SetupComm, TestClosesAPortThatAFailureHasLeftOpen) {
    GoOnline();
    link.SetOnlineMode(false);
    link.SetCommError(true);
    Open();
    Click("cmdTest");
    EXPECT_TRUE(Outcome().contains(QStringLiteral("a board answered"))) << Outcome().toStdString();
    EXPECT_EQ(port.Sent(), std::vector<int>{0xFF});
    EXPECT_FALSE(port.PortOpen());
}
