#include "app/WholeProgram.h"
#include "programset/ScriptedFileOperations.h"
#include "shell/frmMain.h"
#include "shell/frmNewFile.h"
#include "shell/SetCommands.h"
#include <QDir>
#include <QLineEdit>

// Boxes about a whole set whose files a disk gives up in the middle: they say which are where.

namespace {
class SetBoxes : public WholeProgram {
protected:
    void SetUp() override {
        WholeProgram::SetUp();
        ClickSet(QStringLiteral("PUMP.hdn"));
    }
    SetFiles Context() {
        return {Link(), dialogs_, files_, operations_, drives_, Window().Browser()};
    }
    SetCommands Commands() {
        return {Context(), Window().Programs(), Window().Recent(), Window().Views()};
    }
    void ExpectReport(const QString& text, const char* title) {
        dialogs_.ExpectBox(text, MsgStyle::Critical, QLatin1String(title), MsgAnswer::Ok);
    }

    const FileSystem files_{};
    ScriptedFileOperations operations_;
};
} // namespace

TEST_F(SetBoxes, OfASetThatIsDeletedInPart) {
    operations_.FailFrom(4);
    dialogs_.ExpectBox(QStringLiteral("Are you sure you want to delete Halden Program 'PUMP'?"),
                       MsgStyle::YesNoQuestion, QStringLiteral("Confrim File Delete"),
                       MsgAnswer::Yes);
    ExpectReport(QStringLiteral("Error Number = 57\r\n\r\nDevice I/O error: %1\r\n\r\n"
                                "Still in the folder: PUMP.hdn, PUMP.x07")
                     .arg(SetPath(QStringLiteral("PUMP.x07"))),
                 "File Delete");
    Commands().DeleteProgram(true);
}

TEST_F(SetBoxes, OfASetThatIsRenamedInPart) {
    operations_.FailFrom(3);
    dialogs_.ExpectInput(QStringLiteral("Please enter new program name."), QStringLiteral("Rename"),
                         QString(), QStringLiteral("BELT"));
    ExpectReport(QStringLiteral("Error Number = 57\r\n\r\nDevice I/O error: %1\r\n\r\n"
                                "Files under the old name: "
                                "PUMP.HEX, PUMP.bak, PUMP.hdn, PUMP.lmn, PUMP.x07\r\n"
                                "Files under the new name: BELT.HEX, BELT.bak")
                     .arg(SetPath(QStringLiteral("PUMP.lmn"))),
                 "File Rename");
    Commands().RenameProgram(true);
}

// The first file of the old set that cannot be removed stops the rest; the new set stands already.
TEST_F(SetBoxes, OfAReplacedSetWhoseOldFilesStay) {
    constexpr int stepsBefore = 6; // five files of PUMP step aside, the new one is written
    operations_.FailFrom(stepsBefore + 1);
    frmNewFile view(Context(), tools_, *folder_);
    view.SetNewFileMode(NewFileMode::Upload);
    WhenUp("frmNewFile", [this](QWidget& shown) {
        shown.findChild<QLineEdit*>(QStringLiteral("txtNew"))->setText(QStringLiteral("PUMP"));
        dialogs_.ExpectBoxTitled(QStringLiteral("Create Halden File"), MsgAnswer::Yes);
        dialogs_.ExpectBoxTitled(QStringLiteral("New File"), MsgAnswer::Ok);
        ClickButton(shown, "cmdOk");
        ClickButton(shown, "cmdCancel");
    });
    view.exec();
    const QString aside =
        QDir(SetPath(QString())).entryList({QStringLiteral("replaced-*")}, QDir::Dirs).value(0);
    EXPECT_EQ(dialogs_.Boxes().back().text,
              QStringLiteral("Error Number = 57\r\n\r\nDevice I/O error: %1/PUMP.x07\r\n\r\n"
                             "Files of the old program 'PUMP' are in %1")
                  .arg(SetPath(aside)));
}
