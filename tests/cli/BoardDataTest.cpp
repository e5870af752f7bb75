#include "cli/CommandLineTest.h"

#include <QFile>
#include <QJsonArray>

namespace {
class BoardDataTest : public CommandLineTest {
protected:
    BoardDataTest() { folder.Write(QStringLiteral("A.hdn"), "3\r\n"); } // a K2014: B70 to B219

    static constexpr int dataBytes = 150;
};

class PLSCommandsTest : public CommandLineTest {
protected:
    PLSCommandsTest() : CommandLineTest(r6500PLS) {
        for (const char* extension : {"hdn", "PCF", "CHL"}) {
            const QString name = QStringLiteral("CAM1.") + QLatin1String(extension);
            EXPECT_TRUE(QFile::copy(QStringLiteral(QUENTOR_SAMPLES "/") + name, folder.Path(name)));
            QFile::setPermissions(folder.Path(name),
                                  QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        }
    }
};
} // namespace

TEST_F(BoardDataTest, DataGoDownAndComeBack) {
    folder.Write(QStringLiteral("A.ldt"), QByteArray("1?").repeated(dataBytes) + "\r\n");
    EXPECT_EQ(Run(QStringLiteral("data-download --yes --json @A.hdn")), ExitCode::Done);
    EXPECT_EQ(Memory(69, dataBytes + 2),
              QByteArray(1, '\0') + QByteArray(dataBytes, '\x1F') + QByteArray(1, '\0'));
    EXPECT_EQ(Result()[QStringLiteral("from")].toInt(), 70);
    EXPECT_EQ(Result()[QStringLiteral("to")].toInt(), 219);
    Poke(71, "\x22");
    EXPECT_EQ(Run(QStringLiteral("data-upload --yes @A.hdn")), ExitCode::Done);
    EXPECT_EQ(folder.Content(QStringLiteral("A.ldt")),
              "1?22" + QByteArray("1?").repeated(dataBytes - 2) + "\r\n");
}

TEST_F(BoardDataTest, ARangeIsAllThatIsWritten) {
    folder.Write(QStringLiteral("A.ldt"), "1122\r\n");
    EXPECT_EQ(Run(QStringLiteral("data-download --yes --json --from 100 --to 101 @A.hdn")),
              ExitCode::Done);
    EXPECT_EQ(Memory(99, 4).toHex(), QByteArray("00112200"));
    EXPECT_EQ(Result()[QStringLiteral("from")].toInt(), 100);
    EXPECT_EQ(Result()[QStringLiteral("to")].toInt(), 101);
}

TEST_F(BoardDataTest, ADataFileThatIsMissingOrTooShortSendsNothing) {
    EXPECT_EQ(Run(QStringLiteral("data-download --yes @A.hdn")), ExitCode::Files);
    folder.Write(QStringLiteral("A.ldt"), QByteArray("11").repeated(dataBytes - 1) + "\r\n");
    EXPECT_EQ(Run(QStringLiteral("data-download --yes @A.hdn")), ExitCode::Files);
    folder.Write(QStringLiteral("A.ldt"), QByteArray("xx").repeated(dataBytes) + "\r\n");
    EXPECT_EQ(Run(QStringLiteral("data-download --yes @A.hdn")), ExitCode::Files);
    EXPECT_EQ(BytesSent(), 0);
}

TEST_F(BoardDataTest, AnUploadThatIsCutLeavesTheDataFile) {
    const QByteArray before = QByteArray("11").repeated(dataBytes) + "\r\n";
    folder.Write(QStringLiteral("A.ldt"), before);
    CutLineAtReply(40);
    EXPECT_EQ(Run(QStringLiteral("data-upload --yes @A.hdn")), ExitCode::NoCommunication);
    EXPECT_EQ(folder.Content(QStringLiteral("A.ldt")), before);
}

TEST_F(BoardDataTest, AnUploadThatLosesAByteIsNotDone) {
    for (int reply = 4; reply <= 20; ++reply) {
        ConnectBoard(51);
        QFile::remove(folder.Path(QStringLiteral("A.ldt")));
        LoseReply(reply);
        EXPECT_EQ(Run(QStringLiteral("data-upload --yes @A.hdn")), ExitCode::Failed) << reply;
        EXPECT_FALSE(QFile::exists(folder.Path(QStringLiteral("A.ldt"))));
    }
}

TEST_F(BoardDataTest, ADownloadThatIsCutOrInterruptedIsNotDone) {
    folder.Write(QStringLiteral("A.ldt"), QByteArray("11").repeated(dataBytes) + "\r\n");
    CutLineAtReply(100);
    EXPECT_EQ(Run(QStringLiteral("data-download --yes @A.hdn")), ExitCode::NoCommunication);
    ConnectBoard(51);
    interrupted = true;
    EXPECT_EQ(Run(QStringLiteral("data-download --yes @A.hdn")), ExitCode::Cancelled);
    EXPECT_EQ(Memory(70, 1).toHex(), QByteArray("00"));
}

TEST_F(BoardDataTest, FaultsHaveTheirTexts) {
    QFile::copy(QStringLiteral(QUENTOR_SAMPLES "/../support/FaultErrCodes.txt"),
                folder.MakeFolder(QStringLiteral("application/support")) +
                    QStringLiteral("/FaultErrCodes.txt"));
    Poke(8176, "\x05\x06\x07\x08");
    EXPECT_EQ(Run(QStringLiteral("faults --json")), ExitCode::Done);
    const QJsonObject current = Result()[QStringLiteral("currentFault")].toObject();
    EXPECT_EQ(current[QStringLiteral("value")].toInt(), 5);
    EXPECT_EQ(current[QStringLiteral("code")].toString(), QStringLiteral("05"));
    EXPECT_FALSE(current[QStringLiteral("description")].toString().isEmpty());
    EXPECT_EQ(Result()[QStringLiteral("lastFault")].toObject()[QStringLiteral("value")].toInt(), 6);
    const auto value = [this](const char* name) {
        return Result()[QLatin1String(name)].toObject()[QStringLiteral("value")].toInt();
    };
    EXPECT_EQ(value("currentCommError"), 8);
    EXPECT_EQ(value("lastCommError"), 7);
    EXPECT_FALSE(Result()[QStringLiteral("correctiveAction")].toString().isEmpty());
}

TEST_F(BoardDataTest, AResetTakesAllFourCodesToZero) {
    Poke(8176, "\x05\x06\x07\x08");
    EXPECT_EQ(Run(QStringLiteral("reset-faults --yes")), ExitCode::Done);
    EXPECT_EQ(Memory(8176, 4).toHex(), QByteArray("00000000"));
}

TEST_F(BoardDataTest, IdentIsComparedWithTheSet) {
    Poke(0xEFF0, QByteArray("PUMP1\0\0\0\xA3\x01", 10));
    folder.Write(QStringLiteral("A.rev"), "PUMP1:301\r\n");
    EXPECT_EQ(Run(QStringLiteral("ident --json")), ExitCode::Done);
    const QJsonObject ident{{QStringLiteral("ident"), QStringLiteral("PUMP1")},
                            {QStringLiteral("checksum"), 163},
                            {QStringLiteral("revision"), 1}};
    EXPECT_EQ(Result()[QStringLiteral("board")].toObject(), ident);
    EXPECT_EQ(Run(QStringLiteral("ident @A.hdn")), ExitCode::Done);
    Poke(0xEFF9, "\x02");
    EXPECT_EQ(Run(QStringLiteral("ident @A.hdn")), ExitCode::Different);
}

TEST_F(BoardDataTest, PortsAreListedWithoutTouchingOne) {
    ports.found = {{1, QStringLiteral("/dev/ttyS0"), QStringLiteral("built in")},
                   {std::nullopt, QStringLiteral("/dev/rfcomm0"), QString()}};
    EXPECT_EQ(Run(QStringLiteral("ports --json")), ExitCode::Done);
    const QJsonArray list = Result()[QStringLiteral("ports")].toArray();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].toObject()[QStringLiteral("number")].toInt(), 1);
    EXPECT_TRUE(list[1].toObject()[QStringLiteral("number")].isNull());
    EXPECT_EQ(BytesSent(), 0);
}

