#include "link/programs/BoardFixture.h"
#include <QFile>
#include <QTimer>

namespace {
// What a board's upload must give, written down anew from the table of models.
struct UploadedBoard {
    int index;
    int start;
    int length;
    char lcfBoard; // 0: no .LCF file is written
};

const UploadedBoard uploadedBoards[] = {
    {49, 0, 0, 0},
    {50, 0x5000, 0xB000, 0},
    {51, 0x2000, 0x6000, 0},
    {52, 0x2000, 0x2000, 0},
    {53, 0x2000, 0x2000, 0},
    {54, 0x2000, 0x6000, 0},
    {55, 0, 0, 0},
    {56, 0x2000, 0x2000, 'F'},
    {57, 0, 0, '0'},
    {58, 0x2000, 0x6000, '@'},
    {59, 0x2000, 0x6000, 'A'},
    {60, 0x2000, 0x6000, 'B'},
    {61, 0x2000, 0x6000, 'C'},
    {62, 0, 0, '0'},
    {63, 0, 0, '0'},
    {64, 0, 0, '0'},
    {65, 0x2000, 0x6000, 'E'},
    {66, 0x2000, 0x6000, 0},
    {67, 0, 0, 0},
    {68, 0x4000, 0x8000, 0},
    {69, 0, 0, 0},
};

QByteArray ExpectedHex(const UploadedBoard& board, const QByteArray& image) {
    QByteArray text;
    for (int offset = 0; offset < board.length; offset += 16) {
        const int address = board.start + offset;
        text += ":10" + QByteArray::number(address, 16).toUpper() + "00";
        // The board takes the high byte of the last page for attention and cannot be asked.
        const QByteArray data = address >= 0xFF00 ? QByteArray(16, '\0') : image.mid(offset, 16);
        text += data.toHex().toUpper() + "\r\n";
    }
    return text + ":00000001FF\r\n";
}

class UploadTest : public BoardTest {};
class UploadOfBoard : public UploadTest, public testing::WithParamInterface<UploadedBoard> {};
} // namespace

TEST_P(UploadOfBoard, FilesAreTheBoardsMemoryByteForByte) {
    const UploadedBoard& expected = GetParam();
    ConnectBoard(expected.index);
    FillImage(static_cast<unsigned>(expected.index));
    PokeIdent("PRESS\x7F\xFF ", 0xA3, 0x01);
    board->Poke(8190, 5);
    board->Poke(8189, 4);
    board->Poke(8188, 5);
    const QByteArray image = Memory(expected.start, expected.length);
    const QByteArray ident = Memory(identAddress, 8);
    ExpectUploadComplete();
    Upload(expected.index);
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_TRUE(Read(QStringLiteral("UP.hex")) == ExpectedHex(expected, image));
    EXPECT_EQ(Read(QStringLiteral("UP.rev")), ident + ":301\r\n");
    EXPECT_EQ(QFile::exists(Path(QStringLiteral("UP.lcf"))), expected.lcfBoard != 0);
    if (expected.lcfBoard != 0) {
        EXPECT_EQ(Read(QStringLiteral("UP.lcf")), QByteArray(1, expected.lcfBoard) +
                                                      QByteArray(34, '0') + "200" + "41" +
                                                      "000%\r\n");
    }
}

INSTANTIATE_TEST_SUITE_P(EveryIndex, UploadOfBoard, testing::ValuesIn(uploadedBoards),
                         [](const auto& row) { return std::to_string(row.param.index); });

TEST_F(UploadTest, BoardWithNoRangeWritesTheEndRecordAlone) {
    ConnectBoard(49);
    ExpectUploadComplete();
    Upload(49);
    EXPECT_EQ(Read(QStringLiteral("UP.hex")), ":00000001FF\r\n");
}

TEST_F(UploadTest, IndexBeyondTheTableWritesTheEndRecordAlone) {
    ConnectBoard(51);
    ExpectUploadComplete();
    Upload('z');
    EXPECT_EQ(Read(QStringLiteral("UP.hex")), ":00000001FF\r\n");
}

