#include "programset/CopyProgramSet.h"

#include "base/Drives.h"
#include "programset/ScriptedFileOperations.h"
#include "programset/SetFolder.h"
#include "programset/SmallDisk.h"
#include "support/ScriptedDialogs.h"
#include <gtest/gtest.h>

namespace {
// A drive whose facts a test sets.
class ScriptedDrive final : public Drives {
public:
    QStringList Roots() const override { return {drive.root}; }
    QString RootOf(const QString&) const override { return drive.root; }
    Drive At(const QString&) const override { return drive; }

    Drive drive{u"A:/"_qs, u"A"_qs, DriveType::Fixed, true, 1'000'000};
};

class CopyProgramSetTest : public testing::Test {
protected:
    bool Begin(const QString& destinationName, const QString& sourceName = u"PUMP.hdn"_qs) {
        return copy_.Begin({source_.Path(), sourceName, destination_.Path(), destinationName});
    }
    void CopyAll() {
        while (copy_.MoreFiles())
            copy_.CopyNextFile();
    }
    void ExpectShortNamesBox() {
        dialogs_.ExpectBox(u"Only 'Short' file names will be used.   "_qs, 64, u"Copy File"_qs,
                           MsgAnswer::Ok);
    }
    void ExpectReplaceBox(const QString& name, int answer) {
        dialogs_.ExpectBox(u"The Halden program "_qs + name +
                               u" already exists. Do you want to replace the existing program?"_qs,
                           35, u"Copy File"_qs, answer);
    }
    void ExpectFullBox(int answer, std::function<void()> meanwhile = {}) {
        dialogs_.ExpectBox(u"The disk in the destination drive is full.\r\n\r\n"
                           u"Insert a new disk to continue."_qs,
                           69, u"Copy"_qs, answer, std::move(meanwhile));
    }
    void ExpectInsertBox(int answer, std::function<void()> meanwhile = {}) {
        dialogs_.ExpectBox(u"Please insert disk into drive A."_qs, 69, u"Insert Disk"_qs, answer,
                           std::move(meanwhile));
    }
    void ExpectFixedFullBox() {
        dialogs_.ExpectBox(u"The disk in the destination drive is full."_qs, 16, u"Copy"_qs,
                           MsgAnswer::Ok);
    }

    SetFolder source_;
    SetFolder destination_;
    ScriptedDialogs dialogs_;
    ScriptedFileOperations files_;
    ScriptedDrive drives_;
    CopyProgramSet copy_{dialogs_, files_, drives_};
};

const QStringList copiedNames = {u"TO.07"_qs,   u"TO.HDN"_qs, u"TO.HEX"_qs,
                                 u"TO.KEEP"_qs, u"TO.LMN"_qs, u"TO.REV"_qs};
} // namespace

TEST_F(CopyProgramSetTest, TakesEveryFileOfTheSetWithItsExtensionInUpperCase) {
    source_.MakeSet(u"PUMP"_qs);
    source_.Make(u"PUMP2.HEX"_qs);
    ASSERT_TRUE(Begin(u"TO"_qs));
    CopyAll();
    EXPECT_EQ(destination_.Names(), copiedNames);
    EXPECT_EQ(destination_.Bytes(u"TO.LMN"_qs), "PUMP.lmn");
    EXPECT_EQ(source_.Names().size(), 7);
    EXPECT_EQ(copy_.Destination(), destination_.Path(u"TO.HDN"_qs));
}

TEST_F(CopyProgramSetTest, StatusNamesTheNextFile) {
    source_.MakeSet(u"PUMP"_qs);
    ASSERT_TRUE(Begin(u"TO"_qs));
    EXPECT_EQ(copy_.StatusText().toStdString(), "Copying:  PUMP.07");
    copy_.CopyNextFile();
    EXPECT_EQ(destination_.Names(), QStringList{u"TO.07"_qs});
    EXPECT_EQ(copy_.StatusText().toStdString(), "Copying:  PUMP.HEX");
}

TEST_F(CopyProgramSetTest, LostSourceIsTold) {
    dialogs_.ExpectBox(source_.Path(u"PUMP.hdn"_qs) + u" does not exist.?"_qs, 64, u"Copy File"_qs,
                       MsgAnswer::Ok);
    EXPECT_FALSE(Begin(u"TO"_qs));
    EXPECT_FALSE(copy_.MoreFiles());
}

TEST_F(CopyProgramSetTest, EmptyDestinationStopsSilently) {
    source_.MakeSet(u"PUMP"_qs);
    EXPECT_FALSE(Begin(QString()));
}

