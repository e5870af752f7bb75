#include "link/programs/BoardFixture.h"
#include <random>

namespace {
const QString dumpTitle = QStringLiteral("Program Download");

// An image of the board's whole range: random bytes, with pages of 00 and of FF among them.
QByteArray RandomImage(const haldenboard::BoardModel& model, unsigned seed) {
    std::mt19937 random(seed);
    QByteArray hex;
    for (std::uint32_t offset = 0; offset < model.imageLength; offset += 16) {
        const std::uint32_t address = model.imageStart + offset;
        const unsigned kind = random() % 8;
        QByteArray data;
        for (int i = 0; i < 16; ++i)
            data.append(static_cast<char>(kind == 0 ? 0x00 : kind == 1 ? 0xFF : random()));
        if (address >= 0xFF00)
            data.fill('\0'); // the last page cannot be read back
        hex += ":10" + QByteArray::number(address, 16).toUpper() + "00" + data.toHex().toUpper() +
               "\r\n";
    }
    return hex + ":00000001FF\r\n";
}

class DumpIntoBoard : public BoardTest {
protected:
    void Dump(const QByteArray& hex, const QString& end, int style) {
        const QString path =
            WriteSet(QStringLiteral("DOWN"), static_cast<char>(board->Model().index),
                     "PUMP1:301\r\n", hex, "E" + QByteArray(34, '0') + "100" + "72" + "000%\r\n");
        link.DownloadFile(path);
        ASSERT_TRUE(link.ValidProgram());
        dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [PUMP1]"), MsgAnswer::Yes);
        dialogs.ExpectBox(end, style, dumpTitle, MsgAnswer::Ok);
        link.DumpProgram();
    }
    void DumpWell(const QByteArray& hex) {
        Dump(hex, QStringLiteral("Program Download Complete!"), 64);
    }
    void UploadAgain() {
        ExpectUploadComplete();
        Upload(board->Model().index);
    }
};

class RoundTrip : public DumpIntoBoard, public testing::WithParamInterface<int> {};

class DumpWithFaults : public DumpIntoBoard {
protected:
    void SetUp() override {
        ConnectBoard(68);
        line->SetBaud(19200);
    }
    const QByteArray threeRecords = ":0240000001020B\r\n:02400200030407\r\n:02400400050607\r\n";
};
} // namespace

TEST_P(RoundTrip, DumpedImageUploadsAsTheSameFile) {
    ConnectBoard(GetParam());
    line->SetBaud(0);
    for (unsigned seed = 1; seed <= 3; ++seed) {
        SCOPED_TRACE(seed);
        const QByteArray hex = RandomImage(board->Model(), seed);
        DumpWell(hex);
        const bool holdsIdent = GetParam() == 50; // the ident block lies inside the image range
        UploadAgain();
        EXPECT_TRUE(holdsIdent || Read(QStringLiteral("UP.hex")) == hex);
        EXPECT_EQ(Read(QStringLiteral("UP.rev")), QByteArray("PUMP1\0\0\0:301\r\n", 14));
        EXPECT_FALSE(board->InProgramMode());
    }
}

TEST_P(RoundTrip, UploadedImageDumpsBackUnchanged) {
    ConnectBoard(GetParam());
    line->SetBaud(0);
    FillImage(4711);
    PokeIdent(QByteArray("PUMP1\0\0\0", 8), 0xA3, 1);
    const haldenboard::BoardModel& model = board->Model();
    const int readable = std::min<int>(static_cast<int>(model.imageLength),
                                       0xFF00 - static_cast<int>(model.imageStart));
    UploadAgain();
    const QByteArray before = Memory(model.imageStart, readable);
    const QByteArray hex = Read(QStringLiteral("UP.hex"));
    FillImage(1);
    DumpWell(hex);
    EXPECT_TRUE(Memory(model.imageStart, readable) == before);
}

INSTANTIATE_TEST_SUITE_P(BoardsOfEachRange, RoundTrip, testing::Values(50, 52, 54, 56, 65, 68));