TEST_F(BoardDataTest, MessagesShowNoControlCharacters) {
    EXPECT_EQ(WithoutControls(QStringLiteral("a\x1b[31m\n\r\tb")), QStringLiteral("a?[31m\n??b"));
}

TEST_F(PLSCommandsTest, ASetGoesDownAndComesBack) {
    EXPECT_EQ(Run(QStringLiteral("pls-download --yes --json @CAM1.hdn")), ExitCode::Done);
    EXPECT_EQ(Result()[QStringLiteral("channels")].toInt(), 16);
    EXPECT_EQ(Result()[QStringLiteral("scaleFactor")].toInt(), 1000);
    EXPECT_EQ(board->Pls().Edges(0).size(), 4u);
    const QByteArray before = folder.Content(QStringLiteral("CAM1.CHL"));
    EXPECT_EQ(Run(QStringLiteral("pls-upload --yes @CAM1.hdn")), ExitCode::Done);
    EXPECT_EQ(folder.Content(QStringLiteral("CAM1.CHL")), before);
}

TEST_F(PLSCommandsTest, ALineCutInTheMiddleLeavesTheFiles) {
    const QByteArray channels = folder.Content(QStringLiteral("CAM1.CHL"));
    const QByteArray configuration = folder.Content(QStringLiteral("CAM1.PCF"));
    CutLineAtReply(60);
    EXPECT_EQ(Run(QStringLiteral("pls-upload --yes @CAM1.hdn")), ExitCode::NoCommunication);
    EXPECT_EQ(folder.Content(QStringLiteral("CAM1.CHL")), channels);
    EXPECT_EQ(folder.Content(QStringLiteral("CAM1.PCF")), configuration);
    EXPECT_EQ(Run(QStringLiteral("pls-download --yes @CAM1.hdn")), ExitCode::NoCommunication);
}

TEST_F(PLSCommandsTest, AMissingFileIsNotTakenForPresets) {
    QFile::remove(folder.Path(QStringLiteral("CAM1.CHL")));
    EXPECT_EQ(Run(QStringLiteral("pls-download --yes @CAM1.hdn")), ExitCode::Files);
    EXPECT_EQ(BytesSent(), 0);
}

TEST_F(PLSCommandsTest, ASetOfAnotherBoardIsRefused) {
    folder.Write(QStringLiteral("A.hdn"), "2\r\n");
    EXPECT_EQ(Run(QStringLiteral("pls-download --yes @A.hdn")), ExitCode::Files);
    EXPECT_EQ(Run(QStringLiteral("pls-upload --yes @A.hdn")), ExitCode::Files);
    EXPECT_EQ(Run(QStringLiteral("data-upload --yes @CAM1.hdn")), ExitCode::Files);
}
