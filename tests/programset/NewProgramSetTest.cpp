#include "programset/NewProgramSet.h"

#include "programset/ScriptedFileOperations.h"
#include "programset/SetFolder.h"
#include "programset/SmallDisk.h"
#include "support/ScriptedDialogs.h"
#include <gtest/gtest.h>

namespace {
constexpr int filesOfASet = 6;

class NewProgramSetTest : public testing::Test {
protected:
    NewProgramSet::Result Create(const QString& typed, qint16 board = 68) {
        return NewProgramSet(dialogs_, files_).Create(typed, folder_.Path(), board);
    }
    void ExpectShortNamesBox() {
        dialogs_.ExpectBox(u"Only 'Short' file names will be used.   "_qs, 64, u"New File"_qs,
                           MsgAnswer::Ok);
    }
    void ExpectReplaceBox(const QString& name, int answer) {
        dialogs_.ExpectBox(folder_.Path(name) +
                               u" already exists.\r\nDo you want to replace it?"_qs,
                           308, u"Create Halden File"_qs, answer);
    }

    SetFolder folder_;
    ScriptedDialogs dialogs_;
    ScriptedFileOperations files_;
};
} // namespace

TEST(NewSetFileName, GetsItsExtension) {
    EXPECT_EQ(NewSetFileName(u"PUMP"_qs).toStdString(), "PUMP.HDN");
    EXPECT_EQ(NewSetFileName(u"pump.hdn"_qs).toStdString(), "pump.HDN");
    EXPECT_EQ(NewSetFileName(u"pump.txt"_qs).toStdString(), "pump.HDN");
}

TEST(NewSetFileName, ShortExtensionTakesPartOfTheNameWithIt) {
    EXPECT_EQ(NewSetFileName(u"pump.h"_qs).toStdString(), "pu.HDN");
    EXPECT_EQ(NewSetFileName(u"v1.2pump"_qs).toStdString(), "v1.2.HDN");
}

TEST(NewSetFileName, UnderFourCharactersWithAPointRaises) {
    EXPECT_EQ(ErrorOf([] { NewSetFileName(u"a.b"_qs); }), 5);
    EXPECT_EQ(ErrorOf([] { NewSetFileName(u"."_qs); }), 5);
}

TEST_F(NewProgramSetTest, WritesTheCharacterOfTheBoard) {
    const auto result = Create(u"PUMP"_qs, 61);
    EXPECT_EQ(result.hdnFile, folder_.Path(u"PUMP.HDN"_qs));
    EXPECT_EQ(result.nameText.toStdString(), "PUMP.HDN");
    EXPECT_EQ(folder_.Bytes(u"PUMP.HDN"_qs), "=\r\n");
    EXPECT_EQ(folder_.Names().size(), 1);
}

TEST_F(NewProgramSetTest, NameWithAnAsteriskIsNoneYet) {
    EXPECT_EQ(Create(u"*.hdn"_qs).hdnFile, std::nullopt);
    EXPECT_EQ(files_.Calls(), 0);
}

TEST_F(NewProgramSetTest, NameOfEightLettersGivesNoShortNameBox) {
    EXPECT_EQ(Create(u"EIGHTLET"_qs).hdnFile, folder_.Path(u"EIGHTLET.HDN"_qs));
}

TEST_F(NewProgramSetTest, NameOfNineLettersGivesTheShortNameBox) {
    ExpectShortNamesBox();
    EXPECT_EQ(Create(u"ninelette"_qs).hdnFile, folder_.Path(u"NINELE~1.HDN"_qs));
    EXPECT_EQ(folder_.Names(), QStringList{u"NINELE~1.HDN"_qs});
}

TEST_F(NewProgramSetTest, NoToTheReplacePromptLeavesTheSetUntouchedAndTheViewOpen) {
    folder_.MakeSet(u"PUMP"_qs, "2\r\n");
    ExpectReplaceBox(u"PUMP.HDN"_qs, MsgAnswer::No);
    const auto result = Create(u"PUMP.hdn"_qs);
    EXPECT_EQ(result.hdnFile, std::nullopt);
    EXPECT_EQ(result.nameText.toStdString(), "PUMP.HDN");
    EXPECT_EQ(folder_.Names().size(), filesOfASet);
    EXPECT_EQ(folder_.Bytes(u"PUMP.hdn"_qs), "2\r\n");
}

TEST_F(NewProgramSetTest, ReplacingTakesEverySiblingOfTheReplacedSet) {
    folder_.MakeSet(u"Pump"_qs, "2\r\n");
    folder_.Make(u"PUMP2.HEX"_qs);
    ExpectReplaceBox(u"PUMP.HDN"_qs, MsgAnswer::Yes);
    EXPECT_EQ(Create(u"PUMP"_qs).hdnFile, folder_.Path(u"PUMP.HDN"_qs));
    EXPECT_EQ(folder_.Names(), (QStringList{u"PUMP.HDN"_qs, u"PUMP2.HEX"_qs}));
    EXPECT_EQ(folder_.Bytes(u"PUMP.HDN"_qs), "D\r\n");
}

TEST_F(NewProgramSetTest, LongNamedSetIsReplacedByAShortNamedOne) {
    folder_.MakeSet(u"pumpstation"_qs);
    ExpectShortNamesBox();
    ExpectReplaceBox(u"pumpstation.HDN"_qs, MsgAnswer::Yes);
    EXPECT_EQ(Create(u"pumpstation"_qs).hdnFile, folder_.Path(u"PUMPST~1.HDN"_qs));
    EXPECT_EQ(folder_.Names(), QStringList{u"PUMPST~1.HDN"_qs});
}

