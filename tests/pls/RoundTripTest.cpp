#include "pls/PLSBoards.h"
#include "pls/PLSFileTexts.h"
#include "pls/PLSLayout.h"
#include "PLSUnderTest.h"
#include "support/ExpectError.h"
#include "support/PrintText.h"

namespace {
// Fills the fields of a layout with values of all digits that fit its columns.
void FillFields(PLSRecord& record, const PLSLayout& layout) {
    int number = 0;
    for (const PCFColumn& column : layout.columns)
        column.field.Of(record) = static_cast<qint16>(column.max - number++ % (column.max + 1));
    record.Channels = layout.channelCounts.back();
    record.ScaleFactor = 360;
}

QString HeaderWithLabel(int channel, const QString& label, const PLSLayout& layout) {
    return CHLHeaderLine(channel, QString(layout.labelColumn - 1, u' ') + label, layout);
}

// Channels with one span, with several, with one that wraps round, and without any.
PLSRecord SampleRecord(const PLSLayout& layout) {
    PLSRecord record;
    FillFields(record, layout);
    for (int channel = 0; channel < record.Channels; ++channel) {
        const auto on = static_cast<qint16>(channel);
        const SetpointList kinds[] = {OnOff({{on, qint16(on + 100)}}),
                                      OnOff({{on, 120}, {200, 210}, {300, 359}}),
                                      OnOff({{350, qint16(on + 1)}}), PlaceholderList()};
        record.Chan[channel] = kinds[channel % 4];
        record.ChanHeader[channel] =
            HeaderWithLabel(channel, QStringLiteral("Gun %1 / \u00fc").arg(channel), layout)
                .trimmed();
    }
    return record;
}

class RoundTrip : public PLSUnderTest, public testing::WithParamInterface<PLSBoard> {
protected:
    void Write(const PLSRecord& record, const PLSLayout& layout) {
        WriteHdn(GetParam().index);
        WritePCF(BuildPCFText(record, layout).toLatin1() + "\r\n");
        WriteCHL(BuildCHLText(record, layout).toLatin1() + "\r\n");
    }
};

using CHLTexts = PLSUnderTest;
} // namespace

TEST_P(RoundTrip, TheTwoFilesReadBackAsTheRecordTheyWereBuiltFrom) {
    const PLSLayout& layout = PLSLayoutOf(GetParam().index);
    PLSRecord expected = SampleRecord(layout);
    Write(expected, layout);
    ASSERT_TRUE(Read());
    expected.PCFText = BuildPCFText(expected, layout);
    expected.PCFPath = folder_.Path("SET.PCF");
    expected.CHLPath = folder_.Path("SET.CHL");
    EXPECT_EQ(gPLS, expected);
    EXPECT_EQ(BuildCHLText(gPLS, layout), BuildCHLText(expected, layout));
}

TEST_P(RoundTrip, ChannelsThatAreNotInTheFileStayEmpty) {
    const PLSLayout& layout = PLSLayoutOf(GetParam().index);
    WriteHdn(GetParam().index);
    const PLSRecord record = SampleRecord(layout);
    WriteCHL((CHLFirstLines(record, layout) + CHLHeaderLine(2, QString(), layout) +
              CHLSetpointLines(record.Chan[2], layout) + CHLHeaderLine(8, QString(), layout) +
              chlEndLine)
                 .toLatin1());
    ASSERT_TRUE(Read());
    for (int channel = 0; channel < plsChannelPlaces; ++channel)
        EXPECT_EQ(gPLS.Chan[channel], channel == 2   ? record.Chan[2]
                                      : channel == 8 ? PlaceholderList()
                                                     : SetpointList())
            << channel;
}

INSTANTIATE_TEST_SUITE_P(AllBoards, RoundTrip,
                         testing::ValuesIn(PLSBoards().begin(), PLSBoards().end()),
                         [](const auto& board) {
                             return "Index" + std::to_string(board.param.index);
                         });

