#include "link/programs/BoardFixture.h"
#include <QDir>
#include <QFile>
#include <QTimer>

namespace {
const QString uploadTitle = QStringLiteral("Program Upload");

class UploadFailure : public BoardTest {
protected:
    void SetUp() override {
        Write(QStringLiteral("UP.hex"), "old image");
        Write(QStringLiteral("UP.rev"), "old ident");
    }
    void ExpectNotComplete() {
        ExpectBox(QStringLiteral("Program Upload Not Complete!\r\n\r\nHEX file not created."), 16,
                  uploadTitle);
    }
    void ExpectAlert(int answer, std::function<void()> meanwhile = {}) {
        dialogs.ExpectBox(QStringLiteral("Cannot Communicate with Target Board.\r"
                                         "Verify RS-232 Cable is Connected Between\r"
                                         "COMM Port and PROG Port."),
                          21, QStringLiteral("WARNING - Communication Error!"), answer,
                          std::move(meanwhile));
    }
    void ExpectError(int number, const char* description) {
        dialogs.ExpectBox(QStringLiteral("Error Number = %1\r\n\r\n%2")
                              .arg(QString::number(number), QString::fromLatin1(description)),
                          64, QStringLiteral("RSComm-Upload Program"), MsgAnswer::Ok,
                          [this] { EXPECT_FALSE(link.InUploadMode()); });
    }
    // Runs `action` in the yield at which this address is shown.
    void At(const QString& address, std::function<void()> action) {
        QObject::connect(&yield_, &QTimer::timeout, [this, address, action] {
            if (link.CurrentProgramAdd() == address)
                action();
        });
        yield_.start(0);
    }
    void OrderFault(haldenboard::FaultKind kind, int nth) {
        haldenboard::Fault fault;
        fault.kind = kind;
        fault.nth = nth;
        line->Faults().Order(fault);
    }
    // The echo of the high address byte, three times over. Between two of them come the byte at
    // which the board takes the next attention for a low address, and the handshake.
    void GarbleThreeEchoes() {
        haldenboard::Fault garbled;
        garbled.kind = haldenboard::FaultKind::Wrong;
        for (const int nth : {1, 5, 9}) {
            garbled.nth = nth;
            line->Faults().Order(garbled);
        }
    }

private:
    QTimer yield_;
};
} // namespace

TEST_F(UploadFailure, OfflineIsToldAndNoFileIsTouched) {
    ConnectBoard(52);
    link.CloseRSComm();
    ExpectBox(QStringLiteral("Program is Currently OFFLINE.\r\n\r\n"
                             "Switch to ONLINE MODE to Continue."),
              64, uploadTitle);
    Upload(52);
    EXPECT_EQ(Read(QStringLiteral("UP.rev")), "old ident");
}

TEST_F(UploadFailure, CableCutInTheIdentBlockEndsWithoutAMessageOfItsOwn) {
    ConnectBoard(52);
    haldenboard::Fault cut;
    cut.kind = haldenboard::FaultKind::Lost;
    cut.nth = 9;
    cut.standing = true;
    line->Faults().Order(cut);
    ExpectAlert(MsgAnswer::Cancel, [this] { EXPECT_TRUE(link.ReadingIdent()); });
    Upload(52);
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(Read(QStringLiteral("UP.rev")), "old ident");
    EXPECT_EQ(Read(QStringLiteral("UP.hex")), "old image");
}

TEST_F(UploadFailure, CableCutInTheImageLeavesTheOldImage) {
    ConnectBoard(52);
    At(QStringLiteral("2050H"), [this] { line->Faults().SetSilence(true); });
    ExpectAlert(MsgAnswer::Cancel);
    ExpectNotComplete();
    Upload(52);
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_EQ(link.CurrentProgramAdd(), QStringLiteral("2050H"));
    EXPECT_EQ(Read(QStringLiteral("UP.hex")), "old image");
    EXPECT_NE(Read(QStringLiteral("UP.rev")), "old ident");
}

TEST_F(UploadFailure, PortLostInTheImageLeavesTheOldImage) {
    ConnectBoard(52);
    At(QStringLiteral("2050H"), [this] { port->Lose(); });
    ExpectNotComplete();
    Upload(52);
    EXPECT_FALSE(link.OnlineMode());
    EXPECT_EQ(Read(QStringLiteral("UP.hex")), "old image");
}

