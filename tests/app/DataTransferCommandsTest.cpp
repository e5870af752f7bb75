#include "session/Globals.h"
#include "support/OrdinaryUser.h"
#include "WholeProgram.h"
#include <optional>
#include <QAction>
#include <QFile>
#include <QLineEdit>

namespace {
const QString uploadText =
    QStringLiteral("You are about to upload data from the K2014.      \r\n\r\n"
                   "File data will be saved from memory.\r\n\r\n"
                   "Do you wish to continue?");
const QString downloadText =
    QStringLiteral("You are about to download data to the K2014.      \r\n\r\n"
                   "File data will be written to memory.\r\n\r\n"
                   "Do you wish to continue?");
constexpr int imageBytes = 150; // 70 to 219

class DataTransferCommands : public WholeProgram {
protected:
    QString DataFile() const { return SetPath(QStringLiteral("UNIT.ldt")); }
    void ExpectUpload(int answer) {
        dialogs_.ExpectBox(uploadText, MsgStyle::YesNoCancelInformation,
                           QStringLiteral("Data Upload [UNIT]"), answer);
    }
    void ExpectDownload(int answer) {
        dialogs_.ExpectBox(downloadText, MsgStyle::YesNoCancelInformation,
                           QStringLiteral("Data Download [UNIT]"), answer);
    }
    // A data file with this byte at every address.
    void WriteDataFile(const QByteArray& pair) {
        WriteSetFile(QStringLiteral("UNIT.ldt"), pair.repeated(imageBytes) + "\r\n");
    }
    void ExpectRefreshed() {
        EXPECT_EQ(gHdnFile, SetPath(QStringLiteral("UNIT.hdn")));
        EXPECT_TRUE(Window().Timer().Enabled());
    }
};
} // namespace

TEST_F(DataTransferCommands, TheUploadButtonSavesTheBoardsBytes) {
    Fill(70, imageBytes, 0);
    Fill(100, 1, 0x1B);
    ExpectUpload(MsgAnswer::Yes);
    WhenUp("frmDataXfr", [](QWidget& view) {
        EXPECT_EQ(view.windowTitle(), QStringLiteral("Target Board Data Upload - [UNIT.hdn]"));
        ClickButton(view, "optRange(0)");
        ClickButton(view, "cmdOk");
    });
    Press("Upload");
    QByteArray wanted = QByteArray("00").repeated(imageBytes) + "\r\n";
    wanted.replace(2 * (100 - 70), 2, "1;");
    EXPECT_EQ(Content(DataFile()), wanted);
    EXPECT_EQ(Panel(2), QStringLiteral("ONLINE"));
    EXPECT_TRUE(TreeTexts().contains(QStringLiteral("DATA (.ldt)"))) << "the browser is redrawn";
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, TheUploadEntryAsksForTheSet) {
    ClickSet(QStringLiteral("PUMP.hdn"));
    dialogs_.ExpectOpen(SetPath(QStringLiteral("UNIT.hdn")));
    ExpectUpload(MsgAnswer::Yes);
    WhenUp("frmDataXfr", [](QWidget& view) { EnterRange(view, 100, 101); });
    Entry(QStringLiteral("mnuFileUploadData"))->trigger();
    EXPECT_EQ(Content(DataFile()).size(), 2 * imageBytes + 2);
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, TheDownloadButtonWritesTheRangeAndNothingElse) {
    WriteDataFile("5:");
    Fill(70, imageBytes, 1);
    ExpectDownload(MsgAnswer::Yes);
    WhenUp("frmDataXfr", [](QWidget& view) {
        EXPECT_EQ(view.windowTitle(), QStringLiteral("Target Board Data Download - [UNIT.hdn]"));
        EnterRange(view, 100, 110);
    });
    Press("Download");
    EXPECT_EQ(Byte(99), 1);
    EXPECT_EQ(Byte(100), 0x5A);
    EXPECT_EQ(Byte(110), 0x5A);
    EXPECT_EQ(Byte(111), 1);
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, TheDownloadEntryAsksForTheSet) {
    WriteDataFile("03");
    dialogs_.ExpectOpen(SetPath(QStringLiteral("UNIT.hdn")));
    ExpectDownload(MsgAnswer::Yes);
    WhenUp("frmDataXfr", [](QWidget& view) {
        ClickButton(view, "optRange(0)");
        ClickButton(view, "cmdOk");
    });
    Entry(QStringLiteral("mnuFileDownloadData"))->trigger();
    EXPECT_EQ(Byte(70), 3);
    EXPECT_EQ(Byte(219), 3);
}

