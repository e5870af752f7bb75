#include "shell/Drives.h"

#include <gtest/gtest.h>
#include <QTemporaryDir>

TEST(Drives, APathLiesOnTheLongestRootThatItBeginsWith) {
    const QStringList drives = {"/", "/media/stick", "/media/stick2"};
    EXPECT_EQ(DriveOfPath(drives, "/home/x").toStdString(), "/");
    EXPECT_EQ(DriveOfPath(drives, "/media/stick/sets").toStdString(), "/media/stick");
    EXPECT_EQ(DriveOfPath(drives, "/media/stick").toStdString(), "/media/stick");
    EXPECT_EQ(DriveOfPath(drives, "/media/stick2").toStdString(), "/media/stick2");
    EXPECT_EQ(DriveOfPath(drives, "/media/stick3").toStdString(), "/");
    EXPECT_TRUE(DriveOfPath({"C:/", "D:/"}, "E:/x").isEmpty());
    EXPECT_EQ(DriveOfPath({"C:/", "D:/"}, "D:/x").toStdString(), "D:/");
}

TEST(Drives, TheMachineHasARootThatIsReady) {
    const SystemDrives drives;
    ASSERT_FALSE(drives.List().isEmpty());
    EXPECT_TRUE(drives.IsReady(drives.List().first()));
    EXPECT_FALSE(drives.List().contains("/proc"));
    EXPECT_FALSE(drives.List().contains("/dev"));
}

TEST(Drives, AFolderThatIsGoneIsNotReady) {
    QTemporaryDir folder;
    const QString path = folder.path();
    EXPECT_TRUE(SystemDrives().IsReady(path));
    folder.remove();
    EXPECT_FALSE(SystemDrives().IsReady(path));
}
