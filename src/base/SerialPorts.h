#pragma once

#include <optional>
#include <QString>
#include <vector>

/// A serial port of the computer as a list of ports shows it.
struct FoundPort {
    std::optional<int> number; ///< 1 to 99; nothing when no number leads to the device
    QString device;
    QString description; ///< what the system knows of it; may be empty
};

/// What stands behind a port number.
struct PortBehind {
    QString device; ///< empty when the number stands for no device
    bool isThere = false;
};

/// The seam for the ports that the computer has.
class SerialPorts {
public:
    virtual ~SerialPorts();

    /// The ports that are there now, by number; those without a number last.
    virtual std::vector<FoundPort> Found() const = 0;
    /// The device of a port number, 1 to 99.
    virtual PortBehind Behind(int number) const = 0;
};
