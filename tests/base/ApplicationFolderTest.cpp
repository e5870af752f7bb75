#include "base/ApplicationFolder.h"

#include "support/PrintText.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <QFile>

namespace {
class LocatedFolder : public testing::Test {
protected:
    ApplicationFolder Locate() const {
        return ApplicationFolder::Locate(folder.Path(Text("program")), folder.Path(Text("user")),
                                         folder.Path(Text("defaults")));
    }
    static QString Text(const char* text) { return QString::fromLatin1(text); }
    TestFolder folder;
};
} // namespace

TEST_F(LocatedFolder, IsThatOfTheExecutableIfItHoldsSupport) {
    folder.MakeFolder(Text("program/Support"));
    folder.Write(Text("defaults/support/a.txt"), "default");
    EXPECT_EQ(Locate().Root(), folder.Path(Text("program")));
    EXPECT_FALSE(folder.Names().contains(Text("user"))) << "nothing is made elsewhere";
}

TEST_F(LocatedFolder, IsElseTheUsersAndFilledFromTheDefaults) {
    folder.MakeFolder(Text("program"));
    folder.Write(Text("defaults/support/FaultErrCodes.txt"), "05,Watchdog");
    folder.Write(Text("defaults/Help/a.html"), "help");
    EXPECT_EQ(Locate().Root(), folder.Path(Text("user")));
    EXPECT_EQ(folder.Content(Text("user/support/FaultErrCodes.txt")), "05,Watchdog");
    EXPECT_EQ(folder.Content(Text("user/Help/a.html")), "help");
}

TEST_F(LocatedFolder, AFileNamedSupportMakesNoPortableCopy) {
    folder.Write(Text("program/support"), "");
    EXPECT_EQ(Locate().Root(), folder.Path(Text("user")));
}

TEST_F(LocatedFolder, WhatTheUserHasStaysAndWhatIsMissingComes) {
    folder.Write(Text("user/Support/faulterrcodes.TXT"), "changed");
    folder.Write(Text("defaults/support/FaultErrCodes.txt"), "default");
    folder.Write(Text("defaults/support/CommErrCodes.txt"), "new");
    Locate();
    EXPECT_EQ(folder.Content(Text("user/Support/faulterrcodes.TXT")), "changed");
    EXPECT_EQ(folder.Content(Text("user/Support/CommErrCodes.txt")), "new");
    EXPECT_EQ(folder.Names(Text("user")), QStringList{Text("Support")}) << "one support folder";
}

TEST_F(LocatedFolder, FilesThatCameFromReadOnlyDefaultsCanBeWritten) {
    QFile file(folder.Write(Text("defaults/support/a.txt"), "default"));
    file.setPermissions(QFile::ReadOwner);
    Locate();
    EXPECT_TRUE(QFile::permissions(folder.Path(Text("user/support/a.txt"))) & QFile::WriteOwner);
}

TEST_F(LocatedFolder, MissingDefaultsAreNoError) {
    EXPECT_EQ(Locate().Root(), folder.Path(Text("user")));
    EXPECT_EQ(folder.Names(Text("user")), QStringList());
}

TEST_F(LocatedFolder, PathsAreFoundWhateverTheirCaseAndSeparators) {
    const QString path = folder.Write(Text("support/rsport.cfg"), "");
    const ApplicationFolder known(folder.Path());
    EXPECT_EQ(known.Path(Text("Support/RSPort.cfg")), path);
    EXPECT_EQ(known.Path(Text("\\Support\\RSPort.cfg")), path);
    EXPECT_EQ(known.Path(Text("Support/New.cfg")), folder.Path(Text("support/New.cfg")));
}
