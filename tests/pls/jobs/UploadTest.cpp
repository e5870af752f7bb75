#include "pls/jobs/PLSJobsFixture.h"

namespace {
class UploadPLS : public PLSJobsFixture {
protected:
    void Upload() { jobs.UploadPLSChannels(progress); }
    void Blank() { gPLS = PLSRecord(); }
};

class UploadStandard : public PLSJobsFixture {
protected:
    UploadStandard() : PLSJobsFixture(BoardIndex::K2041) {}
};

class UploadR6041 : public PLSJobsFixture {
protected:
    UploadR6041() : PLSJobsFixture(BoardIndex::R6041) {}
    // Uploads a board that was set up for so many channels.
    void UploadWith(qint16 channels) {
        std::array<qint16, 24> table{};
        table[18] = channels;
        ASSERT_TRUE(link.PLSConfigDownload(table, 360));
        jobs.UploadPLSChannels(progress);
        ASSERT_FALSE(link.CommError());
    }
};
const QByteArray emptyLabel(21, ' ');
} // namespace

TEST_F(UploadPLS, ReadsConfigurationAndChannels) {
    std::array<qint16, 24> table{5, 10, 11, 12, 13, 0, 14, 15, 16, 255};
    table[18] = 16;
    ASSERT_TRUE(link.PLSConfigDownload(table, 1000));
    Program(0, {{20, 10}, {40, 30}});
    Program(8, {{5, 990}});
    ASSERT_TRUE(link.SetPLSOffset(0));
    Blank();
    gPLS.ChanHeader[8] = QStringLiteral(":101:000:000:000Feed gate");
    jobs.UploadPLSChannels(progress);
    EXPECT_EQ(gPLS.Channels, 16);
    EXPECT_EQ(gPLS.ScaleFactor, 1000);
    EXPECT_EQ(gPLS.PLSProgram, 5);
    EXPECT_EQ(gPLS.SpeedComp, (std::array<qint16, 8>{10, 11, 12, 13, 14, 15, 16, 255}));
    EXPECT_EQ(gPLS.Chan[0], (SetpointList{{20, 10}, {40, 30}}));
    EXPECT_EQ(gPLS.Chan[8], (SetpointList{{5, 990}}));
    EXPECT_EQ(gPLS.Chan[15], SetpointList{Setpoint{}});
    EXPECT_TRUE(gPLS.Chan[16].isEmpty());
    EXPECT_EQ(gPLSSnapshot, gPLS);
}

TEST_F(UploadPLS, BuildsTheTextsOfTheTwoFiles) {
    Configure(16, 1000);
    Program(0, {{20, 10}, {40, 30}});
    Program(8, {{5, 990}});
    Blank();
    gPLS.ChanHeader[8] = QStringLiteral(":101:000:000:000Feed gate of the second line");
    Upload();
    EXPECT_EQ(gPLS.PCFText, QStringLiteral("1610000") + QString(24, u'0') + QString(16, u'0') +
                                QStringLiteral("%"));
    QByteArray text =
        ":1000\r\n:0000\r\n:001:000:000:000" + emptyLabel + "\r\n|00100020\r\n|00300040\r\n";
    for (int channel = 1; channel < 16; ++channel) {
        text += ":" + QByteArray::number(channel, 8).rightJustified(2, '0') + "1:000:000:000" +
                (channel == 8 ? QByteArray("Feed gate of the seco") : emptyLabel) + "\r\n";
        if (channel == 8)
            text += "|09900005\r\n";
    }
    EXPECT_EQ(gPLS.CHLText.toLatin1(), text + "%");
}

TEST_F(UploadPLS, AChannelWithNoProgrammedSetpointLeavesNoSetpointLineInTheCHLText) {
    Configure(8, 360);
    Program(3, {{20, 10}});
    Upload();
    EXPECT_EQ(gPLS.Chan[2], SetpointList{Setpoint{}});
    EXPECT_EQ(gPLS.CHLText.count(u'|'), 1) << "that of channel 3";
    EXPECT_TRUE(gPLS.CHLText.contains(QStringLiteral(":021:000:000:000") + QString(21, u' ') +
                                      QStringLiteral("\r\n:03")));
    Program(3, {});
    Upload();
    EXPECT_EQ(gPLS.CHLText.count(u'|'), 0);
}

TEST_F(UploadPLS, TellsHowFarItIs) {
    Configure(16, 360);
    Program(8, {{5, 1}, {15, 10}});
    Upload();
    EXPECT_EQ(progress.min, 0);
    EXPECT_EQ(progress.max, 16);
    ASSERT_EQ(progress.values.size(), 17u);
    EXPECT_EQ(progress.values.front(), 0);
    EXPECT_EQ(progress.values.back(), 16);
    ASSERT_EQ(progress.messages.size(), 16);
    EXPECT_EQ(progress.messages[7],
              QStringLiteral("Uploading Channel CH7 Data, Please Standby ..."));
    EXPECT_EQ(progress.messages[8],
              QStringLiteral("Uploading Channel CH10 Data, Please Standby ..."));
    EXPECT_EQ(progress.secondLines, (QStringList{QStringLiteral("Recalling CH10 Setpoint: 0"),
                                                 QStringLiteral("Recalling CH10 Setpoint: 1")}));
}

TEST_F(UploadPLS, OfflineItOnlyCopiesTheRecord) {
    gPLS.ScaleFactor = 77;
    link.SetOnlineMode(false);
    const int before = RepliesSoFar();
    Upload();
    EXPECT_EQ(RepliesSoFar(), before);
    EXPECT_EQ(gPLSSnapshot.ScaleFactor, 77);
    EXPECT_TRUE(gPLS.CHLText.isEmpty());
}

