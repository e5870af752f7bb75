#include "targetboard/ControlTable.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace {
enum class State { Opened, Online, OnlineThenFailed, Offline };

// "x" enabled, "-" disabled, "." hidden.
struct Row {
    const char* name;
    qint16 board;
    State state;
    const char* entries; ///< set-up entries 0 to 7
    const char* clock;   ///< lblTargetBoardTime, lblTargetBoardDate, the two buttons
    const char* others;  ///< cmdGoOnline, cmdResetFaults, lblRevIdentInPLC, slot label
};
void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

constexpr Row rows[] = {
    {"K2012Opened", 50, State::Opened, "x.------", "x---", "--xx"},
    {"K2016Opened", 54, State::Opened, "x.xxxxxx", "xxxx", "--x."},
    {"T7110Opened", 65, State::Opened, "xxxxxxxx", "xxxx", "--x."},
    {"R6500Opened", 68, State::Opened, "x.------", "x---", "--x."},
    {"K2010Opened", 49, State::Opened, "x.------", "x---", "--x."},
    {"K2012Online", 50, State::Online, "x.------", "----", "--xx"},
    {"K2016Online", 54, State::Online, "x.xxxxxx", "xxxx", "--x."},
    {"T7110Online", 65, State::Online, "xxxxxxxx", "xxxx", "--x."},
    {"R6500Online", 68, State::Online, "x.------", "----", "--x."},
    {"LimitSwitchOnline", 69, State::Online, "x.------", "----", "--x."},
    {"T7110OnlineThenFailed", 65, State::OnlineThenFailed, "xxxxxxxx", "xxxx", "x-x."},
    {"K2012Offline", 50, State::Offline, "-.------", "----", "x--x"},
    {"K2016Offline", 54, State::Offline, "-.------", "----", "x--."},
    {"T7110Offline", 65, State::Offline, "--------", "----", "x--."},
    {"R6500Offline", 68, State::Offline, "-.------", "----", "x--."},
};

ControlTable InState(const Row& row) {
    ControlTable controls(row.board);
    if (row.state == State::Opened)
        return controls;
    controls.GoOffline(); // each state follows the other: nothing may stick
    if (row.state == State::Offline) {
        controls.GoOnline();
        controls.SetResetFaults(true);
        controls.EndFirstPass(false);
        controls.GoOffline();
        return controls;
    }
    controls.GoOnline();
    controls.EndFirstPass(row.state == State::OnlineThenFailed);
    return controls;
}

std::string Marks(std::initializer_list<bool> enabled) {
    std::string marks;
    for (const bool on : enabled)
        marks += on ? 'x' : '-';
    return marks;
}

class ControlTableTest : public testing::TestWithParam<Row> {};
} // namespace

TEST_P(ControlTableTest, ShowsAndEnables) {
    const ControlTable controls = InState(GetParam());
    std::string entries;
    for (int i = 0; i < setupEntryCount; ++i) {
        const ControlTable::Entry& entry = controls.Setup(i);
        entries += !entry.visible ? '.' : entry.enabled ? 'x' : '-';
    }
    EXPECT_EQ(entries, GetParam().entries);
    EXPECT_EQ(Marks({controls.lblTargetBoardTime(), controls.lblTargetBoardDate(),
                     controls.cmdSetToCurrTime(), controls.cmdSetToCurrDate()}),
              GetParam().clock);
    EXPECT_EQ(
        Marks({controls.cmdGoOnline(), controls.cmdResetFaults(), controls.lblRevIdentInPLC()}) +
            (controls.CoCpuSlotVisible() ? 'x' : '.'),
        GetParam().others);
}

INSTANTIATE_TEST_SUITE_P(Boards, ControlTableTest, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(ControlTable, AnAddressIsShownWhereItIsVisibleAndAClockPartWhereItIsEnabled) {
    ControlTable k2016(54);
    k2016.GoOnline();
    EXPECT_TRUE(k2016.ShowsValue(0));
    EXPECT_FALSE(k2016.ShowsValue(1));
    EXPECT_TRUE(k2016.ShowsValue(7));
    k2016.GoOffline();
    EXPECT_TRUE(k2016.ShowsValue(0));
    EXPECT_FALSE(k2016.ShowsValue(7));
}
