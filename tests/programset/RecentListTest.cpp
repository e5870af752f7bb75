#include "programset/RecentList.h"

#include "base/RunTimeError.h"
#include "programset/SetFolder.h"
#include <gtest/gtest.h>

namespace {
const QString fileName = QStringLiteral("HD2000.dat");

RecentList ReadFrom(SetFolder& folder, const QByteArray& bytes) {
    folder.Make(fileName, bytes);
    RecentList list;
    list.Read(folder.Path(fileName));
    return list;
}
} // namespace

TEST(RecentList, MissingFileLeavesNoEntriesAndTheSeparatorHidden) {
    SetFolder folder;
    RecentList list;
    list.Read(folder.Path(fileName));
    EXPECT_FALSE(list.SeparatorShown());
    EXPECT_TRUE(list.ProgramAtStart().isEmpty());
    for (int index = 0; index < RecentList::length; ++index)
        EXPECT_FALSE(list.Shown(index));
    EXPECT_EQ(list.Caption(1).toStdString(), "&2 Recent File");
}

TEST(RecentList, ReadsFourEntriesAndLeavesTheRest) {
    SetFolder folder;
    const RecentList list = ReadFrom(folder, "/a.hdn\r\n/b.hdn\r\n/c.hdn\r\n/d.hdn\r\n/e.hdn\r\n");
    EXPECT_TRUE(list.SeparatorShown());
    EXPECT_EQ(list.Path(3).toStdString(), "/d.hdn");
    EXPECT_EQ(list.Caption(0).toStdString(), "&1 /a.hdn");
    EXPECT_EQ(list.Caption(3).toStdString(), "&4 /d.hdn");
}

TEST(RecentList, EntryIsShownForEveryItemReadAlsoAnEmptyOne) {
    SetFolder folder;
    const RecentList list = ReadFrom(folder, "/a.hdn\r\n\r\n");
    EXPECT_TRUE(list.Shown(1));
    EXPECT_EQ(list.Caption(1).toStdString(), "&2 ");
    EXPECT_FALSE(list.Shown(2));
}

TEST(RecentList, PathWithACommaIsCutThere) {
    SetFolder folder;
    const RecentList list = ReadFrom(folder, "/a,b.hdn\r\n/c.hdn\r\n");
    EXPECT_EQ(list.Path(0).toStdString(), "/a");
    EXPECT_EQ(list.Path(1).toStdString(), "b.hdn");
    EXPECT_EQ(list.Path(2).toStdString(), "/c.hdn");
}

TEST(RecentList, FirstPathOfAnExistingFileIsTheProgramAtStart) {
    SetFolder folder;
    folder.Make(u"PUMP.hdn"_qs);
    const QString path = folder.Path(u"PUMP.hdn"_qs);
    EXPECT_EQ(ReadFrom(folder, path.toUtf8() + "\r\n").ProgramAtStart(), path);
}

TEST(RecentList, DeletedFirstFileSelectsNothingButIsStillShown) {
    SetFolder folder;
    const RecentList list = ReadFrom(folder, "/gone/PUMP.hdn\r\n/c.hdn\r\n");
    EXPECT_TRUE(list.ProgramAtStart().isEmpty());
    EXPECT_TRUE(list.Shown(0));
    EXPECT_EQ(list.Caption(0).toStdString(), "&1 /gone/PUMP.hdn");
}

TEST(RecentList, UpdateMovesTheListDown) {
    RecentList list;
    list.UpdateRecentFile(u"/a.hdn"_qs);
    EXPECT_TRUE(list.SeparatorShown());
    EXPECT_TRUE(list.Shown(0));
    EXPECT_FALSE(list.Shown(1));
    for (const char* path : {"/b.hdn", "/c.hdn", "/d.hdn", "/e.hdn"})
        list.UpdateRecentFile(QLatin1String(path));
    EXPECT_EQ(list.Path(0).toStdString(), "/e.hdn");
    EXPECT_EQ(list.Path(3).toStdString(), "/b.hdn");
    EXPECT_EQ(list.Caption(3).toStdString(), "&4 /b.hdn");
    EXPECT_TRUE(list.Shown(3));
}

TEST(RecentList, UpdateWithTheSameFileTwiceChangesNothing) {
    RecentList list;
    list.UpdateRecentFile(u"/a.hdn"_qs);
    list.UpdateRecentFile(u"/A.HDN"_qs);
    EXPECT_EQ(list.Path(0).toStdString(), "/a.hdn");
    EXPECT_TRUE(list.Path(1).isEmpty());
    EXPECT_FALSE(list.Shown(1));
}

TEST(RecentList, EntryOfUpToFourCharactersMovesWithoutBeingShown) {
    RecentList list;
    list.UpdateRecentFile(u"/abc"_qs);
    list.UpdateRecentFile(u"/b.hdn"_qs);
    EXPECT_EQ(list.Path(1).toStdString(), "/abc");
    EXPECT_FALSE(list.Shown(1));
    EXPECT_EQ(list.Caption(1).toStdString(), "&2 Recent File");
}

TEST(RecentList, AlwaysWritesFourLines) {
    SetFolder folder;
    RecentList list;
    list.Write(folder.Path(fileName));
    EXPECT_EQ(folder.Bytes(fileName), "\r\n\r\n\r\n\r\n");
    list.UpdateRecentFile(u"/Köhler/a.hdn"_qs);
    list.UpdateRecentFile(u"/b.hdn"_qs);
    list.Write(folder.Path(fileName));
    EXPECT_EQ(folder.Bytes(fileName), "/b.hdn\r\n/K\xf6hler/a.hdn\r\n\r\n\r\n");
}

TEST(RecentList, MissingFolderRaisesOnWriting) {
    EXPECT_THROW(RecentList().Write(u"/no/such/folder/HD2000.dat"_qs), RunTimeError);
}

TEST(RecentList, BinaryAndHugeFilesGiveFourEntriesAtMost) {
    SetFolder folder;
    const RecentList list =
        ReadFrom(folder, QByteArray("\x00\xff\x1a", 3) + QByteArray(1'000'000, ','));
    EXPECT_TRUE(list.Shown(3));
    EXPECT_TRUE(list.ProgramAtStart().isEmpty());
}
