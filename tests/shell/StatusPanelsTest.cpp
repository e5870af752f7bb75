#include "shell/StatusPanels.h"
#include "support/gui/WholeWindow.h"
#include <QLocale>
#include <QTimer>

namespace {
class Panels : public WholeWindow {
protected:
    void SetUp() override { Start(); }
    QLabel* Label(int index) { return Find<QLabel>(QStringLiteral("sbrMain(%1)").arg(index)); }
};
} // namespace

TEST_F(Panels, HaveTheirKeysAndToolTips) {
    const char* keys[] = {"STATUS", "MODE", "DATE", "TIME"};
    const char* toolTips[] = {"System Status Display Messages", "Communications Mode",
                              "Current Date", "Current Time"};
    for (int index = 1; index <= 4; ++index) {
        EXPECT_EQ(Label(index)->property("key").toString().toStdString(), keys[index - 1]);
        EXPECT_EQ(Label(index)->toolTip().toStdString(), toolTips[index - 1]);
    }
}

TEST_F(Panels, DateAndTimeFollowTheWallClock) {
    clock_.SetWallClock(QDateTime(QDate(2027, 12, 31), QTime(23, 59, 30)));
    Window().Panels().ShowDateAndTime();
    EXPECT_EQ(Panel(3), QLocale().toString(QDate(2027, 12, 31), QLocale::ShortFormat));
    EXPECT_TRUE(Panel(4).contains("59")) << Panel(4).toStdString();
    EXPECT_FALSE(Panel(4).contains("30")) << "seconds would stand still for a minute";
}

TEST_F(Panels, TheClockWakesOnceAMinuteAndNotMoreOften) {
    clock_.SetWallClock(QDateTime(QDate(2027, 1, 1), QTime(10, 0, 45)));
    Window().Panels().ShowDateAndTime();
    const auto* nextMinute = Window().Panels().findChild<QTimer*>("nextMinute");
    ASSERT_NE(nextMinute, nullptr);
    EXPECT_TRUE(nextMinute->isSingleShot());
    EXPECT_EQ(nextMinute->interval(), 15000);
}

TEST_F(Panels, ALongMessageDoesNotWidenTheWindow) {
    const int width = Window().minimumSizeHint().width();
    Window().ShowSystemMessage(QString(500, u'M'));
    EXPECT_EQ(Window().minimumSizeHint().width(), width);
    EXPECT_EQ(Panel(1).size(), 500);
}
