#pragma once

#include "base/port/PortDevices.h"
#include "base/SerialPorts.h"
#include <QStringList>

class ApplicationFolder;

/// Where the system keeps what it knows of its terminal devices; only Linux has it.
inline const QString terminalClassFolder = QStringLiteral("/sys/class/tty");

/// A device that may be shown as a port.
struct PortCandidate {
    QString device;
    QString description;
};

/// True for a standard port without hardware behind it: the system keeps nodes of the family
/// /dev/ttyS for ports that a computer could have. `classFolder` tells which kind each is of.
bool IsDummyPort(const QString& device, const QString& classFolder = terminalClassFolder);

/// The standard ports (/dev/ttyS...) with hardware behind them, also those that this user may not
/// open. Empty on a system without `classFolder`.
QStringList StandardPortsWithHardware(const QString& classFolder = terminalClassFolder);

/// The list of ports from what the system offers: no dummies, each device once, with its number,
/// then the devices that the user's own links lead to. By number; those without one last.
std::vector<FoundPort> ListPorts(const std::vector<PortCandidate>& candidates,
                                 const PortDevices& devices, PortPlatform platform,
                                 const QString& classFolder = terminalClassFolder);

/// The ports of the machine.
class SystemSerialPorts final : public SerialPorts {
public:
    /// `folder` holds the links that name devices; it must outlive the object.
    explicit SystemSerialPorts(const ApplicationFolder& folder) : folder_(folder) {}

    std::vector<FoundPort> Found() const override;
    PortBehind Behind(int number) const override;

private:
    const ApplicationFolder& folder_;
};
