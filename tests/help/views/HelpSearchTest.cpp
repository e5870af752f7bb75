#include "help/views/HelpUnderTest.h"

namespace {
class HelpSearch : public HelpUnderTest {};
} // namespace

TEST_F(HelpSearch, TypingCountsMarksAndListsThePlacesOfAllPages) {
    Open("frmTrending");
    EXPECT_FALSE(Part<QListWidget>("lstHits").isVisible());
    Type("clipboard");
    auto& found = Part<QListWidget>("lstHits");
    EXPECT_TRUE(found.isVisible());
    EXPECT_GE(found.count(), 2);
    EXPECT_EQ(Count(), std::to_string(found.count()) + " found");
    EXPECT_EQ(Shown(), "trending.md");
    ASSERT_EQ(Guide().extraSelections().size(), 1);
    EXPECT_EQ(Guide().extraSelections().first().cursor.selectedText().toStdString(), "clipboard");
    EXPECT_TRUE(found.item(0)->text().contains(QLatin1String("clipboard")));
}

TEST_F(HelpSearch, ReturnGoesToTheFirstPlaceFromThePageOnAndThenFromPlaceToPlace) {
    Open("frmTrending");
    Type("clipboard");
    const int count = Part<QListWidget>("lstHits").count();
    PressInSearch(Qt::Key_Return);
    EXPECT_EQ(Shown(), "trending.md");
    EXPECT_EQ(Selected(), "clipboard");
    PressInSearch(Qt::Key_Return);
    EXPECT_EQ(Shown(), "support.md");
    EXPECT_EQ(Count(), std::to_string(count) + " of " + std::to_string(count));
    EXPECT_EQ(Part<QListWidget>("lstHits").currentRow(), count - 1);
    PressInSearch(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Shown(), "trending.md");
}

TEST_F(HelpSearch, NextAndPreviousGoRound) {
    Open("frmAbout");
    Type("resolver");
    const int count = Part<QListWidget>("lstHits").count();
    ASSERT_GE(count, 2);
    Press("cmdNextHit");
    EXPECT_EQ(Count(), "1 of " + std::to_string(count));
    Press("cmdPreviousHit");
    EXPECT_EQ(Count(), std::to_string(count) + " of " + std::to_string(count));
    Press("cmdNextHit");
    EXPECT_EQ(Count(), "1 of " + std::to_string(count));
}

TEST_F(HelpSearch, EveryPlaceOfTheListIsWhereItSays) {
    Open("frmMain");
    Type("set");
    const int count = Part<QListWidget>("lstHits").count();
    ASSERT_GT(count, 50);
    for (int hit = 0; hit < count; ++hit) {
        Part<QListWidget>("lstHits").setCurrentRow(hit);
        ASSERT_EQ(QString::fromStdString(Selected()).toLower().toStdString(), "set") << hit;
        ASSERT_TRUE(Guide().viewport()->rect().intersects(Guide().cursorRect())) << hit;
    }
}

TEST_F(HelpSearch, AClickInTheListGoesThere) {
    Open("frmMain");
    Type("octal");
    ClickRow("lstHits", 0);
    EXPECT_EQ(Shown(), "pls-timing.md");
    EXPECT_EQ(Selected(), "octal");
}

TEST_F(HelpSearch, WordsThatStandNowhereSaySo) {
    Open("frmMain");
    Type("zzzz");
    EXPECT_EQ(Count(), "Nothing found");
    EXPECT_FALSE(Part<QToolButton>("cmdNextHit").isEnabled());
    PressInSearch(Qt::Key_Return);
    EXPECT_EQ(Shown(), "browser.md");
    EXPECT_FALSE(Part<QListWidget>("lstHits").isVisible());
}

TEST_F(HelpSearch, MarksFollowThePage) {
    Open("frmMain");
    Type("octal");
    EXPECT_TRUE(Guide().extraSelections().isEmpty());
    ClickRow("lstContents", GuidePageOfFile(QStringLiteral("pls-timing.md")));
    EXPECT_FALSE(Guide().extraSelections().isEmpty());
}

TEST_F(HelpSearch, EscapeFirstTakesTheSearchAwayThenTheWindow) {
    Open("frmTrending");
    Type("clipboard");
    PressInSearch(Qt::Key_Escape);
    EXPECT_TRUE(help_.isVisible());
    EXPECT_TRUE(Count().empty());
    EXPECT_TRUE(Guide().extraSelections().isEmpty());
    PressInSearch(Qt::Key_Escape);
    EXPECT_FALSE(help_.isVisible());
}
