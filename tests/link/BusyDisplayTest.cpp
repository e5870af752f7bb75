#include "support/LinkUnderTest.h"
#include <gtest/gtest.h>

namespace {
class BusyDisplayOfTheLink : public testing::Test, protected LinkUnderTest {
protected:
    BusyDisplayOfTheLink() {
        GoOnline();
        EnterReadMode();
    }
    void ReadB100() { link.RSRead(QStringLiteral("B100")); }
};
} // namespace

TEST_F(BusyDisplayOfTheLink, IsNotToldOfShortWaits) {
    port.Reply(0, 0.249);
    port.Reply(0, 0.249);
    ReadB100();
    EXPECT_TRUE(busy.waits.empty());
    EXPECT_EQ(busy.ends, 0);
}

TEST_F(BusyDisplayOfTheLink, IsToldAfterAQuarterOfASecondAndEveryTenthFromThenOn) {
    port.Reply(0, 0.6);
    port.Reply(0);
    ReadB100();
    ASSERT_EQ(busy.waits.size(), 4u);
    EXPECT_NEAR(busy.waits[0], 0.25, 1e-6);
    EXPECT_NEAR(busy.waits[1], 0.35, 1e-6);
    EXPECT_NEAR(busy.waits[3], 0.55, 1e-6);
    EXPECT_EQ(busy.ends, 1);
}

TEST_F(BusyDisplayOfTheLink, ADeadLineIsOneWaitThatEndsBeforeTheAlert) {
    ExpectAlert(NoReplyAlert(), 2, [&] {
        EXPECT_EQ(busy.ends, 1);
        EXPECT_GT(busy.waits.back(), 4.8) << "counted from the first byte";
    });
    ReadB100();
    EXPECT_EQ(busy.ends, 1);
}

TEST_F(BusyDisplayOfTheLink, ARetryBeginsAnotherWait) {
    size_t shownBefore = 0;
    ExpectAlert(NoReplyAlert(), 4, [&] { shownBefore = busy.waits.size(); });
    ExpectAlert(NoReplyAlert(), 2, [&] { EXPECT_EQ(busy.ends, 2); });
    ReadB100();
    ASSERT_GT(busy.waits.size(), shownBefore);
    EXPECT_NEAR(busy.waits[shownBefore], 0.25, 1e-6);
    EXPECT_EQ(busy.ends, 2);
}