TEST_F(UploadFailure, LostAndWrongRepliesNeverReachTheImage) {
    for (int nth = 24; nth < 60; ++nth) {
        SCOPED_TRACE(nth);
        ConnectBoard(52);
        FillImage(7);
        OrderFault(haldenboard::FaultKind::Lost, nth);
        ExpectUploadComplete();
        Upload(52);
        const QByteArray hex = Read(QStringLiteral("UP.hex"));
        EXPECT_EQ(line->Faults().Outstanding(), 0u);
        for (int row = 0; row < 4; ++row)
            EXPECT_EQ(hex.mid(row * 43 + 9, 32), Memory(0x2000 + row * 16, 16).toHex().toUpper());
    }
}

TEST_F(UploadFailure, LineThatNeverEchoesRightIsReportedAsNoCommunication) {
    ConnectBoard(52);
    At(QStringLiteral("2050H"), [this] { GarbleThreeEchoes(); });
    ExpectAlert(MsgAnswer::Cancel);
    ExpectNotComplete();
    Upload(52);
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(Read(QStringLiteral("UP.hex")), "old image");
}

TEST_F(UploadFailure, RetryAfterWrongEchoesGoesOnWithTheSameByte) {
    ConnectBoard(52);
    FillImage(9);
    At(QStringLiteral("2050H"), [this] { GarbleThreeEchoes(); });
    ExpectAlert(MsgAnswer::Retry);
    ExpectUploadComplete();
    Upload(52);
    EXPECT_TRUE(
        Read(QStringLiteral("UP.hex")).contains(Memory(0x2050, 16).toHex().toUpper() + "\r\n"));
}

TEST_F(UploadFailure, ConfigurationThatCannotBeReadKeepsItsDefaults) {
    ConnectBoard(65);
    board->Poke(8190, 5);
    haldenboard::Fault cut;
    cut.kind = haldenboard::FaultKind::Lost;
    cut.nth = 2 + 20 + 2 + 1; // handshake, ident block, code A
    cut.standing = true;
    line->Faults().Order(cut);
    ExpectAlert(MsgAnswer::Cancel);
    ExpectNotComplete();
    Upload(65);
    EXPECT_EQ(Read(QStringLiteral("UP.lcf")),
              "E" + QByteArray(34, '0') + "200" + "03" + "000%\r\n");
}

TEST_F(UploadFailure, EmptyHdnEndsAfterTheRevFileWithoutAMessage) {
    ConnectBoard(52);
    link.UploadFile(Write(QStringLiteral("UP.hdn"), ""));
    link.SetInUploadMode(true);
    link.UploadProgram();
    EXPECT_FALSE(link.InUploadMode());
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_NE(Read(QStringLiteral("UP.rev")), "old ident");
    EXPECT_EQ(Read(QStringLiteral("UP.hex")), "old image");
}

TEST_F(UploadFailure, HdnThatVanishedGivesTheErrorBox) {
    ConnectBoard(52);
    link.UploadFile(Write(QStringLiteral("UP.hdn"), "4\r\n"));
    QFile::remove(Path(QStringLiteral("UP.hdn")));
    link.SetInUploadMode(true);
    ExpectError(53, "File not found");
    link.UploadProgram();
    EXPECT_FALSE(link.InUploadMode());
}

TEST_F(UploadFailure, RevThatCannotBeWrittenGivesTheErrorBox) {
    ConnectBoard(52);
    QFile::remove(Path(QStringLiteral("UP.rev")));
    QDir(folder.path()).mkdir(QStringLiteral("UP.rev"));
    ExpectError(75, "Path/File access error");
    Upload(52);
    EXPECT_TRUE(link.OnlineMode());
}

TEST_F(UploadFailure, HexThatCannotBeWrittenGivesTheErrorBox) {
    ConnectBoard(52);
    line->SetBaud(0);
    QFile::remove(Path(QStringLiteral("UP.hex")));
    QDir(folder.path()).mkdir(QStringLiteral("UP.hex"));
    ExpectError(75, "Path/File access error");
    Upload(52);
}

TEST_F(UploadFailure, NameThatLeadsNowhereDoesNotLandInTheSetNamedBefore) {
    ConnectBoard(52);
    link.UploadFile(Write(QStringLiteral("UP.hdn"), "4\r\n"));
    link.UploadFile(Path(QStringLiteral("none.hdn")));
    link.SetInUploadMode(true);
    ExpectError(53, "File not found");
    link.UploadProgram();
    EXPECT_EQ(Read(QStringLiteral("UP.rev")), "old ident");
    EXPECT_EQ(Read(QStringLiteral("UP.hex")), "old image");
}
