#include "FilesOfRun.h"
#include "Saves.h"
#include "SpoiltCalls.h"
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

// A process that saves the two contents by turns is killed at a random moment, again and again.

namespace {
constexpr int kills = 50;

class KilledSave : public testing::TestWithParam<SaveOnDisk> {
protected:
    KilledSave() : folder_(FastFolder()) {
        MakeFiles(folder_.path(), {{QStringLiteral("PUMP.hdn"), "5\r\n"}});
        for (int content : {1, 0}) {
            const auto begin = std::chrono::steady_clock::now();
            GetParam().save.run(folder_.path(), content);
            saveTime_ = std::chrono::duration_cast<std::chrono::microseconds>(
                std::chrono::steady_clock::now() - begin);
            whole_[content] = FilesBelow(folder_.path());
        }
    }
    // An exception ends this process on the spot: it must not come to the end of the test, where
    // the folder is removed, which is the parent's.
    [[noreturn]] void SaveForEver(int readyPipe) const noexcept {
        for (int content = 1;; content = 1 - content) {
            GetParam().save.run(folder_.path(), content);
            if (readyPipe >= 0 && ::write(readyPipe, "r", 1) == 1)
                ::close(std::exchange(readyPipe, -1));
        }
    }
    /// Lets the next process draw other random names than the ones before it, as a program that is
    /// started anew does. A fork inherits the state of the generator: every process would meet the
    /// temporary files that the killed ones left, and QTemporaryFile gives up after 16 such names.
    static void DrawOtherNames() {
        constexpr int drawsOfAProcess = 10'000; // more than it makes names in its short life
        QRandomGenerator::global()->discard(drawsOfAProcess);
    }
    /// Starts the saving process, waits for its first save and kills it a moment later.
    void SaveAndKill(std::chrono::microseconds after) const {
        int ready[2];
        ASSERT_EQ(::pipe(ready), 0);
        DrawOtherNames();
        const pid_t child = ::fork();
        if (child == 0)
            SaveForEver(ready[1]);
        ::close(ready[1]);
        char byte = '\0';
        ASSERT_EQ(::read(ready[0], &byte, 1), 1);
        ::close(ready[0]);
        std::this_thread::sleep_for(after); // the moment of the kill is a real one
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "status " << status;
    }
    void ExpectWhole() const {
        const Files now = FilesBelow(folder_.path());
        for (const auto& [name, bytes] : whole_[0]) {
            ASSERT_TRUE(now.count(name)) << name.toStdString();
            EXPECT_TRUE(now.at(name) == bytes || now.at(name) == whole_[1].at(name))
                << name.toStdString();
        }
    }

    const NamedTemporaries disk_{GetParam().namedTemporaries};
    QTemporaryDir folder_;
    Files whole_[2];
    std::chrono::microseconds saveTime_{}; ///< what one save takes
};
} // namespace

TEST_P(KilledSave, LeavesOneContentOrTheOtherAndTheNextSaveWorks) {
    std::mt19937 random(20261121);
    std::uniform_int_distribution<qint64> moment(0, 3 * saveTime_.count() + 100);
    for (int kill = 0; kill < kills && !HasFailure(); ++kill) {
        SaveAndKill(std::chrono::microseconds(moment(random)));
        ExpectWhole();
    }
    GetParam().save.run(folder_.path(), 1);
    const Files now = FilesBelow(folder_.path());
    for (const auto& [name, bytes] : whole_[1])
        EXPECT_EQ(now.at(name), bytes) << name.toStdString();
}

INSTANTIATE_TEST_SUITE_P(AllSaves, KilledSave, testing::ValuesIn(AllSavesOnDisks()),
                         [](const auto& save) { return NameOf(save.param); });
