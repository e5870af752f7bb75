#include "link/RSComm.h"
#include "pls/PLSConfigTable.h"
#include "pls/views/frmTiming.h"
#include "session/Globals.h"
#include "WholeProgram.h"
#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

namespace {
constexpr int r6500 = 69;

class PLSTransferTest : public WholeProgram {
protected:
    PLSTransferTest() : WholeProgram(r6500) {}
    void SetUp() override {
        WriteSetFile(QStringLiteral("FEED.hdn"), "E\r\n");
        WriteSetFile(QStringLiteral("FEED.PCF"), configuration);
        WriteSetFile(QStringLiteral("FEED.CHL"), channels);
        WriteSetFile(QStringLiteral("COPY.hdn"), "E\r\n");
        WriteSetFile(QStringLiteral("COPY.CHL"), labelsOnly);
        WholeProgram::SetUp();
    }
    void ExpectDownload(const char* set, int answer) {
        dialogs_.ExpectBox(
            QStringLiteral("You are about to download the PLS configuration           \r\n"
                           "and timing channel setpoints to the R6500(PLS).\r\n\r\n"
                           "Do you wish to continue?"),
            MsgStyle::YesNoCancelInformation,
            QStringLiteral("PLS Download [%1]").arg(QLatin1String(set)), answer);
    }
    void ExpectUpload(const char* set, int answer) {
        dialogs_.ExpectBox(
            QStringLiteral("You are about to upload the PLS configuration           \r\n"
                           "and timing channel setpoints from the R6500(PLS).\r\n\r\n"
                           "All data will be saved to file.\r\n\r\nDo you wish to continue?"),
            MsgStyle::YesNoCancelInformation,
            QStringLiteral("PLS Upload [%1]").arg(QLatin1String(set)), answer);
    }
    // Chooses the set by the dialog of the entry.
    void Choose(const char* entry, const char* set) {
        dialogs_.ExpectOpen(SetPath(QLatin1String(set) + QStringLiteral(".hdn")));
        Entry(QLatin1String(entry))->trigger();
    }
    void DownloadFeed() {
        ExpectDownload("FEED", MsgAnswer::Yes);
        Choose("mnuFileDownloadToPLS", "FEED");
    }
    QByteArray CopyFile(const char* extension) const {
        return Content(SetPath(QStringLiteral("COPY.") + QLatin1String(extension)));
    }

    static QByteArray Header(int channel) {
        return ":" + QByteArray::number(channel, 8).rightJustified(2, '0') + "1:000:000:000" +
               QByteArray("Cam").leftJustified(21, ' ') + "\r\n";
    }
    static QByteArray Channels(bool setpoints) {
        QByteArray text = ":0720\r\n:0000\r\n";
        for (int channel = 0; channel < 16; ++channel) {
            text += Header(channel);
            if (setpoints && channel % 5 == 3)
                text += "|00100020\r\n|00200035\r\n|07000005\r\n";
        }
        return text + "%\r\n";
    }

    const QByteArray configuration =
        "1607203010020030040050060070255" + QByteArray(16, '0') + "%\r\n";
    const QByteArray channels = Channels(true);
    const QByteArray labelsOnly = Channels(false);
};
} // namespace

TEST_F(PLSTransferTest, WhatWasDownloadedIsUploadedIntoEqualFiles) {
    DownloadFeed();
    EXPECT_EQ(board_.Pls().ScaleFactor(), 720);
    EXPECT_EQ(board_.Pls().Edges(8).size(), 6u);
    ExpectUpload("COPY", MsgAnswer::Yes);
    Choose("mnuFileUploadFromPLS", "COPY");
    EXPECT_EQ(CopyFile("PCF"), configuration);
    EXPECT_EQ(CopyFile("CHL"), channels);
    EXPECT_EQ(Content(SetPath(QStringLiteral("FEED.CHL"))), channels);
    EXPECT_TRUE(Window().Timer().Enabled());
    EXPECT_EQ(Panel(2), QStringLiteral("ONLINE"));
    EXPECT_FALSE(Link().InUploadMode());
}

TEST_F(PLSTransferTest, TheToolbarTransfersTheSelectedSet) {
    ClickSet(QStringLiteral("FEED.hdn"));
    ExpectDownload("FEED", MsgAnswer::Yes);
    Press("Program");
    ClickSet(QStringLiteral("COPY.hdn"));
    ExpectUpload("COPY", MsgAnswer::Yes);
    Press("Upload");
    EXPECT_EQ(CopyFile("CHL"), channels);
    EXPECT_FALSE(Link().InUploadMode());
}

TEST_F(PLSTransferTest, TheBusyViewCannotBeCancelledAndTheTickStandsStill) {
    WhenUp("frmWaitDisplay", [this](QWidget& view) {
        EXPECT_FALSE(view.findChild<QWidget*>(QStringLiteral("cmdCancel"))->isEnabled());
        EXPECT_FALSE(Window().Timer().Enabled());
        EXPECT_TRUE(
            view.findChild<QWidget*>(QStringLiteral("lblSetpointRecall"))->isVisibleTo(&view));
    });
    DownloadFeed();
    EXPECT_EQ(board_.Pls().ScaleFactor(), 720);
}