TEST_F(DataTransferCommands, CancelInTheFileDialogRunsNothingFurther) {
    for (const char* entry : {"mnuFileUploadData", "mnuFileDownloadData"}) {
        dialogs_.ExpectOpen(QString());
        Entry(QLatin1String(entry))->trigger();
    }
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_TRUE(port_.Sent().empty());
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, NoAndCancelTransferNothingAndStayOffline) {
    for (const int answer : {MsgAnswer::No, MsgAnswer::Cancel}) {
        ExpectUpload(answer);
        Press("Upload");
        ExpectDownload(answer);
        Press("Download");
    }
    EXPECT_TRUE(port_.Sent().empty());
    EXPECT_FALSE(QFile::exists(DataFile()));
    EXPECT_EQ(Panel(2), QStringLiteral("OFFLINE"));
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, CancelInTheRangeDialogTransfersNothing) {
    ExpectUpload(MsgAnswer::Yes);
    WhenUp("frmDataXfr", [this](QWidget& view) {
        EXPECT_FALSE(Window().Timer().Enabled()) << "the tick stands still from the question on";
        ClickButton(view, "cmdCancel");
    });
    Press("Upload");
    EXPECT_FALSE(QFile::exists(DataFile()));
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, AWrongRangeIsToldAndTransfersNothing) {
    Fill(70, imageBytes, 1);
    ExpectDownload(MsgAnswer::Yes);
    dialogs_.ExpectBox(QStringLiteral("Entry is out of Range (70-219)"), MsgStyle::Plain,
                       QStringLiteral("Entry Error"), MsgAnswer::Ok);
    dialogs_.ExpectBox(QStringLiteral("TO Can Not Be Greater Than FROM"), MsgStyle::Plain,
                       QStringLiteral("Entry Error"), MsgAnswer::Ok);
    WhenUp("frmDataXfr", [](QWidget& view) {
        EnterRange(view, 69, 100);
        EXPECT_EQ(view.findChild<QLineEdit*>(QStringLiteral("txtRange(0)"))->text(),
                  QStringLiteral("70"));
        EnterRange(view, 120, 119);
        EXPECT_TRUE(view.isVisible());
        ClickButton(view, "cmdCancel");
    });
    Press("Download");
    EXPECT_EQ(Byte(120), 1);
    ExpectRefreshed();
}

// For either direction such a set is sent to the upload of its board.
TEST_F(DataTransferCommands, ASetOfALimitSwitchBoardTransfersNoData) {
    for (const char* entry : {"mnuFileDownloadData", "mnuFileUploadData"}) {
        dialogs_.ExpectOpen(SetPath(QStringLiteral("CAMS.hdn")));
        dialogs_.ExpectBoxTitled(QStringLiteral("PLS Upload [CAMS]"), MsgAnswer::No);
        Entry(QLatin1String(entry))->trigger();
        EXPECT_TRUE(Window().Timer().Enabled());
    }
    EXPECT_TRUE(port_.Sent().empty());
    EXPECT_FALSE(QFile::exists(SetPath(QStringLiteral("CAMS.ldt"))));
}

TEST_F(DataTransferCommands, TheTickStandsStillWhileTheJobRuns) {
    ExpectUpload(MsgAnswer::Yes);
    WhenUp("frmDataXfr", [](QWidget& view) { EnterRange(view, 70, 219); });
    WhenUp("frmWaitDisplay", [this](QWidget&) { EXPECT_FALSE(Window().Timer().Enabled()); });
    Press("Upload");
    EXPECT_TRUE(Window().Timer().Enabled());
}

TEST_F(DataTransferCommands, CancelStopsWithinOneAddress) {
    WriteDataFile("09");
    Fill(70, imageBytes, 1);
    ExpectDownload(MsgAnswer::Yes);
    WhenUp("frmDataXfr", [](QWidget& view) { EnterRange(view, 70, 219); });
    WhenUp(
        "frmWaitDisplay", [](QWidget& view) { ClickButton(view, "cmdCancel"); },
        [this] { return Byte(100) == 9; });
    Press("Download");
    EXPECT_EQ(Byte(100), 9);
    EXPECT_EQ(Byte(102), 1);
    EXPECT_EQ(Panel(2), QStringLiteral("ONLINE"));
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, ACutLineEndsTheDownloadAndTakesTheProgramOffline) {
    WriteDataFile("09");
    Fill(70, imageBytes, 1);
    ExpectDownload(MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled(QStringLiteral("WARNING - Communication Error!"), MsgAnswer::Cancel);
    WhenUp("frmDataXfr", [](QWidget& view) { EnterRange(view, 70, 219); });
    WhenUp(
        "frmWaitDisplay", [this](QWidget&) { line_.Faults().SetSilence(true); },
        [this] { return Byte(100) == 9; });
    Press("Download");
    EXPECT_EQ(Byte(100), 9);
    EXPECT_EQ(Byte(102), 1);
    EXPECT_EQ(Panel(2), QStringLiteral("OFFLINE"));
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, ADataFileThatCannotBeReadIsReported) {
    WriteDataFile("09");
    ForbidReading(DataFile());
    std::optional<OrdinaryUser> user;
    Fill(70, imageBytes, 1);
    ExpectDownload(MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled(QStringLiteral("TransferData"), MsgAnswer::Ok);
    WhenUp("frmDataXfr", [&user](QWidget& view) {
        user.emplace();
        EnterRange(view, 70, 219);
        user.reset();
    });
    Press("Download");
    EXPECT_EQ(Byte(70), 1);
    ExpectRefreshed();
}
