#pragma once

#include "board/Line.h"
#include "board/SimulatedBoard.h"

#include <string>
#include <string_view>
#include <vector>

namespace haldenboard {

/// Orders to the board and its line as lines of text, for a person or a script at its side.
/// HelpText() has the commands. Whatever the text, the answer is one line and nothing is raised.
class CommandInterpreter {
public:
    /// Both must outlive the interpreter.
    CommandInterpreter(SimulatedBoard& board, Line& line) : board_(board), line_(line) {}

    /// Carries out one line.
    /// @param text without its line end
    /// @param now seconds on the line's clock
    /// @return "ok", the values asked for, or "error: " and the reason; empty for a blank line
    std::string Execute(std::string_view text, double now);

    /// Whether "quit" was among the commands.
    bool QuitWanted() const { return quit_; }

    /// All commands on one line.
    static std::string HelpText();

private:
    using Words = std::vector<std::string_view>;

    using Handler = std::string (CommandInterpreter::*)(const Words&);
    struct Command;

    static Handler HandlerOf(std::string_view name);
    std::string Set(const Words& words);
    std::string Show(const Words& words);
    std::string Speed(const Words& words);
    std::string Busy(const Words& words);
    std::string Demo(const Words& words);
    std::string OrderFaults(const Words& words);
    std::string ClearFaults(const Words& words);
    std::string Reset(const Words& words);
    std::string Baud(const Words& words);
    std::string Unpaced(const Words& words);
    std::string Help(const Words& words);
    std::string Quit(const Words& words);

    SimulatedBoard& board_;
    Line& line_;
    bool quit_ = false;
};

} // namespace haldenboard
