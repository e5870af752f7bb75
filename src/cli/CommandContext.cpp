#include "cli/CommandContext.h"

#include "base/Siblings.h"
#include "programset/ProgramBoardIndex.h"
#include "session/Globals.h"

CommandContext::CommandContext(const CommandPlatform& platform, const Arguments& arguments)
    : platform_(platform), arguments_(arguments), dialogs_(platform.console, arguments.yes),
      progress_(platform.console, platform.interrupted), settingsFolder_(platform.folder),
      link_(dialogs_, platform.clock, platform.busy, settingsFolder_) {}

CommandContext::~CommandContext() {
    link_.CloseRSComm();
    gHdnFile.clear();
}

std::optional<Outcome> CommandContext::GoOnline() {
    choice_ = std::make_unique<PortChoice>(arguments_, platform_.folder);
    settingsFolder_ = choice_->SettingsFolder();
    link_.OpenRSComm(platform_.port(choice_->LinksFolder()));
    if (!link_.OnlineMode() || link_.CommError())
        return Ended(ExitCode::NoCommunication, dialogs_.Report());
    return std::nullopt;
}

std::optional<Outcome> CommandContext::Ask(const QString& text, const QString& title) {
    if (dialogs_.MsgBox(text, MsgStyle::YesNoCancelInformation, title) == MsgAnswer::Yes)
        return std::nullopt;
    return Ended(ExitCode::Cancelled, QStringLiteral("Not confirmed; nothing was done."));
}

std::optional<Outcome> CommandContext::Failure() const {
    const QString report = dialogs_.Report();
    if (link_.CommError())
        return Ended(ExitCode::NoCommunication,
                     report.isEmpty() ? QStringLiteral("The line failed.") : report);
    if (!report.isEmpty())
        return Ended(ExitCode::Failed, report);
    if (link_.FailedOperations() > 0)
        return Ended(ExitCode::Failed,
                     QStringLiteral("The board did not acknowledge every byte; the line may be "
                                    "disturbed."));
    return std::nullopt;
}

std::optional<Outcome> CommandContext::FailureOrInterruption() const {
    if (Interrupted())
        return Ended(ExitCode::Cancelled, QStringLiteral("Interrupted before the end."));
    return Failure();
}

std::optional<Outcome> CommandContext::TakeSet() {
    if (arguments_.operands.size() != 1)
        return Ended(
            ExitCode::Usage,
            QStringLiteral("%1 takes one program set, a .hdn file.").arg(arguments_.command));
    return TakeSetFile(arguments_.operands.first());
}

std::optional<Outcome> CommandContext::TakeModel() {
    if (arguments_.set.isEmpty() == !arguments_.model)
        return Ended(ExitCode::Usage,
                     QStringLiteral("%1 needs the model of the board: --set or --model.")
                         .arg(arguments_.command));
    if (!arguments_.model)
        return TakeSetFile(arguments_.set);
    model_ = *arguments_.model;
    link_.SetTargetboardType(model_);
    return std::nullopt;
}

std::optional<Outcome> CommandContext::TakeSetFile(const QString& path) {
    const FileSystem files;
    if (!path.endsWith(QLatin1String(".hdn"), Qt::CaseInsensitive))
        return Ended(ExitCode::Usage,
                     QStringLiteral("\"%1\" is no program set: a .hdn file is.").arg(path));
    if (!files.FileExists(path))
        return Ended(ExitCode::Files, QStringLiteral("%1 does not exist.").arg(path));
    gHdnFile = OnDisk(files.GetAbsolutePathName(path));
    model_ = ProgramBoardIndex(gHdnFile);
    link_.SetTargetboardType(model_);
    return std::nullopt;
}
