#include "ModelUnderTest.h"

#include "base/RunTimeError.h"
#include "support/ExpectError.h"
#include "targetboard/ProgramIdent.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

namespace {
class IdentOnDisk : public testing::Test {
protected:
    DiskIdent WithRev(const QByteArray& rev) {
        files.Write("PUMP.REV", rev);
        return ReadDiskIdent(hdn);
    }
    TestFolder files;
    QString hdn = files.Write("PUMP.hdn", "A\r\n");
};

class IdentInBoard : public testing::Test, public ModelUnderTest {
protected:
    IdentInBoard() : ModelUnderTest(68) {
        const QByteArray ident = "PUMP01  \xA5\x07";
        for (int i = 0; i < 10; ++i)
            Poke(61424 + i, static_cast<unsigned char>(ident[i]));
    }
};
} // namespace

TEST_F(IdentOnDisk, TheLineIsNameChecksumAndRevision) {
    const DiskIdent ident = WithRev("PUMP01:507\r\n");
    EXPECT_EQ(ident.name, "PUMP01");
    EXPECT_EQ(ident.checksum, 0xA5);
    EXPECT_EQ(ident.revision, 0x07);
    EXPECT_EQ(ident.boardIndex, 65);
    EXPECT_EQ(ident.Texts()[IdentLabel::Name], "PUMP01");
    EXPECT_EQ(ident.Texts()[IdentLabel::Revision], "7");
    EXPECT_EQ(ident.Texts()[IdentLabel::Checksum], "165");
    EXPECT_EQ(ident.Texts()[IdentLabel::TargetBoard], "T7110");
    EXPECT_EQ(ident.Texts()[IdentLabel::RevDate], "-");
}

TEST_F(IdentOnDisk, FourCharactersAreAnEmptyName) {
    const DiskIdent ident = WithRev("??0?");
    EXPECT_EQ(ident.name, "");
    EXPECT_EQ(ident.checksum, 255);
    EXPECT_EQ(ident.revision, 15);
}

TEST_F(IdentOnDisk, AMissingAndAnEmptyRevFileLeaveNoName) {
    const DiskIdent missing = ReadDiskIdent(hdn);
    EXPECT_EQ(missing.name, "-");
    EXPECT_EQ(missing.revision, 0);
    EXPECT_EQ(missing.checksum, 0);
    EXPECT_EQ(WithRev("").name, "-");
}

TEST_F(IdentOnDisk, ALineOfFewerThanFourCharactersIsAnError) {
    for (const char* line : {"ABC\r\n", "\r\n", "\"\"\r\n", "AB,CDEF\r\n"})
        ExpectError(ErrorNumber::InvalidProcedureCall, [&] { WithRev(line); });
}

TEST_F(IdentOnDisk, WhatIsNoHexadecimalCountsAs0) {
    EXPECT_EQ(WithRev("PUMPxyzw\r\n").checksum, 0);
}

TEST_F(IdentOnDisk, TheDateIsThatOfTheHexFile) {
    const QString hex = files.Write("PUMP.Hex", "00");
    const QDateTime time(QDate(2024, 11, 5), QTime(13, 45));
    QFile file(hex);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
    file.close();
    EXPECT_EQ(ReadDiskIdent(hdn).date, QLocale().toString(time, QLocale::ShortFormat));
}

TEST_F(IdentOnDisk, ASetThatIsGoneHasNoIdent) {
    files.Write("GONE.REV", "GONE0101");
    const DiskIdent ident = ReadDiskIdent(files.Path("GONE.hdn"));
    EXPECT_EQ(ident.name, "-");
    EXPECT_EQ(ident.date, "-");
    EXPECT_EQ(ident.boardIndex, 68);
}

TEST_F(IdentInBoard, IsReadByteByByteAndShownInDecimal) {
    OpenOnline();
    EXPECT_EQ(Shown().lblRevIdentInPLC[IdentLabel::Name], "PUMP01  ");
    EXPECT_EQ(Shown().lblRevIdentInPLC[IdentLabel::Checksum], "165");
    EXPECT_EQ(Shown().lblRevIdentInPLC[IdentLabel::Revision], "7");
}

TEST_F(IdentInBoard, AReadAnewReplacesTheName) {
    OpenOnline();
    mode.GoOffline();
    Turns(1);
    Poke(61424, 'C');
    model.cmdGoOnline_Click();
    Turns(1);
    EXPECT_EQ(Shown().lblRevIdentInPLC[IdentLabel::Name], "CUMP01  ");
}

TEST_F(IdentInBoard, CharactersAreThoseOfTheCodePage) {
    Poke(61424, 0x80);
    Poke(61425, 0xE4);
    OpenOnline();
    EXPECT_TRUE(Shown().lblRevIdentInPLC[IdentLabel::Name].startsWith(u"\u20AC\u00E4"));
}
