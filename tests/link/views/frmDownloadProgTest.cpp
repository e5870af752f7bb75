#include "link/views/frmDownloadProg.h"
#include "base/ViewLoop.h"
#include "link/programs/BoardFixture.h"
#include <QAbstractButton>
#include <QFrame>
#include <QLabel>
#include <QTest>

namespace {
const QByteArray twoRecords = ":0140000001\r\n:0140010002\r\n:00000001FF\r\n";

class frmDownloadProgTest : public BoardTest {
protected:
    void SetUp() override { ConnectBoard(68); }
    void NameDump(const QByteArray& hex = twoRecords) {
        link.DownloadFile(WriteSet(QStringLiteral("A"), 'D', "PUMP1:301\r\n", hex));
        ASSERT_TRUE(link.ValidProgram());
    }
    void NameUpload() {
        link.UploadFile(Write(QStringLiteral("A.hdn"), "4\r\n"));
        link.SetInUploadMode(true);
    }
    QLabel* Label() { return view.findChild<QLabel*>(QStringLiteral("lblWaitDisplay")); }
    QTimer* Timer1() { return view.findChild<QTimer*>(QStringLiteral("Timer1")); }

    frmDownloadProg view{link};
};

// Answers each box at once and runs a step while it is up.
class ProbingDialogs final : public Dialogs {
public:
    int MsgBox(const QString&, int style, const QString&) override {
        if (probe)
            probe();
        return style == 35 ? MsgAnswer::Yes : MsgAnswer::Ok;
    }
    QString InputBox(const QString&, const QString&, const QString&) override { return {}; }
    QString ShowOpen(const FileDialogRequest&) override { return {}; }
    QString ShowSave(const FileDialogRequest&) override { return {}; }
    PrinterChoice ShowPrinter() override { return {}; }

    std::function<void()> probe;
};
} // namespace

TEST_F(frmDownloadProgTest, ControlsCarryTheirNames) {
    auto* frame = view.findChild<QFrame*>(QStringLiteral("fraWaitDisplay"));
    ASSERT_NE(frame, nullptr);
    ASSERT_NE(Label(), nullptr);
    EXPECT_EQ(Label()->parent(), frame);
    EXPECT_FALSE(frame->accessibleName().isEmpty());
    ASSERT_NE(Timer1(), nullptr);
    EXPECT_EQ(Timer1()->interval(), 250);
    EXPECT_TRUE(view.findChildren<QAbstractButton*>().isEmpty());
    EXPECT_TRUE(view.isModal());
}

TEST_F(frmDownloadProgTest, LoadShowsTheDirectionWithTheTimerStill) {
    view.SetTransferMode(0);
    view.show();
    EXPECT_EQ(Label()->text(), QStringLiteral("Sending Program at Address: "));
    EXPECT_EQ(Label()->accessibleName(), Label()->text());
    EXPECT_FALSE(Timer1()->isActive());
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download"), MsgAnswer::Ok);
    QCoreApplication::processEvents(); // no set was named: the dump refuses
    frmDownloadProg upload(link);
    upload.SetTransferMode(1);
    upload.show();
    EXPECT_EQ(upload.findChild<QLabel*>()->text(), QStringLiteral("Reading Program at Address: "));
    QCoreApplication::processEvents();
}

TEST_F(frmDownloadProgTest, DumpRunsOnceAndTheViewUnloadsItself) {
    NameDump();
    view.SetTransferMode(0);
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [PUMP1]"), MsgAnswer::Yes);
    dialogs.ExpectBox(QStringLiteral("Program Download Complete!"), 64,
                      QStringLiteral("Program Download"), MsgAnswer::Ok, [this] {
                          EXPECT_TRUE(view.isVisible());
                          EXPECT_TRUE(Timer1()->isActive());
                          EXPECT_TRUE(ViewLoopHold::AnyHeld());
                      });
    view.exec();
    EXPECT_FALSE(view.isVisible());
    EXPECT_FALSE(Timer1()->isActive());
    EXPECT_FALSE(ViewLoopHold::AnyHeld());
    EXPECT_EQ(Memory(0x4000, 2), QByteArray("\x01\x02"));
}

TEST_F(frmDownloadProgTest, UploadRunsAndTheModeGoesBackToDump) {
    line->SetBaud(0);
    NameUpload();
    view.SetTransferMode(1);
    ExpectUploadComplete();
    view.exec();
    EXPECT_FALSE(view.isVisible());
    EXPECT_EQ(view.Mode(), 0);
    EXPECT_TRUE(Read(QStringLiteral("A.hex")).startsWith(":10200000"));
}

TEST_F(frmDownloadProgTest, SecondShowingRunsASecondTransfer) {
    for (int round = 0; round < 2; ++round) {
        NameDump();
        dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [PUMP1]"), MsgAnswer::No);
        view.exec();
        EXPECT_FALSE(view.isVisible());
    }
}

TEST_F(frmDownloadProgTest, UserCannotCloseItWhileTheTransferRuns) {
    line->SetBaud(0);
    NameUpload();
    view.SetTransferMode(1);
    dialogs.ExpectBox(QStringLiteral("Program Upload Complete!"), 64,
                      QStringLiteral("Program Upload"), MsgAnswer::Ok, [this] {
                          QTest::keyClick(&view, Qt::Key_Escape);
                          EXPECT_TRUE(view.isVisible());
                          EXPECT_FALSE(view.close());
                          EXPECT_TRUE(view.isVisible());
                      });
    view.exec();
    EXPECT_FALSE(view.isVisible());
}

TEST_F(frmDownloadProgTest, LabelFollowsTheTransferByItsTimer) {
    ProbingDialogs probing;
    RSComm probed(probing, clock, busy, applicationFolder);
    link.CloseRSComm();
    probed.OpenRSComm(*port);
    probed.DownloadFile(WriteSet(QStringLiteral("A"), 'D', "PUMP1:301\r\n", twoRecords));
    frmDownloadProg probedView(probed);
    auto* label = probedView.findChild<QLabel*>(QStringLiteral("lblWaitDisplay"));
    auto* timer = probedView.findChild<QTimer*>(QStringLiteral("Timer1"));
    QStringList texts;
    probing.probe = [&] {
        timer->setInterval(0); // due at once
        QCoreApplication::processEvents();
        texts += label->text();
    };
    probedView.exec();
    EXPECT_EQ(texts, QStringList({QStringLiteral("Writing to Program Address: "),
                                  QStringLiteral("Writing to Program Address: 4001H")}));
}
