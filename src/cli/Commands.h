#pragma once

#include "cli/Outcome.h"
#include <span>

class CommandContext;

/// One command of the program.
struct Command {
    const char* name;
    const char* operands; ///< as --help shows them
    const char* summary;
    bool asks; ///< it asks before it changes a board or a set
    Outcome (*run)(CommandContext& context);
};

/// All commands in the order of --help.
std::span<const Command> Commands();
/// The command of this name, or null.
const Command* FindCommand(const QString& name);

// What the commands do. Each looks at its operands before the port is opened, and ends with Done
// only when the link has shown that all bytes went over. Run-time failures of files are raised.

/// The serial ports of the computer.
Outcome ListPortsCommand(CommandContext& context);
/// Starts the program with windows. A set becomes the newest of its list of last sets first, which
/// it selects at its start; a running one does not take notice.
Outcome OpenCommand(CommandContext& context);
/// Values of variables, read one after the other.
Outcome ReadCommand(CommandContext& context);
/// Writes "variable=value" pairs, in order, up to the first that fails.
Outcome WriteCommand(CommandContext& context);
/// The program of a set into the board.
Outcome DumpCommand(CommandContext& context);
/// The program of the board into a set.
Outcome UploadCommand(CommandContext& context);
/// All bytes of all records of a set's image against the board.
Outcome VerifyCommand(CommandContext& context);
/// Data bytes of a set's data file into the board, and from it. The file changes as a whole or not
/// at all.
Outcome DataDownloadCommand(CommandContext& context);
Outcome DataUploadCommand(CommandContext& context);
/// Configuration and channels of a limit switch set into its board, and from it.
Outcome PLSDownloadCommand(CommandContext& context);
Outcome PLSUploadCommand(CommandContext& context);
/// Fault and communication error codes with their texts.
Outcome FaultsCommand(CommandContext& context);
/// Sets the fault codes to 0 and reads them again.
Outcome ResetFaultsCommand(CommandContext& context);
/// By what the program in the board is known; with a set, compared with it.
Outcome IdentCommand(CommandContext& context);
