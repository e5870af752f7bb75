#include "base/port/LinuxPort.h"

#ifdef Q_OS_LINUX

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <grp.h>
#include <linux/serial.h>
#include <poll.h>
#include <pwd.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace LinuxPort {
namespace {

// Room for one entry of the user or group database; large groups list all their members.
using DatabaseRoom = std::array<char, 16384>;

std::optional<struct stat> StatusOf(const QString& path) {
    struct stat status {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

QString UserName(uid_t user) {
    DatabaseRoom room;
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(user, &entry, room.data(), room.size(), &found) != 0 || !found)
        return QString::number(user);
    return QString::fromLocal8Bit(found->pw_name);
}

// Name of a group, and whether this process's user is listed in it: as one of its members, or
// through the user's own entry.
void DescribeGroup(gid_t number, Node& node) {
    node.group = QString::number(number);
    DatabaseRoom userRoom;
    passwd userEntry{};
    passwd* user = nullptr;
    getpwuid_r(geteuid(), &userEntry, userRoom.data(), userRoom.size(), &user);
    node.userIsMember = user && user->pw_gid == number;
    DatabaseRoom room;
    group entry{};
    group* found = nullptr;
    if (getgrgid_r(number, &entry, room.data(), room.size(), &found) != 0 || !found)
        return;
    node.group = QString::fromLocal8Bit(found->gr_name);
    for (char** member = found->gr_mem; user && *member; ++member)
        node.userIsMember = node.userIsMember || qstrcmp(*member, user->pw_name) == 0;
}

QString ProgramOf(qint64 process) {
    QFile name(QStringLiteral("/proc/%1/comm").arg(process));
    if (!name.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromLocal8Bit(name.readAll()).trimmed();
}

bool HasOpen(const QString& process, dev_t device) {
    const QDir handles(QStringLiteral("/proc/%1/fd").arg(process));
    const QStringList names =
        handles.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    return std::any_of(names.begin(), names.end(), [&](const QString& name) {
        const auto status = StatusOf(handles.filePath(name));
        return status && S_ISCHR(status->st_mode) && status->st_rdev == device;
    });
}

// Process id in the lock file that serial programs agree on; 0 when there is none.
qint64 LockOwner(const QString& device) {
    QString name = device.startsWith(QLatin1String("/dev/")) ? device.mid(5) : device;
    name = QLatin1String("/LCK..") + name.replace(u'/', u'_');
    for (const char* folder : {"/var/lock", "/run/lock", "/var/lock/lockdev", "/tmp", "/var/tmp"}) {
        QFile lock(QLatin1String(folder) + name);
        if (lock.open(QIODevice::ReadOnly))
            return lock.readLine(64).trimmed().toLongLong();
    }
    return 0;
}

} // namespace

Node DescribeNode(const QString& device) {
    Node node;
    const auto status = StatusOf(device);
    if (!status)
        return node;
    node.exists = true;
    node.isCharacterDevice = S_ISCHR(status->st_mode);
    node.mayUse =
        faccessat(AT_FDCWD, QFile::encodeName(device).constData(), R_OK | W_OK, AT_EACCESS) == 0;
    node.owner = UserName(status->st_uid);
    node.groupMayUse = (status->st_mode & S_IRGRP) != 0 && (status->st_mode & S_IWGRP) != 0;
    DescribeGroup(status->st_gid, node);
    return node;
}

std::vector<Holder> HoldersOf(const QString& device) {
    std::vector<Holder> holders;
    const auto status = StatusOf(device);
    if (!status || !S_ISCHR(status->st_mode))
        return holders;
    const QStringList entries =
        QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        bool isProcess = false;
        const qint64 process = entry.toLongLong(&isProcess);
        if (isProcess && HasOpen(entry, status->st_rdev))
            holders.push_back({process, ProgramOf(process)});
    }
    const qint64 owner = LockOwner(device);
    const auto place = std::find_if(holders.begin(), holders.end(),
                                    [&](const Holder& holder) { return holder.process == owner; });
    if (place != holders.end())
        std::rotate(holders.begin(), place, place + 1);
    else if (owner > 0 && !ProgramOf(owner).isEmpty())
        holders.insert(holders.begin(), {owner, ProgramOf(owner)});
    return holders;
}

bool NodeIsGone(const QString& device) {
    return !StatusOf(device);
}

bool HungUp(qintptr handle) {
    pollfd source{static_cast<int>(handle), 0, 0};
    return poll(&source, 1, 0) > 0 && (source.revents & (POLLHUP | POLLERR | POLLNVAL)) != 0;
}

int DriverInputCount(qintptr handle) {
    int count = 0;
    return ioctl(static_cast<int>(handle), FIONREAD, &count) == 0 ? std::max(count, 0) : 0;
}

std::optional<bool> LowLatency(qintptr handle) {
    serial_struct settings{};
    if (ioctl(static_cast<int>(handle), TIOCGSERIAL, &settings) != 0)
        return std::nullopt;
    return (settings.flags & ASYNC_LOW_LATENCY) != 0;
}

void SetLowLatency(qintptr handle, bool on) {
    serial_struct settings{};
    if (ioctl(static_cast<int>(handle), TIOCGSERIAL, &settings) != 0)
        return;
    settings.flags = on ? settings.flags | ASYNC_LOW_LATENCY : settings.flags & ~ASYNC_LOW_LATENCY;
    ioctl(static_cast<int>(handle), TIOCSSERIAL, &settings);
}

} // namespace LinuxPort

#else

namespace LinuxPort {

Node DescribeNode(const QString&) {
    Node node;
    node.exists = node.isCharacterDevice = node.mayUse = true;
    return node;
}

std::vector<Holder> HoldersOf(const QString&) {
    return {};
}

bool NodeIsGone(const QString&) {
    return false;
}

bool HungUp(qintptr) {
    return false;
}

int DriverInputCount(qintptr) {
    return 0;
}

std::optional<bool> LowLatency(qintptr) {
    return std::nullopt;
}

void SetLowLatency(qintptr, bool) {}

} // namespace LinuxPort

#endif
