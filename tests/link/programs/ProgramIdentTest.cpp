#include "link/ProgramIdent.h"
#include "base/RunTimeError.h"
#include "link/DumpPrompt.h"
#include "link/ProgramConfig.h"
#include "link/programs/ProgramFixture.h"
#include "link/TargetBoards.h"

TEST(RevLineTest, RevLinePUMP1GivesIdentChecksum163AndRevision1) {
    const ProgramIdent program = ParseRevLine(QStringLiteral("PUMP1:301"));
    EXPECT_EQ(program.ident, QStringLiteral("PUMP1"));
    EXPECT_EQ(program.checksum, QStringLiteral("163"));
    EXPECT_EQ(program.revision, QStringLiteral("1"));
}

TEST(RevLineTest, FourCharactersHaveNoIdent) {
    const ProgramIdent program = ParseRevLine(QStringLiteral("??00"));
    EXPECT_EQ(program.ident, QString());
    EXPECT_EQ(program.checksum, QStringLiteral("255"));
    EXPECT_EQ(program.revision, QStringLiteral("0"));
}

TEST(RevLineTest, FewerThanFourCharactersRaise) {
    for (const char* line : {"", "A", "301"})
        EXPECT_THROW(ParseRevLine(QString::fromLatin1(line)), RunTimeError) << line;
}

TEST(RevLineTest, ChecksumA3AppearsAsColon3AndRevision1As01) {
    EXPECT_EQ(RevLine(QStringLiteral("PUMP1"), 0xA3, 0x01), QStringLiteral("PUMP1:301"));
}

TEST(RevLineTest, EveryByteComesBackAsItWasWritten) {
    for (int byte = 0; byte < 256; ++byte) {
        const ProgramIdent program = ParseRevLine(RevLine(QStringLiteral("X"), byte, 255 - byte));
        EXPECT_EQ(program.checksum, QString::number(byte));
        EXPECT_EQ(program.revision, QString::number(255 - byte));
    }
}

TEST(RevLineTest, NothingReadIsUnknown) {
    EXPECT_EQ(ProgramIdent().ident, QStringLiteral("Unknown"));
    EXPECT_EQ(ProgramIdent().checksum, QStringLiteral("Unknown"));
    EXPECT_EQ(ProgramIdent().revision, QStringLiteral("Unknown"));
}

TEST(IdentBytesTest, IdentOfNineCharactersLosesTheNinth) {
    EXPECT_EQ(IdentBytes(QStringLiteral("CONVEYOR2")), QByteArray("CONVEYOR"));
}

TEST(IdentBytesTest, IdentOfThreeCharactersIsPaddedWithZeroToEight) {
    EXPECT_EQ(IdentBytes(QStringLiteral("ABC")), QByteArray("ABC\0\0\0\0\0", 8));
}

TEST(IdentBytesTest, BlanksAroundGoAndBlanksInsideStay) {
    EXPECT_EQ(IdentBytes(QStringLiteral("  A B ")), QByteArray("A B\0\0\0\0\0", 8));
    EXPECT_EQ(IdentBytes(QStringLiteral("   ")), QByteArray(8, '\0'));
}

TEST(IdentBytesTest, AccentIsItsOneByteOfTheCodePage) {
    EXPECT_EQ(IdentBytes(QStringLiteral("\u00DCB\u20AC")), QByteArray("\xDC\x42\x80\0\0\0\0\0", 8));
}

TEST(LcfLineTest, CodesStandAtTheirPlacesOf44Characters) {
    const QString line = LcfLine(65, {1, 7, 2});
    EXPECT_EQ(line, QStringLiteral("E") + QString(34, u'0') + QStringLiteral("1") +
                        QStringLiteral("00") + QStringLiteral("7") + QStringLiteral("2") +
                        QStringLiteral("000%"));
    EXPECT_EQ(line.size(), 44);
}

TEST(LcfLineTest, EveryBoardsLineHas44CharactersAndComesBack) {
    for (qint16 index = 49; index <= 69; ++index) {
        const QString line = LcfLine(index, {2, 9, 1});
        EXPECT_EQ(line.size(), 44) << index;
        EXPECT_TRUE(line.startsWith(LCFBoardIndex(index)));
        const ProgramConfig config = ParseLcfLine(line);
        EXPECT_EQ(config.codeA, 2);
        EXPECT_EQ(config.codeB, 9);
        EXPECT_EQ(config.codeC, 1);
    }
}

TEST(LcfLineTest, CodeBThatIsNoDigitTakesItsDefaultAndMovesNothing) {
    const QString line = LcfLine(65, {1, 123, 2});
    EXPECT_EQ(line.size(), 44);
    EXPECT_EQ(ParseLcfLine(line).codeB, 0);
    EXPECT_EQ(ParseLcfLine(line).codeC, 2);
}

TEST(LcfLineTest, ShortOrStrangeLineGivesZeros) {
    for (const QString& line : {QString(), QStringLiteral("E00"), QString(44, u'x')}) {
        const ProgramConfig config = ParseLcfLine(line);
        EXPECT_EQ(config.codeA, 0);
        EXPECT_EQ(config.codeB, 0);
        EXPECT_EQ(config.codeC, 0);
    }
}

TEST(ConfigCodeTest, CodesBecomeTheirBoardBytes) {
    const int expectedA[] = {12, 3, 5, 12, 12, 12, 12, 12, 12, 12};
    const int expectedC[] = {20, 5, 10, 20, 20, 20, 20, 20, 20, 20};
    for (qint16 code = 0; code <= 9; ++code) {
        EXPECT_EQ(BoardByteOfCodeA(code), expectedA[code]) << code;
        EXPECT_EQ(BoardByteOfCodeC(code), expectedC[code]) << code;
    }
}

TEST(ConfigCodeTest, BoardBytesBecomeTheirCodesAndAnyOtherByteIsCode3) {
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(CodeAOfBoardByte(byte), byte == 3 ? 1 : byte == 5 ? 2 : 3) << byte;
        EXPECT_EQ(CodeBOfBoardByte(byte), byte);
        EXPECT_EQ(CodeCOfBoardByte(byte), byte == 5 ? 1 : byte == 10 ? 2 : 3) << byte;
    }
}

TEST(DumpQuestionTest, TellsDiskAndBoardLineByLine) {
    const ProgramIdent onDisk{QStringLiteral("PUMP1"), QStringLiteral("2"), QStringLiteral("163")};
    const ProgramIdent inBoard{QStringLiteral("OLD"), QStringLiteral("1"), QStringLiteral("9")};
    EXPECT_EQ(DumpQuestion(onDisk, QStringLiteral("K2012"), inBoard),
              QStringLiteral("Program to be loaded into module (on disk):\r\n"
                             "  Program Ident: \t\tPUMP1\r\n"
                             "  Program Revision: \t\t2\r\n"
                             "  Program Checksum: \t163\r\n"
                             "  Target Board: \t\tK2012\r\n"
                             "\r\n"
                             "Program currently loaded in module:\r\n"
                             "  Program Ident: \t\tOLD\r\n"
                             "  Program Revision: \t\t1\r\n"
                             "  Program Checksum: \t9\r\n"
                             "\r\n"
                             "Entire program file will be dumped to the PLC.\r\n"
                             "All outputs are off while program dump occurrs.\r\n"
                             "\r\n"
                             "Do You Wish to Continue?"));
}
