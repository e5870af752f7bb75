#include "board/PseudoTerminal.h"
#include "board/TerminalDelay.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace fs = std::filesystem;

namespace {

constexpr int Patience = 20000; // ms; only a test that fails ever waits so long

// halden-board as a child, with its standard input and output in hand.
class RunningBoard {
public:
    explicit RunningBoard(std::vector<std::string> options) {
        int input[2], output[2];
        EXPECT_EQ(pipe2(input, O_CLOEXEC), 0);
        EXPECT_EQ(pipe2(output, O_CLOEXEC), 0);
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, input[0], 0);
        posix_spawn_file_actions_adddup2(&actions, output[1], 1);
        options.insert(options.begin(), HALDEN_BOARD_PATH);
        std::vector<char*> words;
        for (std::string& option : options)
            words.push_back(option.data());
        words.push_back(nullptr);
        EXPECT_EQ(posix_spawn(&pid_, words[0], &actions, nullptr, words.data(), environ), 0);
        posix_spawn_file_actions_destroy(&actions);
        close(input[0]);
        close(output[1]);
        input_ = input[1];
        output_ = output[0];
    }

    ~RunningBoard() {
        CloseInput();
        close(output_);
        if (pid_ > 0) {
            kill(pid_, SIGKILL);
            waitpid(pid_, nullptr, 0);
        }
    }

    void CloseInput() {
        if (input_ >= 0)
            close(input_);
        input_ = -1;
    }

