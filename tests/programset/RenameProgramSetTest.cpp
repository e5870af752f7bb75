#include "programset/RenameProgramSet.h"

#include "programset/ProgramSet.h"
#include "programset/ScriptedFileOperations.h"
#include "programset/SetFolder.h"
#include "programset/SmallDisk.h"
#include "support/ScriptedDialogs.h"
#include <gtest/gtest.h>

namespace {
constexpr int filesOfASet = 6;

void ExpectName(ScriptedDialogs& dialogs, const QString& answer) {
    dialogs.ExpectInput(u"Please enter new program name."_qs, u"Rename"_qs, QString(), answer);
}

void ExpectShortNamesBox(ScriptedDialogs& dialogs) {
    dialogs.ExpectBox(u"Only 'Short' file names will be used.   "_qs, 64, u"File Rename"_qs,
                      MsgAnswer::Ok);
}

void ExpectTakenBox(ScriptedDialogs& dialogs) {
    dialogs.ExpectBox(u"Can not rename to existing file.   "_qs, 64, u"File Rename"_qs,
                      MsgAnswer::Ok);
}

// Each file of a set holds the name that it was made under.
void ExpectWhole(const SetFolder& folder, const QString& base, const QString& madeAs) {
    for (const char* extension : {"lmn", "HEX", "rev", "07", "keep"})
        EXPECT_EQ(folder.Bytes(base + u'.' + QLatin1String(extension)),
                  (madeAs + u'.' + QLatin1String(extension)).toUtf8());
    EXPECT_EQ(folder.Bytes(base + u".hdn"_qs), "D\r\n");
}
} // namespace

TEST(RenameProgramSet, TakesEveryFileOfTheSetWithItsExtensionAsFound) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    ScriptedDialogs dialogs;
    DiskFileOperations files;
    ExpectName(dialogs, u"NEW"_qs);
    EXPECT_EQ(RenameProgramSet(folder.Path(u"OLD.hdn"_qs), dialogs, files),
              folder.Path(u"NEW.hdn"_qs));
    ExpectWhole(folder, u"NEW"_qs, u"OLD"_qs);
    EXPECT_EQ(folder.Names().size(), filesOfASet);
}

TEST(RenameProgramSet, EmptyAnswerStops) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    ScriptedDialogs dialogs;
    ScriptedFileOperations files;
    ExpectName(dialogs, QString());
    EXPECT_EQ(RenameProgramSet(folder.Path(u"OLD.hdn"_qs), dialogs, files), std::nullopt);
    EXPECT_EQ(files.Calls(), 0);
}

TEST(RenameProgramSet, NothingSelectedAsksNothing) {
    SetFolder folder;
    ScriptedDialogs dialogs;
    ScriptedFileOperations files;
    EXPECT_EQ(RenameProgramSet(folder.Path() + u'/', dialogs, files), std::nullopt);
}

TEST(RenameProgramSet, EightCharactersStayAndNineAreShortened) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    ScriptedDialogs dialogs;
    DiskFileOperations files;
    ExpectName(dialogs, u"EIGHTLET"_qs);
    EXPECT_EQ(RenameProgramSet(folder.Path(u"OLD.hdn"_qs), dialogs, files),
              folder.Path(u"EIGHTLET.hdn"_qs));
    ExpectName(dialogs, u"nineLette"_qs);
    ExpectShortNamesBox(dialogs);
    EXPECT_EQ(RenameProgramSet(folder.Path(u"EIGHTLET.hdn"_qs), dialogs, files),
              folder.Path(u"NINELE~1.hdn"_qs));
    ExpectWhole(folder, u"NINELE~1"_qs, u"OLD"_qs);
    EXPECT_EQ(folder.Names().size(), filesOfASet);
}

TEST(RenameProgramSet, ExistingProgramIsNotReplaced) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    folder.Make(u"new.HDN"_qs, "other");
    ScriptedDialogs dialogs;
    ScriptedFileOperations files;
    ExpectName(dialogs, u"NEW"_qs);
    ExpectTakenBox(dialogs);
    EXPECT_EQ(RenameProgramSet(folder.Path(u"OLD.hdn"_qs), dialogs, files), std::nullopt);
    EXPECT_EQ(files.Calls(), 0);
}

