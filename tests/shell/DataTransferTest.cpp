#include "base/Dialogs.h"
#include "base/RunTimeError.h"
#include "session/Globals.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QTest>
#include <QToolButton>

namespace {
const char downloadText[] = "You are about to download data to the R6500(PLC).      \r\n\r\n"
                            "File data will be written to memory.\r\n\r\n"
                            "Do you wish to continue?";
const char uploadText[] = "You are about to upload data from the R6500(PLC).      \r\n\r\n"
                          "File data will be saved from memory.\r\n\r\n"
                          "Do you wish to continue?";

// The command of a data transfer; of the dialog it is only noted what stands when it comes.
class DataTransferCommands : public WholeWindow {
protected:
    struct Shown {
        qint16 mode;
        qint16 board;
        QString file;
        bool online;
        bool timer;
        bool operator==(const Shown&) const = default;
    };

    void SetUp() override {
        Start();
        GoToSets();
        Window().Views().frmDataXfr = [this] {
            shown_.push_back({gXferMode, gXferBoard, gXferFile, Link().OnlineMode(),
                              Window().Timer().Enabled()});
        };
        Window().Commands().Handle("mnuFileListPopupUploadFromPLS", [this] { ++plsUploads_; });
    }
    void Press(const char* key) {
        QTest::mouseClick(Find<QToolButton>(QString::fromLatin1(key)), Qt::LeftButton);
    }
    void ExpectQuestion(const char* text, const char* title, int answer) {
        dialogs_.ExpectBox(text, MsgStyle::YesNoCancelInformation, title, answer);
    }
    void ExpectRefreshed() {
        EXPECT_EQ(gHdnFile, Window().SelectedProgramPath());
        EXPECT_TRUE(Window().Timer().Enabled());
    }
    Shown ShownFor(qint16 mode) { return {mode, 68, SetPath("PUMP.ldt"), true, false}; }

    std::vector<Shown> shown_;
    int plsUploads_ = 0;
};
} // namespace

TEST_F(DataTransferCommands, DownloadAsksGoesOnlineAndShowsTheDialog) {
    ClickSet("PUMP.hdn");
    ExpectQuestion(downloadText, "Data Download [PUMP]", MsgAnswer::Yes);
    Press("Download");
    EXPECT_EQ(shown_, std::vector<Shown>{ShownFor(XferMode::Download)});
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, TheMenuEntryAsksForTheSetFirst) {
    dialogs_.ExpectOpen(SetPath("PUMP.hdn"));
    ExpectQuestion(uploadText, "Data Upload [PUMP]", MsgAnswer::Yes);
    Entry("mnuFileUploadData")->trigger();
    EXPECT_EQ(shown_, std::vector<Shown>{ShownFor(XferMode::Upload)});
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, NoAndCancelStayOfflineAndRefresh) {
    ClickSet("PUMP.hdn");
    for (const int answer : {MsgAnswer::No, MsgAnswer::Cancel}) {
        ExpectQuestion(uploadText, "Data Upload [PUMP]", answer);
        Press("Upload");
        EXPECT_TRUE(shown_.empty());
        EXPECT_FALSE(Link().OnlineMode());
        ExpectRefreshed();
    }
}

TEST_F(DataTransferCommands, CancellingTheFileDialogOnlyRefreshes) {
    ClickSet("PUMP.hdn");
    dialogs_.ExpectOpen(QString());
    Entry("mnuFileDownloadData")->trigger();
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_TRUE(shown_.empty());
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, APLSSetTakesItsUploadInEitherDirection) {
    for (const char* entry : {"mnuFileDownloadData", "mnuFileUploadData"}) {
        dialogs_.ExpectOpen(SetPath("CAMS.hdn"));
        Entry(entry)->trigger();
    }
    EXPECT_EQ(plsUploads_, 2);
    EXPECT_TRUE(shown_.empty());
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, WithoutALinkTheDialogDoesNotCome) {
    ClickSet("PUMP.hdn");
    port_.RefuseToOpen(68, "There is no /dev/ttyS0.");
    ExpectQuestion(downloadText, "Data Download [PUMP]", MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled("Comm Port Error", MsgAnswer::Cancel);
    Press("Download");
    EXPECT_TRUE(shown_.empty());
    ExpectRefreshed();
}

TEST_F(DataTransferCommands, AnErrorIsReportedUnderItsTitleAndTheEndIsTheSame) {
    ClickSet("PUMP.hdn");
    Window().Views().frmDataXfr = [] { throw RunTimeError(ErrorNumber::Overflow); };
    ExpectQuestion(uploadText, "Data Upload [PUMP]", MsgAnswer::Yes);
    dialogs_.ExpectBox("Error Number = 6\r\n\r\nOverflow", 16, "TransferData", MsgAnswer::Ok);
    Press("Upload");
    ExpectRefreshed();
}
