#include "statustable/OfflineData.h"

#include "base/RunTimeError.h"
#include "support/PrintText.h"
#include "TestFiles.h"
#include <gtest/gtest.h>

TEST(OfflineData, OfBoard50StartsAtEntry0) {
    const TestFiles files;
    OfflineData data;
    ASSERT_EQ(ReadOfflineData(files.Write("a.ldt", "12:;00\r\n"), 50, data),
              OfflineDataState::Loaded);
    EXPECT_EQ(data.ByteAt(0), 0x12);
    EXPECT_EQ(data.ByteAt(1), 0xAB);
    EXPECT_EQ(data.ByteAt(70), 0);
}

TEST(OfflineData, OfBoard68StartsAtEntry0) {
    const TestFiles files;
    OfflineData data;
    ReadOfflineData(files.Write("a.ldt", "12:;00\r\n"), 68, data);
    EXPECT_EQ(data.ByteAt(1), 0xAB);
}

TEST(OfflineData, OfAnyOtherBoardStartsAtEntry70) {
    const TestFiles files;
    OfflineData data;
    ReadOfflineData(files.Write("a.ldt", "12:;00\r\n"), 49, data);
    EXPECT_EQ(data.ByteAt(0), 0);
    EXPECT_EQ(data.ByteAt(69), 0);
    EXPECT_EQ(data.ByteAt(70), 0x12);
    EXPECT_EQ(data.ByteAt(71), 0xAB);
    EXPECT_EQ(data.ByteAt(72), 0);
}

TEST(OfflineData, OutsideItsEntriesIs0) {
    OfflineData data;
    EXPECT_EQ(data.ByteAt(0), 0);
    data.Fill("FF", 8192);
    EXPECT_EQ(data.ByteAt(8192), 255);
    EXPECT_EQ(data.ByteAt(8193), 0);
    EXPECT_EQ(data.ByteAt(-1), 0);
}

TEST(OfflineData, ALongerLineEndsAtTheLastEntry) {
    OfflineData data;
    data.Fill(QString("11").repeated(9000), 0);
    EXPECT_EQ(data.ByteAt(8192), 0x11);
}

TEST(OfflineData, ALastDigitWithoutItsPartnerIsNoByte) {
    OfflineData data;
    data.Fill("FF1", 100);
    EXPECT_EQ(data.ByteAt(100), 255);
    EXPECT_EQ(data.ByteAt(101), 0);
}

TEST(OfflineData, AnewFillsAll) {
    OfflineData data;
    data.Fill("FFFF", 0);
    data.Fill("11", 0);
    EXPECT_EQ(data.ByteAt(0), 0x11);
    EXPECT_EQ(data.ByteAt(1), 0);
}

TEST(OfflineData, MissingAndEmptyFilesAreTold) {
    const TestFiles files;
    OfflineData data;
    EXPECT_EQ(ReadOfflineData(files.Path("none.ldt"), 49, data), OfflineDataState::Missing);
    EXPECT_EQ(ReadOfflineData(files.Write("empty.ldt", ""), 49, data), OfflineDataState::Empty);
}

TEST(OfflineData, AFailureIsReportedAndALostFileSaysThatItCannotBeOpened) {
    EXPECT_EQ(OfflineDataFailureText(RunTimeError(ErrorNumber::FileNotFound)),
              QString("Error Number = 53\r\n\r\nFile not found\r\nUnable to Open Data File."));
    EXPECT_EQ(OfflineDataFailureText(RunTimeError(ErrorNumber::DeviceIOError)),
              QString("Error Number = 57\r\n\r\nDevice I/O error"));
}
