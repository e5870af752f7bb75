#include "base/CharacterSet.h"
#include "FuzzFile.h"
#include "link/PortSettings.h"

// The port settings file, and a port number as a user types it.

namespace {
bool IsPort(int port) {
    return port >= PortSettings::lowestPort && port <= PortSettings::highestPort;
}

void Run(FuzzInput input) {
    static const FuzzFile file(QStringLiteral("RSPort.cfg"));
    file.Put(input);
    Passes([&] {
        const PortSettings settings = LoadPortSettings(file.Path());
        Require(IsPort(settings.port), "the port exists");
        Require(settings.baud == PortSettings::slowBaud || settings.baud == PortSettings::fastBaud,
                "the board knows the speed");
    });
    const QString typed = FromWindows1252(QByteArray(reinterpret_cast<const char*>(input.data()),
                                                     static_cast<qsizetype>(input.size())));
    Require(IsPort(PortOfText(typed)), "what a user types becomes a port");
    IsPortText(typed);
}

const RegisteredTarget target("settings", Run);
} // namespace
