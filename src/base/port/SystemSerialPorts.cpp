#include "base/port/SystemSerialPorts.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSerialPortInfo>

namespace {
constexpr int lowestPort = 1;
constexpr int highestPort = 99;

// Kind of the hardware by the number that the system keeps for it, 0 for none; empty where it
// keeps no number.
QByteArray HardwareKind(const QString& name, const QString& classFolder) {
    QFile file(classFolder + u'/' + name + QLatin1String("/type"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

bool Lists(const std::vector<FoundPort>& ports, const QString& device) {
    return std::any_of(ports.begin(), ports.end(),
                       [&](const FoundPort& port) { return port.device == device; });
}

// Windows names its ports by themselves: a device is there when the list of ports has it.
bool IsThere(const QString& device) {
    if (CurrentPortPlatform() == PortPlatform::Windows)
        return !QSerialPortInfo(device).isNull();
    return QFileInfo::exists(device) && !IsDummyPort(device);
}

std::vector<PortCandidate> SystemCandidates() {
    std::vector<PortCandidate> candidates;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        const bool windows = CurrentPortPlatform() == PortPlatform::Windows;
        const QString device = windows ? info.portName() : info.systemLocation();
        QStringList words{info.manufacturer(), info.description()};
        words.removeAll(QString());
        words.removeDuplicates();
        candidates.push_back({device, words.join(u' ')});
    }
    for (const QString& device : StandardPortsWithHardware())
        candidates.push_back({device, QStringLiteral("Serial port")});
    return candidates;
}
} // namespace

bool IsDummyPort(const QString& device, const QString& classFolder) {
    return HardwareKind(QFileInfo(device).fileName(), classFolder) == "0";
}

QStringList StandardPortsWithHardware(const QString& classFolder) {
    QStringList devices;
    for (const QString& name : QDir(classFolder).entryList({QStringLiteral("ttyS*")})) {
        const QByteArray kind = HardwareKind(name, classFolder);
        if (!kind.isEmpty() && kind != "0")
            devices << QLatin1String("/dev/") + name;
    }
    return devices;
}

std::vector<FoundPort> ListPorts(const std::vector<PortCandidate>& candidates,
                                 const PortDevices& devices, PortPlatform platform,
                                 const QString& classFolder) {
    std::vector<FoundPort> ports;
    for (const PortCandidate& candidate : candidates) {
        if (!IsDummyPort(candidate.device, classFolder) && !Lists(ports, candidate.device))
            ports.push_back(
                {devices.PortNumber(candidate.device), candidate.device, candidate.description});
    }
    for (int number = lowestPort; number <= highestPort; ++number) {
        const QString device = devices.Device(number);
        const bool linked = device != StandardPortDevice(number, platform);
        if (linked && QFileInfo::exists(device) && !Lists(ports, device))
            ports.push_back({number, device, QStringLiteral("Linked as COM%1").arg(number)});
    }
    std::stable_sort(ports.begin(), ports.end(), [](const FoundPort& one, const FoundPort& other) {
        return one.number.value_or(highestPort + 1) < other.number.value_or(highestPort + 1);
    });
    return ports;
}

std::vector<FoundPort> SystemSerialPorts::Found() const {
    return ListPorts(SystemCandidates(), PortDevices::Read(folder_), CurrentPortPlatform());
}

PortBehind SystemSerialPorts::Behind(int number) const {
    const QString device = PortDevices::Read(folder_).Device(number);
    return {device, !device.isEmpty() && IsThere(device)};
}
