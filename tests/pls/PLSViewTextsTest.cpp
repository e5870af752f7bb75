#include "pls/PLSViewTexts.h"

#include "pls/PLSBoards.h"
#include "pls/PLSLayout.h"
#include "PLSUnderTest.h"
#include "support/PrintText.h"

namespace {
PLSRecord Configured(qint16 options) {
    PLSRecord record;
    record.Channels = 32;
    record.ScaleFactor = 500;
    record.PLSProgram = 4;
    record.SpeedComp = {1, 2, 3, 4, 5, 6, 7, 255};
    record.OptionFlags = options;
    record.StrobePreset = 12;
    record.StopLocation = 100;
    record.StopError = 5;
    record.SignalWidth = 20;
    record.WindowOn = 30;
    record.WindowOff = 350;
    record.LowThreshold = 40;
    record.HighThreshold = 1200;
    return record;
}

QStringList Values(const PLSRecord& record, int first, int end) {
    QStringList values;
    for (int row = first; row < end; ++row)
        values += PCFRowValue(row, record);
    return values;
}

QString Row(const ChannelGridRow& row) {
    return QStringList(row.begin(), row.end()).join(u'|');
}
} // namespace

TEST(PLSViewTexts, RowsOfTheR6500Layout) {
    EXPECT_EQ(Values(Configured(3), 0, 11),
              (QStringList{"32", "500", "4", "1", "2", "3", "4", "5", "6", "7", "255"}));
}

TEST(PLSViewTexts, RowsOfTheStandardLayoutWithBothOptionsOn) {
    EXPECT_EQ(Values(Configured(3), 11, 22),
              (QStringList{"32", "500", "12", "Yes", "100", "+-5", "20", "30-350", "Yes", "40 RPM",
                           "1200 RPM"}));
}

TEST(PLSViewTexts, BrakeWearOffShowsRestingValuesWhateverTheColumnsHold) {
    EXPECT_EQ(Values(Configured(PLSOption::SpeedWindow), 14, 22),
              (QStringList{"No", "000", "+-0", "1", "000-000", "Yes", "40 RPM", "1200 RPM"}));
}

TEST(PLSViewTexts, SpeedWindowOffShowsRestingValuesWhateverTheColumnsHold) {
    EXPECT_EQ(Values(Configured(PLSOption::BrakeWearCompensation), 14, 22),
              (QStringList{"Yes", "100", "+-5", "20", "30-350", "No", "0000 RPM", "0000 RPM"}));
}

TEST(PLSViewTexts, CaptionsStandAsUsersKnowThem) {
    QStringList captions;
    for (int row = 0; row < pcfRows; ++row)
        captions += PCFRowCaption(row);
    EXPECT_EQ(captions, (QStringList{"Number of PLS Channels:",
                                     "Scale Factor:",
                                     "PLS Program:",
                                     "CH00 (msec):",
                                     "CH01 (msec):",
                                     "CH02 (msec):",
                                     "CH03 (msec):",
                                     "CH04 (msec):",
                                     "CH05 (msec):",
                                     "CH06 (msec):",
                                     "CH07 (msec):",
                                     "Number of PLS Channels:",
                                     "Scale Factor:",
                                     "Remote Display Strobe Preset (2.5msec TB):",
                                     "CH00 Brake Wear Compnesation Enabled (y/n):",
                                     "Desired Stop Locaton:",
                                     "Allowed Stopping Error:",
                                     "CH00 Timing Signal Width:",
                                     "Compensation Enable Window:",
                                     "CH17 Speed Window Enabled (y/n):",
                                     "Low Speed Threshold:",
                                     "High Speed Threshold:"}));
}

TEST(PLSViewTexts, TheFrameFollowsExtensionAndBoard) {
    EXPECT_EQ(PLSViewFrameOf("PCF", 69), PLSViewFrame::R6500Config);
    EXPECT_EQ(PLSViewFrameOf("pcf", 68), PLSViewFrame::StandardConfig);
    EXPECT_EQ(PLSViewFrameOf("PCF", 55), PLSViewFrame::StandardConfig);
    EXPECT_EQ(PLSViewFrameOf("Chl", 69), PLSViewFrame::Setpoints);
    EXPECT_EQ(PLSViewFrameOf("CHL", 55), PLSViewFrame::Setpoints);
    EXPECT_EQ(PLSViewFrameOf("HEX", 69), PLSViewFrame::None);
    EXPECT_EQ(PLSViewFrameOf("", 69), PLSViewFrame::None);
}

TEST(PLSViewTexts, GridRowsHoldEveryChannelWithItsLabelAndSetpoints) {
    PLSRecord record;
    record.Channels = 9;
    record.Chan[0] = OnOff({{10, 20}, {350, 5}});
    record.ChanHeader[0] = QStringLiteral(":001:00:00:00GLUE GUN");
    record.Chan[8] = PlaceholderList();
    record.ChanHeader[8] = QStringLiteral(":101:00:00:00NINTH");
    const QList<ChannelGridRow> rows = ChannelGridRows(record, standardLayout);
    ASSERT_EQ(rows.size(), 3 + 7 * 2 + 2);
    EXPECT_EQ(Row(rows[0]), QString(" CH0 - GLUE GUN|10|20"));
    EXPECT_EQ(Row(rows[1]), QString("|350|5"));
    EXPECT_EQ(Row(rows[2]), QString("||"));
    EXPECT_EQ(Row(rows[3]), QString(" CH1 - |****|****"));
    EXPECT_EQ(Row(rows[4]), QString("||"));
    EXPECT_EQ(Row(rows[17]), QString(" CH10 - NINTH|****|****"));
    EXPECT_EQ(Row(rows[18]), QString("||"));
}

TEST(PLSViewTexts, LabelsOfTheR6500LayoutStartAtColumn17) {
    PLSRecord record;
    record.Channels = 1;
    record.ChanHeader[0] = QStringLiteral(":001:000:000:000CAM");
    EXPECT_EQ(Row(ChannelGridRows(record, r6500Layout)[0]), QString(" CH0 - CAM|****|****"));
}

TEST(PLSViewTexts, NumbersOfChannelsBeyond64ShowNoMoreThan64) {
    PLSRecord record;
    record.Channels = 200;
    EXPECT_EQ(ChannelGridRows(record, r6500Layout).size(), 128);
    record.Channels = -1;
    EXPECT_TRUE(ChannelGridRows(record, r6500Layout).isEmpty());
}

TEST(PLSViewTexts, TheCaptionNamesSetAndBoard) {
    EXPECT_EQ(PLSViewCaption("/sets/CAM1.hdn", 69), QString("CAM1 - R6500(PLS)"));
}
