#include "WholeProgram.h"
#include <QAction>

namespace {
class DatafileCommand : public WholeProgram {
protected:
    void SetUp() override {
        WriteSetFile(QStringLiteral("LIMITS.txt"), "100\r\n2500\r\n7\r\n");
        WholeProgram::SetUp();
        Fill(70, 150, 0xEE);
    }
    void Choose(const QString& startingAddress) {
        dialogs_.ExpectOpen(SetPath(QStringLiteral("LIMITS.txt")));
        dialogs_.ExpectInput(QStringLiteral("Please Enter Starting Address."),
                             QStringLiteral("Datafile Download"), QString(), startingAddress);
        Entry(QStringLiteral("mnuFileDownloadFile"))->trigger();
    }
};
} // namespace

TEST_F(DatafileCommand, GoesOnlineAndWritesTheWordsOneBehindTheOther) {
    Choose(QStringLiteral("w100"));
    const std::vector<int> wanted{0xEE, 100, 0, 2500 % 256, 2500 / 256, 7, 0, 0xEE};
    for (int place = 0; place < 8; ++place)
        EXPECT_EQ(Byte(99 + place), wanted[static_cast<std::size_t>(place)]) << place;
    EXPECT_EQ(Panel(2), QStringLiteral("ONLINE"));
    EXPECT_TRUE(Window().Timer().Enabled());
}

TEST_F(DatafileCommand, TheTickStandsStillMeanwhile) {
    bool enabled = true;
    WhenUp("frmWaitDisplay", [&](QWidget&) { enabled = Window().Timer().Enabled(); });
    Choose(QStringLiteral("W100"));
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(Window().Timer().Enabled());
}

TEST_F(DatafileCommand, CancelInTheFileDialogAsksNothing) {
    dialogs_.ExpectOpen(QString());
    Entry(QStringLiteral("mnuFileDownloadFile"))->trigger();
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_TRUE(port_.Sent().empty());
}

TEST_F(DatafileCommand, AShortStartSendsNothing) {
    Choose(QStringLiteral("B1"));
    EXPECT_TRUE(port_.Sent().empty());
    EXPECT_EQ(Panel(2), QStringLiteral("OFFLINE"));
}

TEST_F(DatafileCommand, AWrongStartIsToldAndWritesNothing) {
    dialogs_.ExpectBox(QStringLiteral("Address W33 is invalid or out of range."),
                       MsgStyle::Information, QStringLiteral("Download Datafile"), MsgAnswer::Ok);
    Choose(QStringLiteral("W33"));
    EXPECT_EQ(Byte(100), 0xEE);
}

TEST_F(DatafileCommand, TheChosenFileIsOfferedTheNextTime) {
    Choose(QStringLiteral("B1"));
    Choose(QStringLiteral("B1"));
    ASSERT_EQ(dialogs_.FileRequests().size(), 2U);
    EXPECT_EQ(dialogs_.FileRequests()[0].fileName, QString());
    EXPECT_EQ(dialogs_.FileRequests()[0].initDir, root_.filePath(QStringLiteral("sets")));
    EXPECT_EQ(dialogs_.FileRequests()[1].fileName, SetPath(QStringLiteral("LIMITS.txt")));
}
