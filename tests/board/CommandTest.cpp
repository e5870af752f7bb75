#include "board/CommandInterpreter.h"
#include "board/InputLines.h"
#include "Say.h"

#include <gtest/gtest.h>
#include <random>

using namespace haldenboard;

namespace {

class CommandTest : public testing::Test {
protected:
    std::string Do(std::string_view text) { return commands.Execute(text, now); }
    bool Fails(std::string_view text) { return Do(text).starts_with("error: "); }
    // The answers that reach the host.
    std::vector<int> Exchange(uint8_t byte) {
        line.HostWrites(byte, now);
        std::vector<int> answers;
        while (const auto arrival = line.NextArrival()) {
            now = *arrival;
            answers.push_back(*line.HostReads(now));
        }
        return answers;
    }

    SimulatedBoard board{69};
    Line line{board};
    CommandInterpreter commands{board, line};
    double now = 0;
};

using Got = std::vector<int>;

} // namespace

TEST_F(CommandTest, SetsAndShowsMemory) {
    EXPECT_EQ(Do("set 8176 5 0x1F 255"), "ok");
    EXPECT_EQ(Do("show 8176"), "8176: 5");
    EXPECT_EQ(Do("  show\t0x1FF0  3\r"), "8176: 5 31 255");
    EXPECT_EQ(Do("set 65535 7"), "ok");
    EXPECT_EQ(Do("show 65535 1"), "65535: 7");
}

TEST_F(CommandTest, RefusesBadNumbersAndChangesNothing) {
    Do("set 100 1 2");
    for (const char* text :
         {"set", "set 100", "set 100 256", "set 100 -1", "set 100 9 x", "set 65536 1", "set 1e3 1",
          "set 65535 1 2", "set 100 9 0x", "set 99999999999999999999 1", "set 100 9.5", "show",
          "show -1", "show 0 0", "show 0 257", "show 65535 2", "show 1 2 3", "show x"})
        EXPECT_TRUE(Fails(text)) << text;
    EXPECT_EQ(Do("show 100 2"), "100: 1 2");
    EXPECT_EQ(Do("show 65535"), "65535: 0");
}

TEST_F(CommandTest, TurnsTheShaft) {
    EXPECT_EQ(Do("speed 60"), "ok");
    EXPECT_EQ(Say(board, {0xFF, 0x58, 0x55, 0x55}), (Answers{0x55, 0x55, 60, 0}));
    EXPECT_TRUE(Fails("speed"));
    EXPECT_TRUE(Fails("speed -5"));
    EXPECT_TRUE(Fails("speed 65536"));
    EXPECT_TRUE(Fails("speed 1 2"));
}

TEST_F(CommandTest, OrdersFaults) {
    EXPECT_EQ(Do("fault lost"), "ok");
    EXPECT_EQ(Exchange(0xFF), Got{});
    EXPECT_EQ(Do("fault wrong 0x0F 2"), "ok");
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
    EXPECT_EQ(Exchange(0xFF), Got{0x5A});
    EXPECT_EQ(Do("fault garbage 1 2 at 2"), "ok");
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
    EXPECT_EQ(Exchange(0xFF), (Got{1, 2, 0x55}));
    EXPECT_EQ(Do("fault late 2.5"), "ok");
    const double before = now;
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
    EXPECT_NEAR(now - before, 2.5 + 20.0 / 9600, 1e-9);
}

TEST_F(CommandTest, OrdersStandingFaultsAndClearsThem) {
    for (const char* text : {"fault silence", "fault always lost", "fault random 7 lost=1"}) {
        EXPECT_EQ(Do(text), "ok");
        EXPECT_EQ(Exchange(0xFF), Got{}) << text;
        EXPECT_EQ(Exchange(0xFF), Got{}) << text;
        EXPECT_EQ(Do("clear faults"), "ok");
        EXPECT_EQ(Exchange(0xFF), Got{0x55}) << text;
    }
    EXPECT_EQ(Do("fault always doubled"), "ok");
    EXPECT_EQ(Exchange(0xFF).size(), 2u);
    EXPECT_EQ(Exchange(0xFF).size(), 2u);
}

TEST_F(CommandTest, OrdersFaultsOfProgramMode) {
    Exchange(0xFF);
    Exchange(0x03);
    EXPECT_EQ(Do("fault sum"), "ok");
    EXPECT_EQ(Do("fault exit"), "ok");
    Exchange(0x00);
    Exchange(0x00);
    EXPECT_EQ(Exchange(0x00), Got{0xFF});
    EXPECT_EQ(Exchange(0xFF), Got{0xAA});
}

