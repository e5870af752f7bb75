#include "link/programs/DumpFixture.h"
#include <QTimer>

namespace {
const char boards[] = {'2', '3', '4', '5', '6', '8', ':', ';', '<', '=', 'A', 'B', 'D'};
// Codes A 1, B 7, C 2: bytes 3, 7 and 10 on the board.
const QByteArray lcfLine = "E" + QByteArray(34, '0') + "100" + "72" + "000%\r\n";
} // namespace

TEST_F(DumpTest, WholeDumpByteForByte) {
    ReadIdentBlock("OLDPUMP", 17, 1);
    RequestDump();
    Pair(0xFF, 0x55);
    Pair(0x03, 0x55);
    GoodRecord({0x04, 0x20, 0x00, 0x01, 0xFF, 0x03, 0x80});
    GoodRecord({0x01, 0xFF, 0xF0, 0x00});
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Prepare('D', ":0420000001FF038059\r\n:01FFF0000010\r\n:00000001FF\r\n");
    ExpectQuestion("R6500(PLC)", {"OLDPUMP", "1", "17"}, MsgAnswer::Yes);
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
    EXPECT_TRUE(link.OnlineMode());
    EXPECT_FALSE(link.ValidProgram());
    EXPECT_FALSE(link.InProgramMode());
    EXPECT_FALSE(link.WritingIdent());
}

TEST_F(DumpTest, RecordOf16BytesCosts19BytesOutAndOneIn) {
    StartDump();
    std::vector<int> record = {0x10, 0x20, 0x00};
    for (int i = 0; i < 16; ++i)
        record.push_back(i * 16 + 1);
    EXPECT_EQ(record.size(), 19u);
    GoodRecord(record);
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Prepare('2', ":10200000011121314151617181"
                 "91A1B1C1D1E1F100\r\n");
    ExpectQuestion("K2012", {"", "0", "0"}, MsgAnswer::Yes);
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

TEST_F(DumpTest, OnlyTheEndRecordMakesNoRecordTrafficAndCompletes) {
    StartDump();
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Prepare('D', ":00000001FF");
    ExpectQuestion("R6500(PLC)", {"", "0", "0"}, MsgAnswer::Yes);
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

namespace {
class DumpOfBoard : public DumpTest, public testing::WithParamInterface<char> {};
} // namespace

TEST_P(DumpOfBoard, ConfigurationBytesGoOutForIndex56To65AndNoOther) {
    ReadIdentBlock("", 0, 0);
    RequestDump();
    if (GetParam() >= 56 && GetParam() <= 65) {
        Handshake(0x02);
        WriteByte(8188, 10);
        WriteByte(8189, 7);
        WriteByte(8190, 3);
    }
    Pair(0xFF, 0x55);
    Pair(0x03, 0x55);
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Prepare(GetParam(), ":00000001FF\r\n", lcfLine);
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [PUMP1]"), MsgAnswer::Yes);
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
    EXPECT_TRUE(link.OnlineMode());
}

INSTANTIATE_TEST_SUITE_P(EveryBoardWithADump, DumpOfBoard, testing::ValuesIn(boards));

TEST_F(DumpTest, WaitsAreTakenFromTheClock) {
    StartDump();
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Prepare('D', ":00000001FF");
    ExpectQuestion("R6500(PLC)", {"", "0", "0"}, MsgAnswer::Yes);
    ExpectComplete();
    const double start = clock.MonotonicSeconds();
    link.DumpProgram();
    const double exchanges = 0.001 * static_cast<double>(port.Sent().size());
    EXPECT_NEAR(clock.MonotonicSeconds() - start, 0.1 + 2.0 + exchanges, 1e-6);
}

TEST_F(DumpTest, IdentOfNineCharactersLosesTheNinthOnTheBoard) {
    StartDump();
    Pair(0xFF, 0x55);
    WriteIdentBlock("CONVEYOR", 163, 1);
    rev = "CONVEYOR2:301\r\n";
    Prepare('D', ":00000001FF");
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [CONVEYOR2]"), MsgAnswer::Yes);
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

TEST_F(DumpTest, IdentOfThreeCharactersIsPaddedWithZeroOnTheBoard) {
    StartDump();
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("ABC\0\0\0\0\0", 8), 163, 1);
    rev = "ABC:301\r\n";
    Prepare('D', ":00000001FF");
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [ABC]"), MsgAnswer::Yes);
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

TEST_F(DumpTest, CharactersBelow32OfTheBoardsIdentAreNotShown) {
    ReadIdentBlock(QByteArray("A\0B\x1F \x7F\xDC\x01", 8), 0, 0);
    Prepare('D', ":00000001FF");
    ExpectQuestion("R6500(PLC)", {QStringLiteral("AB \x7F\u00DC"), "0", "0"}, MsgAnswer::No);
    link.DumpProgram();
    CheckWire();
}

TEST_F(DumpTest, WithoutAGoodRevFileTheDumpGoesOnUnderAnUnknownIdent) {
    ReadIdentBlock("", 0, 0);
    RequestDump();
    Handshake(0x02);
    WriteByte(8188, 10);
    WriteByte(8189, 7);
    WriteByte(8190, 3);
    Pair(0xFF, 0x55);
    Pair(0x03, 0x55);
    Pair(0xFF, 0x55);
    Handshake(0x02);
    for (int i = 0; i < 8; ++i)
        WriteByte(identAddress + i, i < 7 ? "Unknown"[i] : 0);
    rev = "";
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download"), MsgAnswer::Ok);
    Prepare('A', ":00000001FF", lcfLine);
    dialogs.ExpectBoxTitled(QStringLiteral("Program Download - [Unknown]"), MsgAnswer::Yes);
    for (int i = 0; i < 2; ++i)
        dialogs.ExpectBox(QStringLiteral("Error:\rOnly Numerical Data Allowed."), 16,
                          QStringLiteral("ENTRY ALERT"), MsgAnswer::Ok);
    ExpectComplete();
    link.DumpProgram();
    CheckWire();
}

// A record with its reply is one exchange; what is pending runs before it or after it.
TEST_F(DumpTest, HandlersAndTimersRunBetweenRecordsOnly) {
    StartDump();
    GoodRecord({0x02, 0x20, 0x00, 0x07, 0x08});
    GoodRecord({0x01, 0x20, 0x02, 0x09});
    Pair(0xFF, 0x55);
    WriteIdentBlock(QByteArray("PUMP1\0\0\0", 8), 163, 1);
    Prepare('D', ":022000000708D8\r\n:0120020009D6\r\n:00000001FF\r\n");
    ExpectQuestion("R6500(PLC)", {"", "0", "0"}, MsgAnswer::Yes);
    ExpectComplete();
    std::vector<std::size_t> sentSoFar;
    QTimer pending;
    QObject::connect(&pending, &QTimer::timeout,
                     [this, &sentSoFar] { sentSoFar.push_back(port.Sent().size()); });
    pending.start(0);
    link.DumpProgram();
    ASSERT_EQ(sentSoFar.size(), 3u) << "once before each line of the file";
    EXPECT_EQ(sentSoFar[1] - sentSoFar[0], 5u);
    EXPECT_EQ(sentSoFar[2] - sentSoFar[1], 4u);
    EXPECT_EQ(port.Sent()[sentSoFar[0] - 1], 0x03) << "the board is in program mode";
}
