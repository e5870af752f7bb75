#include "base/port/PortDevices.h"

#include "base/ApplicationFolder.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {
using P = PortPlatform;

struct Row {
    int port;
    const char* device;
};

QString Touch(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return path;
}

// A folder with Support/ports and some files that stand for devices.
class PortLinks : public testing::Test {
protected:
    PortLinks() { QDir().mkpath(Path(QStringLiteral("Support/ports"))); }
    QString Path(const QString& name) const { return directory_.filePath(name); }
    void Link(const QString& target, const QString& name) {
        ASSERT_TRUE(QFile::link(target, Path(QStringLiteral("Support/ports/") + name)));
    }
    PortDevices Read() const {
        return PortDevices::Read(ApplicationFolder(directory_.path()), P::Linux);
    }

    QTemporaryDir directory_;
};
} // namespace

TEST(StandardPortDevice, LinuxNumbersFollowTheFamilies) {
    const Row rows[] = {{1, "/dev/ttyS0"},
                        {32, "/dev/ttyS31"},
                        {33, "/dev/ttyUSB0"},
                        {64, "/dev/ttyUSB31"},
                        {65, "/dev/ttyACM0"},
                        {96, "/dev/ttyACM31"},
                        {97, ""},
                        {99, ""},
                        {0, ""},
                        {-1, ""},
                        {100, ""}};
    for (const Row& row : rows)
        EXPECT_EQ(StandardPortDevice(row.port, P::Linux), QLatin1String(row.device)) << row.port;
}

TEST(StandardPortDevice, WindowsNumbersAreTheNames) {
    const Row rows[] = {{1, "COM1"}, {9, "COM9"}, {10, "COM10"}, {99, "COM99"}, {0, ""}, {100, ""}};
    for (const Row& row : rows)
        EXPECT_EQ(StandardPortDevice(row.port, P::Windows), QLatin1String(row.device)) << row.port;
}

TEST(PortDevices, EveryLinuxDeviceHasItsNumberBack) {
    const PortDevices devices({}, P::Linux);
    for (int port = 1; port <= 96; ++port)
        EXPECT_EQ(devices.PortNumber(StandardPortDevice(port, P::Linux)), port);
    EXPECT_EQ(devices.PortNumber(QStringLiteral("/dev/ttyS32")), std::nullopt);
    EXPECT_EQ(devices.PortNumber(QStringLiteral("/dev/ttyUSB99")), std::nullopt);
    EXPECT_EQ(devices.PortNumber(QString()), std::nullopt);
}

TEST(PortDevices, WindowsDeviceHasItsNumberBack) {
    const PortDevices devices({}, P::Windows);
    EXPECT_EQ(devices.PortNumber(QStringLiteral("COM7")), 7);
    EXPECT_EQ(devices.Device(7), QStringLiteral("COM7"));
}

TEST(PortDevices, LinkComesBeforeTheStandardDevice) {
    const PortDevices devices({{5, QStringLiteral("/dev/ttyXR0")}}, P::Linux);
    EXPECT_EQ(devices.Device(5), QStringLiteral("/dev/ttyXR0"));
    EXPECT_EQ(devices.PortNumber(QStringLiteral("/dev/ttyXR0")), 5);
    // COM5 leads elsewhere now, so nothing leads to the fifth standard port.
    EXPECT_EQ(devices.PortNumber(QStringLiteral("/dev/ttyS4")), std::nullopt);
}

TEST(PortDevices, LowestOfSeveralLinksIsTheNumber) {
    const QString usb = QStringLiteral("/dev/ttyUSB0");
    const PortDevices devices({{9, usb}, {2, usb}}, P::Linux);
    EXPECT_EQ(devices.PortNumber(usb), 2);
    EXPECT_EQ(devices.Device(33), usb);
}

TEST_F(PortLinks, LinkOfAnyLetterCaseIsFound) {
    const QString device = Touch(Path(QStringLiteral("device")));
    Link(device, QStringLiteral("com3"));
    EXPECT_EQ(Read().Device(3), device);
}

TEST_F(PortLinks, ExactNameComesBeforeOtherLetterCase) {
    const QString right = Touch(Path(QStringLiteral("right")));
    const QString wrong = Touch(Path(QStringLiteral("wrong")));
    Link(wrong, QStringLiteral("com3"));
    Link(right, QStringLiteral("COM3"));
    Link(wrong, QStringLiteral("cOM3"));
    EXPECT_EQ(Read().Device(3), right);
}

TEST_F(PortLinks, LinkToALinkIsResolvedToTheDevice) {
    const QString device = Touch(Path(QStringLiteral("device")));
    const QString byId = Path(QStringLiteral("by-id"));
    ASSERT_TRUE(QFile::link(device, byId));
    Link(byId, QStringLiteral("COM1"));
    EXPECT_EQ(Read().Device(1), device);
    EXPECT_EQ(Read().PortNumber(byId), 1);
    EXPECT_EQ(Read().PortNumber(device), 1);
}

TEST_F(PortLinks, LinkToAnUnpluggedDeviceNamesIt) {
    const QString byId = Path(QStringLiteral("by-id"));
    Link(byId, QStringLiteral("COM1"));
    EXPECT_EQ(Read().Device(1), byId);
}

TEST_F(PortLinks, LinksInACircleEnd) {
    Link(Path(QStringLiteral("Support/ports/COM2")), QStringLiteral("COM1"));
    Link(Path(QStringLiteral("Support/ports/COM1")), QStringLiteral("COM2"));
    EXPECT_FALSE(Read().Device(1).isEmpty());
}

TEST_F(PortLinks, OtherNamesAndPlainFilesDoNotCount) {
    const QString device = Touch(Path(QStringLiteral("device")));
    Link(device, QStringLiteral("COM0"));
    Link(device, QStringLiteral("COM01"));
    Link(device, QStringLiteral("COM100"));
    Link(device, QStringLiteral("COM1x"));
    Touch(Path(QStringLiteral("Support/ports/COM2")));
    EXPECT_EQ(Read().PortNumber(device), std::nullopt);
    EXPECT_EQ(Read().Device(2), QStringLiteral("/dev/ttyS1"));
}

TEST_F(PortLinks, NoFolderOfLinksLeavesTheStandardDevices) {
    QDir(Path(QStringLiteral("Support"))).removeRecursively();
    EXPECT_EQ(Read().PortNumber(QStringLiteral("/dev/ttyACM5")), 70);
}