TEST_F(NewProgramSetTest, ErrorBeforeTheNewFileStandsLeavesTheOldSetWhole) {
    folder_.MakeSet(u"PUMP"_qs, "2\r\n");
    for (int step = 1; step <= filesOfASet + 1; ++step) {
        files_.FailAt(step);
        ExpectReplaceBox(u"PUMP.HDN"_qs, MsgAnswer::Yes);
        EXPECT_EQ(ErrorOf([&] { Create(u"PUMP"_qs); }), 57) << step;
        EXPECT_EQ(folder_.Names().size(), filesOfASet) << step;
        EXPECT_EQ(folder_.Bytes(u"PUMP.hdn"_qs), "2\r\n");
        EXPECT_EQ(folder_.Bytes(u"PUMP.HEX"_qs), "PUMP.HEX");
    }
}

TEST_F(NewProgramSetTest, ErrorAfterwardsLeavesTheNewFileAndSaysWhereTheOldOnesAre) {
    folder_.MakeSet(u"PUMP"_qs, "2\r\n");
    files_.FailAt(filesOfASet + 1 + 3);
    ExpectReplaceBox(u"PUMP.HDN"_qs, MsgAnswer::Yes);
    try {
        Create(u"PUMP"_qs);
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        ASSERT_EQ(folder_.Names().size(), 2);
        const QString place = folder_.Path(folder_.Names().at(1));
        EXPECT_TRUE(
            error.Description().endsWith(u"Files of the old program 'PUMP' are in "_qs + place))
            << error.what();
        EXPECT_EQ(QDir(place).entryList(QDir::Files).size(), filesOfASet - 2);
    }
    EXPECT_EQ(folder_.Bytes(u"PUMP.HDN"_qs), "D\r\n");
}

TEST_F(NewProgramSetTest, DeviceThatFailsForGoodLosesNoFileAndSaysWhere) {
    for (int step = 2; step <= filesOfASet + 1; ++step) {
        SetFolder folder;
        folder.MakeSet(u"PUMP"_qs);
        ScriptedFileOperations files;
        ScriptedDialogs dialogs;
        files.FailFrom(step);
        dialogs.ExpectBoxTitled(u"Create Halden File"_qs, MsgAnswer::Yes);
        try {
            NewProgramSet(dialogs, files).Create(u"PUMP"_qs, folder.Path(), 68);
            FAIL() << "no error at step " << step;
        } catch (const RunTimeError& error) {
            const QStringList aside =
                QDir(folder.Path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            ASSERT_EQ(aside.size(), 1);
            EXPECT_TRUE(error.Description().endsWith(folder.Path(aside[0])));
            EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files).size() +
                          QDir(folder.Path(aside[0])).entryList(QDir::Files).size(),
                      filesOfASet);
        }
    }
}

TEST_F(NewProgramSetTest, ReadOnlySiblingOfTheReplacedSetRaisesAndNothingIsDone) {
    folder_.MakeSet(u"PUMP"_qs, "2\r\n");
    QFile::setPermissions(folder_.Path(u"PUMP.keep"_qs), QFileDevice::ReadOwner);
    ExpectReplaceBox(u"PUMP.HDN"_qs, MsgAnswer::Yes);
    EXPECT_EQ(ErrorOf([&] { Create(u"PUMP"_qs); }), 70);
    EXPECT_EQ(folder_.Names().size(), filesOfASet);
    EXPECT_EQ(files_.Calls(), 0);
}

TEST_F(NewProgramSetTest, NamesThatNoFileCanHaveAreRefused) {
    for (const char* name : {"", ".hdn", "../PUMP", "sub/PUMP", "a\\b"})
        EXPECT_EQ(ErrorOf([&] { Create(QLatin1String(name)); }), 52) << name;
    EXPECT_EQ(files_.Calls(), 0);
}

TEST_F(NewProgramSetTest, HostileNamesAndFolders) {
    folder_.Enter(u"a \"b\", 'Köhler'"_qs);
    folder_.Enter(QString(200, u'n'));
    for (const QString& name : {u"a \"b\""_qs, u"Köhlér"_qs, u"x, y"_qs}) {
        EXPECT_EQ(Create(name).hdnFile, folder_.Path(name + u".HDN"_qs));
        EXPECT_EQ(folder_.Bytes(name + u".HDN"_qs), "D\r\n");
    }
    ExpectShortNamesBox();
    EXPECT_EQ(Create(QString(200, u'n')).hdnFile, folder_.Path(u"NNNNNN~1.HDN"_qs));
}

TEST_F(NewProgramSetTest, LostFolderRaises) {
    EXPECT_EQ(ErrorOf([&] {
                  NewProgramSet(dialogs_, files_).Create(u"PUMP"_qs, u"/no/such/folder"_qs, 68);
              }),
              76);
}

TEST_F(NewProgramSetTest, ReadOnlyFolderRaises) {
    SmallDisk disk("64k");
    SKIP_IF_NOT_MOUNTED(disk);
    disk.MakeReadOnly();
    EXPECT_EQ(ErrorOf([&] { NewProgramSet(dialogs_, files_).Create(u"PUMP"_qs, disk.Path(), 68); }),
              75);
}
