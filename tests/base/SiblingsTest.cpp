#include "base/Siblings.h"

#include "support/PrintText.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <QDir>

namespace {
class Siblings : public testing::Test {
protected:
    QString Find(const char* name) const { return OnDisk(folder.Path(QString::fromUtf8(name))); }
    TestFolder folder;
};
} // namespace

TEST_F(Siblings, AnExactNameIsTakenAsItIs) {
    const QString lower = folder.Write(QStringLiteral("a.hex"), "");
    const QString upper = folder.Write(QStringLiteral("A.HEX"), "");
    EXPECT_EQ(Find("a.hex"), lower);
    EXPECT_EQ(Find("A.HEX"), upper);
}

TEST_F(Siblings, ANameOfOtherCaseIsFoundInEveryFolderOfThePath) {
    const QString path = folder.Write(QStringLiteral("Top/Sub/Pump.Hdn"), "");
    EXPECT_EQ(Find("top/SUB/pump.HDN"), path);
}

TEST_F(Siblings, OfSeveralTheFirstInNameOrderIsTaken) {
    const QString first = folder.Write(QStringLiteral("PUMP.hdn"), "");
    folder.Write(QStringLiteral("Pump.hdn"), "");
    EXPECT_EQ(Find("pump.HDN"), first);
}

TEST_F(Siblings, PartsThatDoNotExistStayAsGiven) {
    folder.MakeFolder(QStringLiteral("Top"));
    EXPECT_EQ(Find("TOP/New/File.txt"), folder.Path(QStringLiteral("Top/New/File.txt")));
    EXPECT_EQ(OnDisk(QString()), QString());
}

// A broken list of recent sets may hold such a path; each part was once looked for in turn, which
// took minutes.
TEST_F(Siblings, APathWithoutEndIsGivenUpAtItsFirstPartThatDoesNotExist) {
    const QString lost =
        folder.Path(QStringLiteral("new")) + QStringLiteral("/a").repeated(500'000);
    EXPECT_EQ(OnDisk(lost), lost);
    const QString upwards =
        folder.Path(QStringLiteral("new")) + QStringLiteral("/..").repeated(50'000);
    EXPECT_EQ(OnDisk(upwards), upwards);
}

TEST_F(Siblings, AccentsAndBlanksAreFoundToo) {
    const QString path = folder.Write(QStringLiteral("Prüf stand.HDN"), "");
    EXPECT_EQ(Find("PRÜF STAND.hdn"), path);
}

TEST_F(Siblings, BackslashesPartFolders) {
    const QString path = folder.Write(QStringLiteral("Support/RSPort.cfg"), "");
    EXPECT_EQ(OnDiskBelow(folder.Path(), QStringLiteral("\\support\\rsport.CFG")), path);
    EXPECT_EQ(OnDisk(folder.Path() + QStringLiteral("\\SUPPORT\\rsport.cfg")), path);
}

TEST_F(Siblings, DotsInThePathAreKept) {
    folder.Write(QStringLiteral("Top/a.txt"), "");
    EXPECT_EQ(Find("top/../TOP/A.TXT"), folder.Path(QStringLiteral("Top/../Top/a.txt")));
}

TEST_F(Siblings, ARelativePathIsTakenFromTheCurrentFolder) {
    const QString before = QDir::currentPath();
    const QString path = folder.Write(QStringLiteral("Here.txt"), "");
    QDir::setCurrent(folder.Path());
    EXPECT_EQ(QFileInfo(OnDisk(QStringLiteral("here.TXT"))).canonicalFilePath(),
              QFileInfo(path).canonicalFilePath());
    QDir::setCurrent(before);
}

TEST_F(Siblings, BelowAFolderOnlyTheRestIsSearched) {
    folder.Write(QStringLiteral("Deep/a.txt"), "");
    EXPECT_EQ(OnDiskBelow(folder.Path() + u'/', QStringLiteral("deep//A.txt")),
              folder.Path(QStringLiteral("Deep/a.txt")));
    EXPECT_EQ(OnDiskBelow(folder.Path(), QString()), folder.Path());
    EXPECT_EQ(OnDiskBelow(QStringLiteral("/"), QStringLiteral("DEV/NULL")),
              QStringLiteral("/dev/null"));
}