TEST_F(CHLTexts, WritingAfterReadingKeepsALabelOfUpTo21Characters) {
    const QByteArray label = "ABCDEFGHIJKLMNOPQRSTU"; // 21
    for (const qint16 board : {PLSBoardIndex::K2041, PLSBoardIndex::R6500}) {
        const PLSLayout& layout = PLSLayoutOf(board);
        WriteHdn(board);
        const QByteArray header = ":00" + QString::fromUtf16(layout.headerConstant).toLatin1();
        WriteCHL(":1\r\n:0\r\n" + header + label + "XY\r\n%\r\n");
        ASSERT_TRUE(Read());
        const QString built = CHLHeaderLine(0, gPLS.ChanHeader[0], layout);
        EXPECT_EQ(built, QString::fromLatin1(header + label + "\r\n"));
        EXPECT_EQ(CHLHeaderLine(0, built.chopped(2), layout), built);
    }
}

TEST_F(CHLTexts, AnEmptyLabelIs21Blanks) {
    EXPECT_EQ(CHLHeaderLine(63, QString(), r6500Layout),
              ":771:000:000:000" + QString(21, u' ') + "\r\n");
    EXPECT_EQ(CHLHeaderLine(8, QStringLiteral(":10"), standardLayout),
              ":101:00:00:00" + QString(21, u' ') + "\r\n");
}

TEST_F(CHLTexts, ASetpointWithOnEqualToOffIsDroppedAndItsChannelKeepsItsHeaderLine) {
    PLSRecord record;
    record.Channels = 2;
    record.ScaleFactor = 360;
    record.Offset = 7;
    record.Chan[0] = OnOff({{5, 5}});
    record.Chan[1] = OnOff({{1, 2}, {9, 9}, {350, 3}});
    const QString label(21, u' ');
    EXPECT_EQ(BuildCHLText(record, standardLayout), ":360\r\n:007\r\n:001:00:00:00" + label +
                                                        "\r\n:011:00:00:00" + label +
                                                        "\r\n|001002\r\n|350003\r\n%");
    EXPECT_EQ(CHLFirstLines(record, r6500Layout), QString(":0360\r\n:0007\r\n"));
    EXPECT_EQ(CHLSetpointLines(record.Chan[1], r6500Layout), QString("|00010002\r\n|03500003\r\n"));
}

TEST_F(CHLTexts, TheLineOfThePCFFileHasItsFieldsInTheirColumns) {
    PLSRecord record;
    record.Channels = 8;
    record.ScaleFactor = 4096;
    record.PLSProgram = 7;
    record.SpeedComp = {1, 2, 3, 4, 5, 6, 7, 255};
    EXPECT_EQ(BuildPCFText(record, r6500Layout), QString("0840967001002003004005006007255"
                                                         "0000000000000000%"));
    PLSRecord standard;
    standard.Channels = 32;
    standard.ScaleFactor = 512;
    standard.OptionFlags = 2;
    standard.StrobePreset = 1;
    standard.HighThreshold = 5999;
    EXPECT_EQ(BuildPCFText(standard, standardLayout), QString("3251220010000000000000000000"
                                                              "5999"
                                                              "0000000000000000%"));
    for (const PLSLayout* layout : {&standardLayout, &r6500Layout}) {
        int column = 1;
        for (const PCFColumn& it : layout->columns) {
            EXPECT_EQ(it.column, column);
            column += it.width;
        }
        EXPECT_EQ(column, layout->r6500 ? 32 : 33);
    }
}

TEST_F(CHLTexts, AValueWiderThanItsColumnsIsAnErrorInsteadOfAShiftedLine) {
    PLSRecord record;
    record.OptionFlags = 255;
    ExpectError(ErrorNumber::Overflow, [&] { BuildPCFText(record, standardLayout); });
    record = PLSRecord();
    record.StopLocation = -1;
    ExpectError(ErrorNumber::Overflow, [&] { BuildPCFText(record, standardLayout); });
    ExpectError(ErrorNumber::Overflow, [] {
        CHLSetpointLines(OnOff({{1000, 1}}), standardLayout);
    });
    EXPECT_EQ(CHLSetpointLines(OnOff({{1000, 1}}), r6500Layout), QString("|10000001\r\n"));
}
