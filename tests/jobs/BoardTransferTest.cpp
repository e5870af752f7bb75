#include "base/Dialogs.h"
#include "board/Line.h"
#include "board/SimulatedBoard.h"
#include "jobs/JobsFixture.h"
#include "support/BoardPort.h"

namespace {
constexpr qint16 k2012 = 50;
constexpr qint16 k2014 = 51;
constexpr int memorySize = 65536;
constexpr int untouched = 0xEE;

// A transfer with a board at the other end whose memory is looked at byte for byte.
class BoardTransfer : public JobsFixture {
protected:
    BoardTransfer() {
        ConnectTo(boardPort);
        for (int address = 0; address < memorySize; ++address)
            board.Poke(static_cast<std::uint16_t>(address), untouched);
    }

    // The bytes of the board's memory that are not as they were, in address order.
    std::vector<BoardByte> Changed() const {
        std::vector<BoardByte> bytes;
        for (int address = 0; address < memorySize; ++address)
            if (const int value = board.Peek(static_cast<std::uint16_t>(address));
                value != untouched)
                bytes.push_back({address, value});
        return bytes;
    }
    // From the nth reply from now on nothing comes back; the user gives up.
    void CutLineAtReply(int nth) {
        line.Faults().Order(
            {.kind = haldenboard::FaultKind::Lost, .nth = nth, .standing = true, .bytes = {}});
        ExpectAlert(NoReplyAlert(), MsgAnswer::Cancel);
    }

    haldenboard::SimulatedBoard board;
    haldenboard::Line line{board};
    BoardPort boardPort{clock, line};
};
} // namespace

TEST_F(BoardTransfer, DownloadOnBoard50ReachesItsRangeAndNoOtherByte) {
    QByteArray image;
    std::vector<BoardByte> expected;
    for (int address = 0; address <= 8175; ++address) {
        const int value = address % 200;
        image += QByteArray(1, static_cast<char>('0' + value / 16)) +
                 static_cast<char>('0' + value % 16);
        if (address >= 32 && (address < 156 || address > 511))
            expected.push_back({address, value});
    }
    WriteFile(fileName, image + "\r\n");
    SetTransfer(XferMode::Download, k2012, 32, 8175);
    Transfer();
    EXPECT_EQ(Changed(), expected);
}

TEST_F(BoardTransfer, WhatWasUploadedGoesBackUnchanged) {
    for (int address = 70; address <= 219; ++address)
        board.Poke(static_cast<std::uint16_t>(address), static_cast<std::uint8_t>(address * 7));
    const std::vector<BoardByte> before = Changed();
    SetTransfer(XferMode::Upload, k2014, 70, 219);
    Transfer();
    for (int address = 70; address <= 219; ++address)
        board.Poke(static_cast<std::uint16_t>(address), untouched);
    SetTransfer(XferMode::Download, k2014, 70, 219);
    Transfer();
    EXPECT_EQ(Changed(), before);
}

TEST_F(BoardTransfer, CutInADownloadChangesTheBoardUpToThatAddress) {
    WriteFile(fileName, "0102030405060708\r\n");
    SetTransfer(XferMode::Download, k2014, 70, 77);
    CutLineAtReply(2 + 3 * 3 + 3); // the echo of the fourth data byte is lost: it was stored
    Transfer();
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(Changed(), Run(70, {1, 2, 3, 4}));
}

TEST_F(BoardTransfer, PulledAdapterEndsADownloadBetweenTwoAddresses) {
    WriteFile(fileName, "0102030405060708\r\n");
    SetTransfer(XferMode::Download, k2014, 70, 77);
    progress.onYield = [this](int yields) {
        if (yields == 4)
            boardPort.Lose();
    };
    Transfer();
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(Changed(), Run(70, {1, 2, 3}));
    EXPECT_EQ(progress.yields, 5);
}

TEST_F(BoardTransfer, CutInAnUploadKeepsTheLineUpToThatAddress) {
    for (int address = 70; address < 80; ++address)
        board.Poke(static_cast<std::uint16_t>(address), static_cast<std::uint8_t>(address));
    const std::vector<BoardByte> before = Changed();
    SetTransfer(XferMode::Upload, k2014, 70, 219);
    CutLineAtReply(2 + 2 * 4 + 2); // the fifth data byte is lost
    Transfer();
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(FileContent(fileName), "46474849\r\n");
    EXPECT_EQ(Changed(), before);
}

TEST_F(BoardTransfer, CutInADatafileChangesTheBoardUpToThatByte) {
    fileName = QStringLiteral("values.txt");
    gXferFile = PathOf(fileName);
    WriteFile(fileName, "258\r\n515\r\n772\r\n");
    SetTransfer(XferMode::Datafile, 0, 0, 3);
    transfer.SetupFileDownload(QStringLiteral("W100"));
    CutLineAtReply(2 + 3 * 3); // the echo of the second word's low byte is lost: it was stored
    Transfer();
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(Changed(), Run(100, {2, 1, 3}));
}

TEST_F(BoardTransfer, OneWrongEchoIsPutRightInSilence) {
    WriteFile(fileName, "010203\r\n");
    SetTransfer(XferMode::Download, k2014, 70, 72);
    line.Faults().Order(
        {.kind = haldenboard::FaultKind::Wrong, .nth = 2 + 3 + 3, .mask = 0x10, .bytes = {}});
    Transfer();
    EXPECT_FALSE(link.CommError());
    EXPECT_EQ(Changed(), Run(70, {1, 2, 3}));
}
