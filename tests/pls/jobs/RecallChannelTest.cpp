#include "pls/jobs/PLSJobsFixture.h"
#include "pls/RecallChannelSetpoints.h"

#include <algorithm>
#include <random>

namespace {
class RecallChannelSetpointsTest : public PLSJobsFixture {
protected:
    void Recall(int channel) {
        RecallChannelSetpoints(static_cast<qint16>(channel), link, dialogs,
                               [this](const QString& caption) { captions.append(caption); });
    }
    const SetpointList& Chan(int channel) const {
        return gPLS.Chan.at(static_cast<std::size_t>(channel));
    }
    QStringList captions;
};
using RecallScripted = LinkUnderTest;

Setpoint Span(int on, int off) {
    return {static_cast<qint16>(off), static_cast<qint16>(on)};
}

// Spans that do not overlap, some of which touch and the last of which may wrap, in random order.
SetpointList RandomSpans(std::mt19937& random, int scaleFactor, int mostSpans) {
    std::vector<int> cuts(static_cast<std::size_t>(scaleFactor));
    for (std::size_t place = 0; place < cuts.size(); ++place)
        cuts[place] = static_cast<int>(place);
    std::shuffle(cuts.begin(), cuts.end(), random);
    cuts.resize(std::min<std::size_t>(cuts.size(), 2 + random() % (2 * mostSpans)));
    std::sort(cuts.begin(), cuts.end());
    std::rotate(cuts.begin(), cuts.begin() + random() % 2, cuts.end());
    SetpointList spans;
    for (std::size_t place = 0; place + 1 < cuts.size();) {
        spans.append(Span(cuts[place], cuts[place + 1]));
        place += random() % 4 == 0 ? 1 : 2; // the next span begins where this one ends, or later
    }
    std::shuffle(spans.begin(), spans.end(), random);
    return spans;
}

SetpointList ByOn(SetpointList spans) {
    std::sort(spans.begin(), spans.end(),
              [](const Setpoint& a, const Setpoint& b) { return a.on < b.on; });
    return spans;
}
} // namespace

TEST_F(RecallChannelSetpointsTest, AChannelWithNoProgrammedSetpointReadsBackAsTheOnePairZeroZero) {
    Configure(8, 360);
    gPLS.Chan[3] = {Span(1, 2), Span(3, 4)};
    Recall(3);
    EXPECT_EQ(Chan(3), SetpointList{Setpoint{}});
    EXPECT_TRUE(captions.isEmpty());
}

TEST_F(RecallChannelSetpointsTest, SetpointsComeSortedByOn) {
    Configure(8, 360);
    Program(0, {Span(300, 310), Span(10, 20), Span(350, 5)});
    Recall(0);
    EXPECT_EQ(Chan(0), (SetpointList{Span(10, 20), Span(300, 310), Span(350, 5)}));
}

TEST_F(RecallChannelSetpointsTest, TheLabelTellsChannelAndSetpoint) {
    Configure(16, 360);
    Program(8, {Span(300, 310), Span(10, 20)});
    Recall(8);
    EXPECT_EQ(captions, (QStringList{QStringLiteral("Recalling CH10 Setpoint: 0"),
                                     QStringLiteral("Recalling CH10 Setpoint: 1")}));
}

TEST_F(RecallChannelSetpointsTest, BeginsWhereverTheBoardStands) {
    Configure(8, 360);
    const SetpointList spans{Span(10, 20), Span(20, 40), Span(100, 110), Span(300, 5)};
    Program(0, spans);
    for (int recall = 0; recall < 20; ++recall) {
        for (int ahead = 0; ahead < recall; ++ahead)
            ASSERT_TRUE(link.RecallChannel(0));
        Recall(0);
        ASSERT_EQ(Chan(0), spans) << "recall " << recall;
    }
}

TEST_F(RecallChannelSetpointsTest, SpansThatTouchAllRoundComeBack) {
    Configure(8, 360);
    const SetpointList spans{Span(0, 180), Span(180, 0)};
    Program(0, spans);
    Recall(0);
    EXPECT_EQ(Chan(0), spans);
}

TEST_F(RecallChannelSetpointsTest, AWholeCycleOfOneDivisionSpansComesBack) {
    Configure(8, 4096);
    SetpointList spans;
    for (int on = 0; on < 4096; on += 2)
        spans.append(Span(on, on + 1));
    Program(0, spans);
    Recall(0);
    EXPECT_EQ(Chan(0).size(), 2048);
    EXPECT_EQ(Chan(0), spans);
}

