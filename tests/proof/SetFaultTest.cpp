#include "AnsweredDialogs.h"
#include "base/Drives.h"
#include "base/RunTimeError.h"
#include "FilesOfRun.h"
#include "programset/CopyProgramSet.h"
#include "programset/DeleteProgramSet.h"
#include "programset/FileOperations.h"
#include "programset/NewProgramSet.h"
#include "programset/RenameProgramSet.h"
#include "SpoiltCalls.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>

// Operations on whole program sets take many calls. Each call is spoilt once in each way; what the
// headers of the operations promise for the states in between must hold.

namespace {
constexpr int mostCalls = 2000;
const std::vector<QString> extensions{QStringLiteral("hdn"), QStringLiteral("HEX"),
                                      QStringLiteral("rev"), QStringLiteral("keep")};

QByteArray OldBytes(const QString& extension) {
    return "old " + extension.toLatin1().repeated(500);
}

QByteArray OtherBytes(const QString& extension) {
    return "other " + extension.toLatin1().repeated(700);
}

/// How one attempt ended.
struct Outcome {
    Files files;         ///< below the folder
    bool raised = false; ///< an error was raised; never so after a kill
    bool killed = false;
    int calls = 0; ///< 0 after a kill
};

class SetFault : public testing::TestWithParam<Spoil> {
protected:
    using Deed = void (*)(const QString& folder);
    using Check = std::function<void(const Outcome&)>;

    static bool Kills() {
        return GetParam() == Spoil::KilledBefore || GetParam() == Spoil::KilledAfter;
    }
    static Outcome Attempt(Deed deed, const Files& before, int nth) {
        const QTemporaryDir folder(FastFolder());
        MakeFiles(folder.path(), before);
        Outcome outcome;
        const auto work = [&] {
            const SpoiltCalls spoilt(nth, GetParam());
            try {
                deed(folder.path());
            } catch (const RunTimeError&) {
                outcome.raised = true;
            }
            outcome.calls = spoilt.Count();
        };
        if (Kills() && nth > 0)
            outcome.killed = !RunsToItsEnd(work);
        else
            work();
        outcome.files = FilesBelow(folder.path());
        return outcome;
    }
    static void AtEachCall(Deed deed, const Files& before, const Check& check) {
        const int calls = Attempt(deed, before, 0).calls;
        ASSERT_GE(calls, int(extensions.size()));
        ASSERT_LT(calls, mostCalls);
        for (int nth = 1; nth <= calls; ++nth) {
            const testing::ScopedTrace at(__FILE__, __LINE__, "call " + std::to_string(nth));
            const Outcome outcome = Attempt(deed, before, nth);
            EXPECT_EQ(outcome.killed, Kills());
            check(outcome);
        }
    }
    static Files Set(const QString& base, QByteArray (*bytes)(const QString&)) {
        Files files;
        for (const QString& extension : extensions)
            files[base + u'.' + extension] = bytes(extension);
        return files;
    }
    /// Bytes of the file of the set in the folder itself; empty where there is none.
    static QByteArray Bytes(const Outcome& outcome, const QString& name) {
        const auto found = outcome.files.find(name);
        return found == outcome.files.end() ? QByteArray() : found->second;
    }
    static bool HoldsSomewhere(const Files& files, const QByteArray& bytes) {
        return std::any_of(files.begin(), files.end(),
                           [&](const auto& file) { return file.second == bytes; });
    }
    static bool IsWhole(const Outcome& outcome, const Files& set) {
        return std::includes(outcome.files.begin(), outcome.files.end(), set.begin(), set.end());
    }

    const Files old_ = Set(QStringLiteral("OLD"), OldBytes);
};

void Rename(const QString& folder) {
    AnsweredDialogs dialogs(QStringLiteral("NEW"));
    DiskFileOperations files;
    RenameProgramSet(folder + QStringLiteral("/OLD.hdn"), dialogs, files);
}

void Delete(const QString& folder) {
    AnsweredDialogs dialogs;
    DiskFileOperations files;
    DeleteProgramSet(folder + QStringLiteral("/OLD.hdn"), dialogs, files);
}

void Copy(const QString& folder) {
    AnsweredDialogs dialogs;
    DiskFileOperations files;
    const SystemDrives drives;
    CopyProgramSet copy(dialogs, files, drives);
    if (!copy.Begin({folder, QStringLiteral("OLD.hdn"), folder + QStringLiteral("/to"),
                     QStringLiteral("OLD.hdn")}))
        return;
    while (copy.MoreFiles())
        copy.CopyNextFile();
}

void CreateOverOld(const QString& folder) {
    constexpr qint16 k2021 = 52;
    AnsweredDialogs dialogs;
    DiskFileOperations files;
    NewProgramSet(dialogs, files).Create(QStringLiteral("OLD"), folder, k2021);
}
} // namespace

