#include "base/RunTimeError.h"
#include "pls/PLSBoards.h"
#include "pls/PLSFileTexts.h"
#include "pls/PLSLayout.h"
#include "PLSUnderTest.h"
#include "support/PrintText.h"
#include <random>

namespace {
using HostileFiles = PLSUnderTest;

const QByteArray start = ":360\r\n:000\r\n";
const QByteArray channel0 = ":001:00:00:00\r\n";

// Reads a set that may be damaged in any way: one report or none, and never more than 64 channels.
void ReadDamaged(const QString& hdnFile) {
    ScriptedDialogs dialogs;
    dialogs.ExpectBoxTitled(QStringLiteral("ReadPLSFileData()"), MsgAnswer::Ok);
    if (ReadPLSFileData(hdnFile, dialogs)) {
        EXPECT_TRUE(dialogs.Boxes().empty());
        dialogs.MsgBox(QString(), MsgStyle::Critical, QStringLiteral("ReadPLSFileData()"));
        EXPECT_LE(gPLS.Channels, plsChannelPlaces);
    }
    for (const SetpointList& list : gPLS.Chan)
        EXPECT_LE(list.size(), 32768);
}

QByteArray RandomBytes(std::mt19937& random, int length, const QByteArray& alphabet) {
    QByteArray bytes;
    for (int i = 0; i < length; ++i)
        bytes += alphabet.isEmpty() ? static_cast<char>(random() % 256)
                                    : alphabet[static_cast<int>(random() % alphabet.size())];
    return bytes;
}
} // namespace

TEST_F(HostileFiles, AShortPCFLineReads0BehindItsEnd) {
    WriteHdn(PLSBoardIndex::K2041);
    WritePCF("16360301"); // the strobe preset lacks its last digit
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.ScaleFactor, 360);
    EXPECT_EQ(gPLS.StrobePreset, 1);
    EXPECT_EQ(gPLS.StopLocation, 0);
    EXPECT_EQ(gPLS.HighThreshold, 0);
}

TEST_F(HostileFiles, LettersInAPCFFileRead0) {
    WriteHdn(PLSBoardIndex::R6500);
    WritePCF("abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstu%\r\n");
    ASSERT_TRUE(Read());
    for (const PCFColumn& column : r6500Layout.columns)
        EXPECT_EQ(column.field.Of(std::as_const(gPLS)), 0) << column.column;
}

TEST_F(HostileFiles, ALetterEndsANumberOfAPCFFile) {
    WriteHdn(PLSBoardIndex::K2041);
    WritePCF("163X0\xB2"
             "01A\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Channels, 16);
    EXPECT_EQ(gPLS.ScaleFactor, 3);
    EXPECT_EQ(gPLS.OptionFlags, 0);
    EXPECT_EQ(gPLS.StrobePreset, 1);
}

TEST_F(HostileFiles, ANumberBeyond16BitsInAPCFFileIsError6AndKeepsWhatWasRead) {
    WriteHdn(PLSBoardIndex::K2041);
    WritePCF("1636031E9100\r\n");
    ExpectReadError(ErrorNumber::Overflow);
    EXPECT_EQ(gPLS.ScaleFactor, 360);
    EXPECT_EQ(gPLS.OptionFlags, 3);
    EXPECT_EQ(gPLS.StopLocation, 0);
    EXPECT_TRUE(gPLS.Chan[0].isEmpty());
}

TEST_F(HostileFiles, MoreThan64ChannelsInAPCFFileAreError9WithAndWithoutACHLFile) {
    WriteHdn(PLSBoardIndex::R6500);
    WritePCF("650100\r\n");
    ExpectReadError(ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(gPLS.Channels, 65);
    EXPECT_EQ(ChannelPlacesInUse(gPLS), 64);
    WriteCHL(start + channel0 + "%\r\n");
    ReadDamaged(HdnFile());
    EXPECT_TRUE(gPLS.Chan[0].isEmpty());
}

TEST_F(HostileFiles, NegativeChannelsAreNoChannels) {
    WriteHdn(PLSBoardIndex::K2041);
    WritePCF("-5360\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(ChannelPlacesInUse(gPLS), 0);
    EXPECT_TRUE(gPLS.Chan[0].isEmpty());
}

TEST_F(HostileFiles, AnOctalNameBeyond64PlacesIsError9AndKeepsWhatWasRead) {
    for (const QByteArray name : {"99", "88", "80", "-1"}) {
        WriteHdn(PLSBoardIndex::K2041);
        WriteCHL(start + channel0 + "|010020\r\n:" + name + "1:00:00:00BAD\r\n|030040\r\n%\r\n");
        ScriptedDialogs dialogs;
        dialogs.ExpectBox(ErrorReportText(RunTimeError(ErrorNumber::SubscriptOutOfRange)),
                          MsgStyle::Critical, QStringLiteral("ReadPLSFileData()"), MsgAnswer::Ok);
        EXPECT_FALSE(ReadPLSFileData(HdnFile(), dialogs));
        EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 20}}));
        EXPECT_EQ(gPLS.Channels, 16);
    }
}

