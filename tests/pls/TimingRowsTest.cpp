#include "pls/TimingRows.h"

#include <gtest/gtest.h>

namespace {
Setpoint OnOff(int on, int off) {
    return {static_cast<qint16>(off), static_cast<qint16>(on)};
}

TimingRow Row(const char* name, const char* on, const char* off, int channel) {
    return {QString::fromLatin1(name), QString::fromLatin1(on), QString::fromLatin1(off), channel};
}

// 8 channels: 0 with three setpoints, the others with none.
PLSRecord EightChannels() {
    PLSRecord record;
    record.Channels = 8;
    record.Chan[0] = {OnOff(10, 20), OnOff(350, 5), OnOff(30, 40)};
    for (std::size_t channel = 1; channel < 8; ++channel)
        record.Chan[channel] = {OnOff(0, 0)};
    return record;
}
} // namespace

TEST(TimingRows, AChannelListsItsSetpointsAndABlankRow) {
    const std::vector<TimingRow> rows = ChannelRows(EightChannels());
    ASSERT_EQ(rows.size(), 4u + 7 * 2);
    EXPECT_EQ(rows[0], Row("CH0", "10", "20", 0));
    EXPECT_EQ(rows[1], Row("1:", "350", "5", 0));
    EXPECT_EQ(rows[2], Row("2:", "30", "40", 0));
    EXPECT_EQ(rows[3], Row("", "", "", 0));
}

TEST(TimingRows, AChannelWithOnlyThePlaceholderListsAsOneRowOfStarsAndABlankRow) {
    const std::vector<TimingRow> rows = ChannelRows(EightChannels());
    EXPECT_EQ(rows[4], Row("CH1", "****", "****", 1));
    EXPECT_EQ(rows[5], Row("", "", "", 1));
    EXPECT_EQ(rows.back(), Row("", "", "", 7));
}

TEST(TimingRows, NamesAreOctalAndNotPadded) {
    PLSRecord record;
    record.Channels = 16;
    for (std::size_t channel = 0; channel < 16; ++channel)
        record.Chan[channel] = {OnOff(0, 0)};
    const std::vector<TimingRow> rows = ChannelRows(record);
    EXPECT_EQ(rows[14].name, QStringLiteral("CH7"));
    EXPECT_EQ(rows[16].name, QStringLiteral("CH10"));
    EXPECT_EQ(rows[16].channel, 8);
    EXPECT_EQ(rows[30].name, QStringLiteral("CH17"));
}

TEST(TimingRows, WithAChannelLeftEmptyTheListEndsBeforeIt) {
    PLSRecord record = EightChannels();
    record.Chan[2].clear();
    const std::vector<TimingRow> rows = ChannelRows(record);
    ASSERT_EQ(rows.size(), 6u);
    EXPECT_EQ(rows.back().channel, 1);
}

TEST(TimingRows, ChannelsBeyondTheCountAreNotListed) {
    PLSRecord record = EightChannels();
    record.Chan[8] = {OnOff(1, 2)};
    EXPECT_EQ(ChannelRows(record).back().channel, 7);
}

TEST(TimingRows, AnAbsurdChannelCountListsNoMoreThanThereAre) {
    PLSRecord record;
    for (SetpointList& setpoints : record.Chan)
        setpoints = {OnOff(0, 0)};
    record.Channels = 32767;
    EXPECT_EQ(ChannelRows(record).size(), 128u);
    record.Channels = -1;
    EXPECT_TRUE(ChannelRows(record).empty());
}

TEST(TimingRows, TheGridNeverShrinksBelowWhatFitsTheControl) {
    EXPECT_EQ(RowsThatFit(480, 20), 23);
    EXPECT_EQ(RowsThatFit(499, 20), 23);
    EXPECT_EQ(GridRowCount({}, 23), 23);
    EXPECT_EQ(GridRowCount(std::vector<TimingRow>(21), 23), 23);
    EXPECT_EQ(GridRowCount(std::vector<TimingRow>(22), 23), 23);
    EXPECT_EQ(GridRowCount(std::vector<TimingRow>(23), 23), 24);
}

TEST(TimingRows, AGridWithoutHeightKeepsItsHeading) {
    EXPECT_EQ(RowsThatFit(0, 20), 1);
    EXPECT_EQ(RowsThatFit(100, 0), 1);
}

TEST(TimingRows, SelectingARowShowsTheFirstSetpointWithItsOn) {
    PLSRecord record = EightChannels();
    record.Chan[0].append(OnOff(10, 15));
    const std::vector<TimingRow> rows = ChannelRows(record);
    EXPECT_EQ(SelectGridRow(record, rows, 1), (ShownSetpoint{0, 0, 3, OnOff(10, 20)}));
    EXPECT_EQ(SelectGridRow(record, rows, 2), (ShownSetpoint{0, 1, 3, OnOff(350, 5)}));
    EXPECT_EQ(SelectGridRow(record, rows, 4), (ShownSetpoint{0, 0, 3, OnOff(10, 20)}));
}

TEST(TimingRows, SelectingABlankRowShowsTheLastSetpointOfItsChannel) {
    const PLSRecord record = EightChannels();
    const std::vector<TimingRow> rows = ChannelRows(record);
    EXPECT_EQ(SelectGridRow(record, rows, 4), (ShownSetpoint{0, 2, 2, OnOff(30, 40)}));
}

TEST(TimingRows, SelectingARowOfStarsShowsThePlaceholder) {
    const PLSRecord record = EightChannels();
    const std::vector<TimingRow> rows = ChannelRows(record);
    EXPECT_EQ(SelectGridRow(record, rows, 5), (ShownSetpoint{1, 0, 0, OnOff(0, 0)}));
}

TEST(TimingRows, TheHeadingAndTheRowsThatFillTheGridSelectNothing) {
    const PLSRecord record = EightChannels();
    const std::vector<TimingRow> rows = ChannelRows(record);
    const int count = static_cast<int>(rows.size());
    EXPECT_TRUE(SelectGridRow(record, rows, count).has_value());
    for (const int gridRow : {-1, 0, count + 1, 1000})
        EXPECT_EQ(SelectGridRow(record, rows, gridRow), std::nullopt) << gridRow;
}

TEST(TimingRows, ARowWhosePositionIsGoneShowsTheLastSetpoint) {
    PLSRecord record = EightChannels();
    const std::vector<TimingRow> rows = ChannelRows(record);
    record.Chan[0] = {OnOff(1, 2), OnOff(3, 4)};
    EXPECT_EQ(SelectGridRow(record, rows, 1), (ShownSetpoint{0, 1, 1, OnOff(3, 4)}));
    record.Chan[0].clear();
    EXPECT_EQ(SelectGridRow(record, rows, 1), (ShownSetpoint{0, 0, 0, std::nullopt}));
}
