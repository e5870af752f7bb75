#include "Say.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using haldenboard::ChannelTrack;
using haldenboard::PlsEdge;
using haldenboard::SimulatedBoard;

namespace {

uint8_t Low(int value) {
    return static_cast<uint8_t>(value % 256);
}
uint8_t High(int value) {
    return static_cast<uint8_t>(value / 256);
}

void Record(SimulatedBoard& board, uint8_t channel, int on, int off, uint8_t flag = 1) {
    EXPECT_EQ(Say(board, {0xFF, 0x1B, channel, Low(on), High(on), Low(off), High(off), flag}),
              Answers(8, 0x55));
    EXPECT_EQ(Say(board, {0x38, 0x55, 0x55}), (Answers{0x55, 0x00, 0x55}));
}

PlsEdge Recall(SimulatedBoard& board, uint8_t channel) {
    const Answers answers = Say(board, {0xFF, 0x09, channel, 0x55, 0x55, 0x55});
    EXPECT_EQ(answers[2], 0x55);
    return {Low(answers[3]), static_cast<uint16_t>(answers[4] + 256 * answers[5])};
}

} // namespace

TEST(Recall, OfNothingGivesStateTwo) {
    SimulatedBoard board(69);
    EXPECT_EQ(Say(board, {0xFF, 0x09, 0x00, 0x55, 0x55, 0x55}),
              (Answers{0x55, 0x55, 0x55, 2, 0, 0}));
    EXPECT_EQ(Recall(board, 8), (PlsEdge{2, 0})); // a channel the board does not have
}

TEST(Recall, GivesOneEdgeEachTimeAndGoesRound) {
    SimulatedBoard board(69);
    Record(board, 3, 300, 350);
    Record(board, 3, 10, 20);
    const std::vector<PlsEdge> turn = {{1, 10}, {0, 20}, {1, 300}, {0, 350}};
    for (int round = 0; round < 2; ++round)
        for (const PlsEdge& edge : turn)
            EXPECT_EQ(Recall(board, 3), edge);
}

TEST(Recall, OfASetpointThroughZeroBeginsWithItsOffEdge) {
    SimulatedBoard board(69);
    Record(board, 0, 350, 20);
    EXPECT_EQ(Recall(board, 0), (PlsEdge{0, 20}));
    EXPECT_EQ(Recall(board, 0), (PlsEdge{1, 350}));
    EXPECT_EQ(Recall(board, 0), (PlsEdge{0, 20}));
}

TEST(Recall, KeepsAPlaceForEachChannel) {
    SimulatedBoard board(69);
    Record(board, 0, 10, 20);
    Record(board, 1, 30, 40);
    EXPECT_EQ(Recall(board, 0), (PlsEdge{1, 10}));
    EXPECT_EQ(Recall(board, 1), (PlsEdge{1, 30}));
    EXPECT_EQ(Recall(board, 0), (PlsEdge{0, 20}));
    EXPECT_EQ(Recall(board, 1), (PlsEdge{0, 40}));
}

TEST(Recall, StartsAfreshWhenTheChannelIsProgrammed) {
    SimulatedBoard board(69);
    Record(board, 0, 10, 20);
    Recall(board, 0);
    Record(board, 0, 30, 40);
    EXPECT_EQ(Recall(board, 0), (PlsEdge{1, 10}));
    Record(board, 0, 0, 0, 0);
    EXPECT_EQ(Recall(board, 0), (PlsEdge{2, 0}));
}

TEST(Recall, CountsAnEdgeOnlyWhenItsLastByteIsOut) {
    SimulatedBoard board(69);
    Record(board, 0, 10, 20);
    Say(board, {0xFF, 0x09, 0x00, 0x55, 0x55}); // cut before the high byte
    EXPECT_EQ(Recall(board, 0), (PlsEdge{1, 10}));
    EXPECT_EQ(Recall(board, 0), (PlsEdge{0, 20}));
}

TEST(ChannelRecord, OutOfRangeChangesNothing) {
    SimulatedBoard board(69);
    Record(board, 0, 360, 20);
    Record(board, 0, 20, 360);
    Record(board, 0, 20, 20);
    Record(board, 0, 10, 20, 2);
    Record(board, 8, 10, 20);
    EXPECT_EQ(Recall(board, 0), (PlsEdge{2, 0}));
    Record(board, 0, 359, 0);
    EXPECT_EQ(Recall(board, 0), (PlsEdge{0, 0}));
    EXPECT_EQ(Recall(board, 0), (PlsEdge{1, 359}));
}

