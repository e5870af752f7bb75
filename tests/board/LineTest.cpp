#include "board/Line.h"

#include <gtest/gtest.h>

using haldenboard::Line;
using haldenboard::LoggedByte;
using haldenboard::SimulatedBoard;

namespace {

constexpr double ByteTime = 10.0 / 9600;

class LineTest : public testing::Test {
protected:
    // Says a byte, jumps to the answer and gives it.
    int Exchange(uint8_t byte) {
        line.HostWrites(byte, now);
        const auto arrival = line.NextArrival();
        if (!arrival)
            return -1;
        now = *arrival;
        return line.HostReads(now).value_or(0xFFF);
    }

    SimulatedBoard board;
    Line line{board};
    double now = 0;
};

} // namespace

TEST_F(LineTest, TakesOneByteTimeEachWay) {
    now = 3;
    EXPECT_EQ(Exchange(0xFF), 0x55);
    EXPECT_NEAR(now, 3 + 2 * ByteTime, 1e-9);
}

TEST_F(LineTest, HasNothingForTheHostBeforeTheByteIsWhole) {
    line.HostWrites(0xFF, 0);
    EXPECT_EQ(line.HostAvailable(2 * ByteTime - 1e-6), 0);
    EXPECT_EQ(line.HostReads(2 * ByteTime - 1e-6), std::nullopt);
    EXPECT_EQ(line.HostAvailable(2 * ByteTime + 1e-6), 1);
    EXPECT_EQ(line.HostReads(2 * ByteTime + 1e-6), 0x55);
    EXPECT_EQ(line.NextArrival(), std::nullopt);
}

TEST_F(LineTest, QueuesTheHostsBytesAndRunsFullDuplex) {
    for (int count = 0; count < 3; ++count)
        line.HostWrites(0xFF, 0);
    EXPECT_EQ(line.HostAvailable(2.5 * ByteTime), 1);
    EXPECT_EQ(line.HostAvailable(3.5 * ByteTime), 2);
    EXPECT_EQ(line.HostAvailable(4.5 * ByteTime), 3);
}

TEST_F(LineTest, AnswersARecordAfterItsLastByte) {
    Exchange(0xFF);
    Exchange(0x03);
    const double begin = now;
    for (const uint8_t byte : {0x02, 0x20, 0x00, 0x11, 0x22})
        line.HostWrites(byte, now);
    ASSERT_TRUE(line.NextArrival());
    EXPECT_NEAR(*line.NextArrival(), begin + 6 * ByteTime, 1e-9);
}

TEST_F(LineTest, IsTwiceAsFastAtTwiceTheRate) {
    line.SetBaud(19200);
    EXPECT_DOUBLE_EQ(line.ByteTime(), ByteTime / 2);
    Exchange(0xFF);
    EXPECT_NEAR(now, ByteTime, 1e-9);
}

TEST_F(LineTest, TakesNoTimeWithoutPace) {
    line.SetBaud(0);
    now = 1;
    EXPECT_EQ(Exchange(0xFF), 0x55);
    EXPECT_EQ(now, 1);
    EXPECT_THROW(line.SetBaud(-1), std::invalid_argument);
}

TEST_F(LineTest, SaysThatNothingIsUnderWayAfterAByteWithoutAnswer) {
    line.HostWrites(0x01, 0); // a fresh board hears attention alone
    EXPECT_EQ(line.NextArrival(), std::nullopt);
}

TEST_F(LineTest, DiscardsWhatHasArrivedAndNoMore) {
    line.HostWrites(0xFF, 0);
    line.HostWrites(0x01, 0);
    line.DiscardHostInput(2.5 * ByteTime);
    EXPECT_EQ(line.HostAvailable(2.5 * ByteTime), 0);
    EXPECT_EQ(line.HostAvailable(4 * ByteTime), 1);
}

TEST_F(LineTest, LogsEveryByteWithTheTimeItWasWhole) {
    Exchange(0xFF);
    line.HostWrites(0x03, now);
    const std::vector<LoggedByte>& log = line.Log();
    ASSERT_EQ(log.size(), 4u);
    EXPECT_TRUE(log[0].toBoard);
    EXPECT_EQ(log[0].value, 0xFF);
    EXPECT_NEAR(log[0].at, ByteTime, 1e-9);
    EXPECT_FALSE(log[1].toBoard);
    EXPECT_EQ(log[1].value, 0x55);
    EXPECT_NEAR(log[1].at, 2 * ByteTime, 1e-9);
    EXPECT_NEAR(log[3].at, 4 * ByteTime, 1e-9);
}

TEST_F(LineTest, LogsInTheOrderOfTimeEvenIfAnAnswerIsLate) {
    line.Faults().Order({.kind = haldenboard::FaultKind::Late, .seconds = 1.0});
    line.HostWrites(0xFF, 0);
    line.NextArrival();
    line.HostWrites(0xFF, 0.5);
    const std::vector<LoggedByte>& log = line.Log();
    ASSERT_EQ(log.size(), 4u);
    EXPECT_TRUE(log[0].toBoard && log[1].toBoard);
    EXPECT_FALSE(log[2].toBoard || log[3].toBoard);
}

TEST_F(LineTest, LogCanBeTurnedOffAndTaken) {
    Exchange(0xFF);
    EXPECT_EQ(line.TakeLog(1.5 * ByteTime).size(), 1u);
    EXPECT_EQ(line.TakeLog(now).size(), 1u);
    line.KeepLog(false);
    Exchange(0xFF);
    EXPECT_TRUE(line.Log().empty());
}

TEST_F(LineTest, LetsAByteWaitForMemoryThatChangesOnTheWay) {
    Exchange(0xFF);
    Exchange(0x01);
    Exchange(0x00);
    line.HostWrites(100, now);
    board.Poke(100, 0x42);
    EXPECT_EQ(line.HostReads(now + 3 * ByteTime), 0x42);
}
