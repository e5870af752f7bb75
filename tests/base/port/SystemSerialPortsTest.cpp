#include "base/port/SystemSerialPorts.h"

#include "base/ApplicationFolder.h"
#include "support/TestFolder.h"
#include <gtest/gtest.h>
#include <QFile>

namespace {
class SerialPortList : public testing::Test {
protected:
    // ttyS0 is real, ttyS1 a node without hardware, as the system's own files tell.
    SerialPortList() {
        folder.Write(QStringLiteral("class/ttyS0/type"), "4\n");
        folder.Write(QStringLiteral("class/ttyS1/type"), "0\n");
        folder.MakeFolder(QStringLiteral("class/ttyUSB0"));
    }
    QString ClassFolder() const { return folder.Path(QStringLiteral("class")); }
    std::vector<FoundPort> List(const std::vector<PortCandidate>& candidates) const {
        return ListPorts(candidates, PortDevices(links, PortPlatform::Linux), PortPlatform::Linux,
                         ClassFolder());
    }

    TestFolder folder;
    QMap<int, QString> links;
};
} // namespace

TEST_F(SerialPortList, DummyNodesWithoutHardwareAreNotListed) {
    const std::vector<FoundPort> ports =
        List({{QStringLiteral("/dev/ttyS1"), QString()},
              {QStringLiteral("/dev/ttyUSB0"), QStringLiteral("Maker USB Serial")},
              {QStringLiteral("/dev/ttyS0"), QStringLiteral("Serial port")}});
    ASSERT_EQ(ports.size(), 2U);
    EXPECT_EQ(ports[0].number, 1);
    EXPECT_EQ(ports[0].device, QStringLiteral("/dev/ttyS0"));
    EXPECT_EQ(ports[1].number, 33);
    EXPECT_EQ(ports[1].description, QStringLiteral("Maker USB Serial"));
}

TEST_F(SerialPortList, StandardPortsWithHardwareAreFoundByTheSystemsFiles) {
    EXPECT_EQ(StandardPortsWithHardware(ClassFolder()), QStringList{QStringLiteral("/dev/ttyS0")});
    EXPECT_TRUE(StandardPortsWithHardware(folder.Path(QStringLiteral("nowhere"))).isEmpty());
    EXPECT_TRUE(IsDummyPort(QStringLiteral("/dev/ttyS1"), ClassFolder()));
    EXPECT_FALSE(IsDummyPort(QStringLiteral("/dev/ttyUSB0"), ClassFolder()));
}

TEST_F(SerialPortList, EachDeviceIsListedOnce) {
    const PortCandidate twice{QStringLiteral("/dev/ttyS0"), QStringLiteral("first")};
    const std::vector<FoundPort> ports = List({twice, {twice.device, QStringLiteral("second")}});
    ASSERT_EQ(ports.size(), 1U);
    EXPECT_EQ(ports[0].description, QStringLiteral("first"));
}

TEST_F(SerialPortList, DevicesBehindTheUsersLinksAreListed) {
    links[5] = folder.Write(QStringLiteral("terminal"), "");
    links[6] = folder.Path(QStringLiteral("gone"));
    const std::vector<FoundPort> ports = List({});
    ASSERT_EQ(ports.size(), 1U);
    EXPECT_EQ(ports[0].number, 5);
    EXPECT_EQ(ports[0].device, links[5]);
}

TEST_F(SerialPortList, DeviceWithoutANumberComesLast) {
    const std::vector<FoundPort> ports = List(
        {{QStringLiteral("/dev/ttyAMA0"), QString()}, {QStringLiteral("/dev/ttyACM3"), QString()}});
    ASSERT_EQ(ports.size(), 2U);
    EXPECT_EQ(ports[0].number, 68);
    EXPECT_FALSE(ports[1].number.has_value());
}

TEST_F(SerialPortList, DeviceBehindANumberIsThereOrNot) {
    const QString device = folder.Write(QStringLiteral("terminal"), "");
    folder.MakeFolder(QStringLiteral("Support/ports"));
    ASSERT_TRUE(QFile::link(device, folder.Path(QStringLiteral("Support/ports/COM5"))));
    ASSERT_TRUE(QFile::link(folder.Path(QStringLiteral("gone")),
                            folder.Path(QStringLiteral("Support/ports/COM6"))));
    const ApplicationFolder application(folder.Path());
    const SystemSerialPorts ports(application);
    EXPECT_EQ(ports.Behind(5).device, device);
    EXPECT_TRUE(ports.Behind(5).isThere);
    EXPECT_EQ(ports.Behind(6).device, folder.Path(QStringLiteral("gone")));
    EXPECT_FALSE(ports.Behind(6).isThere);
    EXPECT_TRUE(ports.Behind(99).device.isEmpty());
    EXPECT_FALSE(ports.Behind(99).isThere);
}
