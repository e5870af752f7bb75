#pragma once

#include "base/ApplicationFolder.h"
#include <memory>
#include <QString>

class QTemporaryDir;
struct Arguments;

/// Which port a run uses: that of the settings file, or what the command line says instead. The
/// user's own settings stay as they are: what differs stands in folders that are gone with this
/// object.
class PortChoice {
public:
    /// `folder` is the application folder, which must outlive the object. Raises as
    /// LoadPortSettings where --baud goes with the port of the settings file, and as
    /// SavePortSettings.
    PortChoice(const Arguments& arguments, const ApplicationFolder& folder);
    ~PortChoice();
    PortChoice(const PortChoice&) = delete;
    PortChoice& operator=(const PortChoice&) = delete;

    /// The folder whose settings file the link reads.
    const ApplicationFolder& SettingsFolder() const { return settings_; }
    /// The folder whose links name the devices.
    const ApplicationFolder& LinksFolder() const { return links_; }

private:
    int NumberOf(const QString& port);

    std::unique_ptr<QTemporaryDir> own_;
    ApplicationFolder settings_;
    ApplicationFolder links_;
};
