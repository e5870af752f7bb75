#include "base/FileSystem.h"

#include "support/PrintText.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <QDir>

namespace {
class FileSystemHelper : public testing::Test {
protected:
    FileSystem files;
    TestFolder folder;
};

QString Text(const char* text) {
    return QString::fromLatin1(text);
}
} // namespace

TEST_F(FileSystemHelper, TellsFilesFromFoldersWhateverTheirLetterCase) {
    folder.Write(Text("Dir/A.Hdn"), "");
    EXPECT_TRUE(files.FileExists(folder.Path(Text("dir/a.HDN"))));
    EXPECT_FALSE(files.FileExists(folder.Path(Text("dir"))));
    EXPECT_FALSE(files.FileExists(folder.Path(Text("dir/b.hdn"))));
    EXPECT_TRUE(files.FolderExists(folder.Path(Text("DIR"))));
    EXPECT_FALSE(files.FolderExists(folder.Path(Text("DIR/A.hdn"))));
    EXPECT_FALSE(files.FileExists(QString()));
    EXPECT_FALSE(files.FolderExists(QString()));
}

TEST_F(FileSystemHelper, TakesPathsApart) {
    EXPECT_EQ(files.GetParentFolderName(Text("/p/q/A.hdn")), Text("/p/q"));
    EXPECT_EQ(files.GetParentFolderName(Text("/A.hdn")), Text("/"));
    EXPECT_EQ(files.GetParentFolderName(Text("A.hdn")), QString());
    EXPECT_EQ(files.GetFileName(Text("/p/A.hdn")), Text("A.hdn"));
    EXPECT_EQ(files.GetFileName(Text("A.hdn")), Text("A.hdn"));
    EXPECT_EQ(files.GetBaseName(Text("/p/A.hdn")), Text("A"));
    EXPECT_EQ(files.GetBaseName(Text("/p/A.old.hdn")), Text("A.old"));
    EXPECT_EQ(files.GetBaseName(Text("/p.q/A")), Text("A"));
    EXPECT_EQ(files.GetExtensionName(Text("/p/A.old.Hdn")), Text("Hdn"));
    EXPECT_EQ(files.GetExtensionName(Text("/p.q/A")), QString());
    EXPECT_EQ(files.GetExtensionName(Text("/p/A.")), QString());
}

TEST_F(FileSystemHelper, PutsPathsTogether) {
    EXPECT_EQ(files.BuildPath(Text("/p"), Text("A.hdn")), Text("/p/A.hdn"));
    EXPECT_EQ(files.BuildPath(Text("/p/"), Text("A.hdn")), Text("/p/A.hdn"));
    EXPECT_EQ(files.BuildPath(Text("/"), Text("A.hdn")), Text("/A.hdn"));
}

TEST_F(FileSystemHelper, MakesPathsAbsolute) {
    EXPECT_EQ(files.GetAbsolutePathName(Text("/p/./q/../A.hdn")), Text("/p/A.hdn"));
    EXPECT_EQ(files.GetAbsolutePathName(Text("A.hdn")), QDir::currentPath() + Text("/A.hdn"));
    EXPECT_EQ(files.GetAbsolutePathName(QString()), QDir::currentPath());
    EXPECT_EQ(files.GetAbsolutePathName(Text("\\support\\a.dat")), Text("/support/a.dat"));
}

TEST_F(FileSystemHelper, ListsPlainFilesInNameOrder) {
    folder.Write(Text("b.txt"), "");
    folder.Write(Text("a.txt"), "");
    folder.Write(Text(".hidden"), "");
    folder.MakeFolder(Text("dir"));
    EXPECT_EQ(files.Files(folder.Path()),
              (QStringList{Text(".hidden"), Text("a.txt"), Text("b.txt")}));
    EXPECT_EQ(files.Files(folder.Path(Text("none"))), QStringList());
}

TEST_F(FileSystemHelper, KnowsTheRoot) {
    EXPECT_TRUE(files.IsRootFolder(Text("/")));
    EXPECT_FALSE(files.IsRootFolder(Text("/tmp")));
    EXPECT_FALSE(files.IsRootFolder(QString()));
}
