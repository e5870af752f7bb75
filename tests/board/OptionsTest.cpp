#include "board/Options.h"
#include "board/Words.h"

#include <gtest/gtest.h>

using namespace haldenboard;

TEST(Options, HaveDefaults) {
    const Options options = ReadOptions({});
    EXPECT_EQ(options.baud, 9600);
    EXPECT_EQ(options.model, SimulatedBoard::DefaultModel);
    EXPECT_EQ(options.busy, 0);
    EXPECT_TRUE(options.link.empty() && options.log.empty());
    EXPECT_FALSE(options.demo || options.exitWithStdin || options.help);
}

TEST(Options, AreRead) {
    const Options options =
        ReadOptions({"--link", "/tmp/COM1", "--baud", "19200", "--model", "69", "--demo", "--log",
                     "bytes.txt", "--busy", "3", "--exit-with-stdin", "--help"});
    EXPECT_EQ(options.link, "/tmp/COM1");
    EXPECT_EQ(options.baud, 19200);
    EXPECT_EQ(options.model, 69);
    EXPECT_EQ(options.log, "bytes.txt");
    EXPECT_EQ(options.busy, 3);
    EXPECT_TRUE(options.demo && options.exitWithStdin && options.help);
    EXPECT_EQ(ReadOptions({"--unpaced"}).baud, 0);
}

TEST(Options, AreRefusedIfNotUnderstood) {
    const std::vector<std::vector<std::string_view>> wrong = {{"--bogus"},
                                                              {"x"},
                                                              {""},
                                                              {"--link"},
                                                              {"--link", ""},
                                                              {"--baud"},
                                                              {"--baud", "4800"},
                                                              {"--model", "48"},
                                                              {"--model", "70"},
                                                              {"--model", "K2"},
                                                              {"--busy", "-1"}};
    for (const auto& words : wrong)
        EXPECT_THROW(ReadOptions(words), TextError) << words[0];
}

TEST(Options, TextNamesEachOfThem) {
    const std::string text = OptionsText();
    for (const char* name : {"--link", "--baud", "--unpaced", "--model", "--demo", "--busy",
                             "--log", "--exit-with-stdin", "fault silence"})
        EXPECT_NE(text.find(name), std::string::npos) << name;
}
