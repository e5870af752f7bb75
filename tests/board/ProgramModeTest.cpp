#include "Say.h"

#include <gtest/gtest.h>

using haldenboard::SimulatedBoard;

TEST(ProgramMode, AnswersARecordOnceWithThePlainSum) {
    SimulatedBoard board;
    EXPECT_EQ(Say(board, {0xFF, 0x03}), (Answers{0x55, 0x55}));
    EXPECT_EQ(Say(board, {0x03, 0x20, 0x00, 0x11, 0x22, 0x33}),
              (Answers{Silence, Silence, Silence, Silence, Silence, 0x89}));
    EXPECT_EQ(board.Peek(0x2000), 0x11);
    EXPECT_EQ(board.Peek(0x2001), 0x22);
    EXPECT_EQ(board.Peek(0x2002), 0x33);
}

TEST(ProgramMode, KeepsTheSumToEightBits) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x03});
    EXPECT_EQ(Say(board, {0x02, 0xF0, 0x80, 0xFF, 0xFE}).back(),
              (2 + 0xF0 + 0x80 + 0xFF + 0xFE) % 256);
}

TEST(ProgramMode, StartsTheSumAnewWithEachRecord) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x03, 0x01, 0x20, 0x00, 0x40});
    EXPECT_EQ(Say(board, {0x01, 0x20, 0x01, 0x10}).back(), 0x32);
}

TEST(ProgramMode, TakesARecordOfTheHighestCount) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x03, 0xFE, 0x20, 0x00});
    for (int count = 0; count < 253; ++count)
        EXPECT_EQ(Say(board, {0x01}), Answers{Silence});
    EXPECT_EQ(Say(board, {0x01}), Answers{(0xFE + 0x20 + 254) % 256});
}

TEST(ProgramMode, AnswersAnEmptyRecordAfterItsAddress) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x03});
    EXPECT_EQ(Say(board, {0x00, 0x12, 0x34}), (Answers{Silence, Silence, 0x46}));
    EXPECT_EQ(Say(board, {0xFF}), Answers{0x55});
}

TEST(ProgramMode, GoesRoundTheEndOfMemory) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x03, 0x02, 0xFF, 0xFF, 0x5A, 0x5B});
    EXPECT_EQ(board.Peek(0xFFFF), 0x5A);
    EXPECT_EQ(board.Peek(0x0000), 0x5B);
}

TEST(ProgramMode, EndsWithAnAcknowledge) {
    SimulatedBoard board;
    Say(board, {0xFF, 0x03, 0x01, 0x20, 0x00, 0x40});
    EXPECT_TRUE(board.InProgramMode());
    EXPECT_EQ(Say(board, {0xFF}), Answers{0x55});
    EXPECT_FALSE(board.InProgramMode());
    EXPECT_EQ(Say(board, {0x01, 0x20, 0x00}), (Answers{0x55, 0x20, 0x40}));
}
