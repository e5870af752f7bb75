#include "controls/grid/Grid.h"
#include "ViewsUnderTest.h"
#include <QCoreApplication>
#include <QMdiSubWindow>
#include <QScrollBar>

// What the views do with the room that the main window leaves them.

namespace {
constexpr QSize smallest(640, 400);
constexpr QSize usual(1280, 800);
constexpr QSize large(1920, 1080);

class WindowSize : public ViewsUnderTest {
protected:
    WindowSize() : ViewsUnderTest(haldenboard::SimulatedBoard::DefaultModel) {}

    void SetUp() override {
        WriteSetFile(QStringLiteral("UNIT.hdn"), "3\r\n");
        Start();
        Window().showNormal();
        Resize(usual);
    }
    void Resize(const QSize& size) {
        Window().resize(size);
        QCoreApplication::processEvents();
    }
    QMdiSubWindow& Frame() {
        return *qobject_cast<QMdiSubWindow*>(
            Window().Children().View(QStringLiteral("frmStatusTable"))->parentWidget());
    }
};
} // namespace

TEST_F(WindowSize, AViewTakesTheRoomOfALargerWindowAndGivesItBack) {
    const QSize before = Frame().size();
    Resize(large);
    EXPECT_GE(Frame().width(), before.width() + 400);
    EXPECT_GE(Frame().height(), before.height() + 200);
    Resize(usual);
    EXPECT_EQ(Frame().size(), before);
}

TEST_F(WindowSize, AViewThatTheUserHasSizedStays) {
    const QRect chosen(300, 20, 500, 400);
    Frame().setGeometry(chosen);
    Resize(large);
    EXPECT_EQ(Frame().geometry(), chosen);
}

TEST_F(WindowSize, AllColumnsOfTheTableFitIntoTheSmallestWindow) {
    Resize(smallest);
    ASSERT_EQ(Window().size(), smallest);
    EXPECT_EQ(Table().horizontalScrollBar()->maximum(), 0);
    EXPECT_GE(Table().columnWidth(0), Table().columnWidth(1));
}