TEST(RenameProgramSet, ExistingProgramOfTheCurrentDirectoryIsInTheWayToo) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    SetFolder current;
    current.Make(u"NEW.hdn"_qs);
    const QString before = QDir::currentPath();
    QDir::setCurrent(current.Path());
    ScriptedDialogs dialogs;
    ScriptedFileOperations files;
    ExpectName(dialogs, u"NEW"_qs);
    ExpectTakenBox(dialogs);
    EXPECT_EQ(RenameProgramSet(folder.Path(u"OLD.hdn"_qs), dialogs, files), std::nullopt);
    QDir::setCurrent(before);
}

TEST(RenameProgramSet, LostSiblingsOfTheNewNameAreNotOverwritten) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    folder.Make(u"NEW.HEX"_qs, "image without a program file");
    ScriptedDialogs dialogs;
    DiskFileOperations files;
    ExpectName(dialogs, u"NEW"_qs);
    ExpectTakenBox(dialogs);
    EXPECT_EQ(RenameProgramSet(folder.Path(u"OLD.hdn"_qs), dialogs, files), std::nullopt);
    EXPECT_EQ(folder.Bytes(u"NEW.HEX"_qs), "image without a program file");
}

TEST(RenameProgramSet, TypedExtensionIsDropped) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    ScriptedDialogs dialogs;
    DiskFileOperations files;
    ExpectName(dialogs, u"EIGHTLET.Hdn"_qs);
    EXPECT_EQ(RenameProgramSet(folder.Path(u"OLD.hdn"_qs), dialogs, files),
              folder.Path(u"EIGHTLET.hdn"_qs));
}

TEST(RenameProgramSet, NameThatLeavesTheFolderIsRefused) {
    for (const char* name : {"../NEW", "sub/NEW", "a\\b", "..", ".hdn"}) {
        SetFolder folder;
        folder.MakeSet(u"OLD"_qs);
        ScriptedDialogs dialogs;
        ScriptedFileOperations files;
        ExpectName(dialogs, QLatin1String(name));
        EXPECT_EQ(ErrorOf([&] { RenameProgramSet(folder.Path(u"OLD.hdn"_qs), dialogs, files); }),
                  52)
            << name;
        EXPECT_EQ(files.Calls(), 0);
    }
}

TEST(RenameProgramSet, HostileNames) {
    for (const QString& name : {u"a \"b\" c"_qs, u"Köhlér"_qs, u"x, y"_qs, u"v1.2"_qs}) {
        SetFolder folder;
        folder.MakeSet(QString(200, u'o'));
        ScriptedDialogs dialogs;
        DiskFileOperations files;
        ExpectName(dialogs, name);
        const QString old = folder.Path(QString(200, u'o') + u".hdn"_qs);
        EXPECT_EQ(RenameProgramSet(old, dialogs, files), folder.Path(name + u".hdn"_qs));
        ExpectWhole(folder, name, QString(200, u'o'));
    }
}

TEST(RenameProgramSet, TwoHundredCharactersAreShortened) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    ScriptedDialogs dialogs;
    DiskFileOperations files;
    ExpectName(dialogs, QString(200, u'n'));
    ExpectShortNamesBox(dialogs);
    EXPECT_EQ(RenameProgramSet(folder.Path(u"OLD.hdn"_qs), dialogs, files),
              folder.Path(u"NNNNNN~1.hdn"_qs));
}

TEST(RenameProgramSet, ReadOnlyFileRaisesAndNothingIsDone) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    QFile::setPermissions(folder.Path(u"OLD.rev"_qs), QFileDevice::ReadOwner);
    ScriptedFileOperations files;
    EXPECT_EQ(ErrorOf([&] { RenameSetFiles(folder.Path(), u"OLD"_qs, u"NEW"_qs, files); }), 70);
    EXPECT_EQ(files.Calls(), 0);
    ExpectWhole(folder, u"OLD"_qs, u"OLD"_qs);
}

