#pragma once

#include <optional>
#include <QMap>
#include <QString>

class ApplicationFolder;

/// Whose device names stand behind the port numbers.
enum class PortPlatform { Linux, Windows };

/// The platform that the program runs on. Systems with neither naming count as Linux.
PortPlatform CurrentPortPlatform();

/// Device of a port number without any link: on Windows "COMn"; on Linux "/dev/ttyS0" to
/// "/dev/ttyS31" for 1 to 32, "/dev/ttyUSB0" to "/dev/ttyUSB31" for 33 to 64, "/dev/ttyACM0" to
/// "/dev/ttyACM31" for 65 to 96. Empty for a number that stands for no device.
QString StandardPortDevice(int port, PortPlatform platform);

/// Follows links (names by id or by path too) to the device itself, so that all programs agree on
/// the name of its lock. Of a link that ends nowhere, the last name that it leads to.
QString ResolvedDevice(const QString& path);

/// Which device stands behind which port number, at one moment: the links that the user has made
/// in the folder Support/ports, "COM1" to "COM99", come before the standard devices.
class PortDevices {
public:
    /// Numbers as given by `links`: port number to resolved device.
    PortDevices(QMap<int, QString> links, PortPlatform platform);
    /// Reads the links of the application folder; their names may have any letter case, and
    /// "COM1" comes before "com1". What is no link does not count.
    static PortDevices Read(const ApplicationFolder& folder,
                            PortPlatform platform = CurrentPortPlatform());

    /// Path of the device to open for a port number; empty when there is none.
    QString Device(int port) const;
    /// The number under which a device is reached, for a list of ports: the lowest one that is
    /// linked to it, else its standard number unless a link has taken that one away. `device` may
    /// be a link itself. Nothing when no number leads to it.
    std::optional<int> PortNumber(const QString& device) const;

private:
    QMap<int, QString> links_;
    PortPlatform platform_;
};
