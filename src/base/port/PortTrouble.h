#pragma once

#include "base/port/LinuxPort.h"
#include <QString>
#include <vector>

/// Why a port cannot be used.
enum class PortTroubleKind {
    NoDevice,  ///< the port number stands for no device
    Missing,   ///< the device is not there
    NotAPort,  ///< something else than a serial device stands there
    Forbidden, ///< the user may not use the device
    Busy,      ///< a program has the device open
    Lost,      ///< the device went away while it was in use
    Refused    ///< the device is there and free, yet the system does not open it
};

/// Why a port cannot be used, in words for the user.
struct PortTrouble {
    PortTroubleKind kind;
    int number;          ///< DeviceUnavailable, PermissionDenied, PortAlreadyOpen or DeviceIOError
    QString description; ///< names the device and the cause, and says what helps
};

/// What is known of a port that could not be opened.
struct PortFacts {
    int port = 0;                           ///< port number, 1 to 99
    QString device;                         ///< resolved device; empty when there is none
    LinuxPort::Node node;                   ///< what stands at the device's path
    std::vector<LinuxPort::Holder> holders; ///< who has it open, most likely holder first
    bool refusedAsBusy = false;             ///< the system said that it is locked or in use
    qint64 ownProcess = 0;                  ///< process id of this program
    QString systemText;                     ///< what the system said when it refused
};

/// Collects the facts about a port that could not be opened. `refusedAsBusy` and `systemText` are
/// what the attempt gave.
PortFacts GatherPortFacts(int port, const QString& device, bool refusedAsBusy,
                          const QString& systemText);

/// The first cause that the facts show, in the order of PortTroubleKind.
PortTrouble ExplainPortTrouble(const PortFacts& facts);

/// What is said of an open port whose device went away.
PortTrouble LostPortTrouble(int port, const QString& device);