TEST(RenameProgramSet, FilesThatWouldMeetUnderOneNameAreRefused) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    folder.Make(u"old.HEX"_qs, "another");
    if (folder.Names().size() == filesOfASet)
        GTEST_SKIP() << "this file system knows no letter case";
    ScriptedFileOperations files;
    EXPECT_EQ(ErrorOf([&] { RenameSetFiles(folder.Path(), u"OLD"_qs, u"NEW"_qs, files); }), 58);
    EXPECT_EQ(files.Calls(), 0);
}

TEST(RenameProgramSet, ErrorAtAnyStepLeavesTheOldSetWholeAndNothingOfTheNew) {
    for (int step = 1; step <= 2 * filesOfASet; ++step) {
        SetFolder folder;
        folder.MakeSet(u"OLD"_qs);
        ScriptedFileOperations files;
        files.FailAt(step);
        EXPECT_EQ(ErrorOf([&] { RenameSetFiles(folder.Path(), u"OLD"_qs, u"NEW"_qs, files); }), 57)
            << step;
        ExpectWhole(folder, u"OLD"_qs, u"OLD"_qs);
        EXPECT_EQ(folder.Names().size(), filesOfASet) << step;
    }
}

TEST(RenameProgramSet, NoFurtherStepExists) {
    SetFolder folder;
    folder.MakeSet(u"OLD"_qs);
    ScriptedFileOperations files;
    RenameSetFiles(folder.Path(), u"OLD"_qs, u"NEW"_qs, files);
    EXPECT_EQ(files.Calls(), 2 * filesOfASet);
}

TEST(RenameProgramSet, DeviceThatFailsForGoodFromAnyStepLosesNoFileAndSaysWhichAreWhere) {
    for (int step = 2; step <= 2 * filesOfASet; ++step) {
        SetFolder folder;
        folder.MakeSet(u"OLD"_qs);
        ScriptedFileOperations files;
        files.FailFrom(step);
        try {
            RenameSetFiles(folder.Path(), u"OLD"_qs, u"NEW"_qs, files);
            FAIL() << "no error at step " << step;
        } catch (const RunTimeError& error) {
            for (const QString& name : folder.Names())
                EXPECT_TRUE(error.Description().contains(name)) << step << name.toStdString();
        }
        for (const char* extension : {"hdn", "lmn", "HEX", "rev", "07", "keep"}) {
            const QString suffix = u'.' + QLatin1String(extension);
            EXPECT_TRUE(folder.Names().contains(u"OLD"_qs + suffix) ||
                        folder.Names().contains(u"NEW"_qs + suffix))
                << step << extension;
        }
    }
}

TEST(RenameProgramSet, FullDiskLeavesTheOldSetWhole) {
    SmallDisk disk("32k");
    SKIP_IF_NOT_MOUNTED(disk);
    for (const char* extension : {"hdn", "HEX", "rev"}) {
        QFile file(disk.Path(u"OLD."_qs + QLatin1String(extension)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(8'000, 'x'));
    }
    DiskFileOperations files;
    EXPECT_EQ(ErrorOf([&] { RenameSetFiles(disk.Path(), u"OLD"_qs, u"NEW"_qs, files); }), 61);
    EXPECT_EQ(QDir(disk.Path()).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"OLD.hdn"_qs, u"OLD.HEX"_qs, u"OLD.rev"_qs}));
}

TEST(RenameProgramSet, ReadOnlyFolderRaises) {
    SmallDisk disk("64k");
    SKIP_IF_NOT_MOUNTED(disk);
    QFile file(disk.Path(u"OLD.hdn"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    disk.MakeReadOnly();
    DiskFileOperations files;
    EXPECT_EQ(ErrorOf([&] { RenameSetFiles(disk.Path(), u"OLD"_qs, u"NEW"_qs, files); }), 75);
    EXPECT_TRUE(file.exists());
}