TEST_F(CopyProgramSetTest, DestinationOfEightLettersGivesTheBox) {
    source_.MakeSet(u"PUMP"_qs);
    ExpectShortNamesBox();
    ASSERT_TRUE(Begin(u"EIGHTLET.hdn"_qs));
    CopyAll();
    EXPECT_EQ(copy_.Destination(), destination_.Path(u"EIGHTLET.HDN"_qs));
}

TEST_F(CopyProgramSetTest, DestinationOfSevenLettersDoesNot) {
    source_.MakeSet(u"PUMP"_qs);
    EXPECT_TRUE(Begin(u"SEVENLE.hdn"_qs));
}

TEST_F(CopyProgramSetTest, DestinationWithoutExtensionGivesTheBoxFromTwelveCharactersOn) {
    source_.MakeSet(u"PUMP"_qs);
    EXPECT_TRUE(Begin(u"ELEVENLETTE"_qs));
    ExpectShortNamesBox();
    EXPECT_TRUE(Begin(u"TWELVELETTER"_qs));
}

TEST_F(CopyProgramSetTest, LongDestinationIsShortenedForAllFilesAlike) {
    source_.MakeSet(u"PUMP"_qs);
    destination_.Make(u"PUMPST~1.HDN"_qs, "other");
    ExpectShortNamesBox();
    ASSERT_TRUE(Begin(u"pumpstation.hdn"_qs));
    CopyAll();
    EXPECT_EQ(destination_.Names().filter(u"PUMPST~2."_qs).size(), 6);
    EXPECT_EQ(destination_.Bytes(u"PUMPST~1.HDN"_qs), "other");
    EXPECT_EQ(copy_.Destination(), destination_.Path(u"PUMPST~2.HDN"_qs));
}

TEST_F(CopyProgramSetTest, ReplacedSetOfALongNameIsGoneAfterwards) {
    source_.MakeSet(u"PUMP"_qs);
    destination_.Make(u"pumpstation.hdn"_qs, "old");
    destination_.Make(u"pumpstation.hex"_qs, "old");
    ExpectShortNamesBox();
    ExpectReplaceBox(u"pumpstation.hdn"_qs, MsgAnswer::Yes);
    ASSERT_TRUE(Begin(u"pumpstation.hdn"_qs));
    CopyAll();
    EXPECT_TRUE(destination_.Names().filter(u"pumpstation"_qs).isEmpty());
    EXPECT_EQ(destination_.Bytes(u"PUMPST~1.HEX"_qs), "PUMP.HEX");
}

TEST_F(CopyProgramSetTest, SetOfALongNameOntoItselfRaisesAndStays) {
    source_.MakeSet(u"pumpstation"_qs);
    ExpectShortNamesBox();
    ExpectReplaceBox(u"pumpstation.hdn"_qs, MsgAnswer::Yes);
    ASSERT_TRUE(copy_.Begin(
        {source_.Path(), u"pumpstation.hdn"_qs, source_.Path(), u"pumpstation.hdn"_qs}));
    EXPECT_EQ(ErrorOf([&] { CopyAll(); }), 70);
    EXPECT_EQ(source_.Names().size(), 6);
}

TEST_F(CopyProgramSetTest, SetOntoItselfRaisesAndStays) {
    source_.MakeSet(u"PUMP"_qs);
    ExpectReplaceBox(u"pump.hdn"_qs, MsgAnswer::Yes);
    ASSERT_TRUE(copy_.Begin({source_.Path(), u"PUMP.hdn"_qs, source_.Path(), u"pump"_qs}));
    EXPECT_EQ(ErrorOf([&] { CopyAll(); }), 70);
    EXPECT_EQ(source_.Bytes(u"PUMP.HEX"_qs), "PUMP.HEX");
    EXPECT_EQ(source_.Names().size(), 6);
}

TEST_F(CopyProgramSetTest, AnythingButYesKeepsTheExistingProgram) {
    source_.MakeSet(u"PUMP"_qs);
    destination_.Make(u"to.hdn"_qs, "old");
    for (const int answer : {MsgAnswer::No, MsgAnswer::Cancel}) {
        ExpectReplaceBox(u"TO.hdn"_qs, answer);
        EXPECT_FALSE(Begin(u"TO"_qs));
    }
    EXPECT_EQ(destination_.Bytes(u"to.hdn"_qs), "old");
}

