#include "link/HexImage.h"
#include "base/RunTimeError.h"
#include "link/programs/ProgramFixture.h"

namespace {
using Kind = HexLine::Kind;

QByteArray Bytes(std::initializer_list<int> values) {
    QByteArray bytes;
    for (const int value : values)
        bytes.append(static_cast<char>(value));
    return bytes;
}

class HexImageFile : public ProgramTest {};
} // namespace

TEST(HexLineTest, RecordGivesCountAddressAndDataAsTheyGoOut) {
    const HexLine line = ParseHexLine(QStringLiteral(":0320000001A2fF5B"));
    EXPECT_EQ(line.kind, Kind::Record);
    EXPECT_EQ(line.address, QStringLiteral("2000"));
    EXPECT_EQ(line.wire, Bytes({0x03, 0x20, 0x00, 0x01, 0xA2, 0xFF}));
}

TEST(HexLineTest, TypeAndCheckByteAndWhatFollowsAreReadByNobody) {
    const QByteArray wire = Bytes({0x01, 0x20, 0x00, 0x07});
    for (const char* text :
         {":0120000007D8", ":0120000007", ":01200000071Z garbage", ":012000zz07", ":0120000407"})
        EXPECT_EQ(ParseHexLine(QString::fromLatin1(text)).wire, wire) << text;
}

TEST(HexLineTest, AddressKeepsItsLetterCase) {
    EXPECT_EQ(ParseHexLine(QStringLiteral(":01ab0F0007")).address, QStringLiteral("ab0F"));
}

TEST(HexLineTest, CountOfZeroIsEmptyWhateverFollows) {
    for (const char* text : {":00000001FF", ":00", ":00xyz"})
        EXPECT_EQ(ParseHexLine(QString::fromLatin1(text)).kind, Kind::Empty) << text;
}

TEST(HexLineTest, AnyOtherFirstCharacterIsNoRecord) {
    for (const char* text : {"", "0120000007D8", ";comment", "\x1A"})
        EXPECT_EQ(ParseHexLine(QString::fromLatin1(text)).kind, Kind::NoRecord) << text;
}

TEST(HexLineTest, CharactersThatAreNoHexDigitsCannotBeSent) {
    for (const char* text :
         {":", ":1", ":G120000007D8", ":0G20000007D8", ":01G0000007D8", ":01200G0007D8",
          ":012000000GD8", ":01200000-7D8", ":01 2000007D8", ":+120000007D8"})
        EXPECT_EQ(ParseHexLine(QString::fromLatin1(text)).kind, Kind::Unsendable) << text;
}

TEST(HexLineTest, WideDigitsAreNoHexDigits) {
    EXPECT_EQ(ParseHexLine(QStringLiteral(":0120000007").replace(u'7', QChar(0x0667))).kind,
              Kind::Unsendable);
}

TEST(HexLineTest, CountBeyondTheEndOfTheLineCannotBeSent) {
    EXPECT_EQ(ParseHexLine(QStringLiteral(":0220000007")).kind, Kind::Unsendable);
    EXPECT_EQ(ParseHexLine(QStringLiteral(":022000000708")).kind, Kind::Record);
    EXPECT_EQ(ParseHexLine(QStringLiteral(":02200000070")).kind, Kind::Unsendable);
    EXPECT_EQ(ParseHexLine(QStringLiteral(":0120")).kind, Kind::Unsendable);
}

TEST(HexLineTest, CountOf255WouldEndProgramModeAndCannotBeSent) {
    const QString data254 = QString(2 * 254, u'0');
    EXPECT_EQ(ParseHexLine(QStringLiteral(":FE200000") + data254).kind, Kind::Record);
    EXPECT_EQ(ParseHexLine(QStringLiteral(":FF200000") + data254 + QStringLiteral("00")).kind,
              Kind::Unsendable);
}

TEST(HexLineTest, HighestAddressesMayBeSent) {
    EXPECT_EQ(ParseHexLine(QStringLiteral(":01FFF000FF")).wire, Bytes({0x01, 0xFF, 0xF0, 0xFF}));
}

