#include "Say.h"

#include <gtest/gtest.h>

using haldenboard::SimulatedBoard;

namespace {

// Whether the board now takes 0xFF for attention: it answers so and then hears a command.
bool HearsAttention(SimulatedBoard& board) {
    board.Poke(0x0055, 0x99);
    return Say(board, {0xFF, 0x01, 0x00, 0x55}) == Answers{0x55, 0x55, 0x00, 0x99};
}

} // namespace

TEST(Attention, IsAllThatABoardHearsAfterPowerUp) {
    SimulatedBoard board;
    EXPECT_EQ(Say(board, {0x01, 0x55, 0x38, 0x00}), (Answers{Silence, Silence, Silence, Silence}));
    EXPECT_EQ(Say(board, {0xFF}), (Answers{0x55}));
}

TEST(Attention, MayBeRepeated) {
    SimulatedBoard board;
    EXPECT_EQ(Say(board, {0xFF, 0xFF, 0xFF, 0x01}), (Answers{0x55, 0x55, 0x55, 0x55}));
}

TEST(Attention, CountsWhereAnAddressBegins) {
    SimulatedBoard board;
    for (const uint8_t mode : {0x01, 0x02}) {
        Say(board, {0xFF, mode});
        EXPECT_TRUE(HearsAttention(board));
    }
}

TEST(Attention, IsALowAddressByteInReadMode) {
    SimulatedBoard board;
    board.Poke(0x12FF, 0x31);
    EXPECT_EQ(Say(board, {0xFF, 0x01, 0x12, 0xFF}), (Answers{0x55, 0x55, 0x12, 0x31}));
    EXPECT_TRUE(HearsAttention(board));
}

TEST(Attention, IsALowAddressByteAndDataInWriteMode) {
    SimulatedBoard board;
    EXPECT_EQ(Say(board, {0xFF, 0x02, 0x12, 0xFF, 0xFF}), (Answers{0x55, 0x55, 0x12, 0xFF, 0xFF}));
    EXPECT_EQ(board.Peek(0x12FF), 0xFF);
    EXPECT_TRUE(HearsAttention(board));
}

TEST(Attention, LeavesProgramModeOnlyInPlaceOfACount) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x03});
    EXPECT_EQ(Say(board, {0x01, 0xFF, 0xFF, 0xFF}), (Answers{Silence, Silence, Silence, 0xFE}));
    EXPECT_TRUE(board.InProgramMode());
    EXPECT_EQ(board.Peek(0xFFFF), 0xFF);
    EXPECT_TRUE(HearsAttention(board));
    EXPECT_FALSE(board.InProgramMode());
}

TEST(Attention, CountsInPlaceOfAnyClock) {
    SimulatedBoard board(69);
    const std::vector<std::vector<uint8_t>> begun = {
        {0x18}, {0x18, 0x55}, {0x0C},       {0x0C, 0x55, 0x55},
        {0x38}, {0x38, 0x55}, {0x09, 0x00}, {0x09, 0x00, 0x55}};
    for (const auto& bytes : begun) {
        Say(board, {0xFF});
        Say(board, bytes);
        EXPECT_TRUE(HearsAttention(board));
    }
}

TEST(Attention, IsDataInWhatALimitSwitchBoardIsSent) {
    SimulatedBoard board(69);
    for (const uint8_t command : {0x1B, 0x2B, 0x3B, 0x4B, 0x5B, 0x6B}) {
        EXPECT_EQ(Say(board, {0xFF, command, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}),
                  (Answers(8, 0x55)));
        EXPECT_TRUE(HearsAttention(board));
    }
    for (const uint8_t command : {0x1A, 0x2A}) {
        EXPECT_EQ(Say(board, {0xFF, command, 0xFF, 0xFF}), (Answers(4, 0x55)));
        EXPECT_TRUE(HearsAttention(board));
    }
    EXPECT_EQ(Say(board, {0xFF, 0x09, 0xFF, 0x55}), (Answers{0x55, 0x55, 0x55, 2}));
}

TEST(Attention, BringsBackAHostThatLostAReply) {
    SimulatedBoard board;
    board.Poke(100, 7);
    Say(board, {0xFF, 0x01, 0x00}); // the echo is lost, so the host says:
    EXPECT_EQ(Say(board, {0xFF}), (Answers{board.Peek(0x00FF)}));
    EXPECT_EQ(Say(board, {0xFF, 0x01, 0x00, 0x64}), (Answers{0x55, 0x55, 0x00, 7}));
}

TEST(Command, IsRefusedIfUnknown) {
    SimulatedBoard board;
    EXPECT_EQ(Say(board, {0xFF, 0x00, 0x55, 0x77, 0x01}), (Answers{0x55, 0xAA, 0xAA, 0xAA, 0x55}));
}

TEST(Command, IsForgottenByAReset) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x03, 0x10, 0x20});
    board.Reset();
    EXPECT_FALSE(board.InProgramMode());
    EXPECT_EQ(Say(board, {0x00, 0x01}), (Answers{Silence, Silence}));
    EXPECT_TRUE(HearsAttention(board));
}
