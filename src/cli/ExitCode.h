#pragma once

#include <QString>

/// How a command ended. The number is the exit code of the process: scripts know it, so it never
/// changes.
///
///   0 done              all of it was done, and the board or the disk has said so
///   1 failed            the board did not do it, or not all of it
///   2 usage             the arguments make no sense; nothing was done
///   3 cancelled         the user said no or interrupted
///   4 unanswered        a question without --yes and nobody to answer it; nothing was done
///   5 no-communication  the port could not be opened, or the line failed
///   6 different         board and disk do not hold the same
///   7 files             a file of the program set is missing or cannot be used
///   8 unproven          no difference found, yet some bytes cannot be read back
enum class ExitCode {
    Done = 0,
    Failed = 1,
    Usage = 2,
    Cancelled = 3,
    Unanswered = 4,
    NoCommunication = 5,
    Different = 6,
    Files = 7,
    Unproven = 8
};

/// The word for it in the results: "no-communication".
QString ExitWord(ExitCode code);
/// All codes, one a line, as --help shows them.
QString ExitCodeTable();
