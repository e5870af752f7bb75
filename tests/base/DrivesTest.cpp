#include "base/Drives.h"

#include "base/SystemCalls.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>

TEST(Drives, KindsByFileSystemAndDevice) {
    EXPECT_EQ(DriveTypeOf("iso9660", "/dev/sr0", true), DriveType::CDRom);
    EXPECT_EQ(DriveTypeOf("udf", "/dev/sr0", true), DriveType::CDRom);
    EXPECT_EQ(DriveTypeOf("nfs4", "server:/sets", false), DriveType::Network);
    EXPECT_EQ(DriveTypeOf("tmpfs", "tmpfs", false), DriveType::RamDisk);
    EXPECT_EQ(DriveTypeOf("vfat", "/dev/sdb1", true), DriveType::Removable);
    EXPECT_EQ(DriveTypeOf("ext4", "/dev/sda1", false), DriveType::Fixed);
    EXPECT_EQ(DriveTypeOf("overlay", "overlay", false), DriveType::Unknown);
}

TEST(Drives, NumbersAreThoseOfTheSuite) {
    EXPECT_EQ(static_cast<int>(DriveType::Removable), 1);
    EXPECT_EQ(static_cast<int>(DriveType::CDRom), 4);
}

TEST(Drives, RootIsAlwaysThereAndReady) {
    const SystemDrives drives;
    const QString root = QDir::rootPath();
    EXPECT_TRUE(drives.Roots().contains(root));
    const Drive drive = drives.At(root);
    EXPECT_TRUE(drive.isReady);
    EXPECT_GT(drive.availableSpace, 0);
}

TEST(Drives, AllRootsAreFolders) {
    for (const QString& root : SystemDrives().Roots())
        EXPECT_TRUE(QDir(root).exists()) << root.toStdString();
}

TEST(Drives, PathThatDoesNotExistIsOnTheDriveOfItsNearestFolder) {
    QTemporaryDir folder;
    const SystemDrives drives;
    const QString root = drives.RootOf(folder.path());
    EXPECT_TRUE(drives.At(root).isReady);
    EXPECT_EQ(drives.RootOf(folder.filePath(u"no/such/folder"_qs)), root);
}

TEST(Drives, FolderThatIsNoMountPointIsNotReady) {
    QTemporaryDir folder;
    const SystemDrives drives;
    EXPECT_FALSE(drives.At(folder.path()).isReady);
    EXPECT_FALSE(drives.At(u"/no/such/drive"_qs).isReady);
    EXPECT_EQ(drives.At(u"/no/such/drive"_qs).letter.toStdString(), "/no/such/drive");
}
