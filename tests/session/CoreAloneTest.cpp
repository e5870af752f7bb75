// Linked against the core and nothing else: it builds only as long as no part of the core needs a
// window, and no library with windows may come in through another one.
#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "link/RSComm.h"
#include "programset/ProgramBoardIndex.h"
#include "session/BackgroundUpdate.h"
#include "session/CommMode.h"
#include <fstream>
#include <gtest/gtest.h>
#include <string>

namespace {
class NoDialogs final : public Dialogs {
public:
    int MsgBox(const QString&, int, const QString&) override { return MsgAnswer::Cancel; }
    QString InputBox(const QString&, const QString&, const QString&) override { return QString(); }
    QString ShowOpen(const FileDialogRequest&) override {
        throw RunTimeError(ErrorNumber::DialogCancel);
    }
    QString ShowSave(const FileDialogRequest&) override {
        throw RunTimeError(ErrorNumber::DialogCancel);
    }
    PrinterChoice ShowPrinter() override { throw RunTimeError(ErrorNumber::DialogCancel); }
};

// Whether a library of this name is loaded into the process.
bool IsLoaded(const std::string& library) {
    std::ifstream maps("/proc/self/maps");
    std::string line;
    while (std::getline(maps, line))
        if (line.find(library) != std::string::npos)
            return true;
    return false;
}
} // namespace

TEST(CoreAlone, WorksWithoutAWindow) {
    NoDialogs dialogs;
    SystemClock clock;
    NoBusyDisplay busy;
    const ApplicationFolder folder(QStringLiteral("/nowhere"));
    RSComm link(dialogs, clock, busy, folder);
    EXPECT_EQ(link.RSRead(QStringLiteral("B100")), QStringLiteral("0"));
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(ProgramBoardIndex(QStringLiteral("/nowhere/A.hdn")), 68);
}

TEST(CoreAlone, LoadsNoLibraryWithWindows) {
    if (!std::ifstream("/proc/self/maps"))
        GTEST_SKIP() << "this system does not tell which libraries are loaded";
    ASSERT_TRUE(IsLoaded("libQt6Core")) << "the list of libraries cannot be read";
    for (const char* library : {"libQt6Gui", "libQt6Widgets", "libQt6PrintSupport", "libQt6Svg"})
        EXPECT_FALSE(IsLoaded(library)) << library;
}
