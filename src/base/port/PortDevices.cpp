#include "base/port/PortDevices.h"

#include "base/ApplicationFolder.h"
#include <algorithm>
#include <iterator>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSysInfo>
#include <utility>

namespace {
constexpr int lowestPort = 1;
constexpr int highestPort = 99;
constexpr int portsPerFamily = 32;
constexpr int mostLinks = 40; // as many as the system itself follows

// Families of Linux device names, each with 32 numbers in this order.
constexpr const char* families[] = {"/dev/ttyS", "/dev/ttyUSB", "/dev/ttyACM"};

// Port number of a link's name; nothing when the name is not one.
std::optional<int> PortOfLinkName(const QString& name) {
    static const QRegularExpression pattern(QStringLiteral("^COM([1-9][0-9]?)$"),
                                            QRegularExpression::CaseInsensitiveOption);
    const auto match = pattern.match(name);
    return match.hasMatch() ? std::optional(match.captured(1).toInt()) : std::nullopt;
}
} // namespace

PortPlatform CurrentPortPlatform() {
    return QSysInfo::kernelType() == QLatin1String("winnt") ? PortPlatform::Windows
                                                            : PortPlatform::Linux;
}

QString StandardPortDevice(int port, PortPlatform platform) {
    if (port < lowestPort || port > highestPort)
        return QString();
    if (platform == PortPlatform::Windows)
        return QStringLiteral("COM%1").arg(port);
    const int family = (port - 1) / portsPerFamily;
    if (family >= static_cast<int>(std::size(families)))
        return QString();
    return QLatin1String(families[family]) + QString::number((port - 1) % portsPerFamily);
}

QString ResolvedDevice(const QString& path) {
    const QString whole = QFileInfo(path).canonicalFilePath();
    if (!whole.isEmpty())
        return whole;
    QString reached = path;
    for (int links = 0; links < mostLinks && QFileInfo(reached).isSymLink(); ++links)
        reached = QFileInfo(reached).symLinkTarget();
    return reached;
}

PortDevices::PortDevices(QMap<int, QString> links, PortPlatform platform)
    : links_(std::move(links)), platform_(platform) {}

PortDevices PortDevices::Read(const ApplicationFolder& folder, PortPlatform platform) {
    QMap<int, QString> links;
    // A link to a device, or to one that is unplugged, counts as a file of the system.
    const QDir ports(folder.Path(QStringLiteral("Support/ports")));
    const auto entries =
        ports.entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        const auto port = PortOfLinkName(entry.fileName());
        if (!port || !entry.isSymLink())
            continue;
        const bool isExactName = entry.fileName().startsWith(QLatin1String("COM"));
        if (isExactName || !links.contains(*port))
            links.insert(*port, ResolvedDevice(entry.filePath()));
    }
    return PortDevices(std::move(links), platform);
}

QString PortDevices::Device(int port) const {
    const auto link = links_.find(port);
    if (link != links_.end())
        return *link;
    const QString standard = StandardPortDevice(port, platform_);
    return standard.isEmpty() || platform_ == PortPlatform::Windows ? standard
                                                                    : ResolvedDevice(standard);
}

std::optional<int> PortDevices::PortNumber(const QString& device) const {
    if (device.isEmpty())
        return std::nullopt;
    const QString wanted = platform_ == PortPlatform::Windows ? device : ResolvedDevice(device);
    const auto linked = std::find(links_.begin(), links_.end(), wanted);
    if (linked != links_.end())
        return linked.key();
    for (int port = lowestPort; port <= highestPort; ++port)
        if (!links_.contains(port) && StandardPortDevice(port, platform_) == wanted)
            return port;
    return std::nullopt;
}