TEST_F(UploadTest, ByteOfValue10AppearsAs0A) {
    ConnectBoard(52);
    for (int i = 0; i < 16; ++i)
        board->Poke(static_cast<std::uint16_t>(0x2000 + i), 10);
    ExpectUploadComplete();
    Upload(52);
    EXPECT_TRUE(Read(QStringLiteral("UP.hex"))
                    .startsWith(":1020000"
                                "00A0A0A0A0A0A0A0A0A0A0A0A0A0A0A0A\r\n"));
}

TEST_F(UploadTest, IdentPaddedWithZeroGivesZeroCharacters) {
    ConnectBoard(49);
    PokeIdent(QByteArray("ABC\0\0\0\0\0", 8), 0x0B, 0x10);
    ExpectUploadComplete();
    Upload(49);
    EXPECT_EQ(Read(QStringLiteral("UP.rev")), QByteArray("ABC\0\0\0\0\0000;10\r\n", 14));
}

TEST_F(UploadTest, AddressesOfAK2012RunFrom5000ToFFF0InStepsOf16) {
    ConnectBoard(50);
    line->SetBaud(0);
    QStringList seen;
    QTimer yield;
    QObject::connect(&yield, &QTimer::timeout, [this, &seen] {
        seen += link.CurrentProgramAdd();
        EXPECT_TRUE(link.InUploadMode());
        EXPECT_FALSE(link.ReadingIdent());
    });
    yield.start(0);
    ExpectUploadComplete();
    Upload(50);
    ASSERT_EQ(seen.size(), 0xB00);
    EXPECT_EQ(seen.front(), QStringLiteral("5000H"));
    EXPECT_EQ(seen[1], QStringLiteral("5010H"));
    EXPECT_EQ(seen.back(), QStringLiteral("FFF0H"));
}

TEST_F(UploadTest, HandlersAndTimersRunBetweenLinesOnly) {
    ConnectBoard(52);
    line->SetBaud(9600);
    const double lineTime = 16 * 4 * line->ByteTime();
    std::vector<double> moments;
    QTimer pending;
    QObject::connect(&pending, &QTimer::timeout,
                     [this, &moments] { moments.push_back(clock.MonotonicSeconds()); });
    pending.start(0);
    ExpectUploadComplete();
    Upload(52);
    ASSERT_EQ(moments.size(), 0x200u) << "once before each line of the file";
    for (std::size_t i = 1; i < moments.size(); ++i)
        ASSERT_NEAR(moments[i] - moments[i - 1], lineTime, 0.01) << i;
}

TEST_F(UploadTest, AByteCostsFourBytesOnTheWire) {
    ConnectBoard(52);
    line->SetBaud(19200);
    const double start = clock.MonotonicSeconds();
    ExpectUploadComplete();
    Upload(52);
    const double wire = 0x2000 * 4 * 10 / 19200.0;
    EXPECT_NEAR((clock.MonotonicSeconds() - start) / wire, 1.0, 0.01);
}

TEST_F(UploadTest, WithoutTheWishForAnUploadNothingHappens) {
    ConnectBoard(52);
    link.UploadFile(Write(QStringLiteral("UP.hdn"), "4\r\n"));
    link.UploadProgram();
    EXPECT_FALSE(QFile::exists(Path(QStringLiteral("UP.rev"))));
}

TEST_F(UploadTest, FilesOnDiskKeepTheLetterCaseOfTheirNames) {
    ConnectBoard(65);
    Write(QStringLiteral("UP.HEX"), "old");
    Write(QStringLiteral("up.REV"), "old");
    Write(QStringLiteral("Up.Lcf"), "old");
    ExpectUploadComplete();
    Upload(65);
    EXPECT_FALSE(QFile::exists(Path(QStringLiteral("UP.hex"))));
    EXPECT_TRUE(Read(QStringLiteral("UP.HEX")).startsWith(":10200000"));
    EXPECT_EQ(Read(QStringLiteral("Up.Lcf")).size(), 46);
    EXPECT_NE(Read(QStringLiteral("up.REV")), "old");
}
