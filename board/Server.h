#pragma once

#include "board/CommandInterpreter.h"
#include "board/InputLines.h"
#include "board/Line.h"
#include "board/Options.h"
#include "board/PseudoTerminal.h"
#include "board/SimulatedBoard.h"

#include <chrono>
#include <fstream>
#include <optional>

namespace haldenboard {

/// The running program: a board whose line ends at a pseudo-terminal, and its commands at standard
/// input.
class Server {
public:
    /// @throws std::system_error if the terminal, the link or the log cannot be made
    explicit Server(const Options& options);

    /// Path of the terminal that a host opens.
    const std::string& TerminalName() const { return terminal_.Name(); }

    /// Serves until a command, the end of standard input if that was asked for, or one of the
    /// signals that `signals` (a signalfd) reports.
    void Run(int signals);

private:
    using Clock = std::chrono::steady_clock;

    double Now() const;
    void Deliver();
    bool TakeFromHost();
    void WaitForWork(int signals);
    void Watch(double due);
    void TakeCommands();
    void WriteLog();

    Options options_;
    SimulatedBoard board_;
    Line line_;
    CommandInterpreter commands_;
    PseudoTerminal terminal_;
    std::optional<TerminalLink> link_;
    std::ofstream log_;
    InputLines inputLines_;
    /// Seconds that the terminal takes one way. Bytes are handed over so much early, and are taken
    /// to have started so much before they are seen.
    double oneWay_ = 0;
    Clock::time_point start_ = Clock::now();
    double watchUntil_ = 0; ///< seconds; until then the host's next byte is looked for without rest
    bool inputOpen_ = true;
    bool ended_ = false;
};

} // namespace haldenboard
