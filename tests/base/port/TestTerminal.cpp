#include "base/port/TestTerminal.h"

#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <QDir>
#include <QFile>
#include <termios.h>
#include <unistd.h>

namespace {
constexpr int plentyMs = 5000;

bool HasInput(int handle) {
    pollfd source{handle, POLLIN, 0};
    return poll(&source, 1, plentyMs) > 0 && (source.revents & POLLIN) != 0;
}
} // namespace

TestTerminal::TestTerminal() {
    master_ = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_GE(master_, 0);
    EXPECT_EQ(grantpt(master_), 0);
    EXPECT_EQ(unlockpt(master_), 0);
    char name[64] = "";
    EXPECT_EQ(ptsname_r(master_, name, sizeof name), 0);
    path_ = QString::fromLocal8Bit(name);
    watch_ = open(name, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_GE(watch_, 0);
    termios settings{};
    tcgetattr(watch_, &settings);
    cfmakeraw(&settings);
    tcsetattr(watch_, TCSANOW, &settings);
}

TestTerminal::~TestTerminal() {
    Vanish();
    close(watch_);
}

void TestTerminal::Send(const QByteArray& bytes) {
    EXPECT_EQ(write(master_, bytes.constData(), bytes.size()), bytes.size());
}

QByteArray TestTerminal::Received(int count) {
    QByteArray all;
    char room[256];
    while (all.size() < count && HasInput(master_)) {
        const ssize_t length = read(master_, room, sizeof room);
        if (length <= 0)
            break;
        all.append(room, length);
    }
    return all;
}

bool TestTerminal::DriverHoldsInput() const {
    return HasInput(watch_);
}

void TestTerminal::Vanish() {
    if (master_ >= 0)
        close(master_);
    master_ = -1;
}

void PortOnFolder::Link(int number, const QString& target) {
    const QString ports = directory.filePath(QStringLiteral("Support/ports"));
    ASSERT_TRUE(QDir().mkpath(ports));
    const QString link = QStringLiteral("%1/COM%2").arg(ports).arg(number);
    QFile::remove(link);
    ASSERT_TRUE(QFile::link(target, link));
}

void PortOnFolder::OpenOn(const QString& device) {
    Link(1, device);
    port.SetCommPort(1);
    port.SetInputLen(1);
    port.SetInputMode(1);
    port.SetPortOpen(true);
}
