#include "base/RunTimeError.h"
#include "session/Globals.h"
#include "support/gui/ModalView.h"
#include "support/gui/WholeWindow.h"
#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {
constexpr int imageStart = 0x4000; // of board 68
constexpr int imageLength = 0x8000;

class Upload : public WholeWindow {
protected:
    void SetUp() override {
        line_.SetBaud(0);
        line_.KeepLog(false);
        for (int place = 0; place < imageLength; ++place)
            Poke(imageStart + place, place * 7 + place / 256);
        const QByteArray ident("PRESS1  \xA3\x01", 10);
        for (int i = 0; i < ident.size(); ++i)
            Poke(61424 + i, ident[i]);
        Start();
        GoToSets();
        ClickSet("PUMP.hdn");
    }
    void Poke(int address, int byte) {
        board_.Poke(static_cast<std::uint16_t>(address), static_cast<std::uint8_t>(byte));
    }
    QByteArray Image() const {
        QByteArray bytes;
        for (int place = 0; place < imageLength; ++place)
            bytes.append(
                static_cast<char>(board_.Peek(static_cast<std::uint16_t>(imageStart + place))));
        return bytes;
    }
    QByteArray Content(const QString& name) {
        QFile file(SetPath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }
    /// The command, with this name typed and accepted.
    void UploadAs(const QString& name) {
        InModalView("frmNewFile", [name](QWidget& view) {
            auto* text = PartOf<QLineEdit>(view, "txtNew");
            text->selectAll();
            QTest::keyClicks(text, name);
            QTest::keyClick(text, Qt::Key_Return);
        });
        Entry("mnuFileUploadProgram")->trigger();
        EXPECT_FALSE(Link().InUploadMode());
        EXPECT_EQ(gHdnFile, Window().SelectedProgramPath());
    }
    void ExpectQuestion(const QString& name, int answer) {
        dialogs_.ExpectBox("You are about to upload the PLC Program           \r\n"
                           "from the R6500(PLC).\r\n\r\nDo you wish to continue?",
                           67, "Program Upload [" + name + "]", answer, [this] {
                               EXPECT_TRUE(Link().InUploadMode());
                               EXPECT_FALSE(Link().OnlineMode());
                           });
    }
    void ExpectComplete() {
        dialogs_.ExpectBox("Program Upload Complete!", 64, "Program Upload", MsgAnswer::Ok);
    }
};
} // namespace

TEST_F(Upload, NewNameThenQuestionThenOnlineThenTheFilesOfTheBoard) {
    ExpectQuestion("FETCHED", MsgAnswer::Yes);
    ExpectComplete();
    UploadAs("FETCHED");
    EXPECT_TRUE(Link().OnlineMode());
    EXPECT_EQ(Content("FETCHED.HDN").toStdString(), "D\r\n");
    EXPECT_EQ(Content("FETCHED.rev").toStdString(), "PRESS1  :301\r\n");
    const QByteArray image = Image();
    QByteArray hex;
    for (int offset = 0; offset < imageLength; offset += 16)
        hex += ":10" + QByteArray::number(imageStart + offset, 16).toUpper() + "00" +
               image.mid(offset, 16).toHex().toUpper() + "\r\n";
    EXPECT_TRUE(Content("FETCHED.hex") == hex + ":00000001FF\r\n");
    EXPECT_EQ(TreeTexts().join(u'|').toStdString(),
              "R6500(PLC) [FETCHED]|HEX (.hex)|REVISION (.rev)");
    EXPECT_TRUE(tools_.commands.isEmpty());
}

TEST_F(Upload, UploadedImageDumpsBackUnchanged) {
    const QByteArray before = Image();
    ExpectQuestion("FETCHED", MsgAnswer::Yes);
    ExpectComplete();
    UploadAs("FETCHED");
    for (int place = 0; place < imageLength; ++place)
        Poke(imageStart + place, 0);
    dialogs_.ExpectBoxTitled("Program Download - [PRESS1  ]", MsgAnswer::Yes);
    dialogs_.ExpectBox("Program Download Complete!", 64, "Program Download", MsgAnswer::Ok);
    Entry("mnuFileListPopupDownloadProg")->trigger();
    EXPECT_TRUE(Image() == before);
}

TEST_F(Upload, NoReadsNothingAndLeavesTheNewSet) {
    ExpectQuestion("FETCHED", MsgAnswer::No);
    UploadAs("FETCHED");
    EXPECT_TRUE(port_.Sent().empty());
    EXPECT_EQ(Content("FETCHED.hex").toStdString(), "missing");
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [FETCHED]");
}

TEST_F(Upload, CancelInTheNameViewEndsTheCommand) {
    InModalView("frmNewFile", [](QWidget& view) {
        QTest::mouseClick(PartOf<QPushButton>(view, "cmdCancel"), Qt::LeftButton);
    });
    Entry("mnuFileUploadProgram")->trigger();
    EXPECT_FALSE(Link().InUploadMode());
    EXPECT_TRUE(dialogs_.Boxes().empty());
    EXPECT_EQ(gHdnFile, SetPath("PUMP.hdn"));
}

TEST_F(Upload, PortThatDoesNotOpenEndsItWithTheOfflineBox) {
    port_.RefuseToOpen(ErrorNumber::DeviceUnavailable, "not there");
    ExpectQuestion("FETCHED", MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled("Comm Port Error", MsgAnswer::Ok);
    dialogs_.ExpectBox("Program is Currently OFFLINE.\r\n\r\nSwitch to ONLINE MODE to Continue.",
                       64, "Program Upload", MsgAnswer::Ok);
    UploadAs("FETCHED");
    EXPECT_EQ(Content("FETCHED.rev").toStdString(), "missing");
}

TEST_F(Upload, ErrorIsReportedUnderItsTitle) {
    Window().Views().frmNewFile = [this](qint16 mode) {
        EXPECT_EQ(mode, 1);
        gHdnFile = WriteSetFile("BLANK.hdn", "\r\n");
        Link().SetInUploadMode(true);
    };
    dialogs_.ExpectBox("Error Number = 5\r\n\r\nInvalid procedure call or argument", 16,
                       "Upload Program", MsgAnswer::Ok);
    dialogs_.ExpectBoxTitled("File List", MsgAnswer::Ok); // the browser cannot read it either
    Entry("mnuFileUploadProgram")->trigger();
    EXPECT_FALSE(Link().InUploadMode());
}

TEST_F(Upload, AfterAnErrorTheBrowserShowsTheSetThatWasNamed) {
    Window().Views().frmDownloadProg = [](qint16) { throw RunTimeError(ErrorNumber::Overflow); };
    ExpectQuestion("FETCHED", MsgAnswer::Yes);
    dialogs_.ExpectBoxTitled("Upload Program", MsgAnswer::Ok);
    UploadAs("FETCHED");
    EXPECT_EQ(gHdnFile, SetPath("FETCHED.HDN"));
    EXPECT_EQ(TreeTexts().value(0).toStdString(), "R6500(PLC) [FETCHED]");
}
