#include "base/port/PortTrouble.h"

#include "base/RunTimeError.h"
#include <QCoreApplication>

namespace {
QString DeviceOf(int port, const QString& device) {
    const QString number = QStringLiteral("COM%1").arg(port);
    return device == number ? QStringLiteral("The port %1").arg(number)
                            : QStringLiteral("The device %1 (COM%2)").arg(device).arg(port);
}

QString ForbiddenText(const LinuxPort::Node& node) {
    if (!node.groupMayUse)
        return QStringLiteral(" may be used by its owner \"%1\" only. Have it given to a group "
                              "whose members may read and write it, and join that group.")
            .arg(node.owner);
    if (node.userIsMember)
        return QStringLiteral(" may be used by members of the group \"%1\". You have become one "
                              "since you logged in: log out and in again.")
            .arg(node.group);
    return QStringLiteral(" may be used by members of the group \"%1\" only. Have your user name "
                          "added to this group, then log out and in again.")
        .arg(node.group);
}

QString BusyText(const PortFacts& facts) {
    if (facts.holders.empty())
        return QStringLiteral(" is in use by another program, or cannot be locked against others: "
                              "%1.")
            .arg(facts.systemText);
    const LinuxPort::Holder& holder = facts.holders.front();
    if (holder.process == facts.ownProcess)
        return QStringLiteral(" is already open in this program (process %1).").arg(holder.process);
    const QString program =
        holder.program.isEmpty() ? QStringLiteral("another program") : holder.program;
    return QStringLiteral(" is in use by %1 (process %2). Close that program first.")
        .arg(program)
        .arg(holder.process);
}

QString NoDeviceText(int port) {
    return QStringLiteral("COM%1 stands for no device on this computer. Choose another port, or "
                          "make the link Support/ports/COM%1 to a device.")
        .arg(port);
}
} // namespace

PortFacts GatherPortFacts(int port, const QString& device, bool refusedAsBusy,
                          const QString& systemText) {
    PortFacts facts;
    facts.port = port;
    facts.device = device;
    facts.node = LinuxPort::DescribeNode(device);
    facts.holders = LinuxPort::HoldersOf(device);
    facts.refusedAsBusy = refusedAsBusy;
    facts.ownProcess = QCoreApplication::applicationPid();
    facts.systemText = systemText;
    return facts;
}

PortTrouble ExplainPortTrouble(const PortFacts& facts) {
    using Kind = PortTroubleKind;
    if (facts.device.isEmpty())
        return {Kind::NoDevice, ErrorNumber::DeviceUnavailable, NoDeviceText(facts.port)};
    const QString device = DeviceOf(facts.port, facts.device);
    if (!facts.node.exists)
        return {Kind::Missing, ErrorNumber::DeviceUnavailable,
                device + QLatin1String(" is not there. Check that its adapter is plugged in, or "
                                       "choose another port.")};
    if (!facts.node.isCharacterDevice)
        return {Kind::NotAPort, ErrorNumber::DeviceUnavailable,
                device + QLatin1String(" is not a serial port.")};
    if (!facts.node.mayUse)
        return {Kind::Forbidden, ErrorNumber::PermissionDenied, device + ForbiddenText(facts.node)};
    if (facts.refusedAsBusy)
        return {Kind::Busy, ErrorNumber::PortAlreadyOpen, device + BusyText(facts)};
    return {Kind::Refused, ErrorNumber::DeviceUnavailable,
            device + QStringLiteral(" cannot be used as a serial port: %1.").arg(facts.systemText)};
}

PortTrouble LostPortTrouble(int port, const QString& device) {
    return {PortTroubleKind::Lost, ErrorNumber::DeviceIOError,
            DeviceOf(port, device) +
                QLatin1String(" is lost: its adapter was unplugged, or its driver has failed.")};
}
