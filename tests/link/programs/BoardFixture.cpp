#include "link/programs/BoardFixture.h"

#include <random>

void BoardTest::ConnectBoard(int model) {
    board = std::make_unique<haldenboard::SimulatedBoard>(model);
    line = std::make_unique<haldenboard::Line>(*board);
    line->KeepLog(false);
    port = std::make_unique<BoardPort>(clock, *line);
    GoOnline();
}

void BoardTest::GoOnline() {
    link.SetCommError(false);
    link.OpenRSComm(*port);
    ASSERT_TRUE(link.OnlineMode());
}

void BoardTest::FillImage(unsigned seed) {
    std::mt19937 random(seed);
    const haldenboard::BoardModel& model = board->Model();
    for (std::uint32_t place = 0; place < model.imageLength; ++place)
        board->Poke(static_cast<std::uint16_t>(model.imageStart + place),
                    static_cast<std::uint8_t>(random()));
}

void BoardTest::PokeIdent(const QByteArray& eightBytes, int checksum, int revision) {
    for (int i = 0; i < 8; ++i)
        board->Poke(static_cast<std::uint16_t>(identAddress + i),
                    static_cast<std::uint8_t>(eightBytes[i]));
    board->Poke(identAddress + 8, static_cast<std::uint8_t>(checksum));
    board->Poke(identAddress + 9, static_cast<std::uint8_t>(revision));
}

QByteArray BoardTest::Memory(int address, int length) const {
    QByteArray bytes;
    for (int i = 0; i < length; ++i)
        bytes.append(static_cast<char>(board->Peek(static_cast<std::uint16_t>(address + i))));
    return bytes;
}

void BoardTest::ExpectBox(const QString& text, int style, const QString& title) {
    dialogs.ExpectBox(text, style, title, MsgAnswer::Ok,
                      [this] { EXPECT_TRUE(link.OperationRuns()); });
}

void BoardTest::ExpectUploadComplete() {
    dialogs.ExpectBox(QStringLiteral("Program Upload Complete!"), 64,
                      QStringLiteral("Program Upload"), MsgAnswer::Ok,
                      [this] { EXPECT_TRUE(link.InUploadMode()); });
}

void BoardTest::Upload(int index) {
    link.UploadFile(
        Write(QStringLiteral("UP.hdn"), QByteArray(1, static_cast<char>(index)) + "\r\n"));
    link.SetInUploadMode(true);
    link.UploadProgram();
    EXPECT_FALSE(link.InUploadMode());
    EXPECT_FALSE(link.ReadingIdent());
    EXPECT_FALSE(link.OperationRuns());
}