TEST_P(SetFault, ARenameKeepsEachFileWholeUnderOneNameOrBoth) {
    AtEachCall(Rename, old_, [&](const Outcome& outcome) {
        for (const QString& extension : extensions) {
            const QByteArray oldName = Bytes(outcome, QStringLiteral("OLD.") + extension);
            const QByteArray newName = Bytes(outcome, QStringLiteral("NEW.") + extension);
            EXPECT_TRUE(oldName == OldBytes(extension) || newName == OldBytes(extension));
            EXPECT_TRUE(oldName.isEmpty() || oldName == OldBytes(extension));
            EXPECT_TRUE(newName.isEmpty() || newName == OldBytes(extension));
        }
        if (!outcome.killed) {
            EXPECT_EQ(outcome.files, outcome.raised ? old_ : Set(QStringLiteral("NEW"), OldBytes));
        }
        // All new files are made before the first old one goes.
        EXPECT_TRUE(IsWhole(outcome, old_) ||
                    IsWhole(outcome, Set(QStringLiteral("NEW"), OldBytes)));
    });
}

TEST_P(SetFault, ADeleteTakesTheProgramFileLastAndCutsNone) {
    AtEachCall(Delete, old_, [&](const Outcome& outcome) {
        for (const auto& [name, bytes] : outcome.files)
            EXPECT_EQ(bytes, old_.at(name));
        EXPECT_TRUE(outcome.files.empty() || outcome.files.count(QStringLiteral("OLD.hdn")));
        EXPECT_TRUE(outcome.killed || outcome.raised == !outcome.files.empty());
    });
}

TEST_P(SetFault, ACopyOverASetLeavesEachFileOldOrNewAndTheSourceAlone) {
    Files before = old_;
    before.merge(Set(QStringLiteral("to/OLD"), OtherBytes));
    AtEachCall(Copy, before, [&](const Outcome& outcome) {
        EXPECT_TRUE(IsWhole(outcome, old_));
        for (const QString& extension : extensions) {
            const QByteArray copy = Bytes(outcome, QStringLiteral("to/OLD.") + extension);
            EXPECT_TRUE(copy == OldBytes(extension) || copy == OtherBytes(extension));
        }
        EXPECT_TRUE(outcome.killed || outcome.files.size() == before.size()) << "litter";
    });
}

TEST_P(SetFault, ANewSetInPlaceOfAnOldOneLosesNothingOfTheOldUntilItStands) {
    const QString hdn = QStringLiteral("OLD.HDN");
    const QByteArray newBytes = "4\r\n";
    AtEachCall(CreateOverOld, old_, [&](const Outcome& outcome) {
        const bool stands = Bytes(outcome, hdn) == newBytes;
        EXPECT_TRUE(stands || Bytes(outcome, hdn).isEmpty());
        for (const QString& extension : extensions)
            EXPECT_TRUE(stands || HoldsSomewhere(outcome.files, OldBytes(extension)));
        EXPECT_TRUE(!outcome.raised || stands || outcome.files == old_) << "not in its place";
        for (const auto& [name, bytes] : outcome.files)
            EXPECT_TRUE(outcome.killed || !name.startsWith(QStringLiteral("OLD.HDN.")));
    });
}

TEST_P(SetFault, NoFileTakesItsNameBeforeItIsOnTheDisk) {
    for (const auto work : {Rename, Copy, CreateOverOld}) {
        const QTemporaryDir folder(FastFolder());
        MakeFiles(folder.path(), old_);
        QDir(folder.path()).mkdir(QStringLiteral("to"));
        const SpoiltCalls none(0, GetParam());
        work(folder.path());
        EXPECT_EQ(none.NamedUnflushed(), 0);
        EXPECT_GE(none.Count(), 4);
    }
}

INSTANTIATE_TEST_SUITE_P(Spoils, SetFault,
                         testing::Values(Spoil::DeviceFails, Spoil::DiskStaysFull,
                                         Spoil::KilledBefore, Spoil::KilledAfter),
                         [](const auto& how) { return NameOf(how.param); });
