#include "cli/PortChoice.h"

#include "base/port/PortDevices.h"
#include "base/RunTimeError.h"
#include "cli/Arguments.h"
#include "link/PortSettings.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {
QString SettingsFile(const ApplicationFolder& folder) {
    return folder.Path(QStringLiteral("Support/RSPort.cfg"));
}

// Without --port the user's own port counts, and without --baud their speed; a settings file that
// cannot be read matters only where it is needed.
PortSettings UserSettings(const Arguments& arguments, const ApplicationFolder& folder) {
    if (!arguments.port.isEmpty() && arguments.baud)
        return {};
    return LoadPortSettings(SettingsFile(folder));
}
} // namespace

PortChoice::PortChoice(const Arguments& arguments, const ApplicationFolder& folder)
    : settings_(folder), links_(folder) {
    if (arguments.port.isEmpty() && !arguments.baud)
        return;
    own_ = std::make_unique<QTemporaryDir>();
    PortSettings chosen = UserSettings(arguments, folder);
    if (!arguments.port.isEmpty())
        chosen.port = NumberOf(arguments.port);
    if (arguments.baud)
        chosen.baud = *arguments.baud;
    settings_ = ApplicationFolder(own_->path());
    SavePortSettings(SettingsFile(settings_), chosen);
}

PortChoice::~PortChoice() = default;

// A device that no number leads to gets one by a link of its own.
int PortChoice::NumberOf(const QString& port) {
    if (IsPortText(port))
        return PortOfText(port);
    if (const auto number = PortDevices::Read(links_).PortNumber(port))
        return *number;
    links_ = ApplicationFolder(own_->path());
    const QString folder = own_->filePath(QStringLiteral("Support/ports"));
    const QString link = QStringLiteral("%1/COM%2").arg(folder).arg(PortSettings::highestPort);
    if (!QDir().mkpath(folder) || !QFile::link(QDir().absoluteFilePath(port), link))
        throw RunTimeError(ErrorNumber::PathFileAccess);
    return PortSettings::highestPort;
}
