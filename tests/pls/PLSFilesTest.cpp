#include "pls/PLSBoards.h"
#include "pls/PLSFileTexts.h"
#include "pls/PLSLayout.h"
#include "PLSUnderTest.h"
#include "support/PrintText.h"

namespace {
using PLSFiles = PLSUnderTest;

const QByteArray standardPCF = "163603"             // 16 channels, scale 360, both options
                               "012100005020030350" // strobe, stop, error, width, ON, OFF
                               "00401200"
                               "0000000000000000%\r\n";
const QByteArray r6500PCF = "3210005001002003004005006007255"
                            "0000000000000000%\r\n";

int ChannelsRead() {
    return static_cast<int>(std::count_if(gPLS.Chan.begin(), gPLS.Chan.end(),
                                          [](const SetpointList& it) { return !it.isEmpty(); }));
}
} // namespace

TEST_F(PLSFiles, ColumnsOfTheStandardLayoutAreRead) {
    WriteHdn(PLSBoardIndex::K2041);
    WritePCF(standardPCF);
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.PCFText, QString::fromLatin1(standardPCF.trimmed()));
    EXPECT_EQ(gPLS.Channels, 16);
    EXPECT_EQ(gPLS.ScaleFactor, 360);
    EXPECT_EQ(gPLS.OptionFlags, 3);
    EXPECT_EQ(gPLS.StrobePreset, 12);
    EXPECT_EQ(gPLS.StopLocation, 100);
    EXPECT_EQ(gPLS.StopError, 5);
    EXPECT_EQ(gPLS.SignalWidth, 20);
    EXPECT_EQ(gPLS.WindowOn, 30);
    EXPECT_EQ(gPLS.WindowOff, 350);
    EXPECT_EQ(gPLS.LowThreshold, 40);
    EXPECT_EQ(gPLS.HighThreshold, 1200);
    EXPECT_EQ(gPLS.Offset, 0);
    EXPECT_EQ(gPLS.PLSProgram, 0);
    EXPECT_EQ(gPLS.SpeedComp, (std::array<qint16, 8>{}));
}

TEST_F(PLSFiles, ColumnsOfTheR6500LayoutAreRead) {
    WriteHdn(PLSBoardIndex::R6500);
    WritePCF(r6500PCF);
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Channels, 32);
    EXPECT_EQ(gPLS.ScaleFactor, 1000);
    EXPECT_EQ(gPLS.PLSProgram, 5);
    EXPECT_EQ(gPLS.SpeedComp, (std::array<qint16, 8>{1, 2, 3, 4, 5, 6, 7, 255}));
    EXPECT_EQ(gPLS.OptionFlags, 0);
    EXPECT_EQ(gPLS.StrobePreset, 0);
}

TEST_F(PLSFiles, PathsAreThoseOfTheSiblings) {
    WriteHdn(PLSBoardIndex::R6041);
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.PCFPath, folder_.Path("SET.PCF"));
    EXPECT_EQ(gPLS.CHLPath, folder_.Path("SET.CHL"));
}

TEST_F(PLSFiles, SiblingsAreFoundWhateverTheirLetterCase) {
    WriteHdn(PLSBoardIndex::K2041);
    folder_.Write("set.pcf", standardPCF);
    folder_.Write("Set.Chl", ":360\r\n:000\r\n:001:00:00:00\r\n|010020\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.StopLocation, 100);
    EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 20}}));
}

