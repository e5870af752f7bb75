#include "base/RunTimeError.h"
#include "base/TextFile.h"
#include "FilesOfRun.h"
#include "programset/ProgramSet.h"
#include "Saves.h"
#include "SpoiltCalls.h"
#include <gtest/gtest.h>
#include <QTemporaryDir>

// Each save meets each fault at each call by which it changes the disk: what was there is there
// still, or the new files are, each of them whole.

namespace {
constexpr int mostCalls = 1000;

class SaveFault : public testing::TestWithParam<SaveOnDisk> {
protected:
    SaveFault() : old_(Made(0)), new_(Made(1)) {}

    /// A folder with what the save replaces.
    std::unique_ptr<QTemporaryDir> OldFolder() const {
        auto folder = std::make_unique<QTemporaryDir>(FastFolder());
        MakeFiles(folder->path(), old_);
        return folder;
    }
    void ExpectOldOrNew(const Files& now, int nth) const {
        for (const auto& [name, bytes] : old_) {
            const auto found = now.find(name);
            ASSERT_NE(found, now.end()) << name.toStdString() << " is gone, call " << nth;
            EXPECT_TRUE(found->second == bytes || found->second == new_.at(name))
                << name.toStdString() << " is cut, call " << nth;
        }
    }
    /// Fails the `nth` call; returns whether there was one.
    bool SaveWithFault(int nth, Spoil how) const {
        const auto folder = OldFolder();
        bool raised = false;
        int calls = 0;
        {
            const SpoiltCalls spoilt(nth, how);
            try {
                GetParam().save.run(folder->path(), 1);
            } catch (const RunTimeError&) {
                raised = true;
            }
            calls = spoilt.Count();
        }
        const Files now = FilesBelow(folder->path());
        ExpectOldOrNew(now, nth);
        EXPECT_EQ(now.size(), old_.size()) << "litter, call " << nth;
        EXPECT_EQ(raised, now != new_) << "call " << nth;
        return calls >= nth;
    }
    /// Dies at the `nth` call; returns whether there was one.
    bool SaveAndDie(int nth, Spoil how) const {
        const auto folder = OldFolder();
        const bool ended = RunsToItsEnd([&] {
            const SpoiltCalls spoilt(nth, how);
            GetParam().save.run(folder->path(), 1);
        });
        ExpectOldOrNew(FilesBelow(folder->path()), nth);
        // A temporary file that is left belongs to no program set and is in nobody's way.
        EXPECT_EQ(SetMembers(folder->path(), QStringLiteral("PUMP")).size(), membersOfOld_);
        GetParam().save.run(folder->path(), 1);
        const Files after = FilesBelow(folder->path());
        for (const auto& [name, bytes] : new_)
            EXPECT_EQ(after.at(name), bytes) << "the save after the crash, call " << nth;
        return !ended;
    }
    template <typename Try>
    void AtEachCall(Try once) const {
        int nth = 1;
        while (nth < mostCalls && once(nth))
            ++nth;
        // Open, write, flush, put in place: less would mean that the calls do not come by here.
        EXPECT_GE(nth, 4);
        EXPECT_LT(nth, mostCalls);
    }

    const NamedTemporaries disk_{GetParam().namedTemporaries};
    Files old_;
    Files new_;
    const qsizetype membersOfOld_ = SetMembers(OldFolder()->path(), QStringLiteral("PUMP")).size();

private:
    static Files Made(int content) {
        const QTemporaryDir folder(FastFolder());
        MakeFiles(folder.path(), {{QStringLiteral("PUMP.hdn"), "5\r\n"}});
        GetParam().save.run(folder.path(), content);
        return FilesBelow(folder.path());
    }
};
} // namespace

TEST_P(SaveFault, TheTwoContentsDiffer) {
    ASSERT_EQ(old_.size(), new_.size());
    EXPECT_NE(old_, new_);
}

TEST_P(SaveFault, NoFileTakesItsNameBeforeItIsOnTheDisk) {
    const auto folder = OldFolder();
    const SpoiltCalls none(0, Spoil::DeviceFails);
    GetParam().save.run(folder->path(), 1);
    EXPECT_EQ(none.NamedUnflushed(), 0);
    EXPECT_GE(none.Count(), 4);
}

TEST_P(SaveFault, ADeviceThatFailsAtAnyCallLeavesOldOrNew) {
    AtEachCall([this](int nth) { return SaveWithFault(nth, Spoil::DeviceFails); });
}

TEST_P(SaveFault, ADiskThatFillsUpAtAnyCallLeavesOldOrNew) {
    AtEachCall([this](int nth) { return SaveWithFault(nth, Spoil::DiskStaysFull); });
}

TEST_P(SaveFault, AKillBeforeAnyCallLeavesOldOrNew) {
    AtEachCall([this](int nth) { return SaveAndDie(nth, Spoil::KilledBefore); });
}

TEST_P(SaveFault, AKillAfterAnyCallLeavesOldOrNew) {
    AtEachCall([this](int nth) { return SaveAndDie(nth, Spoil::KilledAfter); });
}

INSTANTIATE_TEST_SUITE_P(AllSaves, SaveFault, testing::ValuesIn(AllSavesOnDisks()),
                         [](const auto& save) { return NameOf(save.param); });
