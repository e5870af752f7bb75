#include "base/TextFile.h"
#include "support/ExpectError.h"
#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"
#include "support/PrintText.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFileInfo>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
class WholeFile : public testing::Test {
protected:
    TestFolder folder;
    const QString name = QStringLiteral("out.txt");
};
} // namespace

TEST_F(WholeFile, TakesThePlaceOfTheOldOne) {
    folder.Write(name, "a longer old content");
    WriteWholeFile(folder.Path(name), "new");
    EXPECT_EQ(folder.Content(name), "new");
    EXPECT_EQ(folder.Names(), QStringList{name}) << "no temporary file is left";
}

TEST_F(WholeFile, KeepsTheCaseOfTheNameOnDisk) {
    folder.Write(QStringLiteral("Pump.REV"), "old");
    WriteWholeFile(folder.Path(QStringLiteral("pump.rev")), "new");
    EXPECT_EQ(folder.Names(), QStringList{QStringLiteral("Pump.REV")});
    EXPECT_EQ(folder.Content(QStringLiteral("Pump.REV")), "new");
}

TEST_F(WholeFile, ANewFileHasTheNameGiven) {
    WriteWholeFile(folder.Path(QStringLiteral("Neu.Rev")), "new");
    EXPECT_EQ(folder.Names(), QStringList{QStringLiteral("Neu.Rev")});
}

TEST_F(WholeFile, FollowsALinkAndLeavesIt) {
    const QString target = folder.Write(QStringLiteral("elsewhere/real.txt"), "old");
    ASSERT_TRUE(QFile::link(target, folder.Path(name)));
    WriteWholeFile(folder.Path(name), "new");
    EXPECT_TRUE(QFileInfo(folder.Path(name)).isSymLink());
    EXPECT_EQ(folder.Content(QStringLiteral("elsewhere/real.txt")), "new");
    EXPECT_FALSE(QFileInfo(target).isSymLink());
}

TEST_F(WholeFile, KeepsThePermissionsOfTheOldOne) {
    const QByteArray path = folder.Write(name, "old").toLocal8Bit();
    ASSERT_EQ(chmod(path.constData(), 0640), 0);
    WriteWholeFile(folder.Path(name), "new");
    struct stat status {};
    ASSERT_EQ(stat(path.constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640u);
}

TEST_F(WholeFile, AMissingFolderIsError76) {
    ExpectError(76, [&] { WriteWholeFile(folder.Path(QStringLiteral("none/a.txt")), "new"); });
}

TEST_F(WholeFile, AFolderOrAPipeInItsPlaceIsError75) {
    const QString path = folder.MakeFolder(QStringLiteral("dir"));
    ExpectError(75, [&] { WriteWholeFile(path, "new"); });
    const QString pipe = folder.Path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
    ExpectError(75, [&] { WriteWholeFile(pipe, "new"); });
    EXPECT_FALSE(QFileInfo(pipe).isFile());
}

TEST_F(WholeFile, AReadOnlyFileIsError75AndStays) {
    const QString path = folder.Write(name, "old");
    ASSERT_EQ(chmod(folder.Path().toLocal8Bit().constData(), 0777), 0);
    ASSERT_EQ(chmod(path.toLocal8Bit().constData(), 0444), 0);
    const OrdinaryUser user;
    if (!user.Possible())
        GTEST_SKIP() << "root may write everything and cannot be another user here";
    ExpectError(75, [&] { WriteWholeFile(path, "new"); });
    EXPECT_EQ(folder.Content(name), "old");
}

TEST_F(WholeFile, AFolderWithoutPermissionIsError75) {
    const QByteArray dir = folder.MakeFolder(QStringLiteral("locked")).toLocal8Bit();
    ASSERT_EQ(chmod(folder.Path().toLocal8Bit().constData(), 0755), 0);
    ASSERT_EQ(chmod(dir.constData(), 0555), 0);
    {
        const OrdinaryUser user;
        if (!user.Possible())
            GTEST_SKIP() << "root may write everything and cannot be another user here";
        ExpectError(75, [&] { WriteWholeFile(QString::fromLocal8Bit(dir) + "/a.txt", "new"); });
    }
    EXPECT_EQ(folder.Names(QStringLiteral("locked")), QStringList());
    ASSERT_EQ(chmod(dir.constData(), 0755), 0); // so that it can be cleared away
}

TEST_F(WholeFile, AFolderOfTheKernelThatTakesNoFilesIsError75) {
    if (!QFileInfo(QStringLiteral("/proc/self")).isDir())
        GTEST_SKIP() << "there is no /proc here";
    ExpectError(75, [&] { WriteWholeFile(QStringLiteral("/proc/self/new.txt"), "new"); });
}

TEST_F(WholeFile, AWriteThatFailsHalfwayIsError61AndTheOldFileStays) {
    folder.Write(name, "old");
    {
        const FileSizeLimit limit(4096);
        ExpectError(61, [&] { WriteWholeFile(folder.Path(name), QByteArray(100000, 'x')); });
    }
    EXPECT_EQ(folder.Content(name), "old");
    EXPECT_EQ(folder.Names(), QStringList{name}) << "no temporary file is left";
}

// Contents below the size of a buffer are first written when the file is put in place.
TEST_F(WholeFile, AWriteOfAFewBytesThatFailsIsError61AndTheOldFileStays) {
    folder.Write(name, "old");
    {
        const FileSizeLimit limit(2);
        ExpectError(61, [&] { WriteWholeFile(folder.Path(name), "new"); });
    }
    EXPECT_EQ(folder.Content(name), "old");
    EXPECT_EQ(folder.Names(), QStringList{name}) << "no temporary file is left";
}

TEST_F(WholeFile, AFullDiskIsError61AndTheOldFileStays) {
    const QByteArray disk = folder.MakeFolder(QStringLiteral("disk")).toLocal8Bit();
    if (mount("tmpfs", disk.constData(), "tmpfs", 0, "size=16k") != 0)
        GTEST_SKIP() << "a small disk can be mounted by root alone";
    const QString path = folder.Write(QStringLiteral("disk/out.txt"), "old");
    ExpectError(61, [&] { WriteWholeFile(path, QByteArray(100000, 'x')); });
    EXPECT_EQ(folder.Content(QStringLiteral("disk/out.txt")), "old");
    EXPECT_EQ(folder.Names(QStringLiteral("disk")), QStringList{name});
    EXPECT_EQ(umount(disk.constData()), 0);
}