TEST_F(RecallChannelSetpointsTest, AThousandRandomListsComeBack) {
    std::mt19937 random(20261121);
    constexpr int scales[] = {2, 3, 16, 255, 256, 257, 360, 512, 1000, 4096};
    for (int run = 0; run < 1000; ++run) {
        if (run % 25 == 0)
            Configure(8, scales[static_cast<std::size_t>(run / 25) % std::size(scales)]);
        const int channel = static_cast<int>(random() % 8);
        const SetpointList spans = RandomSpans(random, gPLS.ScaleFactor, 8);
        Program(channel, spans);
        Recall(channel);
        ASSERT_EQ(Chan(channel), ByOn(spans)) << "run " << run << " scale " << gPLS.ScaleFactor;
    }
}

TEST_F(RecallChannelSetpointsTest, ALineThatDiesLeavesTheChannelAsItWas) {
    Configure(8, 360);
    Program(0, {Span(10, 20), Span(30, 40)});
    for (int reply = 1; reply <= 6 * 6; reply += 5) {
        gPLS.Chan[0] = {Span(7, 8)};
        line->Faults().Clear();
        link.SetCommError(false);
        CutLineAtReply(reply);
        ExpectDeadLine();
        Recall(0);
        EXPECT_TRUE(link.CommError());
        EXPECT_EQ(Chan(0), SetpointList{Span(7, 8)});
    }
}

TEST_F(RecallChannelSetpointsTest, WithCommErrorNothingChangesAndNothingIsSaid) {
    gPLS.Chan[0] = {Span(7, 8)};
    link.SetCommError(true);
    Recall(0);
    EXPECT_EQ(Chan(0), SetpointList{Span(7, 8)});
}

TEST_F(RecallChannelSetpointsTest, AnEdgeThatTheBoardDoesNotGiveIsReported) {
    Configure(16, 360);
    Program(8, {Span(10, 20), Span(30, 40)});
    SpoilReply(6 + 6 + 3); // the acknowledge of the channel in the third recall
    dialogs.ExpectBox(QStringLiteral("Unable to Recall Channel CH10"), MsgStyle::Information,
                      QStringLiteral("Channel Recall"), MsgAnswer::Ok);
    Recall(8);
    EXPECT_EQ(Chan(8), SetpointList{Setpoint{}});
    EXPECT_FALSE(link.CommError());
}

TEST_F(RecallChannelSetpointsTest, AReplyThatIsLostOnceCostsNoSetpoint) {
    Configure(8, 360);
    const SetpointList spans{Span(10, 20), Span(30, 40)};
    Program(0, spans);
    for (int reply = 1; reply <= 6 * 6; ++reply) {
        if (reply % 6 == 0)
            continue; // the board may count the edge as given, and the recall is refused
        line->Faults().Order({.kind = haldenboard::FaultKind::Lost, .nth = reply, .bytes = {}});
        gPLS.Chan[0].clear();
        Recall(0);
        ASSERT_EQ(Chan(0), spans) << "reply " << reply;
        ASSERT_FALSE(link.CommError());
    }
}

// A board that has lost count gives edges for ever.
TEST(RecallChannelSetpointsScripted, AListOfMoreThan2048PairsStopsThere) {
    LinkUnderTest host;
    host.GoOnline();
    gPLS = PLSRecord();
    gPLS.ScaleFactor = 4096;
    constexpr int pairs = 2049;
    for (int edge = 0; edge < 2 * pairs; ++edge) {
        const int position = edge == 0 ? 0 : 1 + edge % 4000; // the first ON never comes again
        host.AcceptHandshake();
        host.port.Replies({0x55, (edge + 1) % 2, position % 256, position / 256});
    }
    RecallChannelSetpoints(0, host.link, host.dialogs);
    EXPECT_EQ(gPLS.Chan[0].size(), pairs);
    EXPECT_EQ(host.port.Sent().size(), static_cast<std::size_t>(2 * pairs * 6));
    gPLS = PLSRecord();
}

TEST(RecallChannelSetpointsScripted, ABoardThatRunsOutOfEdgesLeavesAPlaceholder) {
    LinkUnderTest host;
    host.GoOnline();
    gPLS = PLSRecord();
    gPLS.ScaleFactor = 360;
    const std::vector<std::pair<int, int>> edges{{1, 30}, {0, 40}, {2, 0}};
    for (const auto& [state, position] : edges) {
        host.AcceptHandshake();
        host.port.Replies({0x55, state, position, 0});
    }
    RecallChannelSetpoints(5, host.link, host.dialogs);
    EXPECT_EQ(gPLS.Chan[5], (SetpointList{Setpoint{}, Span(30, 40)}));
    gPLS = PLSRecord();
}