    void Say(const std::string& text) const {
        EXPECT_EQ(write(input_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }

    // One line of its output; empty if none comes.
    std::string Line() const {
        std::string line;
        for (char sign = 0; sign != '\n';) {
            pollfd source{output_, POLLIN, 0};
            if (poll(&source, 1, Patience) != 1 || read(output_, &sign, 1) != 1)
                return line;
            if (sign != '\n')
                line += sign;
        }
        return line;
    }

    // Waits for the ready line and gives the terminal's path.
    std::string Terminal() const {
        const std::string ready = "halden-board: ready on ";
        const std::string line = Line();
        EXPECT_TRUE(line.starts_with(ready)) << line;
        return line.substr(std::min(ready.size(), line.size()));
    }

    void Signal(int number) const { kill(pid_, number); }

    // Waits for the end and gives the exit code, -1 if it was killed.
    int End() {
        EXPECT_EQ(Line(), ""); // its output closes as it ends
        int status = 0;
        waitpid(pid_, &status, 0);
        pid_ = -1;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t pid_ = -1;
    int input_ = -1;
    int output_ = -1;
};

class Port {
public:
    explicit Port(const std::string& path) : handle_(open(path.c_str(), O_RDWR | O_NOCTTY)) {}
    ~Port() { close(handle_); }

    std::vector<int> Exchange(const std::vector<uint8_t>& bytes) const {
        std::vector<int> answers;
        for (const uint8_t byte : bytes) {
            uint8_t answer = 0;
            pollfd source{handle_, POLLIN, 0};
            if (write(handle_, &byte, 1) != 1 || poll(&source, 1, Patience) != 1 ||
                read(handle_, &answer, 1) != 1)
                break;
            answers.push_back(answer);
        }
        return answers;
    }

private:
    int handle_;
};

using Got = std::vector<int>;

class ExecutableTest : public testing::Test {
protected:
    void SetUp() override {
        char name[] = "/tmp/halden-board-test-XXXXXX";
        ASSERT_NE(mkdtemp(name), nullptr);
        folder = name;
    }
    void TearDown() override { fs::remove_all(folder); }

    fs::path folder;
};

} // namespace

TEST_F(ExecutableTest, AnswersOnItsTerminalAndAtItsInput) {
    RunningBoard board({"--unpaced", "--link", folder / "COM1", "--log", folder / "bytes"});
    const std::string terminal = board.Terminal();
    EXPECT_EQ(fs::read_symlink(folder / "COM1"), terminal);
    board.Say("set 8176 42 13 10 3 17 19\n");
    EXPECT_EQ(board.Line(), "ok");
    const Port port(folder / "COM1");
    EXPECT_EQ(port.Exchange({0xFF, 0x01, 0x1F, 0xF0}), (Got{0x55, 0x55, 0x1F, 42}));
    for (const uint8_t low : {0xF1, 0xF2, 0xF3, 0xF4, 0xF5}) // what a cooked terminal would eat
        EXPECT_EQ(port.Exchange({0x1F, low}).size(), 2u);
    EXPECT_EQ(port.Exchange({0xFF, 0x02, 0x00, 0x0D, 0x0A}), (Got{0x55, 0x55, 0x00, 0x0D, 0x0A}));
    board.Say("show 13\nnonsense\nquit\n");
    EXPECT_EQ(board.Line(), "13: 10");
    EXPECT_TRUE(board.Line().starts_with("error: "));
    EXPECT_EQ(board.Line(), "ok");
    EXPECT_EQ(board.End(), 0);
    EXPECT_FALSE(fs::exists(fs::symlink_status(folder / "COM1")));

    std::ifstream log(folder / "bytes");
    std::string time, way, value;
    log >> time >> way >> value;
    EXPECT_EQ(way + value, ">FF");
    log >> time >> way >> value;
    EXPECT_EQ(way + value, "<55");
}

TEST_F(ExecutableTest, ServesOneHostAfterAnother) {
    RunningBoard board({"--unpaced"});
    const std::string terminal = board.Terminal();
    for (int host = 0; host < 3; ++host) {
        const Port port(terminal);
        EXPECT_EQ(port.Exchange({0xFF}), Got{0x55});
    }
}

TEST_F(ExecutableTest, KeepsServingWhenItsInputEnds) {
    RunningBoard board({"--baud", "19200", "--link", folder / "COM1"});
    const std::string terminal = board.Terminal();
    board.CloseInput();
    const Port port(terminal);
    EXPECT_EQ(port.Exchange({0xFF, 0x01}), (Got{0x55, 0x55}));
    board.Signal(SIGTERM);
    EXPECT_EQ(board.End(), 0);
    EXPECT_FALSE(fs::exists(fs::symlink_status(folder / "COM1")));
}

TEST_F(ExecutableTest, IsNotFasterThanItsLine) {
    RunningBoard board({"--baud", "19200"});
    const Port port(board.Terminal());
    constexpr int exchanges = 40;
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(port.Exchange(std::vector<uint8_t>(exchanges, 0xFF)), Got(exchanges, 0x55));
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    // A terminal that is quicker now than it was when it was measured may win a few per cent.
    EXPECT_GT(taken.count(), 0.9 * exchanges * 2 * 10 / 19200);
}

TEST_F(ExecutableTest, EndsWithItsInputIfTold) {
    RunningBoard board({"--exit-with-stdin"});
    board.Terminal();
    board.CloseInput();
    EXPECT_EQ(board.End(), 0);
}

TEST_F(ExecutableTest, ReplacesALinkButNoFile) {
    fs::create_symlink("/nowhere", folder / "COM1");
    std::ofstream(folder / "COM2") << "precious";
    {
        RunningBoard board({"--link", folder / "COM1"});
        const std::string terminal = board.Terminal();
        EXPECT_EQ(fs::read_symlink(folder / "COM1"), terminal);
    }
    RunningBoard refused({"--link", folder / "COM2"});
    EXPECT_EQ(refused.End(), 1);
    EXPECT_EQ(fs::file_size(folder / "COM2"), 8u);
}

TEST_F(ExecutableTest, RefusesOptionsItDoesNotKnow) {
    RunningBoard board({"--bogus"});
    EXPECT_EQ(board.End(), 2);
}

TEST(PseudoTerminal, DropsWhatAHostDoesNotRead) {
    haldenboard::PseudoTerminal terminal;
    const std::vector<uint8_t> flood(65536, 0x55);
    terminal.Write(flood);
    terminal.Write(flood); // neither may block
    uint8_t byte = 0;
    EXPECT_EQ(read(terminal.FarHandle(), &byte, 1), 1);
    EXPECT_EQ(byte, 0x55);
}

TEST(TerminalDelay, IsShortAndLeavesNothingBehind) {
    haldenboard::PseudoTerminal terminal;
    const double delay = haldenboard::MeasureTurnaround(terminal);
    EXPECT_GE(delay, 0);
    EXPECT_LE(delay, 60e-6);
    uint8_t byte = 0;
    EXPECT_EQ(terminal.Read({&byte, 1}), 0u);
    pollfd host{terminal.FarHandle(), POLLIN, 0};
    EXPECT_EQ(poll(&host, 1, 0), 0);
}