TEST(HexLineTest, SumIsPlainAndModulo256) {
    EXPECT_EQ(RecordSum(Bytes({0x10, 0x20, 0x00})), 0x30);
    EXPECT_EQ(RecordSum(Bytes({0x02, 0xFF, 0xFF, 0x80, 0x81})), 0x01);
}

TEST(HexLineTest, DataLineHasNoCheckByte) {
    QByteArray bytes(16, '\x0A');
    bytes[15] = '\xFE';
    EXPECT_EQ(HexDataLine(0x20F0, bytes),
              QStringLiteral(":1020F0000A0A0A0A0A0A0A0A0A0A0A0A0A0A0AFE"));
}

TEST_F(HexImageFile, LinesComeInOrderAndOnlyTheFirstItemOfEachCounts) {
    const QString path = Write(QStringLiteral("a.hex"), ":0120000007,comment\r\n"
                                                        "  :0120010008  \n"
                                                        "\":0120020009\"\r\n"
                                                        ":00000001FF");
    const HexImage image(path);
    EXPECT_FALSE(image.IsEmpty());
    EXPECT_TRUE(image.IsSendable());
    ASSERT_EQ(image.Lines().size(), 4u);
    EXPECT_EQ(image.Lines()[0].wire, Bytes({1, 0x20, 0, 7}));
    EXPECT_EQ(image.Lines()[1].wire, Bytes({1, 0x20, 1, 8}));
    EXPECT_EQ(image.Lines()[2].wire, Bytes({1, 0x20, 2, 9}));
    EXPECT_EQ(image.Lines()[3].kind, Kind::Empty);
}

TEST_F(HexImageFile, OneUnsendableLineSpoilsTheFileWhereverItStands) {
    EXPECT_FALSE(HexImage(Write(QStringLiteral("a.hex"), ":0120000007\r\n:01\r\n")).IsSendable());
    EXPECT_FALSE(HexImage(Write(QStringLiteral("b.hex"), ":FF\r\n:0120000007\r\n")).IsSendable());
}

TEST_F(HexImageFile, LineThatIsNoRecordLeavesTheFileSendable) {
    EXPECT_TRUE(HexImage(Write(QStringLiteral("a.hex"), ":0120000007\r\nend\r\n")).IsSendable());
}

TEST_F(HexImageFile, EmptyFileIsEmpty) {
    EXPECT_TRUE(HexImage(Write(QStringLiteral("a.hex"), "")).IsEmpty());
    EXPECT_FALSE(HexImage(Write(QStringLiteral("b.hex"), "\r\n")).IsEmpty());
}

TEST_F(HexImageFile, BinaryFileIsReadWithoutHarm) {
    QByteArray bytes;
    for (int i = 0; i < 70000; ++i)
        bytes.append(static_cast<char>(i * 31 + i / 256));
    const HexImage image(Write(QStringLiteral("a.hex"), bytes));
    for (const HexLine& line : image.Lines())
        EXPECT_NE(line.kind, Kind::Record);
}

TEST_F(HexImageFile, HugeFileOfGoodRecordsIsNotReadToItsEnd) {
    QByteArray bytes;
    while (bytes.size() <= 5 * 1024 * 1024)
        bytes.append(":0120000007\n");
    const HexImage image(Write(QStringLiteral("a.hex"), bytes));
    EXPECT_FALSE(image.IsSendable());
    EXPECT_LT(image.Lines().size(), static_cast<std::size_t>(bytes.size()) / 12);
}

TEST_F(HexImageFile, HugeLineRaisesInsteadOfEatingTheMemory) {
    const QString path = Write(QStringLiteral("a.hex"), QByteArray(17 * 1024 * 1024, ':'));
    EXPECT_THROW(HexImage image(path), RunTimeError);
}

TEST_F(HexImageFile, MissingFileRaisesFileNotFound) {
    try {
        const HexImage image(Path(QStringLiteral("none.hex")));
        ADD_FAILURE() << "nothing was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::FileNotFound);
    }
}