TEST_F(CopyProgramSetTest, YesReplacesAndKeepsTheCaseOfExistingNames) {
    source_.MakeSet(u"PUMP"_qs);
    destination_.Make(u"to.hdn"_qs, "old");
    destination_.Make(u"to.Hex"_qs, "old");
    ExpectReplaceBox(u"TO.hdn"_qs, MsgAnswer::Yes);
    ASSERT_TRUE(Begin(u"TO.hdn"_qs));
    CopyAll();
    EXPECT_EQ(destination_.Bytes(u"to.hdn"_qs), "D\r\n");
    EXPECT_EQ(destination_.Bytes(u"to.Hex"_qs), "PUMP.HEX");
    EXPECT_EQ(destination_.Names().size(), 6);
}

TEST_F(CopyProgramSetTest, ExactlyEnoughSpaceIsEnough) {
    source_.Make(u"PUMP.hdn"_qs, QByteArray(100, 'D'));
    drives_.drive.availableSpace = 100;
    ASSERT_TRUE(Begin(u"TO"_qs));
    CopyAll();
    EXPECT_EQ(destination_.Names().size(), 1);
}

TEST_F(CopyProgramSetTest, FullFixedDiskEndsTheCopy) {
    source_.MakeSet(u"PUMP"_qs);
    ASSERT_TRUE(Begin(u"TO"_qs));
    copy_.CopyNextFile();
    drives_.drive.availableSpace = 7;
    ExpectFixedFullBox();
    copy_.CopyNextFile();
    EXPECT_FALSE(copy_.MoreFiles());
    EXPECT_EQ(destination_.Names(), QStringList{u"TO.07"_qs});
    EXPECT_EQ(copy_.Destination(), destination_.Path(u"TO.HDN"_qs));
}

TEST_F(CopyProgramSetTest, FullDiskAtTheFirstFileHasNoDestination) {
    source_.MakeSet(u"PUMP"_qs);
    drives_.drive.availableSpace = 0;
    ASSERT_TRUE(Begin(u"TO"_qs));
    ExpectFixedFullBox();
    CopyAll();
    EXPECT_EQ(copy_.Destination(), std::nullopt);
}

TEST_F(CopyProgramSetTest, OtherDriveTypesEndTheCopyToo) {
    source_.MakeSet(u"PUMP"_qs);
    drives_.drive.availableSpace = 0;
    for (const DriveType type : {DriveType::Unknown, DriveType::Network, DriveType::RamDisk}) {
        drives_.drive.type = type;
        ASSERT_TRUE(Begin(u"TO"_qs));
        ExpectFixedFullBox();
        CopyAll();
    }
}

