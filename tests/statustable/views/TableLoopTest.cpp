#include "statustable/views/TableLoop.h"

#include "session/CommMode.h"
#include "statustable/views/TableState.h"
#include "TableUnderTest.h"
#include <gtest/gtest.h>
#include <QTest>

namespace {
class NoDisplay final : public ModeDisplay {
public:
    void ShowMode(bool) override {}
};

// The loop alone, with a grid on the screen and nobody who turns it but the test.
class TableLoopAlone : public testing::Test {
protected:
    TableLoopAlone() {
        grid.SetCols(6);
        grid.SetRows(60);
        grid.resize(600, 400);
        grid.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&grid));
        state.active = true;
        state.tableBoard = 49;
        for (int row = 2; row < 5; ++row)
            grid.SetTextMatrix(row, 1, QString("B%1").arg(98 + row));
    }

    LinkUnderTest rig;
    BoardAtPort port{rig.clock, 49};
    NoDisplay display;
    CommMode mode{rig.link, port, display};
    TableState state;
    Grid grid{2};
    TableLoop loop{grid, rig.link, mode, state};
};
} // namespace

TEST_F(TableLoopAlone, OneStepReadsOneRow) {
    mode.GoOnline();
    EXPECT_EQ(loop.TakeStep(), ViewLoop::Step::Worked);
    EXPECT_EQ(grid.TextMatrix(2, 2), QString("0"));
    EXPECT_EQ(grid.TextMatrix(3, 2), QString());
    EXPECT_EQ(loop.TakeStep(), ViewLoop::Step::Worked);
    EXPECT_EQ(grid.TextMatrix(3, 2), QString("0"));
}

TEST_F(TableLoopAlone, WithNothingToReadItRests) {
    for (int row = 2; row < 5; ++row)
        grid.SetTextMatrix(row, 1, QString());
    mode.GoOnline();
    const int sent = port.bytesSent;
    EXPECT_EQ(loop.TakeStep(), ViewLoop::Step::Rest);
    EXPECT_EQ(port.bytesSent, sent);
}

TEST_F(TableLoopAlone, ReadsInARowCostTwoBytesEach) {
    mode.GoOnline();
    for (int step = 0; step < 4; ++step) // one whole pass and the turn at its end
        loop.TakeStep();
    const int before = port.bytesSent;
    for (int step = 0; step < 3; ++step)
        loop.TakeStep();
    EXPECT_EQ(port.bytesSent - before, 6);
}

TEST_F(TableLoopAlone, OfflineWithoutDataItRests) {
    EXPECT_EQ(loop.TakeStep(), ViewLoop::Step::Rest);
    EXPECT_EQ(grid.TextMatrix(2, 2), QString());
}

TEST_F(TableLoopAlone, OfflineWithNothingChangedItDoesNothing) {
    state.offlineData.Fill("11", 100);
    state.offlineLoaded = true;
    EXPECT_EQ(loop.TakeStep(), ViewLoop::Step::Rest);
    EXPECT_EQ(grid.TextMatrix(2, 2), QString("17"));
    state.offlineData.Fill("22", 100); // unseen: nothing told the loop
    EXPECT_EQ(loop.TakeStep(), ViewLoop::Step::Rest);
    EXPECT_EQ(grid.TextMatrix(2, 2), QString("17"));
    state.restart = true;
    loop.TakeStep();
    EXPECT_EQ(grid.TextMatrix(2, 2), QString("34"));
    grid.SetTextMatrix(3, 1, "B100");
    loop.TakeStep();
    EXPECT_EQ(grid.TextMatrix(3, 2), QString("34"));
}

TEST_F(TableLoopAlone, ACommunicationErrorTakesTheLinkOffline) {
    mode.GoOnline();
    rig.link.SetCommError(true);
    loop.TakeStep();
    EXPECT_FALSE(rig.link.OnlineMode());
    EXPECT_EQ(grid.TextMatrix(2, 2), QString());
}

TEST_F(TableLoopAlone, InactiveItDoesNothing) {
    mode.GoOnline();
    state.active = false;
    EXPECT_EQ(loop.TakeStep(), ViewLoop::Step::Rest);
    EXPECT_EQ(grid.TextMatrix(2, 2), QString());
}