TEST_F(UploadPLS, TheBoardOfTheTimingViewWins) {
    jobs.SetTimingBoard([] { return std::optional<qint16>(qint16{BoardIndex::K2041}); });
    Upload();
    EXPECT_EQ(gPLS.Channels, 16) << "read as the standard layout";
    EXPECT_EQ(gPLS.PCFText.size(), 49);
}

TEST_F(UploadPLS, InUploadModeTheBoardIsThatOfTheSet) {
    jobs.SetTimingBoard([] { return std::optional<qint16>(qint16{BoardIndex::K2041}); });
    link.SetInUploadMode(true);
    Upload();
    EXPECT_EQ(gPLS.PCFText.size(), 48);
}

TEST_F(UploadPLS, ATimingViewWithoutASelectionLeavesItToTheSet) {
    jobs.SetTimingBoard([] { return std::optional<qint16>(); });
    Upload();
    EXPECT_EQ(gPLS.PCFText.size(), 48);
}

TEST_F(UploadPLS, ValuesAreHeldWithinTheirLimits) {
    std::array<qint16, 24> table{9, 255};
    table[18] = 3;
    ASSERT_TRUE(link.PLSConfigDownload(table, 360));
    Upload();
    EXPECT_EQ(gPLS.Channels, 8);
    EXPECT_EQ(gPLS.PLSProgram, 7);
    EXPECT_EQ(gPLS.SpeedComp[0], 255);
    EXPECT_FALSE(link.CommError());
}

TEST_F(UploadPLS, MoreChannelsThanTheFileHoldsAreARunTimeFailure) {
    std::array<qint16, 24> table{};
    table[18] = 200;
    ASSERT_TRUE(link.PLSConfigDownload(table, 360));
    dialogs.ExpectBox(QStringLiteral("Unable to Upload Configuration and       \r\n"
                                     "Timing Channel Setpoints from PLS.\r\n\r\n"
                                     "Error Number = 6\r\n\r\nOverflow"),
                      MsgStyle::Exclamation, QStringLiteral("PLS Recall"), MsgAnswer::Ok);
    Upload();
    EXPECT_TRUE(link.CommError());
}

TEST_F(UploadPLS, ASetThatCannotBeReadIsARunTimeFailure) {
    WriteSetFile("hdn", "\r\n");
    dialogs.ExpectBoxTitled(QStringLiteral("PLS Recall"), MsgAnswer::Ok);
    Upload();
    EXPECT_TRUE(link.CommError());
}

TEST_F(UploadPLS, AScaleFactorThatDoesNotComeIsALinkFailure) {
    // Both tries of the word lose a byte; the line itself answers again each time.
    for (const int reply : {21 + 3, 21 + 3 + 1 + 3})
        line->Faults().Order({.kind = haldenboard::FaultKind::Lost, .nth = reply, .bytes = {}});
    gPLS.ScaleFactor = 77;
    Upload();
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(gPLS.ScaleFactor, 77);
}

TEST_F(UploadPLS, AChannelThatTheBoardDoesNotGiveIsReportedAndTheJobGoesOn) {
    Configure(16, 360);
    Program(8, {{20, 10}});
    Program(9, {{40, 30}});
    SpoilReply(21 + 4 + 4 + 8 * 6 + 3);
    dialogs.ExpectBox(QStringLiteral("Unable to Recall Channel CH10"), MsgStyle::Information,
                      QStringLiteral("Channel Recall"), MsgAnswer::Ok);
    Upload();
    EXPECT_EQ(gPLS.Chan[8], SetpointList{Setpoint{}});
    EXPECT_EQ(gPLS.Chan[9], (SetpointList{{40, 30}}));
    EXPECT_FALSE(link.CommError());
}

TEST_F(UploadStandard, ReadsTheStandardLayout) {
    std::array<qint16, 24> table{3, 40, 44, 1, 5, 6, 10, 0, 20, 1, 10, 0, 20, 1, 100, 1, 200, 2};
    table[18] = 32;
    ASSERT_TRUE(link.PLSConfigDownload(table, 512));
    jobs.UploadPLSChannels(progress);
    EXPECT_EQ(gPLS.Channels, 16) << "whatever the table holds";
    EXPECT_EQ(gPLS.OptionFlags, 3);
    EXPECT_EQ(gPLS.StrobePreset, 40);
    EXPECT_EQ(gPLS.StopLocation, 300);
    EXPECT_EQ(gPLS.StopError, 5);
    EXPECT_EQ(gPLS.SignalWidth, 6);
    EXPECT_EQ(gPLS.WindowOn, 10);
    EXPECT_EQ(gPLS.WindowOff, 276);
    EXPECT_EQ(gPLS.LowThreshold, 356);
    EXPECT_EQ(gPLS.HighThreshold, 712);
    EXPECT_EQ(gPLS.PCFText, QStringLiteral("16") + QStringLiteral("512") +
                                QStringLiteral("3040300005006010276") + QStringLiteral("03560712") +
                                QString(16, u'0') + QStringLiteral("%"));
    EXPECT_TRUE(gPLS.CHLText.startsWith(QStringLiteral(":512\r\n:000\r\n:001:00:00:00")));
}

TEST_F(UploadR6041, ReadsItsOwnNumberOfChannels) {
    UploadWith(32);
    EXPECT_EQ(gPLS.Channels, 32);
    EXPECT_EQ(progress.messages.size(), 32);
    EXPECT_EQ(gPLS.CHLText.count(QStringLiteral("1:00:00:00")), 32);
}

TEST_F(UploadR6041, FewerThan16ChannelsBecome16) {
    UploadWith(5);
    EXPECT_EQ(gPLS.Channels, 16);
    EXPECT_EQ(progress.messages.size(), 16);
}