TEST_F(CommandTest, RefusesBadFaults) {
    for (const char* text : {"fault",
                             "fault x",
                             "fault always",
                             "fault always silence",
                             "fault late",
                             "fault late -1",
                             "fault late nan",
                             "fault late inf",
                             "fault late 1 0",
                             "fault wrong",
                             "fault wrong 0",
                             "fault wrong 256",
                             "fault garbage",
                             "fault garbage at 2",
                             "fault garbage 1 at x",
                             "fault lost 0",
                             "fault lost 1 2",
                             "fault lost 99999999999",
                             "fault silence 1",
                             "fault random",
                             "fault random 1",
                             "fault random x lost=1",
                             "fault random 1 lost=2",
                             "fault random 1 lost",
                             "fault random 1 x=0.5",
                             "fault random 1 lost=nan",
                             "clear",
                             "clear all"})
        EXPECT_TRUE(Fails(text)) << text;
    EXPECT_EQ(line.Faults().Outstanding(), 0u);
    EXPECT_EQ(Exchange(0xFF), Got{0x55});
}

TEST_F(CommandTest, SetsPaceBusyAnswersAndDemo) {
    EXPECT_EQ(Do("baud 19200"), "ok");
    EXPECT_DOUBLE_EQ(line.ByteTime(), 10.0 / 19200);
    EXPECT_EQ(Do("unpaced"), "ok");
    EXPECT_EQ(line.ByteTime(), 0);
    EXPECT_EQ(Do("busy 1"), "ok");
    Say(board, {0xFF, 0x2A, 0, 0});
    EXPECT_EQ(Say(board, {0x38, 0x55, 0x38, 0x55}), (Answers{0x55, 0x55, 0x55, 0x00}));
    EXPECT_EQ(Do("demo on"), "ok");
    now = 2;
    EXPECT_EQ(Do("show 102"), "102: 2");
    EXPECT_EQ(Do("demo off"), "ok");
    now = 4;
    EXPECT_EQ(Do("show 102"), "102: 2");
    for (const char* text :
         {"baud", "baud 0", "baud fast", "unpaced 1", "busy -1", "demo", "demo x"})
        EXPECT_TRUE(Fails(text)) << text;
}

TEST_F(CommandTest, ResetsTheBoard) {
    Exchange(0xFF);
    EXPECT_EQ(Do("reset"), "ok");
    EXPECT_EQ(Exchange(0x01), Got{});
    EXPECT_TRUE(Fails("reset now"));
}

TEST_F(CommandTest, QuitsOnlyWhenTold) {
    EXPECT_EQ(Do(""), "");
    EXPECT_EQ(Do("   \r"), "");
    EXPECT_TRUE(Fails("quit now"));
    EXPECT_TRUE(Fails("exit"));
    EXPECT_FALSE(commands.QuitWanted());
    EXPECT_EQ(Do("quit"), "ok");
    EXPECT_TRUE(commands.QuitWanted());
}

TEST_F(CommandTest, HelpIsOneLineThatNamesEveryCommand) {
    const std::string help = Do("help");
    EXPECT_EQ(help.find('\n'), std::string::npos);
    for (const char* name : {"set ", "show ", "speed ", "fault ", "clear faults", "reset", "baud ",
                             "unpaced", "busy ", "demo ", "quit"})
        EXPECT_NE(help.find(name), std::string::npos) << name;
}

TEST_F(CommandTest, SurvivesAnyText) {
    std::mt19937 random(3);
    const char* const heads[] = {"set ", "show ", "fault ", "speed ", "baud ", "fault random ", ""};
    for (int run = 0; run < 20000; ++run) {
        std::string text = heads[random() % std::size(heads)];
        for (unsigned length = random() % 24; length > 0; --length)
            text += static_cast<char>(random() % 3 == 0 ? ' ' : random() % 256);
        const std::string answer = Do(text);
        ASSERT_EQ(answer.find('\n'), std::string::npos);
    }
    EXPECT_TRUE(Fails(std::string(100000, 'x')));
    EXPECT_TRUE(Fails(std::string_view("set\0 1 1", 8)));
}

TEST(InputLines, PutsPiecesTogether) {
    InputLines lines;
    EXPECT_TRUE(lines.Take("sh").empty());
    EXPECT_EQ(lines.Take("ow 1\nreset\nqu"), (std::vector<std::string>{"show 1", "reset"}));
    EXPECT_EQ(lines.Take("it\n\n"), (std::vector<std::string>{"quit", ""}));
}

TEST(InputLines, CutsALineWithoutEnd) {
    InputLines lines;
    for (int count = 0; count < 100; ++count)
        EXPECT_TRUE(lines.Take(std::string(1000, 'x')).empty());
    const auto taken = lines.Take("\nnext\n");
    ASSERT_EQ(taken.size(), 2u);
    EXPECT_EQ(taken[0].size(), InputLines::LongestLine);
    EXPECT_EQ(taken[1], "next");
}
