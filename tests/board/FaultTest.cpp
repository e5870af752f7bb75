#include "board/Line.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using namespace haldenboard;

namespace {

constexpr double ByteTime = 10.0 / 9600;

class FaultTest : public testing::Test {
protected:
    // Says a byte and gives all that comes back.
    std::vector<int> Exchange(uint8_t byte) {
        line.HostWrites(byte, now);
        std::vector<int> answers;
        while (const auto arrival = line.NextArrival()) {
            now = *arrival;
            answers.push_back(*line.HostReads(now));
        }
        now += 1;
        return answers;
    }

    SimulatedBoard board;
    Line line{board};
    double now = 0;
};

using Got = std::vector<int>;

} // namespace

TEST_F(FaultTest, LosesTheNextReplyAndNoMore) {
    line.Faults().Order({.kind = FaultKind::Lost});
    EXPECT_EQ(Exchange(0xFF), Got{});
    EXPECT_EQ(Exchange(0x01), Got{0x55}); // the board had heard the attention
    EXPECT_EQ(line.Faults().Outstanding(), 0u);
}

TEST_F(FaultTest, CountsToTheReplyThatSuffers) {
    line.Faults().Order({.kind = FaultKind::Lost, .nth = 3});
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
    EXPECT_EQ(line.Faults().Outstanding(), 1u);
    EXPECT_EQ(Exchange(0xFF), Got{});
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
}

TEST_F(FaultTest, HoldsAReplyBack) {
    line.Faults().Order({.kind = FaultKind::Late, .seconds = 1.5});
    line.HostWrites(0xFF, 0);
    EXPECT_NEAR(*line.NextArrival(), 1.5 + 2 * ByteTime, 1e-9);
    line.HostWrites(0xFF, 1.0); // its answer queues behind the late one
    EXPECT_NEAR(*line.NextArrival(), 1.5 + 2 * ByteTime, 1e-9);
    EXPECT_EQ(line.HostAvailable(1.5 + 2.5 * ByteTime), 1);
    EXPECT_EQ(line.HostAvailable(1.5 + 3.5 * ByteTime), 2);
}

TEST_F(FaultTest, DoublesAReply) {
    line.Faults().Order({.kind = FaultKind::Doubled});
    EXPECT_EQ(Exchange(0xFF), (Got{0x55, 0x55}));
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
}

TEST_F(FaultTest, TurnsBitsOver) {
    line.Faults().Order({.kind = FaultKind::Wrong, .mask = 0x81});
    EXPECT_EQ(Exchange(0xFF), Got{0x55 ^ 0x81});
}

TEST_F(FaultTest, PutsGarbageAhead) {
    line.Faults().Order({.kind = FaultKind::Garbage, .bytes = {0x00, 0x7E}});
    EXPECT_EQ(Exchange(0xFF), (Got{0x00, 0x7E, 0x55}));
}

TEST_F(FaultTest, ResetsTheBoardInsteadOfAnAnswer) {
    Exchange(0xFF);
    Exchange(0x03);
    line.Faults().Order({.kind = FaultKind::Reset});
    EXPECT_EQ(Exchange(0xFF), Got{});
    EXPECT_FALSE(board.InProgramMode());
    EXPECT_EQ(Exchange(0x01), Got{});
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
}

TEST_F(FaultTest, SpoilsTheSumOfTheRecordOrdered) {
    line.Faults().Order({.kind = FaultKind::WrongSum, .nth = 2, .mask = 0x01});
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
    EXPECT_EQ(Exchange(0x03), Got{0x55});
    const std::vector<Got> sums = {{0x31}, {0x30}, {0x31}};
    for (const Got& sum : sums) {
        for (const uint8_t byte : {0x01, 0x20, 0x00})
            EXPECT_EQ(Exchange(byte), Got{});
        EXPECT_EQ(Exchange(0x10), sum);
    }
}

TEST_F(FaultTest, SpoilsTheEndOfProgramModeOnly) {
    line.Faults().Order({.kind = FaultKind::WrongExit});
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
    EXPECT_EQ(Exchange(0x03), Got{0x55});
    EXPECT_EQ(Exchange(0xFF), Got{0xAA});
    EXPECT_FALSE(board.InProgramMode());
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
}

TEST_F(FaultTest, IsSilentUntilCleared) {
    line.Faults().SetSilence(true);
    for (int count = 0; count < 5; ++count)
        EXPECT_EQ(Exchange(0xFF), Got{});
    line.Faults().Clear();
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
}

TEST_F(FaultTest, StandsFromTheReplyOrderedUntilCleared) {
    line.Faults().Order({.kind = FaultKind::Wrong, .nth = 2, .standing = true, .mask = 0xFF});
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
    EXPECT_EQ(Exchange(0xFF), Got{0xAA});
    EXPECT_EQ(Exchange(0xFF), Got{0xAA});
    line.Faults().Clear();
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
}

TEST_F(FaultTest, MayStrikeTogether) {
    line.Faults().Order({.kind = FaultKind::Wrong, .mask = 0x01});
    line.Faults().Order({.kind = FaultKind::Doubled});
    EXPECT_EQ(Exchange(0xFF), (Got{0x54, 0x54}));
}

TEST(FaultPlan, RefusesWhatMakesNoSense) {
    FaultPlan plan;
    EXPECT_THROW(plan.Order({.nth = 0}), std::invalid_argument);
    EXPECT_THROW(plan.Order({.kind = FaultKind::Late, .seconds = -1}), std::invalid_argument);
    EXPECT_THROW(plan.Order({.kind = FaultKind::Late, .seconds = std::nan("")}),
                 std::invalid_argument);
    EXPECT_THROW(plan.SetRandom({.lost = 1.5}), std::invalid_argument);
    EXPECT_THROW(plan.SetRandom({.wrong = std::nan("")}), std::invalid_argument);
    EXPECT_THROW(plan.SetRandom({.lateSeconds = -1}), std::invalid_argument);
    EXPECT_EQ(plan.Outstanding(), 0u);
}

TEST(RandomFaults, AreTheSameForTheSameSeed) {
    const RandomFaults chances{
        .seed = 7, .lost = 0.1, .late = 0.1, .doubled = 0.1, .wrong = 0.1, .garbage = 0.1};
    FaultPlan first, second;
    first.SetRandom(chances);
    second.SetRandom(chances);
    int lost = 0;
    int spoilt = 0;
    for (int count = 0; count < 10000; ++count) {
        const Transmission one = first.Pass({0x55});
        const Transmission other = second.Pass({0x55});
        ASSERT_EQ(one.bytes, other.bytes);
        ASSERT_EQ(one.delay, other.delay);
        ASSERT_LE(one.delay, chances.lateSeconds);
        lost += one.bytes.empty();
        spoilt += one.bytes.size() == 1 && one.bytes[0] != 0x55;
    }
    EXPECT_NEAR(lost, 1000, 150);
    EXPECT_NEAR(spoilt, 10000 * 0.9 * 0.1 * 0.9 * 0.9, 150);
}

TEST(RandomFaults, AtTheEndsOfTheScale) {
    FaultPlan plan;
    plan.SetRandom({.lost = 1});
    for (int count = 0; count < 1000; ++count)
        ASSERT_TRUE(plan.Pass({0x55}).bytes.empty());
    plan.SetRandom({.reset = 0});
    for (int count = 0; count < 1000; ++count)
        ASSERT_EQ(plan.Pass({0x55}).bytes, std::vector<uint8_t>{0x55});
}
