#include "help/SystemInfo.h"

#include "base/Dialogs.h"
#include "base/FileSystem.h"
#include "base/ProcessStart.h"
#include "base/RunTimeError.h"
#include "base/Siblings.h"
#include "base/VersionRecord.h"
#include "help/SystemRegistry.h"

namespace {
constexpr int normalWindow = 1;
} // namespace

std::optional<QString> SystemInfoTool(const SystemRegistry& registry, const FileSystem& files) {
    QString path;
    if (GetKeyValue(registry, LocalMachine(),
                    QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
                    QStringLiteral("PATH"), path))
        return path;
    if (GetKeyValue(registry, LocalMachine(),
                    QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"),
                    QStringLiteral("MSINFO"), path)) {
        path += QLatin1String("\\MSINFO32.EXE");
        if (files.FileExists(OnDisk(path)))
            return path;
    }
    return std::nullopt;
}

void StartSysInfo(const SystemInfoContext& context) {
    if (!context.registry.IsThere()) {
        context.showReport();
        return;
    }
    try {
        if (const auto tool = SystemInfoTool(context.registry, context.files))
            context.tools.Shell(CommandWord(*tool), normalWindow);
        else
            context.dialogs.MsgBox(QStringLiteral("System Information Is Unavailable At This Time"),
                                   MsgStyle::Plain, ProgramVersion().title);
    } catch (const RunTimeError& error) {
        ShowErrorBox(context.dialogs, error, QStringLiteral("StartSysInfo"), MsgStyle::Critical);
    }
}
