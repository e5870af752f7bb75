#include "pls/jobs/PLSJobsFixture.h"

namespace {
class DownloadPLS : public PLSJobsFixture {
protected:
    void Download() { jobs.DownloadPLSChannels(progress); }
    // Files of a set with 16 channels and these lines in the channel file.
    void WriteFiles(const QByteArray& channelLines) {
        WriteSetFile("PCF", "1603605010011012013014015016255" + QByteArray(16, '0') + "%\r\n");
        WriteSetFile("CHL", ":0360\r\n:0000\r\n" + channelLines + "%\r\n");
    }
    void ExpectFailedSetpoint(const char* channel) {
        dialogs.ExpectBox(
            QStringLiteral("Unable to Successfully Program Setpoint for Channel CH%1.")
                .arg(QLatin1String(channel)),
            MsgStyle::Exclamation, QStringLiteral("PLS Channel Download"), MsgAnswer::Ok);
    }
    // Replies up to the first byte of the channels: blocks, scale factor.
    static constexpr int configurationReplies = 4 * 11 + 7;
};
class ClearPLS : public PLSJobsFixture {};
using PlsEdges = std::vector<haldenboard::PlsEdge>;
} // namespace

TEST_F(DownloadPLS, SendsConfigurationAndChannels) {
    WriteFiles(":001:000:000:000A\r\n|00100020\r\n|00300040\r\n:101:000:000:000B\r\n|03500005\r\n");
    Download();
    EXPECT_EQ(board->Pls().ScaleFactor(), 360);
    EXPECT_EQ(board->Pls().Channels(), 16);
    EXPECT_EQ(board->Pls().ConfigTable()[1], 5);
    EXPECT_EQ(board->Pls().ConfigTable()[9], 255);
    EXPECT_EQ(Edges(0), (PlsEdges{{1, 10}, {0, 20}, {1, 30}, {0, 40}}));
    EXPECT_EQ(Edges(8), (PlsEdges{{0, 5}, {1, 350}}));
    EXPECT_EQ(gPLS.ScaleFactor, 360);
    EXPECT_EQ(gPLSSnapshot, gPLS);
}

TEST_F(DownloadPLS, AChannelWhoseFirstPairIsZeroZeroIsClearedAndSendsNoSetpoint) {
    Configure(16, 360);
    Program(1, {{20, 10}});
    WriteFiles(":011:000:000:000A\r\n");
    const int before = RepliesSoFar();
    Download();
    EXPECT_EQ(Edges(1), PlsEdges{});
    EXPECT_EQ(RepliesSoFar() - before, configurationReplies + 11) << "one record";
}

TEST_F(DownloadPLS, TheFirstSetpointStartsTheChannelAfresh) {
    Configure(16, 360);
    Program(1, {{200, 100}});
    WriteFiles(":011:000:000:000A\r\n|00100020\r\n");
    Download();
    EXPECT_EQ(Edges(1), (PlsEdges{{1, 10}, {0, 20}}));
}

TEST_F(DownloadPLS, AChannelThatTheFileDoesNotNameIsLeftAlone) {
    Configure(16, 360);
    Program(2, {{200, 100}});
    WriteFiles(":011:000:000:000A\r\n|00100020\r\n");
    Download();
    EXPECT_EQ(Edges(2), (PlsEdges{{1, 100}, {0, 200}}));
}

TEST_F(DownloadPLS, AnEmptyPairBehindOthersClearsTheChannel) {
    WriteFiles(":011:000:000:000A\r\n|00100020\r\n|00500050\r\n|00600070\r\n");
    Download();
    EXPECT_EQ(Edges(1), PlsEdges{});
}

TEST_F(DownloadPLS, ASetpointThatIsRefusedIsReportedAndTheJobGoesOn) {
    WriteFiles(":101:000:000:000A\r\n|03600020\r\n|00300040\r\n:111:000:000:000B\r\n|00500060\r\n");
    dialogs.ExpectBoxTitled(QStringLiteral("PLS Single Setpoint"), MsgAnswer::Ok);
    ExpectFailedSetpoint("10");
    Download();
    EXPECT_EQ(Edges(8), (PlsEdges{{1, 30}, {0, 40}}));
    EXPECT_EQ(Edges(9), (PlsEdges{{1, 50}, {0, 60}}));
    EXPECT_EQ(gPLSSnapshot, gPLS);
}

TEST_F(DownloadPLS, ASetpointThatTheLineSpoilsIsReportedAndTheNextOneIsWhole) {
    WriteFiles(":101:000:000:000A\r\n|00300040\r\n:111:000:000:000B\r\n|00500060\r\n");
    SpoilReply(configurationReplies + 4 + 11 + 4); // data of the record
    ExpectFailedSetpoint("10");
    Download();
    EXPECT_EQ(Edges(9), (PlsEdges{{1, 50}, {0, 60}}));
}

TEST_F(DownloadPLS, AChannelThatCannotBeClearedIsReported) {
    WriteFiles(":101:000:000:000A\r\n");
    SpoilReply(configurationReplies + 4);
    ExpectFailedSetpoint("10");
    Download();
}

