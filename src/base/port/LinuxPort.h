#pragma once

#include <optional>
#include <QString>
#include <vector>

/// What the operating system is asked about serial devices beyond what Qt offers. These are the
/// only calls in the program that exist on one system alone; on other systems than Linux each gives
/// the neutral answer named with it, so that no caller needs to know where it runs.
namespace LinuxPort {

/// A process that has a device open.
struct Holder {
    qint64 process = 0; ///< process id
    QString program;    ///< name of the program; empty when it is not known
};

/// A device node as it stands in the file system.
struct Node {
    bool exists = false;
    bool isCharacterDevice = false;
    bool mayUse = false;       ///< this process may read and write it
    QString owner;             ///< user name, or the number where it has none
    QString group;             ///< group name, or the number where it has none
    bool groupMayUse = false;  ///< members of the group may read and write it
    bool userIsMember = false; ///< the user database lists this user in the group
};

/// What stands at `device`, a full path. Elsewhere: a device that is there and may be used.
Node DescribeNode(const QString& device);

/// The processes that have `device` open, as far as this user may see them; the one whose lock
/// file stands first. This process counts too. Elsewhere: none.
std::vector<Holder> HoldersOf(const QString& device);

/// The device node was removed, as happens when an adapter is pulled out. Elsewhere: false.
bool NodeIsGone(const QString& device);

/// The driver has cut the connection behind an open handle. Elsewhere: false.
bool HungUp(qintptr handle);

/// Received bytes that the driver holds, 0 or more. Elsewhere: 0.
int DriverInputCount(qintptr handle);

/// Whether the driver hands over each byte at once (true) or gathers bytes for some milliseconds
/// (false); nothing when it cannot say. Elsewhere: nothing.
std::optional<bool> LowLatency(qintptr handle);

/// Asks the driver for the one or the other. A driver that cannot is no error.
void SetLowLatency(qintptr handle, bool on);

} // namespace LinuxPort
