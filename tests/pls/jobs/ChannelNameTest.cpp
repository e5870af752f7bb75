#include "pls/jobs/PLSJobsFixture.h"

// Users know the ninth channel, number 8, by its octal name.

namespace {
class NinthChannel : public PLSJobsFixture {
protected:
    NinthChannel() {
        WriteSetFile("PCF", "1603600" + QByteArray(24 + 16, '0') + "%\r\n");
        WriteSetFile("CHL", ":0360\r\n:0000\r\n:101:000:000:000A\r\n|00100020\r\n%\r\n");
        Configure(16, 360);
        Program(8, {{20, 10}});
    }
    void ExpectBox(const char* text, int style, const char* title) {
        dialogs.ExpectBox(QLatin1String(text), style, QLatin1String(title), MsgAnswer::Ok);
    }
    // What the busy view was told, the ninth channel's line of it last.
    void ExpectTold(const char* message, const QStringList& secondLines) {
        ASSERT_GE(progress.messages.size(), 9);
        EXPECT_EQ(progress.messages[8], QLatin1String(message));
        EXPECT_EQ(progress.secondLines, secondLines);
        EXPECT_TRUE(progress.messages.filter(QStringLiteral("CH8")).isEmpty());
        EXPECT_TRUE(progress.secondLines.filter(QStringLiteral("CH8")).isEmpty());
    }
    // Replies of an upload before the first byte for channel 8: table, scale factor, offset and
    // one recall for each channel with nothing programmed.
    static constexpr int repliesBeforeIt = 21 + 4 + 4 + 8 * 6;
    // Replies of a download before the same: blocks and scale factor.
    static constexpr int configurationReplies = 4 * 11 + 7;
};
} // namespace

TEST_F(NinthChannel, Channel8IsShownAsCH10InEveryMessageOfAnUpload) {
    jobs.UploadPLSChannels(progress);
    ExpectTold("Uploading Channel CH10 Data, Please Standby ...",
               {QStringLiteral("Recalling CH10 Setpoint: 0")});
    EXPECT_TRUE(gPLS.CHLText.contains(QStringLiteral(":101:000:000:000")));
    SpoilReply(repliesBeforeIt + 3);
    ExpectBox("Unable to Recall Channel CH10", 64, "Channel Recall");
    jobs.UploadPLSChannels(progress);
}

TEST_F(NinthChannel, Channel8IsShownAsCH10InEveryMessageOfADownload) {
    jobs.DownloadPLSChannels(progress);
    ExpectTold("Downloading Channel CH10 Data, Please Standby ...",
               {QStringLiteral("Programming CH10 Setpoint: 0")});
    SpoilReply(configurationReplies + 4 + 3);
    ExpectBox("Unable to Successfully Program Setpoint for Channel CH10.", 48,
              "PLS Channel Download");
    jobs.DownloadPLSChannels(progress);
}

TEST_F(NinthChannel, Channel8IsShownAsCH10InEveryMessageOfAClearing) {
    jobs.ClearPLSChannels(progress);
    ExpectTold("Clearing Channel CH10 Data, Please Standby ...", {});
    SpoilReply(8 * (11 + 6) + 11 + 3);
    ExpectBox("Unable to Recall Channel CH10", 64, "Channel Recall");
    jobs.ClearPLSChannels(progress);
}
