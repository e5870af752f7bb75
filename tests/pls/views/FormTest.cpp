#include "TimingUnderTest.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

// What stands on the view whatever the board says.

namespace {
class TimingFormTest : public TimingUnderTest {
protected:
    QStringList LabelTexts(const char* family, int count) {
        QStringList texts;
        for (int i = 0; i < count; ++i)
            texts << Find<QLabel>(QString("%1(%2)").arg(family).arg(i))->text();
        return texts;
    }
};
} // namespace

TEST_F(TimingFormTest, ThePanelsHaveTheirToolTipsInTheOrderSpeedPositionOffsetScale) {
    QStringList toolTips;
    for (int panel = 1; panel <= 4; ++panel)
        toolTips << Find<QLabel>(QString("sbrMachineTiming(%1)").arg(panel))->toolTip();
    EXPECT_THAT(toolTips, ElementsAre("Resolver RPM:", "Machine Position", "Resolver Offset",
                                      "PLS Scale Factor"));
}

TEST_F(TimingFormTest, TheGridHasItsHeadingAnd24RowsAtLoad) {
    EXPECT_EQ(view.ChannelGrid().Rows(), 24);
    EXPECT_EQ(view.ChannelGrid().Cols(), 3);
    EXPECT_EQ(Cell(0, 0), "Chan #");
    EXPECT_EQ(Cell(0, 1), "ON POS");
    EXPECT_EQ(Cell(0, 2), "Off POS");
}

TEST_F(TimingFormTest, TheColumnsOfTheGridAreOfOneWidth) {
    Open();
    const Grid& grid = view.ChannelGrid();
    for (int col = 1; col < 3; ++col)
        EXPECT_NEAR(grid.columnWidth(col), grid.columnWidth(0), 1) << col;
}

TEST_F(TimingFormTest, TheFramesHaveTheirCaptions) {
    QStringList captions;
    for (int frame = 0; frame < 9; ++frame)
        captions << Frame(frame)->title();
    EXPECT_THAT(captions,
                ElementsAre("PLS Configuration", "Speed Compensation", "Timing Setpoints",
                            "Resolver Offset", "PLS Channel", "PLS Configuration",
                            "CH00 Brake Wear Comp.", "CH17 Speed Window", "Channel Setpoint"));
}

TEST_F(TimingFormTest, TheButtonsHaveTheirCaptions) {
    const std::pair<const char*, const char*> buttons[] = {
        {"cmdAddSetpoint", "A&dd Setpoint"}, {"cmdAdjustSetpoint", "Ad&just Setpoint"},
        {"cmdPulseTrain", "&Pulse Train"},   {"cmdRecallChan", "&Recall Channel"},
        {"cmdClearChan", "&Clear Channel"},  {"cmdClearAll", "Clear &All"},
        {"cmdSetOffset", "Set &Offset"},     {"cmdResetPLSConfig", "&Reset PLS Config"}};
    for (const auto& [name, caption] : buttons)
        EXPECT_EQ(Button(name)->text(), caption);
}

TEST_F(TimingFormTest, TheOptionsAndLabelsHaveTheirTexts) {
    EXPECT_THAT(LabelTexts("lblTmg", 4), ElementsAre("ON", "OFF", "START", "SETPOINT"));
    EXPECT_THAT(LabelTexts("lblBWComp", 2), ElementsAre("ON", "OFF"));
    const char* counts[] = {"8 Channels", "16 Channels", "32 Channels", "64 Channels"};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Option("optPlsChan", i)->text(), counts[i]);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(Option("optR6PlsChan", i)->text(), counts[i + 1]);
}

TEST_F(TimingFormTest, TheListOffersTheSixBoardsInTheirOrder) {
    const auto* list = Find<QComboBox>("cboTargetBoard");
    QStringList items;
    for (int i = 0; i < list->count(); ++i)
        items << list->itemText(i);
    EXPECT_THAT(items,
                ElementsAre("K2041", "R6020(PLS)", "R6021(PLS)", "R6040", "R6041", "R6500(PLS)"));
}
