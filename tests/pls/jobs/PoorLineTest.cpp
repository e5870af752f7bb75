#include "pls/jobs/PLSJobsFixture.h"

#include <set>

// A download over a line that spoils one reply, for each reply and each way of spoiling it. What
// the board holds afterwards is what the files say, or what was there before, or nothing: never a
// position that nobody asked for, and the machine runs on.

namespace {
using Kind = haldenboard::FaultKind;

// Gives up where the link asks, and reads all else.
class PatientDialogs final : public Dialogs {
public:
    int MsgBox(const QString&, int style, const QString&) override {
        ++boxes;
        return style == MsgStyle::CriticalRetryCancel ? MsgAnswer::Cancel : MsgAnswer::Ok;
    }
    QString InputBox(const QString&, const QString&, const QString&) override { return QString(); }
    QString ShowOpen(const FileDialogRequest&) override { return QString(); }
    QString ShowSave(const FileDialogRequest&) override { return QString(); }
    PrinterChoice ShowPrinter() override { return PrinterChoice(); }

    int boxes = 0;
};

class PoorLine : public PLSJobsFixture, public testing::WithParamInterface<Kind> {
protected:
    PoorLine() {
        WriteSetFile("PCF", "0803600" + QByteArray(24 + 16, '0') + "%\r\n");
        WriteSetFile("CHL", ":0360\r\n:0000\r\n:001:000:000:000A\r\n|00030020\r\n|00300003\r\n"
                            ":011:000:000:000B\r\n:031:000:000:000C\r\n|03000259\r\n%\r\n");
    }
    void StartBoard() {
        ConnectBoard(BoardIndex::R6500);
        Configure(8, 360);
        Program(3, {{3, 2}});
        Program(5, {{9, 8}});
    }
    // Runs the download on a link of its own and counts the boxes that the user saw.
    int Download() {
        PatientDialogs answers;
        RSComm host(answers, clock, busy, folder);
        boardPort->SetPortOpen(false);
        host.OpenRSComm(*boardPort);
        PLSJobs(host, answers).DownloadPLSChannels(progress);
        return answers.boxes;
    }
    std::vector<haldenboard::PlsEdge> AllEdges() const {
        std::vector<haldenboard::PlsEdge> all;
        for (int channel = 0; channel < 8; ++channel)
            for (const haldenboard::PlsEdge& edge : Edges(channel))
                all.push_back(edge);
        return all;
    }
};
INSTANTIATE_TEST_SUITE_P(Faults, PoorLine,
                         testing::Values(Kind::Lost, Kind::Late, Kind::Wrong, Kind::Doubled,
                                         Kind::Reset));
const std::set<int> positions{2, 3, 8, 9, 20, 30, 259, 300};
} // namespace

TEST_P(PoorLine, NoSpoiledReplyProgramsAnythingElse) {
    StartBoard();
    const int before = RepliesSoFar();
    ASSERT_EQ(Download(), 0);
    const int replies = RepliesSoFar() - before;
    const auto wanted = AllEdges();
    ASSERT_GT(replies, 100);
    for (int nth = 1; nth <= replies; ++nth) {
        SCOPED_TRACE(nth);
        StartBoard();
        line->Faults().Order({.kind = GetParam(), .nth = nth, .seconds = 1.2, .bytes = {}});
        const int boxes = Download();
        for (const haldenboard::PlsEdge& edge : AllEdges())
            ASSERT_TRUE(positions.count(edge.position)) << edge.position;
        ASSERT_FALSE(board->InProgramMode());
        if (boxes == 0) { // the user takes it for done
            ASSERT_EQ(AllEdges(), wanted);
        }
    }
}
