#include "link/programs/BoardFixture.h"
#include <QFile>
#include <unistd.h>

namespace {
// Rights do not bind the superuser: as long as it lives, the process is an ordinary user.
class OrdinaryUser {
public:
    OrdinaryUser() : wasRoot_(geteuid() == 0) {
        if (wasRoot_)
            isOrdinary_ = seteuid(nobody) == 0;
    }
    ~OrdinaryUser() {
        const bool back = !wasRoot_ || seteuid(0) == 0;
        EXPECT_TRUE(back);
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    bool IsOrdinary() const { return isOrdinary_; }

private:
    static constexpr uid_t nobody = 65534;
    bool wasRoot_;
    bool isOrdinary_ = true;
};

// For owner, group and others alike: the ordinary user may still be of the superuser's group.
constexpr auto readOnlyFolder = QFile::Permissions(0x5055);
constexpr auto openFolder = QFile::Permissions(0x7077);

class PermissionTest : public BoardTest {
protected:
    void SetUp() override {
        ConnectBoard(52);
        SetFolder(openFolder);
    }
    void TearDown() override { SetFolder(openFolder); }
    void SetFolder(QFile::Permissions permissions) {
        ASSERT_TRUE(QFile::setPermissions(folder.path(), permissions));
    }
    void Forbid(const QString& name) {
        ASSERT_TRUE(QFile::setPermissions(Path(name), QFile::Permissions()));
    }
    void ExpectError(int number, const char* description, const char* title) {
        ExpectBox(QStringLiteral("Error Number = %1\r\n\r\n%2")
                      .arg(QString::number(number), QString::fromLatin1(description)),
                  64, QString::fromLatin1(title));
    }
};
} // namespace

TEST_F(PermissionTest, UnreadableHdnGivesTheErrorBox) {
    const QString path = WriteSet(QStringLiteral("A"), '4', "PUMP1:301\r\n", ":00000001FF\r\n");
    Forbid(QStringLiteral("A.hdn"));
    const OrdinaryUser user;
    if (!user.IsOrdinary())
        GTEST_SKIP() << "cannot become an ordinary user";
    dialogs.ExpectBox(QStringLiteral("Error Number = 70\r\n\r\nPermission denied"), 64,
                      QStringLiteral("RSComm-Download File"), MsgAnswer::Ok);
    link.DownloadFile(path);
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(PermissionTest, FolderWithoutPermissionHoldsNoSet) {
    const QString path = WriteSet(QStringLiteral("A"), '4', "PUMP1:301\r\n", ":00000001FF\r\n");
    SetFolder(QFile::Permissions());
    const OrdinaryUser user;
    if (!user.IsOrdinary())
        GTEST_SKIP() << "cannot become an ordinary user";
    link.DownloadFile(path);
    EXPECT_FALSE(link.ValidProgram());
}

TEST_F(PermissionTest, UnreadableHexGivesTheErrorBoxAndTheBoardIsUntouched) {
    link.DownloadFile(WriteSet(QStringLiteral("A"), '4', "PUMP1:301\r\n", ":00000001FF\r\n"));
    Forbid(QStringLiteral("A.hex"));
    const QByteArray before = Memory(8176, 16);
    const OrdinaryUser user;
    if (!user.IsOrdinary())
        GTEST_SKIP() << "cannot become an ordinary user";
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [PUMP1]"), MsgAnswer::Yes);
    ExpectError(70, "Permission denied", "RSComm DumpProgram");
    link.DumpProgram();
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_FALSE(link.InProgramMode());
    EXPECT_FALSE(link.ValidProgram());
    EXPECT_EQ(Memory(8176, 16), before);
}

TEST_F(PermissionTest, UploadIntoAReadOnlyFolderGivesTheErrorBox) {
    link.UploadFile(Write(QStringLiteral("UP.hdn"), "4\r\n"));
    link.SetInUploadMode(true);
    SetFolder(readOnlyFolder);
    const OrdinaryUser user;
    if (!user.IsOrdinary())
        GTEST_SKIP() << "cannot become an ordinary user";
    ExpectError(75, "Path/File access error", "RSComm-Upload Program");
    link.UploadProgram();
    EXPECT_FALSE(link.InUploadMode());
    EXPECT_FALSE(QFile::exists(Path(QStringLiteral("UP.rev"))));
}
