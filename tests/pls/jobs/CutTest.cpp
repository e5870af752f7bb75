#include "pls/jobs/PLSJobsFixture.h"

#include "pls/ReadPLSFileData.h"

// Each job on a line that dies at every tenth byte.

namespace {
constexpr int step = 10;

class PLSJobCut : public PLSJobsFixture {
protected:
    PLSJobCut() {
        WriteSetFile("PCF", pcf);
        WriteSetFile("CHL", chl);
    }

    // A board whose channels hold other setpoints than the files.
    void ProgramBoard() {
        ConnectBoard(BoardIndex::R6500);
        Configure(8, 720);
        for (int channel = 0; channel < 8; ++channel)
            Program(channel, BoardSetpoints(channel));
        gPLS = PLSRecord();
        gPLSSnapshot = PLSRecord();
        gPLSSnapshot.PCFText = QStringLiteral("before");
    }
    static SetpointList BoardSetpoints(int channel) {
        return {{static_cast<qint16>(120 + channel), 110}, {static_cast<qint16>(channel), 600}};
    }
    // Runs the job with the line cut at each tenth reply, up to the one that it ends with.
    // `reported` replies are those of which a failure has a box of its own besides the alert.
    void CutEverywhere(const std::function<void()>& prepare, const std::function<void()>& run,
                       int reported, const std::function<void()>& look) {
        ProgramBoard();
        prepare();
        const int before = RepliesSoFar();
        run();
        const int whole = RepliesSoFar() - before;
        ASSERT_GT(whole, 2 * step);
        for (int cut = 1; cut <= whole; cut += step) {
            SCOPED_TRACE(cut);
            ProgramBoard();
            prepare();
            CutLineAtReply(cut);
            ExpectDeadLine();
            if (cut <= reported)
                dialogs.ExpectBoxTitled(QStringLiteral("PLS Upload"), MsgAnswer::Ok);
            run();
            EXPECT_TRUE(link.CommError());
            EXPECT_EQ(SetFileContent("PCF"), pcf);
            EXPECT_EQ(SetFileContent("CHL"), chl);
            look();
            if (HasFailure())
                return;
        }
    }

    const QByteArray pcf = "0803600" + QByteArray(24 + 16, '0') + "%\r\n";
    const QByteArray chl = ":0360\r\n:0000\r\n:001:000:000:000A\r\n|00100020\r\n|00300040\r\n"
                           ":011:000:000:000B\r\n:021:000:000:000C\r\n|03500005\r\n%\r\n";
};
} // namespace

TEST_F(PLSJobCut, AnUploadLeavesTheChannelsReadSoFarAndTheOthersAsTheyWere) {
    PLSRecord before;
    PLSRecord whole;
    const auto prepare = [&] {
        ASSERT_TRUE(ReadPLSFileData(gHdnFile, dialogs));
        before = gPLS;
    };
    const auto run = [&] {
        jobs.UploadPLSChannels(progress);
        if (!link.CommError())
            whole = gPLS;
    };
    CutEverywhere(prepare, run, 2 + 19, [&] {
        EXPECT_EQ(gPLSSnapshot, before);
        EXPECT_EQ(gPLS.ChanHeader, before.ChanHeader);
        EXPECT_TRUE(gPLS.PCFText == before.PCFText || gPLS.PCFText == whole.PCFText);
        EXPECT_TRUE(whole.CHLText.startsWith(gPLS.CHLText));
        EXPECT_LT(gPLS.CHLText.size(), whole.CHLText.size()) << "no complete text to save";
        std::size_t read = 0;
        while (read < 8 && gPLS.Chan.at(read) == BoardSetpoints(static_cast<int>(read)))
            ++read;
        EXPECT_LT(read, 8u);
        for (; read < gPLS.Chan.size(); ++read)
            EXPECT_EQ(gPLS.Chan.at(read), before.Chan.at(read));
    });
}

TEST_F(PLSJobCut, ADownloadLeavesWhatTheFilesHold) {
    CutEverywhere([] {}, [this] { jobs.DownloadPLSChannels(progress); }, 0,
                  [this] {
                      const PLSRecord record = gPLS;
                      EXPECT_EQ(gPLSSnapshot.PCFText, QStringLiteral("before"));
                      ASSERT_TRUE(ReadPLSFileData(gHdnFile, dialogs));
                      EXPECT_EQ(record, gPLS);
                  });
}

TEST_F(PLSJobCut, AClearingLeavesTheChannelsClearedSoFarAndTheOthersAsTheyWere) {
    const auto prepare = [] {
        gPLS.Channels = 8;
        gPLS.ScaleFactor = 720;
        for (int channel = 0; channel < 8; ++channel)
            gPLS.Chan.at(static_cast<std::size_t>(channel)) = BoardSetpoints(channel);
    };
    CutEverywhere(
        prepare, [this] { jobs.ClearPLSChannels(progress); }, 0,
        [this] {
            EXPECT_EQ(gPLSSnapshot.PCFText, QStringLiteral("before"));
            std::size_t cleared = 0;
            while (cleared < 8 && gPLS.Chan.at(cleared) == SetpointList{Setpoint{}})
                ++cleared;
            for (; cleared < 8; ++cleared)
                EXPECT_EQ(gPLS.Chan.at(cleared), BoardSetpoints(static_cast<int>(cleared)));
        });
}
