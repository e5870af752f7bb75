#include "Say.h"

#include <gtest/gtest.h>

using haldenboard::SimulatedBoard;

namespace {

int Word(const SimulatedBoard& board, uint16_t address) {
    return board.Peek(address) + 256 * board.Peek(static_cast<uint16_t>(address + 1));
}

void SetWord(SimulatedBoard& board, uint16_t address, int value) {
    board.Poke(address, static_cast<uint8_t>(value % 256));
    board.Poke(static_cast<uint16_t>(address + 1), static_cast<uint8_t>(value / 256));
}

void ExpectSameMemory(const SimulatedBoard& one, const SimulatedBoard& other) {
    for (int address = 0; address < 65536; ++address)
        ASSERT_EQ(one.Peek(static_cast<uint16_t>(address)),
                  other.Peek(static_cast<uint16_t>(address)))
            << address;
}

} // namespace

TEST(DemoMachine, StandsUnlessStarted) {
    SimulatedBoard board(54), still(54);
    board.AdvanceTo(1000);
    ExpectSameMemory(board, still);
}

TEST(DemoMachine, CountsRampsAndToggles) {
    SimulatedBoard board;
    board.StartDemo();
    board.AdvanceTo(12.3);
    EXPECT_EQ(Word(board, 100), 123);
    EXPECT_EQ(Word(board, 102), 12);
    EXPECT_EQ(Word(board, 104), 230);
    EXPECT_EQ(Word(board, 106), 4000 - 23 * 40);
    EXPECT_EQ(Word(board, 108), 211);
    EXPECT_EQ(Word(board, 110), 24);
    EXPECT_EQ(board.Peek(114), 123);
    EXPECT_EQ(board.Peek(40), 0b000); // 24, 12 and 6 flips
    board.AdvanceTo(12.5);
    EXPECT_EQ(board.Peek(40), 0b001);
    EXPECT_EQ(board.Peek(49), board.Peek(115));
}

TEST(DemoMachine, IsTheSameHoweverTimeIsCut) {
    SimulatedBoard once(54), often(54);
    once.StartDemo();
    often.StartDemo();
    once.AdvanceTo(400.0);
    for (int step = 1; step <= 40000; ++step)
        often.AdvanceTo(step / 100.0);
    ExpectSameMemory(once, often);
    EXPECT_EQ(Word(once, 100), 4000);
}

TEST(DemoMachine, DoesNotRunBackwards) {
    SimulatedBoard board;
    board.StartDemo();
    board.AdvanceTo(5);
    board.AdvanceTo(1);
    EXPECT_EQ(Word(board, 102), 5);
    board.AdvanceTo(6);
    EXPECT_EQ(Word(board, 102), 6);
}

TEST(DemoMachine, GoesOnFromWhatAHostWrites) {
    SimulatedBoard board;
    board.StartDemo();
    SetWord(board, 100, 65535);
    SetWord(board, 110, 9999);
    SetWord(board, 112, 41);
    SetWord(board, 106, 65535);
    SetWord(board, 108, 0);
    board.AdvanceTo(1);
    EXPECT_EQ(Word(board, 100), 9);
    EXPECT_EQ(Word(board, 110), 1);
    EXPECT_EQ(Word(board, 112), 42);
    EXPECT_EQ(Word(board, 106), 65535 - 400);
    EXPECT_EQ(Word(board, 108), 200);
}

TEST(DemoMachine, StandsWithOutputsOffInProgramModeButItsClockGoesOn) {
    SimulatedBoard board(54);
    board.StartDemo();
    board.AdvanceTo(3);
    EXPECT_NE(board.Peek(50), 0);
    Say(board, {0xFF, 0x03});
    EXPECT_EQ(board.Peek(49), 0);
    EXPECT_EQ(board.Peek(50), 0);
    board.AdvanceTo(10);
    EXPECT_EQ(Word(board, 102), 3);
    EXPECT_EQ(board.Peek(50), 0);
    EXPECT_EQ(board.Peek(43008), 10);
    Say(board, {0xFF});
    board.AdvanceTo(11);
    EXPECT_EQ(Word(board, 102), 4);
    EXPECT_NE(board.Peek(50), 0);
}

TEST(DemoMachine, CarriesItsClockThroughTheYear) {
    SimulatedBoard board(65);
    board.StartDemo();
    const auto set = [&board](uint8_t day, uint8_t month, uint8_t year) {
        board.Poke(43008, 59);
        board.Poke(43010, 59);
        board.Poke(43012, 23);
        board.Poke(43015, day);
        board.Poke(43016, month);
        board.Poke(43017, year);
    };
    const auto date = [&board] {
        return std::vector<int>{board.Peek(43008), board.Peek(43010), board.Peek(43012),
                                board.Peek(43015), board.Peek(43016), board.Peek(43017)};
    };
    set(31, 12, 99);
    board.AdvanceTo(1);
    EXPECT_EQ(date(), (std::vector<int>{0, 0, 0, 1, 1, 0}));
    set(28, 2, 24);
    board.AdvanceTo(2);
    EXPECT_EQ(date(), (std::vector<int>{0, 0, 0, 29, 2, 24}));
    set(28, 2, 25);
    board.AdvanceTo(3);
    EXPECT_EQ(date(), (std::vector<int>{0, 0, 0, 1, 3, 25}));
    set(30, 4, 25);
    board.AdvanceTo(4);
    EXPECT_EQ(date(), (std::vector<int>{0, 0, 0, 1, 5, 25}));
}

TEST(DemoMachine, LeavesTheClocksPlaceAloneOnModelsWithoutOne) {
    SimulatedBoard board(50);
    const int before = board.Peek(43008);
    board.StartDemo();
    board.AdvanceTo(30);
    EXPECT_EQ(board.Peek(43008), before);
    EXPECT_NE(board.Peek(161), 0);
}

TEST(DemoMachine, TurnsALimitSwitchBoard) {
    SimulatedBoard board(55);
    board.StartDemo();
    EXPECT_FALSE(board.Pls().Edges(0).empty());
    board.AdvanceTo(0.5);
    EXPECT_EQ(Say(board, {0xFF, 0x58, 0x55, 0x55}), (Answers{0x55, 0x55, 30, 0}));
    EXPECT_EQ(Say(board, {0xFF, 0x48, 0x55, 0x55}), (Answers{0x55, 0x55, 90, 0}));
}

TEST(DemoMachine, LeavesProgrammedChannelsAlone) {
    SimulatedBoard board(55);
    Say(board, {0xFF, 0x1B, 9, 10, 0, 20, 0, 1});
    board.StartDemo();
    EXPECT_TRUE(board.Pls().Edges(0).empty());
    EXPECT_EQ(board.Pls().Edges(9).size(), 2u);
}
