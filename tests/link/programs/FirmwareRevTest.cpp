#include "link/programs/ProgramFixture.h"

namespace {
class FirmwareRevTest : public WireTest {};
} // namespace

TEST_F(FirmwareRevTest, FirmwareRevWhileOfflineIsMinus1AndNothingGoesOut) {
    EXPECT_EQ(link.FirmwareRev(), -1);
    GoOnline();
    link.SetOnlineMode(false);
    EXPECT_EQ(link.FirmwareRev(), -1);
    CheckWire();
}

TEST_F(FirmwareRevTest, FirmwareRevInACommunicationFailureIsMinus1AndNothingGoesOut) {
    GoOnline();
    link.SetCommError(true);
    EXPECT_EQ(link.FirmwareRev(), -1);
    CheckWire();
}

TEST_F(FirmwareRevTest, FirmwareRevOnlineIsByte8159) {
    GoOnline();
    Handshake(0x01);
    ReadByte(8159, 200);
    EXPECT_EQ(link.FirmwareRev(), 200);
    CheckWire();
}
