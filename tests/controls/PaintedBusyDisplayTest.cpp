#include "controls/PaintedBusyDisplay.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>

namespace {
class CountingWindow : public QWidget {
public:
    int painted = 0;
    int clicked = 0;

protected:
    void paintEvent(QPaintEvent*) override { ++painted; }
    void mousePressEvent(QMouseEvent*) override { ++clicked; }
};
} // namespace

TEST(PaintedBusyDisplay, ShowsNothingBeforeAQuarterOfASecond) {
    CountingWindow window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.painted = 0;
    PaintedBusyDisplay display;
    display.StillWaiting(0.1);
    display.StillWaiting(0.24);
    EXPECT_EQ(window.painted, 0);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    display.WaitEnded();
}

TEST(PaintedBusyDisplay, PaintsAndShowsTheCursorWithoutRunningAnything) {
    CountingWindow window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    bool timerRan = false;
    QTimer::singleShot(0, &window, [&] { timerRan = true; });
    QCoreApplication::postEvent(&window, new QMouseEvent(QEvent::MouseButtonPress, QPointF(1, 1),
                                                         QPointF(1, 1), Qt::LeftButton,
                                                         Qt::LeftButton, Qt::NoModifier));
    window.painted = 0;
    PaintedBusyDisplay display;
    display.StillWaiting(0.3);
    display.StillWaiting(0.4);
    EXPECT_EQ(window.painted, 2);
    EXPECT_FALSE(timerRan);
    EXPECT_EQ(window.clicked, 0);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    display.WaitEnded();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    QCoreApplication::processEvents();
    EXPECT_TRUE(timerRan);
    EXPECT_EQ(window.clicked, 1); // what the user did meanwhile was queued, not lost
}

TEST(PaintedBusyDisplay, AnEndWithoutAShownWaitChangesNoCursor) {
    QApplication::setOverrideCursor(Qt::CrossCursor);
    PaintedBusyDisplay display;
    display.StillWaiting(0.1);
    display.WaitEnded();
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    QApplication::restoreOverrideCursor();
}