TEST_F(DownloadPLS, AConfigurationThatTheBoardDoesNotTakeEndsIt) {
    WriteFiles(":011:000:000:000A\r\n|00100020\r\n");
    SpoilReply(5);
    dialogs.ExpectBox(QStringLiteral("Unable to Successfully Download the PLS Configuration"),
                      MsgStyle::Exclamation, QStringLiteral("PLS Config Download"), MsgAnswer::Ok);
    Download();
    EXPECT_EQ(Edges(1), PlsEdges{});
    EXPECT_EQ(gPLSSnapshot, gPLS);
    EXPECT_TRUE(progress.messages.isEmpty());
}

TEST_F(DownloadPLS, TellsHowFarItIs) {
    WriteFiles(":101:000:000:000A\r\n|00300040\r\n|00500060\r\n");
    Download();
    EXPECT_EQ(progress.max, 16);
    ASSERT_EQ(progress.values.size(), 17u);
    EXPECT_EQ(progress.values.back(), 16);
    ASSERT_EQ(progress.messages.size(), 16);
    EXPECT_EQ(progress.messages[8],
              QStringLiteral("Downloading Channel CH10 Data, Please Standby ..."));
    EXPECT_EQ(progress.secondLines, (QStringList{QStringLiteral("Programming CH10 Setpoint: 0"),
                                                 QStringLiteral("Programming CH10 Setpoint: 1")}));
}

// A blank record would set the board to nothing.
TEST_F(DownloadPLS, FilesThatCannotBeReadSendNothing) {
    WriteSetFile("PCF", "1699999" + QByteArray(41, '0') + "%\r\n");
    WriteSetFile("CHL", ":0360\r\n:0000\r\n|00100020\r\n");
    dialogs.ExpectBoxTitled(QStringLiteral("ReadPLSFileData()"), MsgAnswer::Ok);
    dialogs.ExpectBoxTitled(QStringLiteral("PLS Config Download"), MsgAnswer::Ok);
    const int before = RepliesSoFar();
    Download();
    EXPECT_EQ(RepliesSoFar(), before);
}

TEST_F(DownloadPLS, ASetOfAnotherKindOfBoardSendsNothing) {
    WriteSetFile("hdn", "3\r\n");
    dialogs.ExpectBoxTitled(QStringLiteral("PLS Config Download"), MsgAnswer::Ok);
    const int before = RepliesSoFar();
    Download();
    EXPECT_EQ(RepliesSoFar(), before);
}

TEST_F(DownloadPLS, WhatIsUploadedAgainGivesTheFilesBack) {
    const QByteArray label = QByteArray("Gate").leftJustified(21, ' ');
    QByteArray channels;
    for (int channel = 0; channel < 16; ++channel)
        channels += ":" + QByteArray::number(channel, 8).rightJustified(2, '0') + "1:000:000:000" +
                    label + "\r\n" +
                    (channel % 3 == 0 ? "|00100020\r\n|00300040\r\n|03500005\r\n" : "");
    WriteFiles(channels);
    Download();
    jobs.UploadPLSChannels(progress);
    EXPECT_EQ(gPLS.PCFText.toLatin1() + "\r\n", SetFileContent("PCF"));
    EXPECT_EQ(gPLS.CHLText.toLatin1() + "\r\n", SetFileContent("CHL"));
}

TEST_F(ClearPLS, ClearsEveryChannelAndReadsItBack) {
    Configure(16, 360);
    for (int channel = 0; channel < 16; ++channel)
        Program(channel, {{20, 10}});
    jobs.ClearPLSChannels(progress);
    for (int channel = 0; channel < 16; ++channel) {
        EXPECT_EQ(Edges(channel), PlsEdges{});
        EXPECT_EQ(gPLS.Chan.at(static_cast<std::size_t>(channel)), SetpointList{Setpoint{}});
    }
    EXPECT_TRUE(gPLS.Chan[16].isEmpty());
    EXPECT_EQ(progress.max, 16);
    EXPECT_EQ(progress.values.back(), 16);
    ASSERT_EQ(progress.messages.size(), 16);
    EXPECT_EQ(progress.messages[8],
              QStringLiteral("Clearing Channel CH10 Data, Please Standby ..."));
    EXPECT_TRUE(progress.secondLines.isEmpty());
}

TEST_F(ClearPLS, StopsAtAChannelThatCannotBeCleared) {
    Configure(8, 360);
    for (int channel = 0; channel < 3; ++channel)
        Program(channel, {{20, 10}});
    SpoilReply(11 + 6 + 5);
    dialogs.ExpectBox(QStringLiteral("Unable to Clear Channel"), MsgStyle::Information,
                      QStringLiteral("Clear Channel"), MsgAnswer::Ok);
    jobs.ClearPLSChannels(progress);
    EXPECT_EQ(gPLS.Chan[0], SetpointList{Setpoint{}});
    EXPECT_TRUE(gPLS.Chan[1].isEmpty());
    EXPECT_EQ(Edges(2), (PlsEdges{{1, 10}, {0, 20}}));
}
