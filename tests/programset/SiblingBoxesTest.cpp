#include "programset/SiblingBoxes.h"

#include "base/RunTimeError.h"
#include "programset/SetFolder.h"
#include <gtest/gtest.h>

namespace {
const QLocale english(QLocale::English, QLocale::UnitedStates);
}

TEST(RevisionRecord, IsTakenApartFromItsEnd) {
    const RevisionRecord record = DecodeRevisionRecord(u"PUMP0001:30?"_qs);
    EXPECT_EQ(record.ident.toStdString(), "PUMP0001");
    EXPECT_EQ(record.checksum.toStdString(), "163");
    EXPECT_EQ(record.revision.toStdString(), "15");
    EXPECT_EQ(RevisionText(record).toStdString(),
              "\tProgram Ident: PUMP0001\r\n\tRevision: 15\r\n\tChecksum: 163");
}

TEST(RevisionRecord, OfFourCharactersHasNoIdent) {
    const RevisionRecord record = DecodeRevisionRecord(u"??01"_qs);
    EXPECT_TRUE(record.ident.isEmpty());
    EXPECT_EQ(record.checksum.toStdString(), "255");
    EXPECT_EQ(record.revision.toStdString(), "1");
}

TEST(RevisionRecord, EmptyFileLeavesTheFieldsEmpty) {
    SetFolder folder;
    folder.Make(u"PUMP.REV"_qs);
    EXPECT_EQ(RevisionText(ReadRevisionRecord(folder.Path(u"PUMP.REV"_qs))).toStdString(),
              "\tProgram Ident: \r\n\tRevision: \r\n\tChecksum: ");
}

TEST(RevisionRecord, IsTheFirstItemOfTheFileInAnyLetterCaseOfItsName) {
    SetFolder folder;
    folder.Make(u"pump.rev"_qs, "AB0102,rest\r\n");
    EXPECT_EQ(ReadRevisionRecord(folder.Path(u"PUMP.REV"_qs)).ident.toStdString(), "AB");
}

TEST(RevisionRecord, CutRecordIsAnError) {
    try {
        DecodeRevisionRecord(u"012"_qs);
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), 5);
    }
}

TEST(RevisionRecord, MissingFileIsAnError) {
    EXPECT_THROW(ReadRevisionRecord(u"/no/such/PUMP.REV"_qs), RunTimeError);
}

TEST(FileData, BoxHasDatesAndSize) {
    const FileData data{QDateTime(QDate(2001, 3, 14), QTime(14, 5, 9)),
                        QDateTime(QDate(2001, 12, 1), QTime(0, 0)), 12'345};
    EXPECT_EQ(
        FileDataText(data, english).toStdString(),
        "\tDate Created: 3/14/2001 2:05:09 PM\r\n\tLast Accessed: 12/1/2001\r\n\tSize: 12.3 KB");
}

TEST(FileData, SizeIsInThousandsWithOneDecimalRoundedHalfUp) {
    const std::pair<qint64, const char*> sizes[] = {
        {0, "0.0"}, {49, "0.0"}, {50, "0.1"}, {1249, "1.2"}, {1250, "1.3"}, {999'950, "1000.0"}};
    for (const auto& [size, text] : sizes)
        EXPECT_TRUE(FileDataText({{}, {}, size}, english)
                        .endsWith(u"Size: %1 KB"_qs.arg(QLatin1String(text))))
            << size;
}

TEST(FileData, IsReadFromTheFile) {
    SetFolder folder;
    folder.Make(u"pump.hex"_qs, QByteArray(1000, 'x'));
    const FileData data = ReadFileData(folder.Path(u"PUMP.HEX"_qs));
    EXPECT_EQ(data.size, 1000);
    EXPECT_TRUE(data.created.isValid());
    EXPECT_LT(qAbs(data.created.secsTo(QDateTime::currentDateTime())), 3600);
    EXPECT_TRUE(data.lastAccessed.isValid());
}

TEST(FileData, MissingFileIsAnError) {
    EXPECT_THROW(ReadFileData(u"/no/such/PUMP.HEX"_qs), RunTimeError);
}

TEST(GeneralDate, FollowsTheLocaleWithFourDigitsOfTheYearAndSeconds) {
    const QDateTime moment(QDate(2024, 2, 29), QTime(13, 4, 5));
    EXPECT_EQ(GeneralDate(moment, QLocale(QLocale::German, QLocale::Germany)).toStdString(),
              "29.02.2024 13:04:05");
    EXPECT_EQ(GeneralDate(moment, QLocale(QLocale::English, QLocale::UnitedKingdom)).toStdString(),
              "29/02/2024 13:04:05");
}
