#pragma once

#include <functional>
#include <optional>
#include <QString>

class Dialogs;
class FileSystem;
class ProcessStart;
class SystemRegistry;

/// What the start of the system information tool needs. All must outlive the call.
struct SystemInfoContext {
    const SystemRegistry& registry;
    const FileSystem& files;
    ProcessStart& tools;
    Dialogs& dialogs;
    std::function<void()> showReport; ///< shows what the program itself knows of the system
};

/// Path of the system's own information tool, as the registry tells it; nothing if it is not known.
std::optional<QString> SystemInfoTool(const SystemRegistry& registry, const FileSystem& files);

/// Starts the system information tool, or says that there is none. A system without a registry has
/// no such tool: there the report of the program is shown instead. A failure of the start is shown
/// in a box titled "StartSysInfo".
void StartSysInfo(const SystemInfoContext& context);
