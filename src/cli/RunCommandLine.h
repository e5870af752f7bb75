#pragma once

#include "cli/CommandContext.h"
#include <QStringList>

/// Does what a command line asks for and tells how it ended: the result on standard output, as
/// lines or with --json as one object, the reason of any other end than done on standard error.
/// `words` begin with the program's name. Gives the exit code of the process (ExitCode.h). Raises
/// nothing.
///
/// The object holds "command", "outcome" (the word of the exit code), "exitCode", "reason" (empty
/// when done) and "result", whose members depend on the command.
int RunCommandLine(const QStringList& words, const CommandPlatform& platform);
