#include "Say.h"

#include <gtest/gtest.h>

#include <numeric>

using haldenboard::SimulatedBoard;

namespace {

using Bytes = std::vector<uint8_t>;

void Download(SimulatedBoard& board, const Bytes& config, int scale) {
    for (size_t block = 0; block < 4; ++block) {
        Bytes bytes = {0xFF, static_cast<uint8_t>(0x3B + 0x10 * block)};
        bytes.insert(bytes.end(), config.begin() + 6 * block, config.begin() + 6 * block + 6);
        bytes.insert(bytes.end(), {0x38, 0x55, 0x55});
        Answers expected(11, 0x55);
        expected[9] = 0x00;
        EXPECT_EQ(Say(board, bytes), expected);
    }
    if (scale > 0)
        Say(board, {0xFF, 0x1A, static_cast<uint8_t>(scale % 256),
                    static_cast<uint8_t>(scale / 256), 0x38, 0x55, 0x55});
}

Answers Table(SimulatedBoard& board) {
    Bytes bytes(21, 0x55);
    bytes[0] = 0xFF;
    bytes[1] = 0x0C;
    const Answers answers = Say(board, bytes);
    EXPECT_EQ(answers[1], 0x55);
    return Answers(answers.begin() + 2, answers.end());
}

// Every place holds its own number plus 100, but for the channel count.
Bytes Numbered(uint8_t channels) {
    Bytes config(24);
    std::iota(config.begin(), config.end(), uint8_t{100});
    config[18] = channels;
    return config;
}

} // namespace

TEST(PlsConfig, ComesBackInTheStandardLayout) {
    SimulatedBoard board(64);
    Download(board, Numbered(32), 400);
    EXPECT_EQ(Table(board), (Answers{114, 115, 116, 117, 100, 32, 102, 103, 104, 105, 106, 107, 108,
                                     109, 0, 0, 0, 0, 101}));
    EXPECT_EQ(board.Pls().Channels(), 32);
    EXPECT_EQ(board.Pls().ScaleFactor(), 400);
}

TEST(PlsConfig, ComesBackInTheLargeLayout) {
    SimulatedBoard board(69);
    Download(board, Numbered(64), 511);
    EXPECT_EQ(Table(board), (Answers{64, 100, 101, 102, 103, 104, 106, 107, 108, 109, 0, 0, 0, 0, 0,
                                     0, 0, 0, 0}));
    EXPECT_EQ(board.Pls().Channels(), 64);
}

TEST(PlsConfig, OfAFreshBoard) {
    SimulatedBoard standard(55);
    EXPECT_EQ(Table(standard)[5], 16);
    EXPECT_EQ(Table(standard)[18], 1);
    SimulatedBoard large(69);
    EXPECT_EQ(Table(large)[0], 8);
}

TEST(PlsConfig, TakesEffectOnlyWithTheScaleFactor) {
    SimulatedBoard board(69);
    const Answers before = Table(board);
    Download(board, Numbered(64), 0);
    EXPECT_EQ(Table(board), before);
    Say(board, {0xFF, 0x1A, 0x68, 0x01});
    EXPECT_EQ(Table(board)[1], 100);
}

TEST(PlsConfig, StagedIsLostByAReset) {
    SimulatedBoard board(69);
    const Answers before = Table(board);
    Download(board, Numbered(64), 0);
    board.Reset();
    Say(board, {0xFF, 0x1A, 0x68, 0x01});
    EXPECT_EQ(Table(board), before);
}

TEST(PlsConfig, OfAScaleFactorOutOfRangeIsDropped) {
    SimulatedBoard board(69);
    const Answers before = Table(board);
    Download(board, Numbered(64), 5000);
    EXPECT_EQ(Table(board), before);
    EXPECT_EQ(board.Pls().ScaleFactor(), 360);
}

TEST(PlsConfig, KeepsChannelsAtTheSameScaleOnly) {
    SimulatedBoard board(69);
    Download(board, Numbered(16), 360);
    Say(board, {0xFF, 0x2A, 7, 0});
    Say(board, {0xFF, 0x1B, 0, 10, 0, 20, 0, 1});
    Say(board, {0xFF, 0x1B, 15, 10, 0, 20, 0, 1});
    Download(board, Numbered(8), 360);
    EXPECT_EQ(board.Pls().Edges(0).size(), 2u);
    EXPECT_EQ(board.Pls().Offset(), 7);
    Download(board, Numbered(16), 360);
    EXPECT_TRUE(board.Pls().Edges(15).empty());
    Download(board, Numbered(16), 400);
    EXPECT_TRUE(board.Pls().Edges(0).empty());
    EXPECT_EQ(board.Pls().Offset(), 0);
}

TEST(PlsConfig, CountsChannelsByModel) {
    SimulatedBoard standard(67);
    Download(standard, Numbered(32), 360);
    EXPECT_EQ(standard.Pls().Channels(), 16);
    SimulatedBoard large(69);
    Download(large, Numbered(33), 360);
    EXPECT_EQ(large.Pls().Channels(), 8);
}
