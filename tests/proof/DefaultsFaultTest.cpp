#include "base/ApplicationFolder.h"
#include "FilesOfRun.h"
#include "SpoiltCalls.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>

// A first start copies the files that the system comes with into the user's folder. A file that is
// there is never copied again: so none may be there in part.

namespace {
constexpr int mostCalls = 1000;

class DefaultsFault : public testing::TestWithParam<Spoil> {
protected:
    DefaultsFault() {
        MakeFiles(folder_.filePath(QStringLiteral("defaults")), defaults_);
        QDir(folder_.path()).mkpath(QStringLiteral("program"));
    }
    void StartUp() const {
        ApplicationFolder::Locate(folder_.filePath(QStringLiteral("program")), UserFolder(),
                                  folder_.filePath(QStringLiteral("defaults")));
    }
    QString UserFolder() const { return folder_.filePath(QStringLiteral("user")); }
    /// Spoils the `nth` call of a first start; returns whether there was one.
    bool StartUpSpoilt(int nth) const {
        QDir(UserFolder()).removeRecursively();
        int calls = 0;
        const auto work = [&] {
            const SpoiltCalls spoilt(nth, GetParam());
            StartUp();
            calls = spoilt.Count();
        };
        if (GetParam() == Spoil::KilledBefore || GetParam() == Spoil::KilledAfter)
            return !RunsToItsEnd(work);
        work();
        return calls >= nth;
    }
    void ExpectNoneInPart(int nth) const {
        const Files now = FilesBelow(UserFolder());
        for (const auto& [name, bytes] : defaults_) {
            const auto found = now.find(name);
            EXPECT_TRUE(found == now.end() || found->second == bytes)
                << name.toStdString() << " is cut, call " << nth;
        }
    }

    const Files defaults_{{QStringLiteral("support/FAULTS.DAT"), QByteArray(50'000, 'f')},
                          {QStringLiteral("support/CODES.DAT"), QByteArray(300, 'c')}};
    QTemporaryDir folder_{FastFolder()};
};
} // namespace

TEST_P(DefaultsFault, AtAnyCallOfAFirstStartLeaveNoFileInPartAndTheNextStartFillsIn) {
    int nth = 1;
    for (; nth < mostCalls && StartUpSpoilt(nth); ++nth) {
        ExpectNoneInPart(nth);
        StartUp();
        const Files after = FilesBelow(UserFolder());
        EXPECT_TRUE(std::includes(after.begin(), after.end(), defaults_.begin(), defaults_.end()));
    }
    EXPECT_GE(nth, 8);
    EXPECT_LT(nth, mostCalls);
}

TEST_P(DefaultsFault, NoFileTakesItsNameBeforeItIsOnTheDisk) {
    const SpoiltCalls none(0, GetParam());
    StartUp();
    EXPECT_EQ(none.NamedUnflushed(), 0);
    EXPECT_GE(none.Count(), 8);
}

INSTANTIATE_TEST_SUITE_P(Spoils, DefaultsFault,
                         testing::Values(Spoil::DeviceFails, Spoil::DiskStaysFull,
                                         Spoil::KilledBefore, Spoil::KilledAfter),
                         [](const auto& how) { return NameOf(how.param); });