TEST_F(HostileFiles, NamesThatAreNotOctalCountOnByTheirDigits) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(start + ":081:00:00:00\r\n:791:00:00:00\r\n:XY1:00:00:00\r\n:\r\n%");
    ExpectReadError(ErrorNumber::SubscriptOutOfRange); // 79 is 65
    EXPECT_FALSE(gPLS.Chan[8].isEmpty());
    WriteCHL(start + ":XY1:00:00:00\r\n:\r\n%");
    ReadDamaged(HdnFile());
    EXPECT_EQ(gPLS.ChanHeader[0], QString(":"));
}

TEST_F(HostileFiles, ASetpointBeforeAnyChannelIsError9) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(start + "|010020\r\n" + channel0 + "%\r\n");
    ExpectReadError(ErrorNumber::SubscriptOutOfRange);
    EXPECT_TRUE(gPLS.Chan[0].isEmpty());
}

TEST_F(HostileFiles, AnOFFBeyond16BitsIsError6AndKeepsTheSetpointsBefore) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(start + channel0 + "|010020\r\n|03032768\r\n|050060\r\n%\r\n");
    ExpectReadError(ErrorNumber::Overflow);
    EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 20}}));
}

TEST_F(HostileFiles, ThousandsOfSetpointsAreReadAndACountBeyond16BitsIsError6) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(start + channel0 + QByteArray("|010020\r\n").repeated(5000) + "%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Chan[0].size(), 5000);
    WriteCHL(start + channel0 + QByteArray("|010020\r\n").repeated(40000) + "%\r\n");
    ExpectReadError(ErrorNumber::Overflow);
    EXPECT_EQ(gPLS.Chan[0].size(), 32768);
}

TEST_F(HostileFiles, ShortSetpointLinesRead0BehindTheirEnd) {
    for (const qint16 board : {PLSBoardIndex::K2041, PLSBoardIndex::R6500}) {
        WriteHdn(board);
        WriteCHL(start + channel0 + "|\r\n|7\r\n|010,\r\n%\r\n");
        ASSERT_TRUE(Read());
        EXPECT_EQ(gPLS.Chan[0], OnOff({{0, 0}, {7, 0}, {10, 0}}));
    }
}

TEST_F(HostileFiles, LinesMayEndInCROrLFAlone) {
    for (const QByteArray lineEnd : {"\r", "\n", "\r\n"}) {
        WriteHdn(PLSBoardIndex::K2041);
        QByteArray text = start + channel0 + "|010020\r\n%\r\n";
        WriteCHL(text.replace("\r\n", lineEnd));
        ASSERT_TRUE(Read());
        EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 20}}));
    }
}

TEST_F(HostileFiles, AFolderInPlaceOfAFileCountsAsMissing) {
    WriteHdn(PLSBoardIndex::K2041);
    folder_.MakeFolder("SET.PCF");
    folder_.MakeFolder("SET.CHL");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.ScaleFactor, 360);
    EXPECT_EQ(gPLS.Chan[15], PlaceholderList());
}

TEST_F(HostileFiles, AHdnFileWithAnEmptyFirstLineIsReportedAsError5) {
    folder_.Write("SET.hdn", "\r\n");
    gPLS.Channels = 16;
    ExpectReadError(ErrorNumber::InvalidProcedureCall);
}

TEST_F(HostileFiles, FilesCutAnywhereAreReadOrReported) {
    const QByteArray pcf = "163603012100005020030350004012000000000000000000%\r\n";
    const QByteArray chl = start + ":001:00:00:00GLUE\r\n|010020\r\n|350010\r\n:771:00:00:00\r\n"
                                   "|001002\r\n%\r\n";
    for (const qint16 board : {PLSBoardIndex::K2041, PLSBoardIndex::R6500}) {
        WriteHdn(board);
        for (int length = 0; length <= chl.size(); ++length) {
            WritePCF(pcf.left(length));
            WriteCHL(chl.left(length));
            ReadDamaged(HdnFile());
        }
    }
}

TEST_F(HostileFiles, RubbishIsReadOrReported) {
    std::mt19937 random(20261121); // NOLINT: the same rubbish every time
    for (int round = 0; round < 200; ++round) {
        WriteHdn(round % 2 ? PLSBoardIndex::K2041 : PLSBoardIndex::R6500);
        WritePCF(RandomBytes(random, 60, round % 3 ? QByteArray("0123456789E-+. ") : QByteArray()));
        WriteCHL(RandomBytes(random, 500,
                             round % 4 ? QByteArray(":|%\r\n0123456789,\" E") : QByteArray()));
        ReadDamaged(HdnFile());
    }
}
