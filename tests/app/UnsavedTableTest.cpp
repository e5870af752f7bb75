#include "controls/grid/Grid.h"
#include "WholeProgram.h"
#include <QAction>
#include <QFile>

namespace {
class UnsavedTable : public WholeProgram {
protected:
    void SetUp() override {
        WholeProgram::SetUp();
        Press("Status");
        TypeAddresses({QStringLiteral("b100")});
    }
    void ExpectQuestion(int answer) {
        dialogs_.ExpectBox(QStringLiteral("Save Changes to File?"), MsgStyle::YesNoCancelQuestion,
                           QStringLiteral("Status Table"), answer);
    }
    QString TableFile() { return SetPath(QStringLiteral("WATCH.tbl")); }
};
} // namespace

TEST_F(UnsavedTable, CancelKeepsTheProgramOpen) {
    ExpectQuestion(MsgAnswer::Cancel);
    EXPECT_FALSE(Window().close());
    ExpectQuestion(MsgAnswer::Cancel);
    Entry(QStringLiteral("mnuFileExit"))->trigger();
    EXPECT_EQ(ended_, 0);
    EXPECT_TRUE(Window().isVisible());
    EXPECT_TRUE(Window().Timer().Enabled());
    EXPECT_EQ(Cell(2, 1), QStringLiteral("B100"));
}

TEST_F(UnsavedTable, NoEndsTheProgramWithoutAFile) {
    ExpectQuestion(MsgAnswer::No);
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(ended_, 1);
}

TEST_F(UnsavedTable, YesSavesAndEndsTheProgram) {
    ExpectQuestion(MsgAnswer::Yes);
    dialogs_.ExpectSave(TableFile());
    EXPECT_TRUE(Window().close());
    EXPECT_TRUE(Content(TableFile()).startsWith(" 0 \r\nB100\r\n"));
    EXPECT_EQ(ended_, 1);
}

TEST_F(UnsavedTable, ASaveThatIsCancelledKeepsTheProgramOpen) {
    ExpectQuestion(MsgAnswer::Yes);
    dialogs_.ExpectSave(QString());
    EXPECT_FALSE(Window().close());
    EXPECT_EQ(ended_, 0);
}

TEST_F(UnsavedTable, ASavedTableIsNotAskedAbout) {
    dialogs_.ExpectSave(TableFile());
    Entry(QStringLiteral("mnuStatusTableItem(10)"))->trigger();
    EXPECT_TRUE(Window().close());
    EXPECT_EQ(ended_, 1);
}

TEST_F(UnsavedTable, AHiddenTableIsAskedAboutToo) {
    Window().Children().Hide(QStringLiteral("frmStatusTable"));
    ExpectQuestion(MsgAnswer::Cancel);
    EXPECT_FALSE(Window().close());
    EXPECT_EQ(ended_, 0);
}
