#include "programset/DeleteProgramSet.h"

#include "programset/ProgramSet.h"
#include "programset/ScriptedFileOperations.h"
#include "programset/SetFolder.h"
#include "programset/SmallDisk.h"
#include "support/ScriptedDialogs.h"
#include <gtest/gtest.h>

namespace {
void ExpectQuestion(ScriptedDialogs& dialogs, const QString& baseName, int answer) {
    dialogs.ExpectBox(u"Are you sure you want to delete Halden Program '%1'?"_qs.arg(baseName), 36,
                      u"Confrim File Delete"_qs, answer);
}
} // namespace

TEST(DeleteProgramSet, TakesEveryFileOfTheSetAndNoOther) {
    SetFolder folder;
    folder.MakeSet(u"PUMP"_qs);
    folder.Make(u"pump.hex"_qs);
    folder.Make(u"PUMP2.hdn"_qs);
    folder.Make(u"PUMP.v2.hdn"_qs);
    ScriptedDialogs dialogs;
    DiskFileOperations files;
    ExpectQuestion(dialogs, u"PUMP"_qs, MsgAnswer::Yes);
    EXPECT_TRUE(DeleteProgramSet(folder.Path(u"PUMP.hdn"_qs), dialogs, files));
    EXPECT_EQ(folder.Names(), (QStringList{u"PUMP.v2.hdn"_qs, u"PUMP2.hdn"_qs}));
}

TEST(DeleteProgramSet, NoKeepsTheSet) {
    SetFolder folder;
    folder.MakeSet(u"PUMP"_qs);
    ScriptedDialogs dialogs;
    ScriptedFileOperations files;
    ExpectQuestion(dialogs, u"PUMP"_qs, MsgAnswer::No);
    EXPECT_FALSE(DeleteProgramSet(folder.Path(u"PUMP.hdn"_qs), dialogs, files));
    EXPECT_EQ(files.Calls(), 0);
}

TEST(DeleteProgramSet, NothingSelectedAsksNothing) {
    SetFolder folder;
    folder.Make(u".profile"_qs);
    ScriptedDialogs dialogs;
    ScriptedFileOperations files;
    EXPECT_FALSE(DeleteProgramSet(QString(), dialogs, files));
    EXPECT_FALSE(DeleteProgramSet(SelectedProgramPath(folder.Path(), QString()), dialogs, files));
    EXPECT_EQ(folder.Names().size(), 1);
}

TEST(DeleteProgramSet, DeletingTheLastSetLeavesAFolderPathWithAnEmptyName) {
    SetFolder folder;
    folder.MakeSet(u"PUMP"_qs);
    ScriptedDialogs dialogs;
    DiskFileOperations files;
    ExpectQuestion(dialogs, u"PUMP"_qs, MsgAnswer::Yes);
    DeleteProgramSet(folder.Path(u"PUMP.hdn"_qs), dialogs, files);
    const QStringList programs = ProgramFiles(folder.Path());
    EXPECT_EQ(PositionAfterDelete(0, static_cast<int>(programs.size())), -1);
    EXPECT_EQ(SelectedProgramPath(folder.Path(), programs.value(0)), folder.Path() + u'/');
}

TEST(DeleteProgramSet, ReadOnlyFileRaisesAndNothingIsDeleted) {
    SetFolder folder;
    folder.MakeSet(u"PUMP"_qs);
    QFile::setPermissions(folder.Path(u"PUMP.rev"_qs), QFileDevice::ReadOwner);
    ScriptedDialogs dialogs;
    DiskFileOperations files;
    ExpectQuestion(dialogs, u"PUMP"_qs, MsgAnswer::Yes);
    EXPECT_EQ(ErrorOf([&] { DeleteProgramSet(folder.Path(u"PUMP.hdn"_qs), dialogs, files); }), 70);
    EXPECT_EQ(folder.Names().size(), 6);
}

TEST(DeleteProgramSet, ErrorInTheMiddleNamesWhatIsLeftAndKeepsTheProgramFile) {
    SetFolder folder;
    folder.MakeSet(u"PUMP"_qs);
    ScriptedDialogs dialogs;
    ScriptedFileOperations files;
    files.FailAt(5);
    ExpectQuestion(dialogs, u"PUMP"_qs, MsgAnswer::Yes);
    try {
        DeleteProgramSet(folder.Path(u"PUMP.hdn"_qs), dialogs, files);
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), 57);
        EXPECT_TRUE(error.Description().endsWith(u"Still in the folder: PUMP.hdn, PUMP.rev"_qs))
            << error.what();
    }
    EXPECT_EQ(folder.Names(), (QStringList{u"PUMP.hdn"_qs, u"PUMP.rev"_qs}));
}

TEST(DeleteProgramSet, ReadOnlyFolderRaises) {
    SmallDisk disk("64k");
    SKIP_IF_NOT_MOUNTED(disk);
    QFile file(disk.Path(u"PUMP.hdn"_qs));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    disk.MakeReadOnly();
    ScriptedDialogs dialogs;
    DiskFileOperations files;
    ExpectQuestion(dialogs, u"PUMP"_qs, MsgAnswer::Yes);
    EXPECT_EQ(ErrorOf([&] { DeleteProgramSet(disk.Path(u"PUMP.hdn"_qs), dialogs, files); }), 70);
    EXPECT_TRUE(file.exists());
}

TEST(DeleteProgramSet, HostileNames) {
    for (const QString& name :
         {u"a \"b\" 'c'"_qs, u"Köhler é"_qs, u"x, y"_qs, QString(200, u'n')}) {
        SetFolder folder;
        folder.Enter(name);
        folder.MakeSet(name);
        ScriptedDialogs dialogs;
        DiskFileOperations files;
        ExpectQuestion(dialogs, name, MsgAnswer::Yes);
        EXPECT_TRUE(DeleteProgramSet(folder.Path(name + u".hdn"_qs), dialogs, files));
        EXPECT_TRUE(folder.Names().isEmpty()) << name.toStdString();
    }
}
