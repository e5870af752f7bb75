#include "help/HelpFile.h"

#include "base/ApplicationFolder.h"
#include "help/RevisionDate.h"
#include "support/ExpectError.h"
#include "support/RecordedStarts.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QSysInfo>

namespace {
void SetDate(const QString& path, const QDate& date) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime(date, QTime(12, 0)), QFile::FileModificationTime));
}
} // namespace

TEST(HelpFile, IsOpenedWithTheViewerOfTheSystemWhateverItsCase) {
    const TestFolder root;
    const QString path = root.Write(QStringLiteral("help/HALDEN2000.HLP"), "help");
    RecordedStarts tools;
    EXPECT_TRUE(OpenHelpFile(ApplicationFolder(root.Path()), tools));
    ASSERT_EQ(tools.commands.size(), 1);
    EXPECT_EQ(tools.commands.first(), ViewerCommand(QSysInfo::kernelType(), path));
    EXPECT_EQ(tools.styles.first(), 1);
}

TEST(HelpFile, NothingIsStartedWithoutTheFile) {
    const TestFolder root;
    RecordedStarts tools;
    EXPECT_FALSE(OpenHelpFile(ApplicationFolder(root.Path()), tools));
    EXPECT_TRUE(tools.commands.isEmpty());
}

TEST(HelpFile, AViewerThatCannotBeStartedIsError53) {
    const TestFolder root;
    root.Write(QStringLiteral("Help/Halden2000.hlp"), "help");
    RecordedStarts tools;
    tools.fails = true;
    ExpectError(53, [&] { OpenHelpFile(ApplicationFolder(root.Path()), tools); });
}

TEST(HelpFile, EachSystemHasItsViewerAndAPathWithBlanksIsOneWord) {
    EXPECT_EQ(ViewerCommand(QStringLiteral("linux"), QStringLiteral("/a b/x.hlp")).toStdString(),
              "xdg-open \"/a b/x.hlp\"");
    EXPECT_EQ(ViewerCommand(QStringLiteral("darwin"), QStringLiteral("/a/x.hlp")).toStdString(),
              "open /a/x.hlp");
    EXPECT_EQ(ViewerCommand(QStringLiteral("winnt"), QStringLiteral("/a/x.hlp")).toStdString(),
              "explorer /a/x.hlp");
}

TEST(RevisionDate, IsThatOfTheProgramInTheApplicationFolder) {
    const TestFolder root;
    SetDate(root.Write(QStringLiteral("quentor.EXE"), "program"), QDate(2025, 3, 4));
    const QString running = root.Write(QStringLiteral("running"), "program");
    SetDate(running, QDate(2024, 1, 2));
    const ApplicationFolder folder(root.Path());
    EXPECT_EQ(RevisionDate(folder, running), QDate(2025, 3, 4));
    QFile::remove(root.Path(QStringLiteral("quentor.EXE")));
    EXPECT_EQ(RevisionDate(folder, running), QDate(2024, 1, 2));
}

TEST(RevisionDate, IsShownInTheShortFormOfTheCountry) {
    const QDate date(2025, 3, 4);
    EXPECT_EQ(RevisionText(date),
              QStringLiteral("Revised: ") + QLocale().toString(date, QLocale::ShortFormat));
    EXPECT_EQ(RevisionText(QDate()).toStdString(), "Revised: ");
}
