#include "programset/ScriptedFileOperations.h"

#include "programset/SetFolder.h"
#include "programset/SmallDisk.h"
#include <gtest/gtest.h>
#include <QDateTime>
#include <QFileInfo>

TEST(FileOperations, CopyTakesBytesAndDateOfTheLastChange) {
    SetFolder folder;
    const QByteArray bytes = QByteArray(2'500'000, 'x') + '\0' + "\r\n\x1a";
    folder.Make(u"a.hex"_qs, bytes);
    QFile file(folder.Path(u"a.hex"_qs));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QDateTime moment(QDate(2001, 3, 14), QTime(12, 0));
    file.setFileTime(moment, QFileDevice::FileModificationTime);
    file.close();
    DiskFileOperations().Copy(folder.Path(u"a.hex"_qs), folder.Path(u"b.hex"_qs));
    EXPECT_EQ(folder.Bytes(u"b.hex"_qs), bytes);
    EXPECT_EQ(QFileInfo(folder.Path(u"b.hex"_qs)).lastModified(), moment);
    EXPECT_EQ(folder.Names().size(), 2);
}

TEST(FileOperations, CopyReplacesAndTakesEmptyFiles) {
    SetFolder folder;
    folder.Make(u"a"_qs);
    folder.Make(u"b"_qs, "old");
    DiskFileOperations().Copy(folder.Path(u"a"_qs), folder.Path(u"b"_qs));
    EXPECT_EQ(folder.Bytes(u"b"_qs), "");
}

TEST(FileOperations, CopyRaisesByCause) {
    SetFolder folder;
    folder.Make(u"a"_qs, "x");
    folder.Make(u"locked"_qs, "y");
    QFile::setPermissions(folder.Path(u"locked"_qs), QFileDevice::ReadOwner);
    DiskFileOperations files;
    const auto copy = [&](const QString& from, const QString& to) {
        return ErrorOf([&] { files.Copy(folder.Path(from), folder.Path(to)); });
    };
    EXPECT_EQ(copy(u"lost"_qs, u"b"_qs), 53);
    EXPECT_EQ(copy(u"a"_qs, u"a"_qs), 70);
    EXPECT_EQ(copy(u"a"_qs, u"locked"_qs), 70);
    EXPECT_EQ(copy(u"a"_qs, u"no/b"_qs), 76);
    EXPECT_EQ(copy(u"a"_qs, QString(300, u'n')), 75);
    EXPECT_EQ(folder.Names(), (QStringList{u"a"_qs, u"locked"_qs}));
    EXPECT_EQ(folder.Bytes(u"a"_qs), "x");
}

TEST(FileOperations, RemoveIsWithoutForce) {
    SetFolder folder;
    folder.Make(u"a"_qs);
    QFile::setPermissions(folder.Path(u"a"_qs), QFileDevice::ReadOwner);
    DiskFileOperations files;
    EXPECT_EQ(ErrorOf([&] { files.Remove(folder.Path(u"a"_qs)); }), 70);
    EXPECT_EQ(ErrorOf([&] { files.Remove(folder.Path(u"lost"_qs)); }), 53);
    QFile::setPermissions(folder.Path(u"a"_qs), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    files.Remove(folder.Path(u"a"_qs));
    EXPECT_TRUE(folder.Names().isEmpty());
}

TEST(FileOperations, MoveNeverReplaces) {
    SetFolder folder;
    folder.Make(u"a"_qs, "a");
    folder.Make(u"b"_qs, "b");
    DiskFileOperations files;
    EXPECT_EQ(ErrorOf([&] { files.Move(folder.Path(u"a"_qs), folder.Path(u"b"_qs)); }), 58);
    EXPECT_EQ(ErrorOf([&] { files.Move(folder.Path(u"lost"_qs), folder.Path(u"c"_qs)); }), 53);
    files.Move(folder.Path(u"a"_qs), folder.Path(u"c"_qs));
    EXPECT_EQ(folder.Names(), (QStringList{u"b"_qs, u"c"_qs}));
}

TEST(FileOperations, ErrorNamesTheFile) {
    const RunTimeError error = FileError(70, u"/sets/PUMP.HEX"_qs);
    EXPECT_EQ(error.Description().toStdString(), "Permission denied: /sets/PUMP.HEX");
}

TEST(FileOperations, CopyToAFullDiskLeavesTheOldFile) {
    SmallDisk disk("16k");
    SKIP_IF_NOT_MOUNTED(disk);
    SetFolder folder;
    folder.Make(u"big"_qs, QByteArray(40'000, 'x'));
    folder.Make(u"small"_qs, "new");
    DiskFileOperations files;
    files.Copy(folder.Path(u"small"_qs), disk.Path(u"a"_qs));
    EXPECT_EQ(ErrorOf([&] { files.Copy(folder.Path(u"big"_qs), disk.Path(u"a"_qs)); }), 61);
    QFile kept(disk.Path(u"a"_qs));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "new");
    EXPECT_EQ(QDir(disk.Path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}
