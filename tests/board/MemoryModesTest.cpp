#include "Say.h"

#include <gtest/gtest.h>

using haldenboard::SimulatedBoard;

TEST(ReadMode, ReadsOneByteAfterTheLineWasIdle) {
    SimulatedBoard board;
    board.Poke(8176, 0x2A);
    EXPECT_EQ(Say(board, {0xFF, 0x01, 0x1F, 0xF0}), (Answers{0x55, 0x55, 0x1F, 0x2A}));
}

TEST(ReadMode, GoesOnWithoutAHandshake) {
    SimulatedBoard board;
    board.Poke(100, 7);
    board.Poke(101, 9);
    Say(board, {0xFF, 0x01, 0x1F, 0xF0});
    EXPECT_EQ(Say(board, {0x00, 0x64, 0x00, 0x65}), (Answers{0x00, 7, 0x00, 9}));
}

TEST(ReadMode, ReadsTheHighestAddressBelowTheAttentionPage) {
    SimulatedBoard board;
    board.Poke(0xFEFF, 0x77);
    EXPECT_EQ(Say(board, {0xFF, 0x01, 0xFE, 0xFF}), (Answers{0x55, 0x55, 0xFE, 0x77}));
}

TEST(WriteMode, WritesOneByteAfterARead) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x01, 0x1F, 0xF0});
    EXPECT_EQ(Say(board, {0xFF, 0x02, 0x1F, 0xF0, 0x05}), (Answers{0x55, 0x55, 0x1F, 0xF0, 0x05}));
    EXPECT_EQ(board.Peek(8176), 5);
}

TEST(WriteMode, GoesOnWithoutAHandshake) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x02, 0x00, 0x64, 0xE8});
    EXPECT_EQ(Say(board, {0x00, 0x65, 0x03}), (Answers{0x00, 0x65, 0x03}));
    EXPECT_EQ(board.Peek(100), 0xE8);
    EXPECT_EQ(board.Peek(101), 0x03);
}

TEST(WriteMode, ChangesMemoryOnlyWhenTheDataByteComes) {
    SimulatedBoard board;
    board.Poke(100, 1);
    Say(board, {0xFF, 0x02, 0x00, 0x64});
    EXPECT_EQ(board.Peek(100), 1);
    Say(board, {0x02});
    EXPECT_EQ(board.Peek(100), 2);
}

TEST(Memory, HoldsAFreshBoardsContents) {
    SimulatedBoard board;
    EXPECT_NE(board.Peek(8159), 0);
    EXPECT_EQ(board.Peek(8176), 0);
    EXPECT_EQ(board.Peek(61424), 'D');
    EXPECT_EQ(board.Peek(61431), 0);
    EXPECT_EQ(board.Peek(61433), 1);
    uint8_t sum = 0;
    for (int address = 0x2000; address < 0x8000; ++address)
        sum = static_cast<uint8_t>(sum + board.Peek(static_cast<uint16_t>(address)));
    EXPECT_EQ(board.Peek(61432), sum);
}

TEST(Model, IsOneOfTheFamilyOrRefused) {
    EXPECT_THROW(SimulatedBoard{48}, std::invalid_argument);
    EXPECT_THROW(SimulatedBoard{70}, std::invalid_argument);
    for (int index = 49; index <= 69; ++index) {
        SimulatedBoard board(index);
        const bool pls =
            index == 55 || index == 62 || index == 63 || index == 64 || index == 67 || index == 69;
        EXPECT_EQ(board.Model().IsPls(), pls) << index;
        EXPECT_EQ(Say(board, {0xFF, 0x28}), (Answers{0x55, pls ? 0x55 : 0xAA})) << index;
        EXPECT_EQ(Say(board, {0xFF, 0x01, 0xEF, 0xF9}), (Answers{0x55, 0x55, 0xEF, 1})) << index;
    }
}