TEST_F(DumpWithFaults, BoardGetsImageConfigurationAndIdent) {
    ConnectBoard(65);
    DumpWell(":10200000000102030405060708090A0B0C0D0E0F00\r\n");
    EXPECT_EQ(Memory(0x2000, 16), QByteArray::fromHex("000102030405060708090a0b0c0d0e0f"));
    EXPECT_EQ(Memory(identAddress, 10), QByteArray("PUMP1\0\0\0\xA3\x01", 10));
    EXPECT_EQ(Memory(8188, 3), QByteArray("\x0A\x07\x03"));
    EXPECT_EQ(board->Peek(8181), 86);
    EXPECT_EQ(board->Peek(8176), 0);
    EXPECT_FALSE(board->InProgramMode());
    EXPECT_TRUE(link.OnlineMode());
}

TEST_F(DumpWithFaults, WrongSumAtRecordNHaltsThereAndTheWayBackIsGoingOnline) {
    for (int n = 1; n <= 3; ++n) {
        SCOPED_TRACE(n);
        haldenboard::Fault wrong;
        wrong.kind = haldenboard::FaultKind::WrongSum;
        wrong.nth = n;
        line->Faults().Order(wrong);
        Dump(threeRecords, QStringLiteral("Checksum Error, Program Download Halted!"), 48);
        EXPECT_EQ(link.CurrentProgramAdd(), QStringLiteral("400%1H").arg(2 * n - 2));
        EXPECT_FALSE(link.OnlineMode());
        EXPECT_TRUE(board->InProgramMode());
        GoOnline();
        EXPECT_FALSE(board->InProgramMode());
    }
}

TEST_F(DumpWithFaults, SilenceAtRecordNHaltsThere) {
    // Replies before the first record: 22 ident, 2 + 6 + 1 request, 2 program mode.
    for (int n = 1; n <= 3; ++n) {
        SCOPED_TRACE(n);
        GoOnline();
        haldenboard::Fault lost;
        lost.kind = haldenboard::FaultKind::Lost;
        lost.nth = 22 + 9 + 2 + n;
        line->Faults().Order(lost);
        Dump(threeRecords, QStringLiteral("Checksum Error, Program Download Halted!"), 48);
        EXPECT_EQ(link.CurrentProgramAdd(), QStringLiteral("400%1H").arg(2 * n - 2));
        EXPECT_TRUE(board->InProgramMode());
    }
}

TEST_F(DumpWithFaults, NamesWithQuotesBlanksAndAccentsTravelBothWays) {
    for (const QString& base : {QStringLiteral("it's \"A\""), QStringLiteral("two  words"),
                                QStringLiteral("M\u00FChle"), QStringLiteral("a,b%1")}) {
        link.DownloadFile(WriteSet(base, 'D', "PUMP1:301\r\n", threeRecords));
        dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [PUMP1]"), MsgAnswer::Yes);
        ExpectBox(QStringLiteral("Program Download Complete!"), 64, dumpTitle);
        link.DumpProgram();
        link.UploadFile(Path(base + QStringLiteral(".hdn")));
        link.SetInUploadMode(true);
        ExpectUploadComplete();
        link.UploadProgram();
        EXPECT_TRUE(Read(base + QStringLiteral(".hex")).startsWith(":10400000010203040506"));
    }
}

TEST_F(DumpWithFaults, PacedDumpTakesTheTimeOfItsBytes) {
    FillImage(3);
    UploadAgain();
    const QByteArray hex = Read(QStringLiteral("UP.hex"));
    const double start = clock.MonotonicSeconds();
    DumpWell(hex);
    const double fixedWaits = 0.1 + 2.0;
    const double records = 0x8000 / 16.0 * 20 * 10 / 19200;
    EXPECT_NEAR((clock.MonotonicSeconds() - start - fixedWaits) / records, 1.0, 0.02);
}