TEST_F(PLSFiles, ASetOfIndex68ReadsAsTheR6500LayoutWithTheDefaultsOfAMissingFile) {
    folder_.Write("SET.hdn", "D\r\n");
    WritePCF(r6500PCF);
    WriteCHL(":1000\r\n:0000\r\n:001:000:000:000\r\n|00100020\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Channels, 8);
    EXPECT_EQ(gPLS.ScaleFactor, 360);
    EXPECT_EQ(gPLS.StrobePreset, 0);
    EXPECT_TRUE(gPLS.PCFPath.isEmpty());
    EXPECT_TRUE(gPLS.CHLPath.isEmpty());
    EXPECT_EQ(gPLS.Chan[0], PlaceholderList());
    EXPECT_EQ(ChannelsRead(), 8);
}

TEST_F(PLSFiles, AProgramSetOfAPLCBoardLeavesABlankRecordAndFalse) {
    folder_.Write("SET.hdn", "2\r\n");
    WritePCF(standardPCF);
    gPLS.Channels = 16;
    gPLS.Chan[3] = PlaceholderList();
    EXPECT_FALSE(Read());
    EXPECT_EQ(gPLS, PLSRecord());
}

TEST_F(PLSFiles, AMissingPCFFileGivesScale360OnBothLayoutsAnd16Or8Channels) {
    for (const PLSBoard& board : PLSBoards()) {
        const bool r6500 = board.index == PLSBoardIndex::R6500;
        WriteHdn(board.index);
        ASSERT_TRUE(Read());
        PLSRecord expected;
        expected.ScaleFactor = 360;
        expected.Channels = r6500 ? 8 : 16;
        expected.StrobePreset = r6500 ? 0 : 1;
        for (int channel = 0; channel < expected.Channels; ++channel)
            expected.Chan[channel] = PlaceholderList();
        expected.PCFPath = gPLS.PCFPath;
        expected.CHLPath = gPLS.CHLPath;
        EXPECT_EQ(gPLS, expected) << board.index;
    }
}

TEST_F(PLSFiles, AnEmptyPCFFileGivesAllFields0WithoutAnError) {
    WriteHdn(PLSBoardIndex::K2041);
    WritePCF("");
    ASSERT_TRUE(Read());
    PLSRecord expected;
    expected.PCFPath = gPLS.PCFPath;
    expected.CHLPath = gPLS.CHLPath;
    EXPECT_EQ(gPLS, expected);
}

TEST_F(PLSFiles, AMissingCHLFileGivesExactlyTheChannelsOneSetpointEach) {
    WriteHdn(PLSBoardIndex::R6500);
    WritePCF(r6500PCF); // 32 channels
    ASSERT_TRUE(Read());
    for (int channel = 0; channel < plsChannelPlaces; ++channel)
        EXPECT_EQ(gPLS.Chan[channel], channel < 32 ? PlaceholderList() : SetpointList()) << channel;
}

TEST_F(PLSFiles, ACHLFileOfChannels0And10LeavesTheChannelsBetweenEmpty) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(":360\r\n:000\r\n:001:00:00:00FIRST\r\n:101:00:00:00NINTH\r\n|001002\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Chan[0], PlaceholderList());
    for (int channel = 1; channel < 8; ++channel)
        EXPECT_TRUE(gPLS.Chan[channel].isEmpty()) << channel;
    EXPECT_EQ(ChannelsRead(), 2);
}

TEST_F(PLSFiles, AHeaderLineOfChannel10FillsBinaryPosition8) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(":360\r\n:000\r\n:101:00:00:00NINTH\r\n|001002\r\n|003004\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Chan[8], OnOff({{1, 2}, {3, 4}}));
    EXPECT_EQ(gPLS.ChanHeader[8], QString(":101:00:00:00NINTH"));
}

TEST_F(PLSFiles, SetpointLinesOfTheTwoLayoutsHoldThreeOrFourDigits) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(":360\r\n:000\r\n:001:00:00:00\r\n|010020\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 20}}));

    WriteHdn(PLSBoardIndex::R6500);
    ASSERT_TRUE(Read());
    EXPECT_NE(gPLS.Chan[0], OnOff({{10, 20}}));
    WriteCHL(":0360\r\n:0000\r\n:001:000:000:000\r\n|00100020\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 20}}));
}

TEST_F(PLSFiles, TheOFFOfTheStandardLayoutGoesToTheEndOfTheLineThatOfTheR6500StopsAtColumn9) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(":360\r\n:000\r\n:001:00:00:00\r\n|0101234\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 1234}}));

    WriteHdn(PLSBoardIndex::R6500);
    WriteCHL(":0360\r\n:0000\r\n:001:000:000:000\r\n|001000209\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 20}}));
}

TEST_F(PLSFiles, ALabelWithACommaStaysWhole) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(":360\r\n:000\r\n:001:00:00:00GLUE, LEFT GUN\r\n|010020\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(ChannelLabel(gPLS.ChanHeader[0], standardLayout), QString("GLUE, LEFT GUN"));
    EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 20}}));
}

TEST_F(PLSFiles, BlanksAroundALineAndQuotesAreNoPartOfIt) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(":360\r\n:000\r\n  :001:00:00:00GLUE   \r\n\"|010020\"\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_EQ(gPLS.ChanHeader[0], QString(":001:00:00:00GLUE"));
    EXPECT_EQ(gPLS.Chan[0], OnOff({{10, 20}}));
}

TEST_F(PLSFiles, TheFirstTwoLinesAreNeverTakenForChannels) {
    WriteHdn(PLSBoardIndex::K2041);
    WriteCHL(":99\r\n|010020\r\n:011:00:00:00\r\n%\r\n");
    ASSERT_TRUE(Read());
    EXPECT_TRUE(gPLS.Chan[0].isEmpty());
    EXPECT_EQ(gPLS.Chan[1], PlaceholderList());
}

TEST(PLSBoardList, HasSixBoardsInTheOrderOfTheList) {
    QStringList items;
    for (const PLSBoard& board : PLSBoards())
        items += QString::fromUtf16(board.item);
    EXPECT_EQ(items,
              (QStringList{"K2041", "R6020(PLS)", "R6021(PLS)", "R6040", "R6041", "R6500(PLS)"}));
    const qint16 indexes[] = {'7', '>', 'C', '?', '@', 'E'};
    for (int position = 0; position < 6; ++position) {
        EXPECT_EQ(PLSBoardIndexAt(position), indexes[position]);
        EXPECT_EQ(PLSBoardPosition(indexes[position]), position);
    }
    EXPECT_EQ(PLSBoardPosition(68), -1);
    EXPECT_EQ(PLSBoardIndexAt(-1), '7');
    EXPECT_EQ(PLSBoardIndexAt(6), '7');
}

TEST(PLSBoardList, Index68CountsAs69OnlyForTheTimingView) {
    EXPECT_EQ(TimingBoardIndex(68), 69);
    EXPECT_EQ(TimingBoardIndex(64), 64);
    EXPECT_FALSE(PLSLayoutOf(68).r6500);
    EXPECT_TRUE(PLSLayoutOf(69).r6500);
}