TEST(PulseTrain, FillsTheTurn) {
    SimulatedBoard board(69);
    Record(board, 5, 1, 2);
    EXPECT_EQ(Say(board, {0xFF, 0x2B, 5, 30, 0, 20, 100, 0}), Answers(8, 0x55));
    for (const PlsEdge& edge :
         std::vector<PlsEdge>{{1, 30}, {0, 50}, {1, 150}, {0, 170}, {1, 270}, {0, 290}, {1, 30}})
        EXPECT_EQ(Recall(board, 5), edge);
}

TEST(PulseTrain, ThatDoesNotFitChangesNothing) {
    SimulatedBoard board(69);
    Record(board, 5, 1, 2);
    Say(board, {0xFF, 0x2B, 5, 0, 0, 5, 2, 0});
    Say(board, {0xFF, 0x2B, 5, 0, 0, 0, 36, 0});
    Say(board, {0xFF, 0x2B, 5, 0, 0, 36, 0, 0});
    Say(board, {0xFF, 0x2B, 5, 0x68, 0x01, 7, 2, 0});
    EXPECT_EQ(board.Pls().Edges(5), (std::vector<PlsEdge>{{1, 1}, {0, 2}}));
}

TEST(ChannelTrack, KeepsTouchingSetpointsApart) {
    ChannelTrack track(360);
    track.Add(10, 20);
    track.Add(20, 30);
    track.Add(5, 10);
    EXPECT_EQ(track.Edges(),
              (std::vector<PlsEdge>{{1, 5}, {0, 10}, {1, 10}, {0, 20}, {1, 20}, {0, 30}}));
}

TEST(ChannelTrack, KeepsTouchingSetpointsApartWhenOneGrows) {
    ChannelTrack track(360);
    track.Add(10, 20);
    track.Add(20, 30);
    track.Add(20, 35);
    EXPECT_EQ(track.Edges(), (std::vector<PlsEdge>{{1, 10}, {0, 20}, {1, 20}, {0, 35}}));
}

TEST(ChannelTrack, MeltsOverlappingSetpoints) {
    ChannelTrack track(360);
    track.Add(10, 20);
    track.Add(20, 30);
    track.Add(15, 40);
    EXPECT_EQ(track.Edges(), (std::vector<PlsEdge>{{1, 10}, {0, 40}}));
    track.Add(30, 10);
    EXPECT_EQ(track.Edges(), (std::vector<PlsEdge>{{0, 10}, {1, 10}}));
    track.Add(0, 359);
    EXPECT_TRUE(track.Edges().empty());
}

TEST(ChannelTrack, HoldsATurnOfTwoTouchingHalves) {
    ChannelTrack track(360);
    track.Add(0, 180);
    track.Add(180, 0);
    EXPECT_EQ(track.Edges(), (std::vector<PlsEdge>{{0, 0}, {1, 0}, {0, 180}, {1, 180}}));
}

TEST(ChannelTrack, GivesBackAnySetpointsThatLieApart) {
    std::mt19937 random(20250601);
    for (int run = 0; run < 500; ++run) {
        std::vector<int> cuts(360);
        for (int place = 0; place < 360; ++place)
            cuts[static_cast<size_t>(place)] = place;
        std::shuffle(cuts.begin(), cuts.end(), random);
        cuts.resize(2 * (1 + random() % 20));
        std::sort(cuts.begin(), cuts.end());
        std::rotate(cuts.begin(), cuts.begin() + random() % 2, cuts.end()); // half of them wrap
        std::vector<PlsEdge> expected;
        ChannelTrack track(360);
        for (size_t place = 0; place < cuts.size(); place += 2) {
            track.Add(cuts[place], cuts[place + 1]);
            expected.push_back({1, static_cast<uint16_t>(cuts[place])});
            expected.push_back({0, static_cast<uint16_t>(cuts[place + 1])});
        }
        std::sort(expected.begin(), expected.end(),
                  [](const PlsEdge& a, const PlsEdge& b) { return a.position < b.position; });
        ASSERT_EQ(track.Edges(), expected) << "run " << run;
    }
}
