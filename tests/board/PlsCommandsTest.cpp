#include "Say.h"

#include <gtest/gtest.h>

using haldenboard::SimulatedBoard;

namespace {

constexpr int Large = 69;

// Reads a word by one of the four commands.
int Word(SimulatedBoard& board, uint8_t command) {
    const Answers answers = Say(board, {0xFF, command, 0x55, 0x55});
    EXPECT_EQ(answers[0], 0x55);
    EXPECT_EQ(answers[1], 0x55);
    return answers[2] + 256 * answers[3];
}

int Scale(SimulatedBoard& board) {
    return Word(board, 0x18);
}
int Offset(SimulatedBoard& board) {
    return Word(board, 0x28);
}
int Position(SimulatedBoard& board) {
    return Word(board, 0x48);
}
int Speed(SimulatedBoard& board) {
    return Word(board, 0x58);
}

} // namespace

TEST(PlsWord, ComesLowByteFirst) {
    SimulatedBoard board(Large);
    EXPECT_EQ(Say(board, {0xFF, 0x18, 0x55, 0x55}), (Answers{0x55, 0x55, 0x68, 0x01}));
    EXPECT_EQ(Offset(board), 0);
    EXPECT_EQ(Position(board), 0);
    EXPECT_EQ(Speed(board), 0);
}

TEST(PlsWord, TakesNoOtherByteForAClock) {
    SimulatedBoard board(Large);
    EXPECT_EQ(Say(board, {0xFF, 0x18, 0x54, 0x55}), (Answers{0x55, 0x55, 0xAA, 0xAA}));
    EXPECT_EQ(Say(board, {0x18, 0x55}), (Answers{0x55, 0x68}));
}

TEST(PlsOffset, IsWrittenAndMovesThePosition) {
    SimulatedBoard board(Large);
    EXPECT_EQ(Say(board, {0xFF, 0x2A, 0x6E, 0x00, 0x38, 0x55, 0x55}),
              (Answers{0x55, 0x55, 0x55, 0x55, 0x55, 0x00, 0x55}));
    EXPECT_EQ(Offset(board), 110);
    EXPECT_EQ(Position(board), 250); // the raw position is 0
}

TEST(PlsOffset, IsNotTakenFromTheScaleFactorUp) {
    SimulatedBoard board(Large);
    Say(board, {0xFF, 0x2A, 0x67, 0x01});
    EXPECT_EQ(Offset(board), 359);
    Say(board, {0xFF, 0x2A, 0x68, 0x01});
    EXPECT_EQ(Offset(board), 359);
}

TEST(PlsScaleFactor, IsWrittenWithinTheBoardsRange) {
    SimulatedBoard large(Large);
    Say(large, {0xFF, 0x1A, 0x00, 0x10});
    EXPECT_EQ(Scale(large), 4096);
    Say(large, {0xFF, 0x1A, 0x01, 0x10});
    EXPECT_EQ(Scale(large), 4096);
    SimulatedBoard standard(55);
    Say(standard, {0xFF, 0x1A, 0x00, 0x02});
    EXPECT_EQ(Scale(standard), 512);
    Say(standard, {0xFF, 0x1A, 0x01, 0x02});
    EXPECT_EQ(Scale(standard), 512);
    Say(standard, {0xFF, 0x1A, 0x01, 0x00});
    EXPECT_EQ(Scale(standard), 512);
}

TEST(PlsSpeed, TurnsThePosition) {
    SimulatedBoard board(Large);
    board.SetSpeed(300); // five turns a second
    EXPECT_EQ(Speed(board), 300);
    board.AdvanceTo(0.05); // a quarter of a turn
    EXPECT_EQ(Position(board), 90);
    board.AdvanceTo(0.25);
    EXPECT_EQ(Position(board), 90);
    board.SetSpeed(0);
    board.AdvanceTo(7);
    EXPECT_EQ(Position(board), 90);
}

TEST(PlsSpeed, IsNoneInProgramMode) {
    SimulatedBoard board(Large);
    board.SetSpeed(60);
    board.AdvanceTo(0.25);
    Say(board, {0xFF, 0x03});
    board.AdvanceTo(5.1);
    Say(board, {0xFF});
    EXPECT_EQ(Position(board), 90);
    EXPECT_EQ(Speed(board), 60);
    board.AdvanceTo(5.6);
    EXPECT_EQ(Position(board), 270);
}

TEST(ReadyPoll, IsBusyAsOftenAsOrdered) {
    SimulatedBoard board(Large);
    board.SetBusyAnswers(2);
    Say(board, {0xFF, 0x2A, 0x01, 0x00});
    EXPECT_EQ(Say(board, {0x38, 0x55}), (Answers{0x55, 0x55}));
    EXPECT_EQ(Say(board, {0x38, 0x55}), (Answers{0x55, 0x55}));
    EXPECT_EQ(Say(board, {0x38, 0x55, 0x55}), (Answers{0x55, 0x00, 0x55}));
    Say(board, {0xFF, 0x1B, 0, 1, 0, 2, 0, 1});
    EXPECT_EQ(Say(board, {0x38, 0x55}), (Answers{0x55, 0x55}));
}

TEST(ReadyPoll, IsReadyAtOnceWithNothingToDo) {
    SimulatedBoard board(Large);
    EXPECT_EQ(Say(board, {0xFF, 0x38, 0x55, 0x55}), (Answers{0x55, 0x55, 0x00, 0x55}));
    EXPECT_EQ(Say(board, {0x55}), Answers{0xAA});
}

TEST(ReadyPoll, IsNotBusyAfterAReset) {
    SimulatedBoard board(Large);
    board.SetBusyAnswers(5);
    Say(board, {0xFF, 0x2A, 0x01, 0x00});
    board.Reset();
    EXPECT_EQ(Say(board, {0xFF, 0x38, 0x55}), (Answers{0x55, 0x55, 0x00}));
}
