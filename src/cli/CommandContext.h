#pragma once

#include "base/ApplicationFolder.h"
#include "base/FileSystem.h"
#include "cli/Arguments.h"
#include "cli/Outcome.h"
#include "cli/PortChoice.h"
#include "cli/TerminalDialogs.h"
#include "cli/TerminalProgress.h"
#include "link/RSComm.h"
#include <functional>
#include <memory>

class Clock;
class Console;
class MSComm;
class SerialPorts;

/// What the program stands on: the machine's own things, or those of a test.
struct CommandPlatform {
    Clock& clock;
    BusyDisplay& busy;
    Console& console;
    const ApplicationFolder& folder;
    const SerialPorts& ports;
    /// The port, closed, whose devices are named by the links of this folder.
    std::function<MSComm&(const ApplicationFolder& links)> port;
    /// Starts the program with windows and does not wait for it. Raises as ProcessStart::Shell.
    std::function<void()> startQuentor;
    /// The user has interrupted the program.
    std::function<bool()> interrupted;
};

/// All that a command works with. The line is opened when the command asks for it and closed when
/// the object goes, which leaves the board out of any mode.
class CommandContext {
public:
    /// `platform` and `arguments` must outlive the object.
    CommandContext(const CommandPlatform& platform, const Arguments& arguments);
    ~CommandContext();
    CommandContext(const CommandContext&) = delete;
    CommandContext& operator=(const CommandContext&) = delete;

    const CommandPlatform& Platform() const { return platform_; }
    const Arguments& Given() const { return arguments_; }
    TerminalDialogs& Prompts() { return dialogs_; }
    TerminalProgress& Progress() { return progress_; }
    RSComm& Link() { return link_; }

    /// Opens the line; what kept it from being opened, or nothing. Raises as PortChoice.
    std::optional<Outcome> GoOnline();
    /// Asks a question of Yes and No; nothing for Yes, else the outcome.
    std::optional<Outcome> Ask(const QString& text, const QString& title);
    /// What went wrong since the start: a failure of the line, a byte that was not acknowledged, a
    /// box of the link or of a job. Nothing if all that was sent has been answered.
    std::optional<Outcome> Failure() const;
    /// The same for work that an interruption ends before its end.
    std::optional<Outcome> FailureOrInterruption() const;
    bool Interrupted() const { return platform_.interrupted(); }

    /// The program set named by the one operand becomes gHdnFile and the link's set; its failure
    /// if there is no such set or there are more or fewer operands. Raises as ProgramBoardIndex.
    std::optional<Outcome> TakeSet();
    /// Board index of that set.
    qint16 Model() const { return model_; }
    /// The model comes from --set or --model; the failure if there are both or none.
    std::optional<Outcome> TakeModel();

private:
    std::optional<Outcome> TakeSetFile(const QString& path);

    const CommandPlatform& platform_;
    const Arguments& arguments_;
    TerminalDialogs dialogs_;
    TerminalProgress progress_;
    std::unique_ptr<PortChoice> choice_;
    ApplicationFolder settingsFolder_; // of the choice, once there is one
    RSComm link_;
    qint16 model_ = 0;
};
