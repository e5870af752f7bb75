#include "base/Dialogs.h"
#include "jobs/JobsFixture.h"
#include <QDir>
#include <QFile>

namespace {
constexpr qint16 k2012 = 50;
constexpr qint16 k2014 = 51;
constexpr qint16 r6500 = 68;

class DataUpload : public JobsFixture {};

QByteArray Pairs(int count, const char* pair) {
    return QByteArray(pair).repeated(count);
}
} // namespace

TEST_F(DataUpload, StandardBoardLineIs300CharactersByteForByte) {
    SetTransfer(XferMode::Upload, k2014, 70, 219);
    std::vector<int> values;
    QByteArray expected;
    for (int i = 0; i < 150; ++i) {
        values.push_back((i * 7 + 3) % 256);
        expected += QByteArray(1, static_cast<char>('0' + values.back() / 16)) +
                    static_cast<char>('0' + values.back() % 16);
    }
    BoardGives(Run(70, values));
    Transfer();
    EXPECT_EQ(expected.size(), 300);
    EXPECT_EQ(FileContent(fileName), expected + "\r\n");
}

TEST_F(DataUpload, Board50LineIs16352CharactersByteForByte) {
    SetTransfer(XferMode::Upload, k2012, 32, 8175);
    BoardGives(Run(32, std::vector<int>(8144, 0xAF)));
    Transfer();
    const QByteArray expected = Pairs(32, "00") + Pairs(8144, ":?");
    EXPECT_EQ(expected.size(), 16352);
    EXPECT_EQ(FileContent(fileName), expected + "\r\n");
    EXPECT_EQ(progress.values.back(), 8176);
}

TEST_F(DataUpload, Board68LineIs14336CharactersByteForByte) {
    SetTransfer(XferMode::Upload, r6500, 32, 7167);
    BoardGives(Run(32, std::vector<int>(7136, 0x0D)));
    Transfer();
    const QByteArray expected = Pairs(32, "00") + Pairs(7136, "0=");
    EXPECT_EQ(expected.size(), 14336);
    EXPECT_EQ(FileContent(fileName), expected + "\r\n");
}

TEST_F(DataUpload, FirstBytesOfAStandardLineAsUsersKnowThem) {
    SetTransfer(XferMode::Upload, k2014, 70, 72);
    BoardGives(Run(70, {0x12, 0xAB, 0x00}));
    Transfer();
    EXPECT_EQ(FileContent(fileName), "12:;00" + Pairs(147, "00") + "\r\n");
}

TEST_F(DataUpload, RangeOfOneAddressReadsThatByteAlone) {
    SetTransfer(XferMode::Upload, k2014, 100, 100);
    BoardGives({{100, 0xC0}});
    Transfer();
    EXPECT_EQ(port.Sent(), (std::vector<int>{0xFF, 0x01, 0, 100}));
    EXPECT_EQ(FileContent(fileName), Pairs(30, "00") + "<0" + Pairs(119, "00") + "\r\n");
}

TEST_F(DataUpload, WithNoFileYetBytesOutsideTheRangeBecome00) {
    SetTransfer(XferMode::Upload, k2012, 8175, 8175);
    BoardGives({{8175, 0x09}});
    Transfer();
    EXPECT_EQ(FileContent(fileName), Pairs(8175, "00") + "09\r\n");
}

TEST_F(DataUpload, RangeOnAStandardImageKeepsTheOtherPairs) {
    WriteFile(fileName, Pairs(150, ":1") + "\r\n");
    SetTransfer(XferMode::Upload, k2014, 71, 72);
    BoardGives(Run(71, {0x22, 0x33}));
    Transfer();
    EXPECT_EQ(FileContent(fileName), ":12233" + Pairs(147, ":1") + "\r\n");
}

TEST_F(DataUpload, RangeOnBoard50KeepsTheOtherPairs) {
    WriteFile(fileName, Pairs(8176, "?0") + "\r\n");
    SetTransfer(XferMode::Upload, k2012, 160, 161);
    BoardGives(Run(160, {1, 2}));
    Transfer();
    EXPECT_EQ(FileContent(fileName), Pairs(160, "?0") + "0102" + Pairs(8014, "?0") + "\r\n");
}

TEST_F(DataUpload, CutFileIsFilledUp) {
    WriteFile(fileName, "11223"); // the last digit has lost its partner
    SetTransfer(XferMode::Upload, k2014, 219, 219);
    BoardGives({{219, 0xFF}});
    Transfer();
    EXPECT_EQ(FileContent(fileName), "1122" + Pairs(147, "00") + "??\r\n");
}

TEST_F(DataUpload, LineLongerThanTheImageIsCutToIt) {
    WriteFile(fileName, Pairs(500, "11") + "\r\n");
    SetTransfer(XferMode::Upload, k2014, 70, 70);
    BoardGives({{70, 0x22}});
    Transfer();
    EXPECT_EQ(FileContent(fileName), "22" + Pairs(149, "11") + "\r\n");
}

TEST_F(DataUpload, LabelNamesValueAndAddress) {
    SetTransfer(XferMode::Upload, k2014, 70, 71);
    BoardGives(Run(70, {18, 200}));
    Transfer();
    const QStringList expected = {QStringLiteral("Uploaded  18 from B70"),
                                  QStringLiteral("Uploaded  200 from B71")};
    EXPECT_EQ(progress.messages, expected);
}

TEST_F(DataUpload, BarMovesInTheRangeOnly) {
    SetTransfer(XferMode::Upload, k2014, 72, 73);
    BoardGives(Run(72, {1, 2}));
    Transfer();
    EXPECT_EQ(progress.values, (std::vector<qint32>{72, 73, 74}));
    EXPECT_EQ(progress.max, 74);
}

TEST_F(DataUpload, CancelWritesTheLineSoFar) {
    WriteFile(fileName, Pairs(150, "77") + "\r\n");
    SetTransfer(XferMode::Upload, k2014, 70, 219);
    BoardGives(Run(70, {1, 2, 3}));
    progress.onYield = [this](int yields) { progress.cancelled = yields == 4; };
    Transfer();
    EXPECT_EQ(FileContent(fileName), "010203\r\n");
    EXPECT_EQ(port.Sent().size(), 8u);
}

TEST_F(DataUpload, CutLineWritesWhatWasReadAndNoInventedByte) {
    WriteFile(fileName, Pairs(150, "77") + "\r\n");
    SetTransfer(XferMode::Upload, k2014, 71, 219);
    BoardGives(Run(71, {1, 2}));
    LineIsCut();
    Transfer();
    EXPECT_TRUE(link.CommError());
    EXPECT_EQ(FileContent(fileName), "770102\r\n");
    EXPECT_EQ(progress.messages.size(), 2);
}

TEST_F(DataUpload, FileThatCannotBeWrittenIsReported) {
    gXferFile = PathOf(QStringLiteral("gone/Press.ldt"));
    SetTransfer(XferMode::Upload, k2014, 70, 70);
    BoardGives({{70, 1}});
    dialogs.ExpectBox(QStringLiteral("Error Number = 76\r\n\r\nPath not found"),
                      MsgStyle::Information, QStringLiteral("TransferData"), MsgAnswer::Ok);
    Transfer();
}