TEST_F(CopyProgramSetTest, CancelOnAFullRemovableDiskAbortsTheCopy) {
    source_.MakeSet(u"PUMP"_qs);
    for (const DriveType type : {DriveType::Removable, DriveType::CDRom}) {
        drives_.drive = {u"A:/"_qs, u"A"_qs, type, true, 1'000};
        ASSERT_TRUE(Begin(u"TO"_qs));
        copy_.CopyNextFile();
        drives_.drive.availableSpace = 0;
        ExpectFullBox(MsgAnswer::Cancel);
        copy_.CopyNextFile();
        EXPECT_FALSE(copy_.MoreFiles());
        EXPECT_EQ(copy_.Destination(), std::nullopt);
    }
}

TEST_F(CopyProgramSetTest, NewDiskTakesTheRemainingFiles) {
    source_.MakeSet(u"PUMP"_qs);
    drives_.drive = {u"A:/"_qs, u"A"_qs, DriveType::Removable, true, 0};
    ASSERT_TRUE(Begin(u"TO"_qs));
    ExpectFullBox(MsgAnswer::Retry);
    ExpectFullBox(MsgAnswer::Retry, [this] { drives_.drive.isReady = false; });
    ExpectInsertBox(MsgAnswer::Retry);
    ExpectInsertBox(MsgAnswer::Retry, [this] {
        drives_.drive.isReady = true;
        drives_.drive.availableSpace = 1'000;
    });
    CopyAll();
    EXPECT_EQ(destination_.Names(), copiedNames);
}

TEST_F(CopyProgramSetTest, CancelOnTheInsertBoxAbortsTheCopy) {
    source_.MakeSet(u"PUMP"_qs);
    drives_.drive.isReady = false;
    ASSERT_TRUE(Begin(u"TO"_qs));
    ExpectInsertBox(MsgAnswer::Cancel);
    CopyAll();
    EXPECT_EQ(files_.Calls(), 0);
    EXPECT_EQ(copy_.Destination(), std::nullopt);
}

TEST_F(CopyProgramSetTest, DiskThatFillsUpDuringTheCopyCountsAsFull) {
    source_.MakeSet(u"PUMP"_qs);
    drives_.drive.type = DriveType::Removable;
    files_.FillDiskAtCopy(2);
    ASSERT_TRUE(Begin(u"TO"_qs));
    ExpectFullBox(MsgAnswer::Retry);
    CopyAll();
    EXPECT_EQ(destination_.Names(), copiedNames);
}

TEST_F(CopyProgramSetTest, OtherErrorsPassToTheCaller) {
    source_.MakeSet(u"PUMP"_qs);
    files_.FailAt(2);
    ASSERT_TRUE(Begin(u"TO"_qs));
    copy_.CopyNextFile();
    EXPECT_EQ(ErrorOf([this] { copy_.CopyNextFile(); }), 57);
}

TEST_F(CopyProgramSetTest, FilesThatWouldMeetUnderOneNameRaise) {
    source_.MakeSet(u"PUMP"_qs);
    source_.Make(u"PUMP.hex"_qs, "another");
    if (source_.Names().size() == 6)
        GTEST_SKIP() << "this file system knows no letter case";
    ASSERT_TRUE(Begin(u"TO"_qs));
    EXPECT_EQ(ErrorOf([this] { CopyAll(); }), 58);
    EXPECT_EQ(destination_.Bytes(u"TO.HEX"_qs), "PUMP.HEX");
}

TEST_F(CopyProgramSetTest, LostDestinationFolderRaises) {
    source_.MakeSet(u"PUMP"_qs);
    ASSERT_TRUE(copy_.Begin({source_.Path(), u"PUMP.hdn"_qs, u"/no/such/folder"_qs, u"TO"_qs}));
    EXPECT_EQ(ErrorOf([this] { CopyAll(); }), 76);
}

TEST_F(CopyProgramSetTest, NameThatNoFileCanHaveRaises) {
    source_.MakeSet(u"PUMP"_qs);
    EXPECT_EQ(ErrorOf([this] { Begin(u".hdn"_qs); }), 52);
}

TEST_F(CopyProgramSetTest, HostileNamesAndFolders) {
    const QString name = u"a \"b\", é"_qs;
    source_.Enter(QString(200, u'n'));
    destination_.Enter(u"x, 'Köhler' \"y\""_qs);
    source_.MakeSet(QString(200, u's'));
    ExpectShortNamesBox();
    ASSERT_TRUE(Begin(name + u".hdn"_qs, QString(200, u's') + u".hdn"_qs));
    CopyAll();
    EXPECT_EQ(destination_.Names().size(), 6);
    EXPECT_EQ(copy_.Destination(), destination_.Path(name + u".HDN"_qs));
}

TEST_F(CopyProgramSetTest, RealDiskThatIsFull) {
    SmallDisk disk("16k");
    SKIP_IF_NOT_MOUNTED(disk);
    source_.MakeSet(u"PUMP"_qs);
    source_.Make(u"PUMP.HEX"_qs, QByteArray(13'000, 'x'));
    SystemDrives drives;
    DiskFileOperations files;
    CopyProgramSet copy(dialogs_, files, drives);
    ASSERT_TRUE(copy.Begin({source_.Path(), u"PUMP.hdn"_qs, disk.Path(), u"TO"_qs}));
    ExpectFixedFullBox();
    while (copy.MoreFiles())
        copy.CopyNextFile();
    EXPECT_EQ(QDir(disk.Path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"TO.07"_qs});
    EXPECT_EQ(copy.Destination(), disk.Path(u"TO.HDN"_qs));
    EXPECT_EQ(source_.Names().size(), 6);
}

TEST_F(CopyProgramSetTest, RealDiskIsFilledToTheLastPage) {
    SmallDisk disk("16k");
    SKIP_IF_NOT_MOUNTED(disk);
    source_.Make(u"PUMP.hdn"_qs, QByteArray(16 * 1024, 'D'));
    SystemDrives drives;
    DiskFileOperations files;
    CopyProgramSet copy(dialogs_, files, drives);
    ASSERT_TRUE(copy.Begin({source_.Path(), u"PUMP.hdn"_qs, disk.Path(), u"TO"_qs}));
    copy.CopyNextFile();
    EXPECT_EQ(QFileInfo(disk.Path(u"TO.HDN"_qs)).size(), 16 * 1024);
}

TEST_F(CopyProgramSetTest, ReadOnlyFolderRaises) {
    SmallDisk disk("64k");
    SKIP_IF_NOT_MOUNTED(disk);
    disk.MakeReadOnly();
    source_.MakeSet(u"PUMP"_qs);
    ASSERT_TRUE(copy_.Begin({source_.Path(), u"PUMP.hdn"_qs, disk.Path(), u"TO"_qs}));
    EXPECT_EQ(ErrorOf([this] { CopyAll(); }), 75);
}
