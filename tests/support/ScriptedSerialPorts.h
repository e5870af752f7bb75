#pragma once

#include "base/SerialPorts.h"
#include <QMap>

/// Ports that a test hands in.
class ScriptedSerialPorts final : public SerialPorts {
public:
    std::vector<FoundPort> Found() const override { return found; }
    PortBehind Behind(int number) const override { return behind.value(number); }

    std::vector<FoundPort> found;
    QMap<int, PortBehind> behind;
};
