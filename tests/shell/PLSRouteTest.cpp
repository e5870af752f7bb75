#include "session/Globals.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QFile>
#include <QTest>
#include <QToolButton>

namespace {
// Limit switch commands on a recorded route: no jobs and no timing view are needed.
class PLSRouteTest : public WholeWindow {
protected:
    void SetUp() override {
        Start();
        GoToSets();
        ClickSet("CAMS.hdn");
        PLSRoute route;
        route.RunWaitJob = [this](qint16 code) {
            steps_ << QStringLiteral("job %1").arg(code);
            Link().SetCommError(failing_);
        };
        route.ReadPLSFileData = [this](const QString& path) {
            EXPECT_EQ(path, gHdnFile);
            steps_ << "read";
            return readable_;
        };
        route.timingVisible = [this] { return timing_; };
        route.gFirstPassOnline = [this] { return firstPass_; };
        route.DisplayPLSChannels = [this] { steps_ << "display"; };
        route.uploadComplete = [this] { steps_ << "complete"; };
        route.configurationText = [] { return QStringLiteral("configuration"); };
        route.channelText = [] { return QStringLiteral("channels"); };
        Window().Views().pls = route;
        Window().TakeViews();
    }
    void ExpectDownload(int answer) {
        dialogs_.ExpectBox("You are about to download the PLS configuration           \r\n"
                           "and timing channel setpoints to the " +
                               Link().TargetboardName(55) + ".\r\n\r\nDo you wish to continue?",
                           67, "PLS Download [CAMS]", answer);
    }
    void ExpectUpload(int answer) {
        dialogs_.ExpectBox("You are about to upload the PLS configuration           \r\n"
                           "and timing channel setpoints from the " +
                               Link().TargetboardName(55) +
                               ".\r\n\r\nAll data will be saved to file.\r\n\r\n"
                               "Do you wish to continue?",
                           67, "PLS Upload [CAMS]", answer);
    }
    QByteArray Content(const QString& name) {
        QFile file(SetPath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }
    std::string Steps() { return steps_.join(u' ').toStdString(); }

    QStringList steps_;
    bool readable_ = true;
    bool failing_ = false;
    bool timing_ = false;
    bool firstPass_ = true;
};
} // namespace

TEST_F(PLSRouteTest, DownloadGoesOnlineAndRunsItsJob) {
    ExpectDownload(MsgAnswer::Yes);
    Entry("mnuFileListPopupDownloadToPLS")->trigger();
    EXPECT_EQ(Steps(), "job 7");
    EXPECT_TRUE(Link().OnlineMode());
}

TEST_F(PLSRouteTest, DownloadUnderTheTimingViewReadsTheChannelsBack) {
    timing_ = true;
    ExpectDownload(MsgAnswer::Yes);
    Entry("mnuFileListPopupDownloadToPLS")->trigger();
    EXPECT_EQ(Steps(), "job 7 read job 6 display");
}

TEST_F(PLSRouteTest, FailedDownloadReadsNothingBack) {
    timing_ = true;
    failing_ = true;
    ExpectDownload(MsgAnswer::Yes);
    Entry("mnuFileListPopupDownloadToPLS")->trigger();
    EXPECT_EQ(Steps(), "job 7");
}

// What is left of the files would count as an edit that the view offers to send.
TEST_F(PLSRouteTest, FilesThatCannotBeReadMakeTheTimingViewShowTheBoardAgain) {
    timing_ = true;
    readable_ = false;
    ExpectDownload(MsgAnswer::Yes);
    Entry("mnuFileListPopupDownloadToPLS")->trigger();
    EXPECT_EQ(Steps(), "job 7 read display");
    steps_.clear();
    ExpectUpload(MsgAnswer::Yes);
    Entry("mnuFileListPopupUploadFromPLS")->trigger();
    EXPECT_EQ(Steps(), "read display");
    EXPECT_EQ(Content("CAMS.CHL").toStdString(), "missing");
}

TEST_F(PLSRouteTest, FilesThatCannotBeReadLeaveATimingViewThatIsNotOnlineAlone) {
    timing_ = true;
    firstPass_ = false;
    readable_ = false;
    ExpectUpload(MsgAnswer::Yes);
    Entry("mnuFileListPopupUploadFromPLS")->trigger();
    EXPECT_EQ(Steps(), "read");
}

TEST_F(PLSRouteTest, UploadSavesBothFiles) {
    timing_ = true;
    ExpectUpload(MsgAnswer::Yes);
    Entry("mnuFileListPopupUploadFromPLS")->trigger();
    EXPECT_EQ(Steps(), "read job 6 display complete");
    EXPECT_EQ(Content("CAMS.pcf").toStdString(), "configuration\r\n");
    EXPECT_EQ(Content("CAMS.CHL").toStdString(), "channels\r\n");
    EXPECT_FALSE(Link().InUploadMode());
    EXPECT_EQ(gHdnFile, SetPath("CAMS.hdn"));
}

TEST_F(PLSRouteTest, UploadInUploadModeLeavesTheTimingViewAlone) {
    timing_ = true;
    ExpectUpload(MsgAnswer::Yes);
    QTest::mouseClick(Find<QToolButton>("Upload"), Qt::LeftButton);
    EXPECT_EQ(Steps(), "read job 6");
    EXPECT_EQ(Content("CAMS.CHL").toStdString(), "channels\r\n");
    EXPECT_FALSE(Link().InUploadMode());
}

TEST_F(PLSRouteTest, RefusedOrFailedUploadLeavesTheFiles) {
    ExpectUpload(MsgAnswer::No);
    Entry("mnuFileListPopupUploadFromPLS")->trigger();
    EXPECT_EQ(Steps(), "");
    failing_ = true;
    ExpectUpload(MsgAnswer::Yes);
    Entry("mnuFileListPopupUploadFromPLS")->trigger();
    EXPECT_EQ(Steps(), "read job 6");
    EXPECT_EQ(Content("CAMS.pcf").toStdString(), "");
    EXPECT_EQ(Content("CAMS.CHL").toStdString(), "missing");
}

TEST_F(PLSRouteTest, CancellingTheFileDialogRunsNothingFurther) {
    for (const char* entry : {"mnuFileDownloadToPLS", "mnuFileUploadFromPLS"}) {
        dialogs_.ExpectOpen(QString());
        Entry(entry)->trigger();
        EXPECT_EQ(Steps(), "");
        EXPECT_FALSE(Link().InUploadMode());
    }
}

TEST_F(PLSRouteTest, MenuAsksForTheSetFirst) {
    ClickSet("PUMP.hdn");
    dialogs_.ExpectOpen(SetPath("CAMS.hdn"));
    ExpectDownload(MsgAnswer::No);
    Entry("mnuFileDownloadToPLS")->trigger();
    EXPECT_EQ(gHdnFile, SetPath("CAMS.hdn"));
    EXPECT_FALSE(Link().OnlineMode());
}

TEST_F(PLSRouteTest, NamedUploadOfALimitSwitchSetTakesThisRoute) {
    Window().Views().frmNewFile = [this](qint16) {
        gHdnFile = SetPath("CAMS.hdn");
        Link().SetInUploadMode(true);
    };
    timing_ = true;
    ExpectUpload(MsgAnswer::Yes);
    Entry("mnuFileUploadProgram")->trigger();
    EXPECT_EQ(Steps(), "read job 6");
    EXPECT_FALSE(Link().InUploadMode());
}

TEST_F(PLSRouteTest, DataDownloadOfALimitSwitchBoardTakesTheUploadPath) {
    ExpectUpload(MsgAnswer::Yes);
    dialogs_.ExpectOpen(SetPath("CAMS.hdn"));
    Entry("mnuFileDownloadData")->trigger();
    EXPECT_EQ(Steps(), "read job 6");
}