TEST_F(PLSTransferTest, NoTransfersNothing) {
    ExpectDownload("FEED", MsgAnswer::No);
    Choose("mnuFileDownloadToPLS", "FEED");
    ExpectUpload("FEED", MsgAnswer::Cancel);
    Choose("mnuFileUploadFromPLS", "FEED");
    EXPECT_TRUE(port_.Sent().empty());
    EXPECT_EQ(Content(SetPath(QStringLiteral("FEED.CHL"))), channels);
}

TEST_F(PLSTransferTest, ASetOfAControllerIsNeverSentToALimitSwitchBoard) {
    DownloadFeed();
    port_.ForgetSent();
    dialogs_.ExpectBoxTitled(QStringLiteral("PLS Download [UNIT]"), MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled(QStringLiteral("PLS Config Download"), MsgAnswer::Ok);
    Choose("mnuFileDownloadToPLS", "UNIT");
    dialogs_.ExpectBoxTitled(QStringLiteral("PLS Upload [UNIT]"), MsgAnswer::Yes);
    Choose("mnuFileUploadFromPLS", "UNIT");
    for (const int byte : port_.Sent())
        EXPECT_EQ(byte, 0xFF) << "nothing but the attention of the online command";
    EXPECT_FALSE(QFile::exists(SetPath(QStringLiteral("UNIT.PCF"))));
    EXPECT_FALSE(QFile::exists(SetPath(QStringLiteral("UNIT.CHL"))));
    EXPECT_EQ(board_.Pls().ScaleFactor(), 720);
    EXPECT_EQ(board_.Pls().Edges(8).size(), 6u);
}

// What is left of such files in the record must never be offered to the board as an edit.
TEST_F(PLSTransferTest, FilesThatCannotBeReadLeaveTheTimingViewWithTheBoardsConfiguration) {
    ClickSet(QStringLiteral("FEED.hdn"));
    DownloadFeed();
    Entry(QStringLiteral("mnuToolsPLSProgramming"))->trigger();
    auto* view = Find<frmTiming>("frmTiming");
    QElapsedTimer passed;
    passed.start();
    while (!view->gFirstPassOnline() && passed.elapsed() < 10000) {
        application_->Loops().Wake();
        QCoreApplication::processEvents();
    }
    ASSERT_TRUE(view->gFirstPassOnline());
    WriteSetFile(QStringLiteral("FEED.PCF"), "1699999" + QByteArray(41, '0') + "%\r\n");
    WriteSetFile(QStringLiteral("FEED.CHL"), ":0720\r\n:0000\r\n|00100020\r\n");
    ExpectDownload("FEED", MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled(QStringLiteral("ReadPLSFileData()"), MsgAnswer::Ok);
    dialogs_.ExpectBoxTitled(QStringLiteral("PLS Config Download"), MsgAnswer::Ok);
    dialogs_.ExpectBoxTitled(QStringLiteral("ReadPLSFileData()"), MsgAnswer::Ok);
    Choose("mnuFileDownloadToPLS", "FEED");
    EXPECT_EQ(gPLS.ScaleFactor, 720);
    EXPECT_FALSE(ConfigChanged());
    ExpectUpload("FEED", MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled(QStringLiteral("ReadPLSFileData()"), MsgAnswer::Ok);
    Choose("mnuFileUploadFromPLS", "FEED");
    EXPECT_EQ(gPLS.ScaleFactor, 720);
    EXPECT_FALSE(ConfigChanged());
}

TEST_F(PLSTransferTest, ALineCutInTheUploadLeavesTheFilesAndGoesOffline) {
    DownloadFeed();
    line_.Faults().Order(
        {.kind = haldenboard::FaultKind::Lost, .nth = 100, .standing = true, .bytes = {}});
    ExpectUpload("COPY", MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled(QStringLiteral("WARNING - Communication Error!"), MsgAnswer::Cancel);
    Choose("mnuFileUploadFromPLS", "COPY");
    EXPECT_EQ(CopyFile("PCF"), QByteArray("(no file)"));
    EXPECT_EQ(CopyFile("CHL"), labelsOnly);
    EXPECT_EQ(Panel(2), QStringLiteral("OFFLINE"));
    EXPECT_FALSE(Link().InUploadMode());
}

TEST_F(PLSTransferTest, APortThatDoesNotOpenLeavesTheFiles) {
    port_.RefuseToOpen(8005, QStringLiteral("Port in use"));
    ExpectUpload("FEED", MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled(QStringLiteral("Comm Port Error"), MsgAnswer::Ok);
    Choose("mnuFileUploadFromPLS", "FEED");
    EXPECT_EQ(Content(SetPath(QStringLiteral("FEED.PCF"))), configuration);
    EXPECT_EQ(Content(SetPath(QStringLiteral("FEED.CHL"))), channels);
}

// The link is then neither online nor in failure, and nothing was read.
TEST_F(PLSTransferTest, PortSettingsThatCannotBeReadLeaveTheFiles) {
    QDir().mkpath(AppPath(QStringLiteral("support/RSPort.cfg"))); // a folder in place of the file
    ExpectUpload("FEED", MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled(QStringLiteral("RSComm InitializeRSComm"), MsgAnswer::Cancel);
    Choose("mnuFileUploadFromPLS", "FEED");
    EXPECT_TRUE(port_.Sent().empty());
    EXPECT_EQ(Content(SetPath(QStringLiteral("FEED.PCF"))), configuration);
    EXPECT_EQ(Content(SetPath(QStringLiteral("FEED.CHL"))), channels);
}
