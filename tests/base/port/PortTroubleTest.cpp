#include "base/port/PortTrouble.h"

#include "base/RunTimeError.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace {
using Kind = PortTroubleKind;

// A device that is there, free and allowed.
PortFacts Usable() {
    PortFacts facts;
    facts.port = 33;
    facts.device = QStringLiteral("/dev/ttyUSB0");
    facts.node.exists = facts.node.isCharacterDevice = facts.node.mayUse = true;
    facts.node.owner = QStringLiteral("root");
    facts.node.group = QStringLiteral("dialout");
    facts.node.groupMayUse = true;
    facts.ownProcess = 500;
    facts.systemText = QStringLiteral("Input/output error");
    return facts;
}

void ExpectTrouble(const PortFacts& facts, Kind kind, int number, const char* description) {
    const PortTrouble trouble = ExplainPortTrouble(facts);
    EXPECT_EQ(trouble.kind, kind);
    EXPECT_EQ(trouble.number, number);
    EXPECT_EQ(trouble.description.toStdString(), description);
}
} // namespace

TEST(PortTrouble, NumberWithoutADevice) {
    PortFacts facts;
    facts.port = 97;
    ExpectTrouble(facts, Kind::NoDevice, ErrorNumber::DeviceUnavailable,
                  "COM97 stands for no device on this computer. Choose another port, or make the "
                  "link Support/ports/COM97 to a device.");
}

TEST(PortTrouble, MissingDevice) {
    PortFacts facts = Usable();
    facts.node = {};
    ExpectTrouble(facts, Kind::Missing, ErrorNumber::DeviceUnavailable,
                  "The device /dev/ttyUSB0 (COM33) is not there. Check that its adapter is plugged "
                  "in, or choose another port.");
}

TEST(PortTrouble, PlainFileInPlaceOfADevice) {
    PortFacts facts = Usable();
    facts.node.isCharacterDevice = false;
    ExpectTrouble(facts, Kind::NotAPort, ErrorNumber::DeviceUnavailable,
                  "The device /dev/ttyUSB0 (COM33) is not a serial port.");
}

TEST(PortTrouble, ForbiddenDeviceNamesTheGroupToJoin) {
    PortFacts facts = Usable();
    facts.node.mayUse = false;
    facts.refusedAsBusy = true;
    ExpectTrouble(facts, Kind::Forbidden, ErrorNumber::PermissionDenied,
                  "The device /dev/ttyUSB0 (COM33) may be used by members of the group \"dialout\" "
                  "only. Have your user name added to this group, then log out and in again.");
}

TEST(PortTrouble, ForbiddenToAMemberWhoHasNotLoggedInAgain) {
    PortFacts facts = Usable();
    facts.node.mayUse = false;
    facts.node.userIsMember = true;
    ExpectTrouble(facts, Kind::Forbidden, ErrorNumber::PermissionDenied,
                  "The device /dev/ttyUSB0 (COM33) may be used by members of the group "
                  "\"dialout\". You have become one since you logged in: log out and in again.");
}

TEST(PortTrouble, ForbiddenToTheGroupTooNamesTheOwner) {
    PortFacts facts = Usable();
    facts.node.mayUse = facts.node.groupMayUse = false;
    ExpectTrouble(facts, Kind::Forbidden, ErrorNumber::PermissionDenied,
                  "The device /dev/ttyUSB0 (COM33) may be used by its owner \"root\" only. Have it "
                  "given to a group whose members may read and write it, and join that group.");
}

TEST(PortTrouble, BusyDeviceNamesTheProgramThatHoldsIt) {
    PortFacts facts = Usable();
    facts.refusedAsBusy = true;
    facts.holders = {{1234, QStringLiteral("minicom")}, {77, QStringLiteral("other")}};
    ExpectTrouble(facts, Kind::Busy, ErrorNumber::PortAlreadyOpen,
                  "The device /dev/ttyUSB0 (COM33) is in use by minicom (process 1234). Close that "
                  "program first.");
}

TEST(PortTrouble, BusyDeviceOfThisProgram) {
    PortFacts facts = Usable();
    facts.refusedAsBusy = true;
    facts.holders = {{500, QStringLiteral("quentor")}};
    ExpectTrouble(facts, Kind::Busy, ErrorNumber::PortAlreadyOpen,
                  "The device /dev/ttyUSB0 (COM33) is already open in this program (process 500).");
}

TEST(PortTrouble, BusyDeviceOfSomebodyUnknown) {
    PortFacts facts = Usable();
    facts.systemText = QStringLiteral("Permission denied");
    facts.refusedAsBusy = true;
    ExpectTrouble(facts, Kind::Busy, ErrorNumber::PortAlreadyOpen,
                  "The device /dev/ttyUSB0 (COM33) is in use by another program, or cannot be "
                  "locked against others: Permission denied.");
}

TEST(PortTrouble, DeviceThatTheSystemRefuses) {
    ExpectTrouble(Usable(), Kind::Refused, ErrorNumber::DeviceUnavailable,
                  "The device /dev/ttyUSB0 (COM33) cannot be used as a serial port: Input/output "
                  "error.");
}

TEST(PortTrouble, DeviceNamedAsItsNumberIsNotNamedTwice) {
    PortFacts facts = Usable();
    facts.port = 4;
    facts.device = QStringLiteral("COM4");
    ExpectTrouble(facts, Kind::Refused, ErrorNumber::DeviceUnavailable,
                  "The port COM4 cannot be used as a serial port: Input/output error.");
}

TEST(PortTrouble, LostDevice) {
    const PortTrouble trouble = LostPortTrouble(33, QStringLiteral("/dev/ttyUSB0"));
    EXPECT_EQ(trouble.kind, Kind::Lost);
    EXPECT_EQ(trouble.number, ErrorNumber::DeviceIOError);
    EXPECT_EQ(trouble.description.toStdString(),
              "The device /dev/ttyUSB0 (COM33) is lost: its adapter was unplugged, or its driver "
              "has failed.");
}

TEST(DescribeNode, ReadsOwnerGroupAndPermissions) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                        QFile::WriteGroup);
    LinuxPort::Node node = LinuxPort::DescribeNode(file.fileName());
    EXPECT_TRUE(node.exists);
    EXPECT_FALSE(node.isCharacterDevice);
    EXPECT_TRUE(node.mayUse);
    EXPECT_EQ(node.owner, QFileInfo(file.fileName()).owner());
    EXPECT_EQ(node.group, QFileInfo(file.fileName()).group());
    EXPECT_TRUE(node.groupMayUse);
    EXPECT_TRUE(node.userIsMember);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    node = LinuxPort::DescribeNode(file.fileName());
    EXPECT_FALSE(node.groupMayUse);
}

TEST(DescribeNode, CharacterDeviceAndMissingNode) {
    EXPECT_TRUE(LinuxPort::DescribeNode(QStringLiteral("/dev/null")).isCharacterDevice);
    EXPECT_FALSE(LinuxPort::DescribeNode(QStringLiteral("/dev/nothing-here")).exists);
    EXPECT_TRUE(LinuxPort::NodeIsGone(QStringLiteral("/dev/nothing-here")));
    EXPECT_FALSE(LinuxPort::NodeIsGone(QStringLiteral("/dev/null")));
}
