#include "base/Dialogs.h"
#include "jobs/JobsFixture.h"

namespace {
constexpr qint16 k2012 = 50;
constexpr qint16 k2014 = 51;
constexpr qint16 r6500 = 68;

class DataDownload : public JobsFixture {
protected:
    // A data line of a large board: the byte at address a is a mod 251.
    static QByteArray LargeLine(int count) {
        QByteArray line;
        for (int address = 0; address < count; ++address)
            for (const int digit : {address % 251 / 16, address % 251 % 16})
                line.append(static_cast<char>('0' + digit));
        return line + "\r\n";
    }
};
} // namespace

TEST_F(DataDownload, RangeOfOneAddressWritesThatByteAlone) {
    WriteFile(fileName, "12:;00\r\n");
    SetTransfer(XferMode::Download, k2014, 71, 71);
    BoardTakes({{71, 0x12}});
    Transfer();
    EXPECT_EQ(TakeWritten(), Run(71, {0x12}));
}

TEST_F(DataDownload, OnStandardImageTheFirstPairLandsAtTheStartOfTheRange) {
    WriteFile(fileName, "0102030405060708090:0;0<\r\n");
    SetTransfer(XferMode::Download, k2014, 100, 110);
    const auto expected = Run(100, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
    BoardTakes(expected);
    Transfer();
    EXPECT_EQ(TakeWritten(), expected);
}

TEST_F(DataDownload, OnBoard50ARangePicksTheBytesOfItsAddresses) {
    WriteFile(fileName, LargeLine(600));
    SetTransfer(XferMode::Download, k2012, 150, 155);
    const auto expected = Run(150, {150, 151, 152, 153, 154, 155});
    BoardTakes(expected);
    Transfer();
    EXPECT_EQ(TakeWritten(), expected);
}

TEST_F(DataDownload, StandardRangeOfBoard50WritesNothingTo156To511) {
    WriteFile(fileName, LargeLine(8176));
    SetTransfer(XferMode::Download, k2012, 32, 8175);
    std::vector<BoardByte> expected;
    for (int address = 32; address <= 8175; ++address)
        if (address < 156 || address > 511)
            expected.push_back({address, address % 251});
    BoardTakes(expected);
    Transfer();
    EXPECT_EQ(TakeWritten(), expected);
    EXPECT_EQ(progress.values.front(), 32);
    EXPECT_EQ(progress.values.back(), 8176) << "the bar moves over skipped addresses too";
    EXPECT_EQ(progress.values.size(), 8145u);
    EXPECT_EQ(progress.min, 0);
    EXPECT_EQ(progress.max, 8176);
}

TEST_F(DataDownload, Board68SkipsLikewise) {
    WriteFile(fileName, LargeLine(7168));
    SetTransfer(XferMode::Download, r6500, 155, 512);
    BoardTakes({{155, 155}, {512, 10}});
    Transfer();
    EXPECT_EQ(TakeWritten(), (std::vector<BoardByte>{{155, 155}, {512, 10}}));
}

TEST_F(DataDownload, MissingFileWritesZeroToEveryAddress) {
    SetTransfer(XferMode::Download, k2014, 70, 73);
    BoardTakes(Run(70, {0, 0, 0, 0}));
    Transfer();
    EXPECT_EQ(TakeWritten(), Run(70, {0, 0, 0, 0}));
}

TEST_F(DataDownload, EmptyFileWritesZeroToEveryAddress) {
    WriteFile(fileName, "");
    SetTransfer(XferMode::Download, k2014, 70, 72);
    BoardTakes(Run(70, {0, 0, 0}));
    Transfer();
    EXPECT_EQ(TakeWritten(), Run(70, {0, 0, 0}));
}

TEST_F(DataDownload, CutFileGivesWhatIsThereAndZeroBehind) {
    WriteFile(fileName, "12:;?"); // the last digit has lost its partner and the line its end
    SetTransfer(XferMode::Download, k2014, 70, 73);
    const auto expected = Run(70, {0x12, 0xAB, 0, 0});
    BoardTakes(expected);
    Transfer();
    EXPECT_EQ(TakeWritten(), expected);
}

TEST_F(DataDownload, BinaryFileWritesZeroWhereThereIsNoNumber) {
    WriteFile(fileName, QByteArray("\x00\x01zz1z\xFF\xFE??", 10));
    SetTransfer(XferMode::Download, k2014, 70, 75);
    const auto expected = Run(70, {0, 0, 1, 0, 0xFF, 0});
    BoardTakes(expected);
    Transfer();
    EXPECT_EQ(TakeWritten(), expected);
}

TEST_F(DataDownload, LabelHasTwoBlanksBeforeTheValue) {
    WriteFile(fileName, "0<\r\n");
    SetTransfer(XferMode::Download, k2014, 100, 100);
    BoardTakes({{100, 12}});
    Transfer();
    EXPECT_EQ(progress.messages, QStringList{QStringLiteral("Downloading  12 to B100")});
}

TEST_F(DataDownload, CancelIsTakenBetweenTwoAddresses) {
    WriteFile(fileName, "0102030405\r\n");
    SetTransfer(XferMode::Download, k2014, 70, 74);
    BoardTakes(Run(70, {1, 2}));
    progress.onYield = [this](int yields) { progress.cancelled = yields == 3; };
    Transfer();
    EXPECT_EQ(TakeWritten(), Run(70, {1, 2}));
}

TEST_F(DataDownload, CutLineEndsItQuietlyAtThatAddress) {
    WriteFile(fileName, "0102030405\r\n");
    SetTransfer(XferMode::Download, k2014, 70, 74);
    BoardTakes(Run(70, {1, 2}));
    LineIsCut();
    Transfer();
    EXPECT_TRUE(link.CommError());
    const std::vector<int> expected = {0xFF, 0x02, 0, 70, 1, 0, 71, 2, 0, 0xFF, 0xFF};
    EXPECT_EQ(port.Sent(), expected);
    EXPECT_EQ(progress.yields, 4);
}

TEST_F(DataDownload, CommunicationErrorBeforehandSendsNothing) {
    SetTransfer(XferMode::Download, k2014, 70, 74);
    link.SetCommError(true);
    Transfer();
    EXPECT_TRUE(port.Sent().empty());
    EXPECT_TRUE(progress.messages.isEmpty());
}

TEST_F(DataDownload, RangeBeyondTheTableOfBytesIsReported) {
    SetTransfer(XferMode::Download, k2014, 8191, 8192);
    BoardTakes({{8191, 0}});
    dialogs.ExpectBox(QStringLiteral("Error Number = 9\r\n\r\nSubscript out of range"),
                      MsgStyle::Information, QStringLiteral("TransferData"), MsgAnswer::Ok);
    Transfer();
    EXPECT_EQ(TakeWritten(), Run(8191, {0}));
}
